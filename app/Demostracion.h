#pragma once

#include <QString>

namespace tesmo {

/// Abre el marco y lleva su ventana por el trabajo principal (elegir localidad, enseñar variables de una
/// semana y del año, exportar); deja en @p directorio las imágenes y la exportación, diciendo cada fichero en
/// la salida estándar. No espera a nadie: los mensajes van a la salida de errores. Devuelve falso, tras
/// explicarlo allí, si algo no se pudo hacer.
[[nodiscard]] bool EjecutarDemostracion(const QString &directorio);

} // namespace tesmo
