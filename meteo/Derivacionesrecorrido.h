#pragma once

#include "meteo/Fecha.h"
#include "meteo/Serieshorarias.h"

#include <algorithm>
#include <cstddef>

namespace tesmo {

/// Llama a @p funcion(posición, fecha) en cada hora de @p tramo que cabe en el año y en @p horas valores, con
/// la fecha avanzada hora a hora desde @p fecha.
template <typename Funcion>
void RecorrerHoras(TramoHoras tramo, FechaHora fecha, std::size_t horas, Funcion funcion) {
  const auto limite = static_cast<int>(std::min(horas, static_cast<std::size_t>(HORAS_DEL_ANIO)));
  const int ultima = std::min(tramo.ultima, limite - 1);
  for (int i = std::max(tramo.primera, 0); i <= ultima; ++i) {
    funcion(static_cast<std::size_t>(i), fecha);
    SiguienteHora(fecha.mes, fecha.dia, fecha.hora);
  }
}

} // namespace tesmo
