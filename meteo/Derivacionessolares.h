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

/// Deriva la irradiancia de cada hora del tramo sobre @p superficie [W/m²], de la directa B y la difusa D
/// horizontales del fichero y de su cenit z. El sol es el del centro de la hora (hora − 0,5) en @p latitud
/// [°].
/// - Directa normal = B / cos z, sin guarda: con z = 90° puede ser infinita o no ser un número.
/// - Directa = B · cos θ / cos z, con θ la incidencia (Duffie y Beckman, 1991).
/// - Con el sol detrás, tapado por el horizonte o con cos z = 0, la directa es 0.
/// - Difusa = F · D, cielo isótropo (Liu y Jordan, 1963).
/// - Reflejada = (1 − F) · (B + D) · albedo.
/// - Global = directa + difusa + reflejada.
///
/// F no es el (1 + cos β) / 2 de esos autores: es el de AlturasDeHorizonte::FactorDeCielo, que depende del
/// horizonte y de la orientación y no de la inclinación β; sin horizonte, 0,5 (se conserva).
/// Necesita la serie derivada de la altura: sin DerivarPsicrometricas antes no hace nada.
/// @param inicio fecha de la primera hora del tramo; de ahí se avanza hora a hora
/// @param horizonte objeto que guarda el perfil de horizonte
/// @return factor de visión del cielo de la superficie
float DerivarSolares(const SeriesLeidas &leidas, SeriesDerivadas &derivadas, TramoHoras tramo,
                     FechaHora inicio, const SuperficieReceptora &superficie, float latitud,
                     const PosicionSolar &horizonte);

} // namespace tesmo
