#pragma once

#include <QIcon>
#include <QPixmap>
#include <QSize>

namespace tesmo {

/// Tamaño de la imagen de presentación [px].
inline constexpr QSize TAMANO_PRESENTACION(470, 439);

/// Dibujo de la presentación: el sol sobre las trayectorias de verano, equinoccio e invierno, y una curva
/// diaria de temperatura.
/// @param densidad píxeles de la pantalla por píxel lógico
[[nodiscard]] QPixmap ImagenPresentacion(double densidad);

/// Icono del programa: una curva diaria bajo el sol, en los colores de fábrica de temperatura y radiación.
[[nodiscard]] QIcon IconoPrograma();

} // namespace tesmo
