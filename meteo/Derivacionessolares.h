#pragma once

#include "meteo/Fecha.h"
#include "meteo/Serieshorarias.h"

namespace tesmo {

class PosicionSolar;

/// La superficie que recibe el sol.
struct SuperficieReceptora {
  float inclinacion = 90.0F; ///< desde la horizontal [°, 0 a 180]
  float orientacion = 0.0F;  ///< acimut de su normal [°, 0 al sur, oeste positivo]
  float albedo = 0.2F;       ///< reflectancia del suelo, 0 a 1
  bool operator==(const SuperficieReceptora &) const = default;
};

/// Deriva la irradiancia de cada hora del tramo sobre @p superficie: directa normal, directa, difusa,
/// reflejada y global [W/m²]. El sol es el del centro de la hora (hora − 0,5) en @p latitud [°].
/// Necesita la serie derivada de la altura: sin DerivarPsicrometricas antes no hace nada.
/// @param inicio fecha de la primera hora del tramo; de ahí se avanza hora a hora
/// @param horizonte objeto que guarda el perfil de horizonte
/// @return factor de visión del cielo de la superficie
float DerivarSolares(const SeriesLeidas &leidas, SeriesDerivadas &derivadas, TramoHoras tramo,
                     FechaHora inicio, const SuperficieReceptora &superficie, float latitud,
                     const PosicionSolar &horizonte);

} // namespace tesmo
