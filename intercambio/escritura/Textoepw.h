#pragma once

#include "intercambio/conversion/Aniosolar.h"

#include <string>

namespace tesmo {

/// Texto EPW (Crawley, Hand y Lawrie, 1999; EnergyPlus, «Auxiliary Programs») de @p anio, con fines de línea
/// LF: hora oficial de invierno de su huso, cada registro con la hora que acaba en su etiqueta (minuto 60).
/// Lleva temperaturas seca y de rocío, humedad relativa, infrarroja del cielo, global, directa normal, difusa
/// y viento; la presión, sólo si no se inventó. Lo demás va con el código de «sin dato» de cada campo y un
/// comentario lo dice. El sitio sin latitud, longitud o altitud lleva 0.
[[nodiscard]] std::string TextoEpw(const AnioSolar &anio);

} // namespace tesmo
