#pragma once

#include "meteo/Leermet.h"

#include <filesystem>
#include <string>

/// Lo que comparten las medidas de meteo/.
namespace tesmo::medida {

/// Un .met de la distribución o, si no está construida, uno de la misma forma hecho aquí.
[[nodiscard]] std::string FicheroMet();
/// Directorio temporal donde escriben las medidas.
[[nodiscard]] std::filesystem::path DirectorioTemporal();
/// El año de FicheroMet, con el período entero.
[[nodiscard]] LeerMet AnioCargado();

} // namespace tesmo::medida
