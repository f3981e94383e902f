#pragma once

#include <QString>

namespace tesmo {

/// Directorio del manual: "manual" junto al programa configurado o junto al ejecutable; vacío si no está.
[[nodiscard]] QString DirectorioManual();

/// Página del manual que enseña la pestaña de nombre @p pestana ("tsDatosGenerales"…); la portada si no
/// tiene una propia.
[[nodiscard]] QString PaginaDelManual(const QString &pestana);

} // namespace tesmo
