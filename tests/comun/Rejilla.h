#pragma once

#include <cmath>
#include <vector>

namespace tesmo::prueba {

/// Los valores de @p desde a @p hasta, ambos incluidos, de @p paso en @p paso y sin acumular redondeos.
inline std::vector<float> Rejilla(float desde, float hasta, float paso) {
  std::vector<float> valores;
  const int n = static_cast<int>(std::floor((hasta - desde) / paso));
  for (int i = 0; i <= n; ++i) valores.push_back(desde + paso * static_cast<float>(i));
  return valores;
}

} // namespace tesmo::prueba
