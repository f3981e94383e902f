#pragma once

#include <array>

namespace tesmo::extremos {

/// Densidad de la normal tipificada, con 2π = 6,283185.
[[nodiscard]] long double DensidadNormal(long double x);

/// Distribución normal tipificada tabulada con un paso e integrada por Simpson en ochenta intervalos desde 0.
class TablaNormal {
public:
  /// Puntos de la tabla; los de número impar llevan la integral.
  static constexpr int PUNTOS = 81;

  /// @p paso puede ser negativo: la tabla baja entonces desde 0.
  explicit TablaNormal(long double paso);

  /// Punto que deja por encima una probabilidad @p q, interpolado dentro de un doble intervalo. Con @p q de
  /// 0,5 o más da 0, y lo que la tabla no alcanza da su último punto.
  [[nodiscard]] long double Punto(long double q) const;
  /// Probabilidad acumulada en el último punto, 80 pasos.
  [[nodiscard]] long double AlFinal() const { return acumulada_.back(); }

private:
  static constexpr std::size_t INTEGRALES = (PUNTOS + 1) / 2;

  long double paso_;
  std::array<long double, INTEGRALES> acumulada_{};
};

/// Probabilidad acumulada de la normal tipificada en @p x, de uno u otro signo.
[[nodiscard]] long double AcumuladaNormal(long double x);

} // namespace tesmo::extremos
