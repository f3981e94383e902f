#pragma once

#include "intercambio/comun/Perfilmensual.h"

namespace tesmo {

/// El sol de un sitio durante el año típico: tiempo solar verdadero, la hora i en su centro (i + 0,5 de cada
/// día); es la geometría con que después se leen los datos.
struct SolDelAnio {
  SerieDias salida; ///< hora de salida [h solar]; la puesta es 24 − salida; −1 si no sale o no se pone
  SerieDias extraterrestre; ///< irradiación diaria horizontal fuera de la atmósfera [kWh/m²]
  SerieHoras acimut;        ///< [°], 0 al sur, oeste positivo, en centésimas; 0 de noche
  SerieHoras cenit;         ///< [°], en centésimas; 90 de noche
  std::vector<bool> diurna; ///< el sol está sobre el horizonte en el centro de la hora
};

/// @p latitud en [°], de −90 a 90; los días en que el sol no sale no tienen irradiación.
[[nodiscard]] SolDelAnio CalcularSolDelAnio(double latitud);

/// Irradiancia fuera de la atmósfera sobre un plano normal al sol el @p dia del año (0 a 364) [W/m²]:
/// constante solar de 1367 W/m² y 1 + 0,033·cos(2πn/365) por la distancia (Duffie y Beckman, 1991, 1.4).
[[nodiscard]] double IrradianciaExtraterrestre(std::size_t dia);

/// Tiempo solar menos tiempo civil medio [h] a los @p dia días del 1 de enero, con su fracción; continua y de
/// período un año de 365 días (Spencer, 1971).
[[nodiscard]] double EcuacionDelTiempoEnHoras(double dia);

} // namespace tesmo
