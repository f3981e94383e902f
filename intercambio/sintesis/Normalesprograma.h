#pragma once

#include "intercambio/sintesis/Normales.h"

#include <string>
#include <vector>

namespace tesmo {

/// Ruta de las normales que vienen con el programa: datos/normales.csv junto al ejecutable.
[[nodiscard]] std::string RutaNormalesDelPrograma();
/// Las normales que vienen con el programa; ninguna si no están o no se entienden.
[[nodiscard]] std::vector<NormalesLocalidad> NormalesDelPrograma();

} // namespace tesmo
