#pragma once

#include "core/Error.h"

#include <string_view>

namespace tesmo {

/// Memoria de una búsqueda: las dos estimaciones anteriores, sus residuos y la tolerancia relativa.
struct EstadoBuscaRaiz {
  double x0 = 0.0;
  double x1 = 0.0;
  double f0 = 0.0;
  double f1 = 0.0;
  double tolerancia = 0.0;
};

/// Un paso de la búsqueda de una raíz: incremento del 10 % en el primero, secante en el segundo y parábola
/// por tres puntos (Muller, 1956) o secante después. La división por cero sigue a IEEE 754; ningún caso da
/// vueltas sin fin.
/// @param estado memoria, que empieza a cero salvo la tolerancia
/// @param x estimación en vigor @param f su residuo @param k número de pasos ya dados
/// @param convergido si @p x ya es la raíz; entonces la memoria no cambia
/// @return estimación siguiente, o @p x si ha convergido
[[nodiscard]] double BuscaRaiz(EstadoBuscaRaiz &estado, float x, float f, int k, bool &convergido);

/// Iteraciones de las búsquedas del aire.
inline constexpr int ITERACIONES_AIRE = 50;

/// La iteración que comparten todas las búsquedas: evalúa, da un paso y para al converger o tras
/// @p iteraciones vueltas; en ese caso deja el error 3 con @p etiqueta en el registro.
/// @param residuo recibe la estimación, que puede corregir antes de evaluar, y devuelve el residuo
/// @return la última estimación
template <typename Residuo>
[[nodiscard]] float BuscarRaiz(float x, double tolerancia, int iteraciones, std::string_view etiqueta,
                               Residuo &&residuo) {
  EstadoBuscaRaiz estado;
  estado.tolerancia = tolerancia;
  bool convergido = false;
  for (int k = 0; k < iteraciones && !convergido; ++k) {
    const float f = residuo(x);
    x = static_cast<float>(BuscaRaiz(estado, x, f, k, convergido));
  }
  if (!convergido) ErrorNumerico(ERROR_CONVERGENCIA, etiqueta);
  return x;
}

} // namespace tesmo
