#include "psicro/Atmosfera.h"

#include "psicro/Constantes.h"

#include <cmath>

namespace tesmo {

namespace {

constexpr double PRESION_NORMAL = aire::PRESION_NORMAL;
constexpr double GRADIENTE = 2.25577e-5; // [1/m]
constexpr double EXPONENTE = 5.2559;

} // namespace

bool AltitudCreible(double altitud) { return altitud >= ALTITUD_MINIMA && altitud <= ALTITUD_MAXIMA; }

double PresionEnAltitud(double altitud) {
  return PRESION_NORMAL * std::pow(1.0 - GRADIENTE * altitud, EXPONENTE);
}

double AltitudDePresion(double presion) {
  return (1.0 - std::pow(presion / PRESION_NORMAL, 1.0 / EXPONENTE)) / GRADIENTE;
}

} // namespace tesmo
