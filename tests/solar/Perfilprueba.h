#pragma once

#include "solar/Perfilhorizonte.h"

#include <vector>

namespace tesmo::prueba {

using Numeros = std::vector<float>;

/// El perfil de los acimutes @p x y las alturas @p y.
inline PerfilHorizonte Perfil(const Numeros &x, const Numeros &y) {
  PerfilHorizonte perfil;
  perfil.PonTamano(static_cast<float>(x.size()));
  for (std::size_t i = 0; i < x.size(); ++i) perfil.PonPunto(static_cast<int>(i), x[i], y[i]);
  return perfil;
}

} // namespace tesmo::prueba
