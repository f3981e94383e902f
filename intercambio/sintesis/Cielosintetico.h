#pragma once

#include "intercambio/sintesis/Soldelanio.h"

namespace tesmo {

/// Temperatura de cielo de cada hora [°C], en centésimas, nunca mayor que la del aire. Emisividad del cielo
/// despejado por el punto de rocío (Berdahl y Martin, 1984), aumentada por la nubosidad (Walton, 1983); la
/// nubosidad de un día sale de su claridad y se interpola de mediodía a mediodía.
[[nodiscard]] SerieHoras GenerarTemperaturaDeCielo(const SerieHoras &temperaturas, const SerieHoras &rocio,
                                                   const SerieDias &claridad);

/// Nubosidad [décimas de cielo, 0 a 10] de un día de claridad @p k: lo que le falta a la insolación relativa
/// de Ångström y Prescott, con los coeficientes 0,25 y 0,50 de Allen et al. (1998, FAO 56, ec. 35).
[[nodiscard]] double NubosidadDeClaridad(double k);
/// Emisividad del cielo [-] con @p rocio [°C] y @p nubosidad [décimas]; 1 como mucho.
[[nodiscard]] double EmisividadDelCielo(double rocio, double nubosidad);

} // namespace tesmo
