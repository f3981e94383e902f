#pragma once

#include "meteo/Serieshorarias.h"

namespace tesmo {

/// Deriva el aire húmedo de cada hora del tramo a partir de su temperatura seca y su humedad absoluta: rocío,
/// bulbo húmedo, entalpía, volumen y calor específicos, y además la altura del sol (90 − cenit).
/// @p derivadas se reserva de nuevo, así que las horas de fuera del tramo quedan a 0.
/// @param presion presión de la carta psicrométrica [Pa]
void DerivarPsicrometricas(const SeriesLeidas &leidas, SeriesDerivadas &derivadas, TramoHoras tramo,
                           float presion);

/// Entalpía [J/kg] partida por la temperatura seca @p t [°C]; 0 a 0 °C exactos. No es un calor específico
/// físico, sino lo que la magnitud de ese nombre significa aquí (se conserva).
[[nodiscard]] float CalorEspecifico(float entalpia, float t);

} // namespace tesmo
