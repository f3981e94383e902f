#pragma once

#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/sintesis/Normales.h"

namespace tesmo {

/// Un año sintético, con las cifras ya redondeadas a los decimales con que se escriben. Tiempo solar
/// verdadero; el valor de la hora h (1 a 24) es el de su centro, h − 0,5.
struct AnioSintetico {
  SerieHoras ts;     ///< temperatura seca [°C]
  SerieHoras tc;     ///< temperatura de cielo [°C]
  SerieHoras rdir;   ///< radiación directa horizontal [W/m²]
  SerieHoras rdif;   ///< radiación difusa horizontal [W/m²]
  SerieHoras w;      ///< humedad absoluta [kg/kg]
  SerieHoras hr;     ///< humedad relativa [%]
  SerieHoras vv;     ///< velocidad del viento [m/s]
  SerieHoras dv;     ///< dirección del viento [° desde el norte]
  SerieHoras acimut; ///< acimut solar [°, 0 al sur, oeste positivo]
  SerieHoras cenit;  ///< cenit solar [°]
};

/// El año de @p localidad; cada pieza tiene su propia semilla, hecha del nombre de la localidad.
[[nodiscard]] AnioSintetico GenerarAnio(const NormalesLocalidad &localidad);

/// Claridad media de cada mes que piden las normales [-]; la síntesis la sigue de 0,1 a 0,78.
[[nodiscard]] ValoresPorMes ClaridadesPedidas(const NormalesLocalidad &localidad);

} // namespace tesmo
