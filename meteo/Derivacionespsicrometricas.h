#pragma once

#include "meteo/Serieshorarias.h"

namespace tesmo {

/// Deriva el aire húmedo de cada hora del tramo a partir de su temperatura seca y su humedad absoluta: rocío,
/// bulbo húmedo, entalpía, volumen y calor específicos, y además la altura del sol (90 − cenit).
/// @p derivadas se reserva de nuevo, así que las horas de fuera del tramo quedan a 0.
/// El calor específico es la entalpía dividida por la temperatura en °C, 0 a 0 °C exactos (se conserva).
/// @param presion presión de la carta psicrométrica [Pa]
void DerivarPsicrometricas(const SeriesLeidas &leidas, SeriesDerivadas &derivadas, TramoHoras tramo,
                           float presion);

} // namespace tesmo
