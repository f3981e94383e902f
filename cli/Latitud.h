#pragma once

namespace tesmo::cli {

/// La línea de ayuda de una latitud: los límites de LeerLatitud.
inline constexpr const char *AYUDA_LATITUD = "Latitud [°], de -89 a 89, norte positivo";

} // namespace tesmo::cli
