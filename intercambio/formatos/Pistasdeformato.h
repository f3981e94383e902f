#pragma once

#include <string>
#include <string_view>

namespace tesmo {

/// Qué parece un texto que ningún lector puede leer tal como está, y qué hacer con él: un fichero comprimido,
/// una hoja de cálculo, otra descarga del mismo sitio, un .met con comas decimales… Vacío si no se sabe.
[[nodiscard]] std::string PistaDeFormato(std::string_view texto);

/// ¿Es @p texto algo que no puede tener líneas que leer, ni siquiera con un mapa? La misma frase, o vacía.
[[nodiscard]] std::string PistaDeBinario(std::string_view texto);

} // namespace tesmo
