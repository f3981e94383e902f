#include "extremos/Cielo.h"

#include <algorithm>
#include <cmath>

namespace tesmo::extremos {

namespace {

constexpr long double KELVIN_EN_CERO_CELSIUS = 273.0L; // no 273,15: se conserva
constexpr long double DECIMAS = 10.0L;

} // namespace

long double CieloCubierto(long double claridad) {
  constexpr long double CLARIDAD_CUBIERTA = 0.25L;
  constexpr long double POR_CLARIDAD = 2.0833333L; // 1 / 0,48
  return std::clamp(1.0L - (claridad - CLARIDAD_CUBIERTA) * POR_CLARIDAD, 0.0L, 1.0L);
}

long double TemperaturaDeCielo(long double t, long double rocio, long double nubes) {
  const long double correccion = 1.0L + nubes * (0.0224L + nubes * (-0.0035L + nubes * 0.00028L));
  const long double emisividad = correccion * (0.787L + 0.0028L * rocio);
  return std::pow(emisividad, 0.25L) * (t + KELVIN_EN_CERO_CELSIUS) - KELVIN_EN_CERO_CELSIUS;
}

ValoresHorarios CursoDeCielo(const ValoresHorarios &exterior, const ValoresHorarios &rocio,
                             long double claridad) {
  const long double nubes = DECIMAS * CieloCubierto(claridad);
  ValoresHorarios cielo{};
  for (std::size_t h = 0; h < cielo.size(); ++h) {
    cielo[h] = static_cast<float>(TemperaturaDeCielo(exterior[h], rocio[h], nubes));
  }
  return cielo;
}

} // namespace tesmo::extremos
