#pragma once

#include "solar/Perfilhorizonte.h"

namespace tesmo {

/// Parte del cielo que un perfil deja ver: la media de 1 − sen(altura) de toda la vuelta, que es la fracción
/// del ángulo sólido de la semiesfera que queda por encima. 1 sin horizonte, 0 tras un muro de 90°; una
/// altura fuera de 0..90 cuenta como el límite.
[[nodiscard]] double ParteDeCielo(const PerfilHorizonte &perfil);

/// Horas de un año, contadas en el centro de cada una.
struct HorasDeSolDelAnio {
  int deSol;    ///< con el sol sobre el horizonte llano
  int perdidas; ///< de ellas, las que el perfil tapa
};

/// Cuenta las horas que @p perfil quita en @p latitud [°] con la misma regla que le quita la directa a una
/// hora. Al sur del ecuador el acimut del modelo va del revés, y con él la cuenta.
[[nodiscard]] HorasDeSolDelAnio HorasDeSolPerdidas(const PerfilHorizonte &perfil, float latitud);

} // namespace tesmo
