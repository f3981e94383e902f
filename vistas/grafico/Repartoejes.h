#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Eje vertical de una serie.
enum class LadoEje : std::uint8_t { Izquierdo = 0, Derecho = 1 };

/// Lo que el reparto mira de cada serie.
struct SerieReparto {
  std::string_view unidad;
  double mayor = 0.0; ///< mayor valor absoluto finito de la serie
};

/// Reparte las series entre los dos ejes por unidades, nunca una misma unidad en los dos. Con dos unidades,
/// cada una en su eje; con más, las de escala parecida van juntas (el corte se pone en el mayor salto entre
/// órdenes de magnitud). La unidad de la primera serie queda a la izquierda.
[[nodiscard]] std::vector<LadoEje> RepartirPorUnidad(std::span<const SerieReparto> series);

/// Título de un eje con las series de rótulo @p rotulos: el rótulo si es una sola; si no, las unidades
/// distintas en orden de aparición, separadas por " · ".
[[nodiscard]] std::string TituloDeEje(std::span<const std::string> rotulos);

/// Límites de un eje de valores que deja aire alrededor de [@p minimo, @p maximo]; si no hay valores, de 0
/// a 1.
struct LimitesEje {
  double minimo = 0.0;
  double maximo = 1.0;
};
[[nodiscard]] LimitesEje LimitesConAire(double minimo, double maximo);

} // namespace tesmo
