#pragma once

#include <QString>

namespace tesmo {

class TforPrincipal;

/// Lleva la ventana real por su trabajo principal (elegir localidad, enseñar variables de una semana y del
/// año, exportar) y deja en @p directorio las imágenes y la exportación, diciendo cada fichero en la salida
/// estándar. Devuelve falso, y lo explica en la salida de errores, si algo no se pudo hacer.
[[nodiscard]] bool EjecutarDemostracion(TforPrincipal &marco, const QString &directorio);

} // namespace tesmo
