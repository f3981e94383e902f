#pragma once

#include <functional>
#include <string>

namespace tesmo {

class Lienzo;

/// Dibuja y guarda sin pantalla. Las dos devuelven falso si no se pudo escribir @p ruta.
using Dibujo = std::function<void(Lienzo &)>;
/// PNG de @p ancho × @p alto píxeles con fondo blanco.
[[nodiscard]] bool GuardarPng(const std::string &ruta, int ancho, int alto, const Dibujo &dibujo);
/// PDF de una página, con un punto tipográfico por píxel.
[[nodiscard]] bool GuardarPdf(const std::string &ruta, int ancho, int alto, const Dibujo &dibujo);

} // namespace tesmo
