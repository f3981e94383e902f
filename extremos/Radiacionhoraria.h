#pragma once

#include "extremos/Radiaciondiaria.h"
#include "extremos/Tipos.h"

#include <array>
#include <cstddef>

namespace tesmo::extremos {

/// Horas con reparto: de la 6 a la 19, centradas en 5,5 a 18,5.
inline constexpr std::size_t HORAS_DE_REPARTO = 14;

/// Partes horarias del total diario, simétricas respecto al mediodía, y la suma de cada juego.
struct RepartoHorario {
  std::array<long double, HORAS_DE_REPARTO> global{};
  std::array<long double, HORAS_DE_REPARTO> difusa{};
  long double sumaGlobal = 0.0L;
  long double sumaDifusa = 0.0L;
};

/// Global según Collares-Pereira y Rabl (1979) y difusa según Liu y Jordan (1960); una parte negativa es 0.
/// @param ocaso ángulo horario del ocaso [rad]
[[nodiscard]] RepartoHorario RepartirDia(long double ocaso);

/// Radiación de un día de proyecto.
struct RadiacionDelDia {
  ValoresHorarios directa{};   ///< [W/m²]
  ValoresHorarios difusa{};    ///< [W/m²]
  long double claridad = 0.0L; ///< índice de claridad diario
};

/// Reparte @p diaria [Wh/m²]: la difusa del día por la fracción difusa y cada hora por su parte; la directa
/// es la diferencia entre la global y la difusa de la hora, nunca negativa. De noche, 0.
[[nodiscard]] RadiacionDelDia RepartirRadiacion(long double diaria, const SolDeProyecto &sol);

} // namespace tesmo::extremos
