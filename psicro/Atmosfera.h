#pragma once

namespace tesmo {

/// Altitudes [m] que se creen de un sitio.
inline constexpr double ALTITUD_MINIMA = -500.0;
inline constexpr double ALTITUD_MAXIMA = 9000.0;
/// Falso también si no es finita.
[[nodiscard]] bool AltitudCreible(double altitud);

/// Presión media [Pa] a la @p altitud [m]: atmósfera normal, 101325·(1 − 2,25577·10⁻⁵·z)^5,2559 (ASHRAE
/// Fundamentals, 2017, cap. 1, ec. 3). Por encima de 1/2,25577·10⁻⁵ m (44.331) no es un número.
[[nodiscard]] double PresionEnAltitud(double altitud);
/// La altitud [m] a la que PresionEnAltitud da @p presion [Pa], positiva.
[[nodiscard]] double AltitudDePresion(double presion);

} // namespace tesmo
