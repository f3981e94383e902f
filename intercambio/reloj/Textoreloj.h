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

/// Avisa de que el cenit escrito es el de @p cenit y no el del reloj declarado; @p hayDias si los días claros
/// dicen que la radiación no lo sigue.
void AvisarDeCenitAparte(VeredictoReloj &veredicto, const RelojFichero &cenit, bool hayDias);

/// @p valor con coma decimal y tantos decimales como ceros siguen al punto de @p patron ("0.0").
[[nodiscard]] std::string Cifra(double valor, const char *patron);

} // namespace tesmo
