#pragma once

#include "psicro/Lienzo.h"

namespace tesmo {

class Psicro;

/// Color de las marcas mientras no se elija otro: azul.
inline constexpr ColorBgr COLOR_MARCA = 0xFF0000;
/// Lo que la cruz se aparta de su centro, y su grueso [píxeles].
inline constexpr int BRAZO_MARCA = 3;
inline constexpr int GRUESO_MARCA = 2;

/// Dibuja la cruz del estado @p t [°C], @p w [kg/kg] en el píxel que le toca sin desplazamiento ni aumento;
/// deja la pluma con grueso 1. Nada si el estado no cae en un píxel.
void MarcarPunto(Lienzo &lienzo, const Psicro &carta, float t, float w, ColorBgr color);

} // namespace tesmo
