#pragma once

#include "intercambio/fisica/Soldelanio.h"
#include "intercambio/magnitudes/Aniocompleto.h"
#include "intercambio/reloj/Cortes.h"

#include <vector>

namespace tesmo {

/// La radiación de un año en las horas solares.
struct RadiacionEnHoraSolar {
  SerieHoras directa; ///< horizontal [W/m²]
  SerieHoras difusa;  ///< horizontal [W/m²]
  SerieHoras normal;  ///< la directa normal del fichero por el mismo reparto [W/m²]; vacía si le falta
  double perdida = 0; ///< lo que el fichero da lejos de todo sol [Wh/m²]
};

/// Reparte la radiación de @p completo entre las horas solares de @p latitud (RepartoRadiacion) con el sol de
/// los motores, @p sol. Con el sol rasante del centro de una hora, la directa que esa hora no puede tener
/// pasa a la siguiente hacia el mediodía y, si tampoco cabe, a difusa: la energía del día no cambia.
[[nodiscard]] RadiacionEnHoraSolar RadiacionAHoraSolar(const AnioCompleto &completo,
                                                       const std::vector<Corte> &cortes, double latitud,
                                                       const SolDelAnio &sol);

} // namespace tesmo
