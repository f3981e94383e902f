#include "intercambio/fisica/Emisividadcielo.h"

#include <algorithm>

namespace tesmo {

double NubosidadDeClaridad(double k) {
  constexpr double CUBIERTO = 10.0;
  constexpr double ANGSTROM_A = 0.25;
  constexpr double ANGSTROM_B = 0.50;
  return CUBIERTO * std::clamp(1.0 - (k - ANGSTROM_A) / ANGSTROM_B, 0.0, 1.0);
}

double EmisividadDelCielo(double rocio, double nubosidad) {
  const double r = rocio / 100.0;
  const double despejado = 0.711 + 0.56 * r + 0.73 * r * r;
  const double n = nubosidad;
  const double nubes = 1.0 + 0.0224 * n - 0.0035 * n * n + 0.00028 * n * n * n;
  return std::min(1.0, despejado * nubes);
}

} // namespace tesmo
