#pragma once

#include "intercambio/fisica/Soldelanio.h"
#include "intercambio/sintesis/Normales.h"
#include "intercambio/sintesis/Temperaturadiaria.h"

namespace tesmo {

/// Humedad de cada hora.
struct HumedadHoraria {
  SerieHoras relativa; ///< [%], en centésimas
  SerieHoras absoluta; ///< [kg/kg], con siete decimales
  SerieHoras rocio;    ///< temperatura de rocío, o de escarcha bajo cero [°C]
};

/// Humedad de unas temperaturas horarias [°C]. El punto de rocío de un día está cerca de su mínima (Allen,
/// Pereira, Raes y Smith, 1998, FAO 56, estimación de humedad sin datos): su distancia a ella se ajusta hasta
/// que la humedad relativa media de cada mes es la pedida. Entre la salida del sol de un día y la del
/// siguiente el rocío va en línea recta. La relativa no pasa de HUMEDAD_MAXIMA; absoluta y relativa casan
/// entre sí con la temperatura ya redondeada y con @p presion [Pa].
[[nodiscard]] HumedadHoraria GenerarHumedad(const SerieHoras &temperaturas, const TemperaturasDiarias &dias,
                                            const NormalesLocalidad &localidad, const SolDelAnio &sol,
                                            double presion);

/// Tope de la humedad relativa [%]: el aire de una estación rara vez marca más y así ningún redondeo satura.
inline constexpr double HUMEDAD_MAXIMA = 99.0;

} // namespace tesmo
