#include "intercambio/sintesis/Cielosintetico.h"

#include "core/Unidades.h"
#include "intercambio/fisica/Emisividadcielo.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr double CENTESIMAS = 100.0;

/// Nubosidad en el centro de la hora @p i: recta entre los mediodías.
double NubosidadHoraria(const SerieDias &nubosidad, std::size_t i) {
  const std::size_t hoy = i / HORAS_POR_DIA;
  const double desdeMediodia = CentroDeHora(i % HORAS_POR_DIA) - 12.0;
  const std::size_t otro = desdeMediodia < 0.0 ? (hoy + DIAS - 1) % DIAS : (hoy + 1) % DIAS;
  return nubosidad[hoy] + (nubosidad[otro] - nubosidad[hoy]) * std::fabs(desdeMediodia) / 24.0;
}

} // namespace

SerieHoras GenerarTemperaturaDeCielo(const SerieHoras &temperaturas, const SerieHoras &rocio,
                                     const SerieDias &claridad) {
  SerieDias nubosidad(DIAS);
  std::transform(claridad.begin(), claridad.end(), nubosidad.begin(), NubosidadDeClaridad);
  SerieHoras cielo(HORAS);
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double emisividad = EmisividadDelCielo(rocio[i], NubosidadHoraria(nubosidad, i));
    const double kelvin = std::sqrt(std::sqrt(emisividad)) * (temperaturas[i] + CERO_CELSIUS);
    cielo[i] = std::round((kelvin - CERO_CELSIUS) * CENTESIMAS) / CENTESIMAS;
  }
  return cielo;
}

} // namespace tesmo
