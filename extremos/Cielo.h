#pragma once

#include "extremos/Tipos.h"

namespace tesmo::extremos {

/// Parte del cielo cubierta, de 0 a 1, en un día de índice de claridad @p claridad: lo que falta para la
/// insolación completa en la recta de Ångström (1924) y Prescott (1940), claridad = 0,25 + 0,48 · insolación.
[[nodiscard]] long double CieloCubierto(long double claridad);

/// Temperatura de cielo [°C] a @p t [°C] con rocío @p rocio [°C] y @p nubes décimas de cielo cubierto:
/// emisividad de cielo despejado por el rocío y corrección por nubes (Clark y Allen, 1978). La emisividad,
/// 0,787 + 0,0028 · rocío, es la suya, 0,787 + 0,764 · ln(rocío en kelvin / 273), linealizada en 0 °C. El
/// cero absoluto va a −273 °C (se conserva).
[[nodiscard]] long double TemperaturaDeCielo(long double t, long double rocio, long double nubes);

/// La de las 24 horas de un día.
[[nodiscard]] ValoresHorarios CursoDeCielo(const ValoresHorarios &exterior, const ValoresHorarios &rocio,
                                           long double claridad);

} // namespace tesmo::extremos
