#pragma once

#include "intercambio/formatos/Filas.h"

#include <limits>
#include <string_view>
#include <vector>

namespace tesmo {

/// Una columna que se busca por su rótulo.
struct ColumnaRotulada {
  std::string_view rotulo;
  Campo campo;
  double factor = 1.0;
  double ausente = std::numeric_limits<double>::quiet_NaN();
};

/// Las columnas de @p rotulos que están en la línea de cabecera @p cabecera (sin distinguir mayúsculas); de
/// las que faltan se avisa con su número de @p linea.
[[nodiscard]] std::vector<ColumnaClima> ColumnasPorRotulo(std::string_view cabecera, char separador,
                                                          const std::vector<ColumnaRotulada> &rotulos,
                                                          int linea, Cuaderno &cuaderno);

} // namespace tesmo
