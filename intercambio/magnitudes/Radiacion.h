#pragma once

#include "intercambio/magnitudes/Aniocompleto.h"

namespace tesmo {

/// Pone en @p completo la directa y la difusa horizontales: las del fichero; si no, directa = global −
/// difusa; sin global, directa normal · cos z; sin difusa, global − directa. Una directa que saldría negativa
/// es 0 y la difusa se queda con la global. Coseno del cenit del sol verdadero en el centro de la hora.
void CompletarRadiacion(const AnioCanonico &anio, const EscalaTiempo &escala, AnioCompleto &completo);

} // namespace tesmo
