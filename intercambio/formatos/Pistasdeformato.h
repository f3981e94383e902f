#pragma once

#include <string>
#include <string_view>

namespace tesmo {

/// Qué parece un texto que ningún lector puede leer tal como está, y qué hacer con él: otra descarga del
/// mismo sitio, un fichero sin sus primeras líneas, un .met con comas decimales… Vacío si no se sabe.
[[nodiscard]] std::string PistaDeFormato(std::string_view texto);

/// Lo mismo de lo que no tiene líneas que leer, ni siquiera con un mapa: un fichero comprimido, una hoja de
/// cálculo, un PDF o un texto en UTF-16. Vacío si es otra cosa.
[[nodiscard]] std::string PistaDeBinario(std::string_view texto);

} // namespace tesmo
