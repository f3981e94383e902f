#pragma once

#include "intercambio/fisica/Soldelanio.h"
#include "intercambio/sintesis/Temperaturadiaria.h"

namespace tesmo {

/// Las 8.760 temperaturas [°C], en centésimas, de unas máximas y mínimas diarias. La mínima cae en el centro
/// de hora más cercano a la salida del sol y la máxima en el más cercano a la hora media de la máxima, pasada
/// a tiempo solar; a medianoche se pasa por donde iría el coseno de la máxima a la mínima siguiente (De Wit,
/// Goudriaan y van Laar, 1978), sin salirse de los extremos de los dos días. Entre esos puntos, una cúbica
/// monótona con derivada continua (Fritsch y Butland, 1984): ni salto a medianoche ni extremos nuevos.
[[nodiscard]] SerieHoras GenerarTemperaturasHorarias(const TemperaturasDiarias &dias,
                                                     const NormalesLocalidad &localidad,
                                                     const SolDelAnio &sol);

/// Hora solar verdadera a la que es la @p horaUtc en la longitud dada [°, este positivo], el @p dia del año.
[[nodiscard]] double HoraSolarDeUtc(double horaUtc, double longitud, std::size_t dia);

} // namespace tesmo
