#pragma once

namespace tesmo {

/// Clases de caracteres ASCII, las mismas en todas las regiones; un byte de un carácter que no es ASCII no es
/// de ninguna.

[[nodiscard]] constexpr bool EsCifra(char c) { return c >= '0' && c <= '9'; }
/// Espacio, tabulador, salto de línea, tabulador vertical, salto de página o retorno.
[[nodiscard]] constexpr bool EsBlanco(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
/// Las 26 letras mayúsculas, a minúscula; lo demás queda igual.
[[nodiscard]] constexpr char Minuscula(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace tesmo
