#pragma once

#include <string>
#include <string_view>

namespace tesmo {

/// Nombre del fichero de posiciones del año, en el directorio base del programa.
inline constexpr std::string_view NOMBRE_FICHERO_ANUAL = "FPS.TXT";

/// Las posiciones del sol de un año en @p latitud [°]: una línea con la latitud y 8.760 con mes, hora, hora,
/// acimut, altura y cenit [°] a la hora más media. El segundo y el tercer número son los dos la hora, y el
/// día no se escribe (se conserva). De noche, 0, 0 y 90.
[[nodiscard]] std::string TextoAnual(float latitud);

/// Escribe TextoAnual en @p ruta. Si no se puede, enseña el mensaje MENSAJE_FICHERO con la ruta y devuelve
/// falso.
bool EscribirFicheroAnual(float latitud, const std::string &ruta);

} // namespace tesmo
