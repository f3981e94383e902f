#pragma once

#include "cli/Tabla.h"

#include <string>
#include <vector>

namespace tesmo::cli {

/// Una de las tablas de un resultado que tiene varias.
struct Seccion {
  std::string nombre;  ///< el de su lista en JSON
  std::string prefijo; ///< primera casilla de cada una de sus líneas de texto
  Tabla tabla;
};

/// Las secciones una tras otra, como líneas de texto; o como un objeto JSON con una lista por sección.
[[nodiscard]] std::string ComoSecciones(const std::vector<Seccion> &secciones, bool json);

} // namespace tesmo::cli
