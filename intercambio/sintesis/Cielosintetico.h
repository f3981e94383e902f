#pragma once

#include "intercambio/fisica/Soldelanio.h"

namespace tesmo {

/// Temperatura de cielo de cada hora [°C], en centésimas, nunca mayor que la del aire. Emisividad del cielo
/// despejado por el punto de rocío (Berdahl y Martin, 1984), aumentada por la nubosidad (Walton, 1983); la
/// nubosidad de un día sale de su claridad y se interpola de mediodía a mediodía.
[[nodiscard]] SerieHoras GenerarTemperaturaDeCielo(const SerieHoras &temperaturas, const SerieHoras &rocio,
                                                   const SerieDias &claridad);

} // namespace tesmo
