#pragma once

#include "intercambio/sintesis/Normales.h"

#include <string>
#include <vector>

namespace tesmo {

/// Ruta de las normales que vienen con el programa: datos/normales.csv junto al ejecutable.
[[nodiscard]] std::string RutaNormalesDelPrograma();
/// Las normales que vienen con el programa; ninguna si no están o no se entienden.
[[nodiscard]] std::vector<NormalesLocalidad> NormalesDelPrograma();
/// Las que acompañan a la base de que @p fichero es un año: datos/normales.csv junto a su directorio, que es
/// donde las lleva la copia de una base. Ninguna si no están o no se entienden.
[[nodiscard]] std::vector<NormalesLocalidad> NormalesDeSuBase(const std::string &fichero);

} // namespace tesmo
