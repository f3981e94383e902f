#pragma once

#include <filesystem>

namespace tesmo {

/// Ruta del ejecutable en marcha; vacía si el sistema no la da.
[[nodiscard]] std::filesystem::path RutaEjecutable();

} // namespace tesmo
