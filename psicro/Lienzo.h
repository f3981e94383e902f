#pragma once

#include <cstdint>

namespace tesmo {

/// Color de 24 bits en orden azul, verde, rojo (0x00BBGGRR).
using ColorBgr = std::uint32_t;

/// Superficie de dibujo con una pluma, en píxeles enteros con el origen arriba a la izquierda. Lo que caiga
/// fuera de la superficie lo recorta ella. La realizan la imagen de la ventana, la línea de órdenes y las
/// pruebas.
class Lienzo {
public:
  virtual ~Lienzo() = default;
  /// Color de los trazos siguientes.
  virtual void PonColor(ColorBgr color) = 0;
  /// Grueso de los trazos siguientes [píxeles].
  virtual void PonGrueso(int grueso) = 0;
  /// Lleva la pluma a (@p x, @p y) sin trazar.
  virtual void MoverA(int x, int y) = 0;
  /// Traza desde donde está la pluma hasta (@p x, @p y) y la deja allí.
  virtual void LineaA(int x, int y) = 0;
};

} // namespace tesmo
