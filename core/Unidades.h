#pragma once

#include <numbers>

namespace tesmo {

// Constantes de unidades y físicas en doble precisión, para los años ajenos y el dibujo. Los motores que
// calculan en 32 bits o en precisión extendida tienen las suyas: de ello dependen sus últimas cifras.

/// Un grado [rad].
inline constexpr double GRADO = std::numbers::pi / 180.0;
inline constexpr double MINUTOS_POR_HORA = 60.0;
/// Hora solar a la que el sol pasa por el meridiano [h].
inline constexpr double MEDIODIA = 12.0;
/// Lo que gira la Tierra en una hora, en grados y en radianes.
inline constexpr double GRADOS_POR_HORA = 15.0;
inline constexpr double GIRO_POR_HORA = std::numbers::pi / 12.0;
/// 0 °C [K].
inline constexpr double CERO_CELSIUS = 273.15;
/// Constante de Stefan y Boltzmann [W/(m²·K⁴)] (CODATA, 2018).
inline constexpr double STEFAN_BOLTZMANN = 5.670374419e-8;

} // namespace tesmo
