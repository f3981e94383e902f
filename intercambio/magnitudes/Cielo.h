#pragma once

#include "intercambio/magnitudes/Aniocompleto.h"

namespace tesmo {

/// Pone en @p completo la temperatura de cielo: la del fichero; si no, la que con emisividad 1 radia su
/// infrarroja (Stefan y Boltzmann), calculada; si no, la del rocío y la nubosidad opaca (total si falta, y si
/// no, la que pide la claridad del día) por la emisividad de Berdahl y Martin (1984) con el aumento por nubes
/// de Walton (1983), inventada. Han de estar ya la temperatura seca, la humedad, la presión y la radiación.
void CompletarCielo(const AnioCanonico &anio, AnioCompleto &completo);

/// Temperatura [°C] de un cuerpo negro que radia @p infrarroja [W/m²], y al revés.
[[nodiscard]] double TemperaturaDeInfrarroja(double infrarroja);
[[nodiscard]] double InfrarrojaDeTemperatura(double temperatura);

} // namespace tesmo
