#pragma once

#include "vistas/grafico/Escalax.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// "Temperatura seca: 23,4 ºC" a partir del rótulo con unidad, el valor y su patrón de cifras.
[[nodiscard]] std::string LineaDeLectura(std::string_view rotulo, double valor, std::string_view patron);

/// Una serie al copiar los datos como texto: y[k] es el valor en x[k].
struct ColumnaTexto {
  std::string_view rotulo;
  std::span<const double> y;
};

/// Tabla separada por tabuladores con una línea de encabezamientos y una por cada x, con nueve cifras
/// significativas y el separador decimal regional; las columnas tienen tantos valores como @p x.
[[nodiscard]] std::string TablaDeTexto(const EscalaX &escala, std::span<const double> x,
                                       std::span<const ColumnaTexto> columnas);

} // namespace tesmo
