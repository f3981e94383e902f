#include "vistas/grafico/Ejescompartidos.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr double MAYOR_DE_PARTIDA = 1.0;
constexpr double MENOR_DE_PARTIDA = 0.0;
constexpr double HOLGURA_ARRIBA = 1.1;
constexpr double HOLGURA_ABAJO = 3.0;

LimitesEje Limites(std::span<const SerieCompartida> series, LadoEje lado) {
  double menor = MENOR_DE_PARTIDA;
  double mayor = MAYOR_DE_PARTIDA;
  for (const SerieCompartida &serie : series) {
    if (serie.lado != lado) continue;
    for (const float valor : serie.valores) {
      if (!std::isfinite(valor)) continue;
      menor = std::min(menor, static_cast<double>(valor));
      mayor = std::max(mayor, static_cast<double>(valor));
    }
  }
  return {menor - HOLGURA_ABAJO, HOLGURA_ARRIBA * mayor};
}

} // namespace

EjesCompartidos RepartirEjes(std::span<const SerieCompartida> series) {
  return {Limites(series, LadoEje::Izquierdo), Limites(series, LadoEje::Derecho)};
}

} // namespace tesmo
