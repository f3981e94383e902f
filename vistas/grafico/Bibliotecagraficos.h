#pragma once

#include <QString>

namespace tesmo {

/// Versión de la biblioteca de trazado con que se construyó el programa.
[[nodiscard]] QString VersionDeLosGraficos();

} // namespace tesmo
