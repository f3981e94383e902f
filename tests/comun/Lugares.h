#pragma once

#include <string>

namespace tesmo::prueba {

/// Directorio raíz del proyecto, sin barra al final.
[[nodiscard]] std::string Raiz();

/// Directorio donde se construyen los programas, sin barra al final.
[[nodiscard]] std::string Programas();

} // namespace tesmo::prueba
