#pragma once

#include "vistas/grafico/Repartoejes.h"

#include <span>

namespace tesmo {

/// Una serie a la vista en alguno de los gráficos que comparten escala.
struct SerieCompartida {
  std::span<const float> valores;
  LadoEje lado = LadoEje::Izquierdo;
};

struct EjesCompartidos {
  LimitesEje izquierdo;
  LimitesEje derecho;
};

/// Límites fijos de los dos ejes de varios gráficos: en cada eje, de tres por debajo del menor valor a una
/// décima parte por encima del mayor, contando siempre el 0 como posible menor y el 1 como posible mayor. Lo
/// que no es un número finito no cuenta.
[[nodiscard]] EjesCompartidos RepartirEjes(std::span<const SerieCompartida> series);

} // namespace tesmo
