#pragma once

#include "solar/Perfilhorizonte.h"
#include "solar/Tablanumerica.h"

#include <string>
#include <string_view>

namespace tesmo {

/// El formato "Perfil completo (*.csv)": una línea de títulos propia y una por punto, "acimut;altura" [°, 0
/// al sur, oeste positivo]. Al revés que el formato de siempre, guarda todos los puntos, y cada número con
/// las cifras que hacen falta para que al leerlo sea el mismo.

/// ¿Empieza @p texto (UTF-8) por la línea de títulos?
[[nodiscard]] bool EsPerfilCompleto(std::string_view texto);
/// Lee @p texto. Falso, con @p fallo, y @p perfil queda como estaba, si una línea no son dos números. Acepta
/// lo que una hoja de cálculo hace con el fichero: coma decimal y tabuladores en vez de puntos y comas.
[[nodiscard]] bool LeerPerfilCompleto(std::string_view texto, PerfilHorizonte &perfil, FalloLectura &fallo);
[[nodiscard]] std::string TextoCompleto(const PerfilHorizonte &perfil);

} // namespace tesmo
