#pragma once

#include "core/Codificacion.h"

#include <string>
#include <string_view>

namespace tesmo {

/// El fin de línea de un fichero: CR LF si la primera de sus líneas acaba así; LF si no.
[[nodiscard]] inline std::string FinDeLineaDe(std::string_view contenido) {
  const std::size_t fin = contenido.find('\n');
  return fin != std::string_view::npos && fin > 0 && contenido[fin - 1] == '\r' ? "\r\n" : "\n";
}

/// @p texto, en UTF-8, en los bytes de un fichero que es UTF-8 o, si no, Windows-1252.
[[nodiscard]] inline std::string EnBytes(std::string_view texto, bool utf8) {
  return utf8 ? std::string(texto) : AWindows1252(texto);
}

} // namespace tesmo
