#pragma once

#include "solar/Perfilhorizonte.h"

namespace tesmo {

/// Cambios de orientación de un perfil, para el que llega sin decir de dónde cuenta los acimutes. El
/// resultado va por orden de acimut, dentro de −180..180; lo que no es un número finito se pierde.

/// @p perfil girado @p cuartos de 90° hacia el oeste (negativo: hacia el este).
[[nodiscard]] PerfilHorizonte GirarPerfil(const PerfilHorizonte &perfil, int cuartos);
/// @p perfil con el este y el oeste cambiados.
[[nodiscard]] PerfilHorizonte ReflejarPerfil(const PerfilHorizonte &perfil);
/// Si @p perfil da la vuelta entera, le pone en −180 y en 180 los puntos que le falten, sobre la línea entre
/// el último y el primero: sin ellos el horizonte quedaría a 0 al norte. Se entiende que la da cuando el
/// hueco del norte no llega al doble del mayor de los demás; si no, queda como estaba.
[[nodiscard]] PerfilHorizonte CerrarVuelta(const PerfilHorizonte &perfil);

/// Acimut desde el norte [°, 0 a 360, hacia el este] a acimut desde el sur [−180 a 180, oeste positivo].
[[nodiscard]] double DesdeElSur(double acimutNorte);
/// Lleva un acimut [°] a −180..180; los dos extremos se quedan donde están.
[[nodiscard]] double DentroDeLaVuelta(double acimut);
/// @p perfil por orden de acimut, conservando el de los que coinciden.
[[nodiscard]] PerfilHorizonte PorAcimut(const PerfilHorizonte &perfil);

} // namespace tesmo
