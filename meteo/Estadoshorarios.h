#pragma once

#include "meteo/Fecha.h"

#include <vector>

namespace tesmo {

class LeerMet;

/// Lo que la carta psicrométrica marca de una hora.
struct EstadoHorario {
  float t; ///< temperatura seca [°C]
  float w; ///< humedad absoluta [kg/kg]
  FechaHora fecha;
};

/// Los estados leídos de las horas del período de @p datos que caen entre @p primera y @p ultima del día
/// (1..24, las dos incluidas), por orden; ninguno si @p primera es mayor.
[[nodiscard]] std::vector<EstadoHorario> EstadosDelPeriodo(const LeerMet &datos, int primera, int ultima);

} // namespace tesmo
