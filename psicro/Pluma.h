#pragma once

#include "psicro/Lienzo.h"

namespace tesmo {

/// Pluma que traza sobre un lienzo desde coordenadas reales: trunca hacia cero al píxel y deja fuera lo que
/// no puede ser un píxel (lo que no es número o no cabe en un entero). Un segmento con un extremo así no se
/// traza; el siguiente arranca del primer punto bueno.
class Pluma {
public:
  explicit Pluma(Lienzo &lienzo) : lienzo_(lienzo) {}

  void PonColor(Color color) { lienzo_.PonColor(color); }
  /// Lleva la pluma a (@p x, @p y) [píxeles].
  void MoverA(double x, double y);
  /// Traza hasta (@p x, @p y) [píxeles].
  void LineaA(double x, double y);

private:
  Lienzo &lienzo_;
  bool apoyada_ = false;
};

} // namespace tesmo
