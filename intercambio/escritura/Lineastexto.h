#pragma once

#include <string>
#include <string_view>

namespace tesmo {

/// El fin de línea de un fichero: CR LF si la primera de sus líneas acaba así; LF si no.
[[nodiscard]] inline std::string FinDeLineaDe(std::string_view contenido) {
  const std::size_t fin = contenido.find('\n');
  return fin != std::string_view::npos && fin > 0 && contenido[fin - 1] == '\r' ? "\r\n" : "\n";
}

} // namespace tesmo
