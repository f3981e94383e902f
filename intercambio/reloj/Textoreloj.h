#pragma once

#include "intercambio/reloj/Detectorreloj.h"

#include <vector>

namespace tesmo {

/// Pone en palabras @p veredicto: su texto y sus avisos. @p mesesAparte, de 0 a 11, son los que no llevan el
/// reloj del año.
void EscribirVeredicto(VeredictoReloj &veredicto, const SitioClima &sitio,
                       const std::vector<int> &mesesAparte);

/// Avisa de que la radiación de los días claros va @p desvio minutos más allá que el cenit escrito.
void AvisarDeRadiacionAparte(VeredictoReloj &veredicto, double desvio);

/// @p valor con coma decimal y tantos decimales como ceros siguen al punto de @p patron ("0.0").
[[nodiscard]] std::string Cifra(double valor, const char *patron);

} // namespace tesmo
