#include "extremos/Probabilidad.h"

#include <cmath>

namespace tesmo::extremos {

namespace {

constexpr long double DOS_PI = 6.283185L;
constexpr long double MITAD = 0.5L;

} // namespace

long double DensidadNormal(long double x) { return std::exp(-x * x / 2.0L) / std::sqrt(DOS_PI); }

TablaNormal::TablaNormal(long double paso) : paso_(paso) {
  acumulada_[0] = MITAD;
  for (std::size_t i = 1; i < INTEGRALES; ++i) {
    const long double x = 2.0L * static_cast<long double>(i) * paso;
    acumulada_[i] =
        acumulada_[i - 1] +
        (DensidadNormal(x - 2.0L * paso) + 4.0L * DensidadNormal(x - paso) + DensidadNormal(x)) * paso / 3.0L;
  }
}

long double TablaNormal::Punto(long double q) const {
  const long double buscada = 1.0L - q;
  if (acumulada_[0] >= buscada) return 0.0L;
  for (std::size_t i = 1; i < INTEGRALES; ++i) {
    if (acumulada_[i] < buscada) continue;
    const long double anterior = acumulada_[i - 1];
    const long double avance = (buscada - anterior) / (acumulada_[i] - anterior);
    return 2.0L * paso_ * (static_cast<long double>(i - 1) + avance);
  }
  return static_cast<long double>(PUNTOS - 1) * paso_;
}

long double AcumuladaNormal(long double x) {
  return TablaNormal(x / static_cast<long double>(TablaNormal::PUNTOS - 1)).AlFinal();
}

} // namespace tesmo::extremos
