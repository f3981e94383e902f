#pragma once

namespace tesmo {

/// Presión de saturación del vapor de agua [Pa], sobre agua líquida desde 0 °C y sobre hielo por debajo.
/// @param t temperatura [°C]. Con T = t + 273.15 negativa el resultado no es un número.
/// Fuente: R. W. Hyland y A. Wexler (1983), en ASHRAE Handbook of Fundamentals, 1997, cap. 6.
[[nodiscard]] float presionSaturacion(float t);

/// Humedad absoluta del aire saturado [kg/kg], ε·p_s / (p − p_s). Negativa si p < p_s(t), infinita si son
/// iguales: no se corrige.
/// @param t temperatura [°C] @param p presión total [Pa]
[[nodiscard]] double humedadSaturacion(float t, float p);

/// Temperatura [°C] a la que la presión de saturación es @p p [Pa], por BuscaRaiz desde 100 °C con tolerancia
/// relativa 1e-5. Si no converge deja el error 3 en el registro y da la última estimación.
[[nodiscard]] float tSatVap(float p);

/// Humedad absoluta [kg/kg] del aire a @p t [°C] secos y @p th [°C] húmedos a la presión @p p [Pa]: balance
/// de la saturación adiabática (ASHRAE Handbook of Fundamentals, 1997, cap. 6).
[[nodiscard]] double humedadDeBulboHumedo(float t, float th, float p);

/// Temperatura húmeda [°C] del aire a @p t [°C] con la humedad absoluta @p w [kg/kg], por BuscaRaiz con
/// tolerancia relativa 0.001. Se calcula siempre a 101325 Pa, sea cual sea la presión de la corriente (se
/// conserva). La búsqueda no empieza nunca por debajo de 0 °C ni pasa de la ebullición. Si no converge deja
/// el error 3 en el registro y da la última estimación.
[[nodiscard]] float tBulboHumedo(float t, float w);

} // namespace tesmo
