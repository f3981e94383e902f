#pragma once

#include <string>
#include <string_view>

namespace tesmo {

/// ¿Es @p bytes UTF-8 bien formado?
[[nodiscard]] bool EsUtf8(std::string_view bytes);
/// Texto en Windows-1252 pasado a UTF-8; los cinco bytes sin asignar dan U+FFFD.
[[nodiscard]] std::string DesdeWindows1252(std::string_view bytes);
/// Texto UTF-8 pasado a Windows-1252; lo que no cabe da '?'.
[[nodiscard]] std::string AWindows1252(std::string_view texto);
/// UTF-8 tal cual (sin marca de orden de bytes); lo demás se toma por Windows-1252.
[[nodiscard]] std::string AUtf8(std::string_view bytes);
/// Minúsculas de las letras latinas de un texto UTF-8, para comparar nombres de fichero.
[[nodiscard]] std::string PlegarMinusculas(std::string_view texto);
/// Los primeros bytes de @p texto, @p maximo como mucho, sin partir un carácter UTF-8.
[[nodiscard]] std::string_view RecortarUtf8(std::string_view texto, std::size_t maximo);

} // namespace tesmo
