#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

/// Tiempo [ms] de @p accion: la mediana de @p veces ejecuciones.
template <typename Accion>
double Mediana(int veces, Accion accion) {
  std::vector<double> tiempos;
  for (int i = 0; i < veces; ++i) {
    const auto antes = std::chrono::steady_clock::now();
    accion();
    tiempos.push_back(
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - antes).count());
  }
  std::ranges::sort(tiempos);
  return tiempos[tiempos.size() / 2];
}
