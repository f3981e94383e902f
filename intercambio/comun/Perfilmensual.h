#pragma once

#include "core/Calendario.h"

#include <array>
#include <cstddef>
#include <vector>

namespace tesmo {

/// Un valor por mes, enero primero.
using ValoresPorMes = std::array<double, MESES_DEL_ANIO>;
/// 365 valores, uno por día, y 8.760, uno por hora.
using SerieDias = std::vector<double>;
using SerieHoras = std::vector<double>;

inline constexpr std::size_t MESES = MESES_DEL_ANIO;
inline constexpr std::size_t DIAS = DIAS_DEL_ANIO;
inline constexpr std::size_t HORAS = HORAS_DEL_ANIO;
inline constexpr std::size_t HORAS_POR_DIA = HORAS_DEL_DIA;

/// Primer día (de 0 a 364) y número de días de @p mes (0 a 11).
[[nodiscard]] inline std::size_t PrimerDiaDe(std::size_t mes) {
  return static_cast<std::size_t>(DIAS_ANTES_DEL_MES[mes]);
}
[[nodiscard]] inline std::size_t DiasDe(std::size_t mes) {
  return static_cast<std::size_t>(DIAS_DEL_MES[mes]);
}
/// Mes (0 a 11) del @p dia del año (0 a 364).
[[nodiscard]] std::size_t MesDe(std::size_t dia);
/// Instante en que se da el valor de la hora @p i del día (0 a 23): el centro de la hora [h solar].
[[nodiscard]] inline double CentroDeHora(std::size_t i) { return static_cast<double>(i) + 0.5; }

/// Curva de todo el año por doce nodos puestos a mitad de cada mes, recta entre ellos y cerrada de diciembre
/// a enero: lo que un mes tiene de propio pasa al siguiente sin escalón.
class PerfilMensual {
public:
  explicit PerfilMensual(const ValoresPorMes &nodos) : nodos(nodos) {}
  /// Valor a mediodía del @p dia del año (0 a 364).
  [[nodiscard]] double En(std::size_t dia) const;

  ValoresPorMes nodos;
};

/// Media de los días de @p mes (0 a 11) y desviación típica entre ellos (con n − 1).
[[nodiscard]] double MediaDelMes(const SerieDias &serie, std::size_t mes);
[[nodiscard]] double DesviacionDelMes(const SerieDias &serie, std::size_t mes);
/// Media de las horas de @p mes.
[[nodiscard]] double MediaHorariaDelMes(const SerieHoras &serie, std::size_t mes);

} // namespace tesmo
