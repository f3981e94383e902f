#pragma once

namespace tesmo {

/// Nubosidad [décimas de cielo, 0 a 10] de un día de claridad @p k: lo que le falta a la insolación relativa
/// de Ångström y Prescott, con los coeficientes 0,25 y 0,50 de Allen et al. (1998, FAO 56, ec. 35).
[[nodiscard]] double NubosidadDeClaridad(double k);
/// Emisividad del cielo [-] con @p rocio [°C] y @p nubosidad [décimas]; 1 como mucho. La del despejado por el
/// punto de rocío (Berdahl y Martin, 1984), aumentada por la nubosidad (Walton, 1983).
[[nodiscard]] double EmisividadDelCielo(double rocio, double nubosidad);

} // namespace tesmo
