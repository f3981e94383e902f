#pragma once

#include <QString>

namespace tesmo {

/// Deja en @p directorio una imagen PNG de cada pestaña, a pantalla completa y con datos: las del manual.
/// Falso, y la causa en la salida de errores, si alguna no se pudo hacer.
bool HacerImagenesDelManual(const QString &directorio);

} // namespace tesmo
