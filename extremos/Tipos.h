#pragma once

#include "core/Calendario.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace tesmo {

/// Un indicador por mes, enero primero: 1 si el mes pertenece a la temporada.
using MesesDeTemporada = std::array<std::int16_t, 12>;

namespace extremos {

/// Un valor por mes, enero primero.
using ValoresMensuales = std::array<float, 12>;
/// Un valor por hora del día: el elemento h va centrado en h + 0,5 de la hora solar.
using ValoresHorarios = std::array<float, HORAS_DEL_DIA>;

/// El día de cálculo es siempre el 15 del mes.
inline constexpr int DIA_DE_PROYECTO = 15;
/// π de la onda de temperatura del día.
inline constexpr long double PI_DE_LA_ONDA = 3.1415926L;
/// Paso de grados a radianes de las ondas y de los ángulos horarios.
inline constexpr long double GRADO_DE_ONDA = 0.017453292L;

/// Posición en una lista del mes @p mes (1 a 12).
[[nodiscard]] constexpr std::size_t PosicionDeMes(int mes) { return static_cast<std::size_t>(mes) - 1U; }

/// Un día de proyecto, hora a hora.
struct DiaDeProyecto {
  ValoresHorarios exterior{}; ///< temperatura exterior [°C]
  ValoresHorarios cielo{};    ///< temperatura de cielo [°C]
  ValoresHorarios rocio{};    ///< temperatura de rocío [°C]
  ValoresHorarios directa{};  ///< radiación directa horizontal [W/m²]
  ValoresHorarios difusa{};   ///< radiación difusa horizontal [W/m²]
  ValoresHorarios absoluta{}; ///< humedad absoluta [g/kg]
  ValoresHorarios relativa{}; ///< humedad relativa [%]
};

} // namespace extremos
} // namespace tesmo
