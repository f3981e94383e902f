#pragma once

#include "extremos/Tipos.h"

#include <string_view>

namespace tesmo::extremos {

// La humedad de los días de proyecto va en unidades inglesas por dentro y no pasa por CorrienteAire.

/// Presión barométrica [pulgadas de mercurio] a @p altitud [m]: la recta de la atmósfera normal entre el mar
/// y 2000 m. Hasta allí se aparta de ella menos del 0,7 %; a 3000 m queda un 2 % por debajo y a 5000 m, un 13
/// %.
[[nodiscard]] long double PresionBarometrica(long double altitud);

/// Presión de saturación [pulgadas de mercurio] a @p t [°C], sobre agua y sobre hielo, por la fórmula de
/// Goff y Gratch (1946) referida al punto triple (Goff, 1957).
[[nodiscard]] long double PresionDeSaturacion(long double t);

/// Rocío [°C] de un aire de presión parcial de vapor @p pw [pulgadas de mercurio], por la correlación
/// en dos ramas de ASHRAE en unidades inglesas (Handbook of Fundamentals, 1972); sin vapor, el más frío que
/// la correlación puede dar.
[[nodiscard]] long double RocioDePresion(long double pw);

/// Estado de un aire: humedad relativa en tanto por uno, humedad absoluta [kg/kg] y rocío [°C].
struct EstadoDeAire {
  long double relativa;
  long double absoluta;
  long double rocio;
};

/// El aire a @p t [°C] con la humedad absoluta @p w [kg/kg] y la presión @p p [pulgadas de mercurio].
[[nodiscard]] EstadoDeAire EstadoConHumedad(long double t, long double w, long double p);
/// El aire a @p t [°C] con humedad relativa @p hr [%].
[[nodiscard]] EstadoDeAire EstadoConRelativa(long double t, long double hr, long double p);

/// Humedad absoluta [g/kg] que se supone a un día sin dato: la del aire saturado a la mínima media del mes en
/// la costa y 2 K por debajo en el interior (rocío cercano a la mínima, más seco tierra adentro: Allen et
/// al., FAO Irrigation and Drainage Paper 56, 1998, estimación de la humedad que falta).
[[nodiscard]] float HumedadSupuesta(float minimaMedia, std::string_view zona, float altitud);

/// Rocío y humedades de las 24 horas.
struct HumedadDelDia {
  ValoresHorarios rocio{};    ///< [°C]
  ValoresHorarios absoluta{}; ///< [g/kg]
  ValoresHorarios relativa{}; ///< [%]
};

/// Humedad de un día de temperaturas @p exterior [°C]: la absoluta del día, salvo en las horas a menos de 1
/// °C del rocío, que se llevan al 90 % de humedad relativa.
/// @param humedad [g/kg]; @param altitud [m]
[[nodiscard]] HumedadDelDia HumedadHoraria(const ValoresHorarios &exterior, float humedad, float altitud);

} // namespace tesmo::extremos
