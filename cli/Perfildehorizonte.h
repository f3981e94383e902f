#pragma once

#include "cli/Contexto.h"
#include "solar/Formatoshorizonte.h"

#include <string>

namespace tesmo::cli {

/// Lee un perfil de horizonte de cualquier formato y avisa si hubo que suponer desde dónde cuenta los
/// acimutes. Lanza Fallo (falta una entrada), con la línea, si no se puede leer.
/// @param ruta absoluta; @param dada la que se tecleó, para decirla
[[nodiscard]] HorizonteLeido LeerHorizonteDado(const std::string &ruta, const std::string &dada,
                                               Contexto &contexto);

} // namespace tesmo::cli
