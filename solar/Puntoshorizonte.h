#pragma once

#include "solar/Perfilhorizonte.h"

#include <vector>

namespace tesmo {

/// Un punto del horizonte: acimut [°, 0 al sur, oeste positivo] y altura [°].
struct PuntoHorizonte {
  float acimut;
  float altura;
  bool operator==(const PuntoHorizonte &) const = default;
};
using PuntosHorizonte = std::vector<PuntoHorizonte>;

/// Los puntos de @p perfil, en su orden y tal como están.
[[nodiscard]] PuntosHorizonte PuntosDe(const PerfilHorizonte &perfil);
/// El perfil de @p puntos, en su orden; los que pasen de PerfilHorizonte::PUNTOS_MAXIMOS se pierden.
[[nodiscard]] PerfilHorizonte PerfilDe(const PuntosHorizonte &puntos);

} // namespace tesmo
