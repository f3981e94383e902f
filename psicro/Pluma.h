#pragma once

#include "psicro/Lienzo.h"

namespace tesmo {

/// Pluma que traza sobre un lienzo desde coordenadas reales: trunca hacia cero al píxel y deja fuera lo que
/// no puede ser un píxel (lo que no es número o no cabe en un entero). Un segmento con un extremo así no se
/// traza; el siguiente arranca del primer punto bueno, adonde la pluma no va si de él no sale nada.
class Pluma {
public:
  explicit Pluma(Lienzo &lienzo) : lienzo_(lienzo) {}

  void PonColor(ColorBgr color) { lienzo_.PonColor(color); }
  /// Lleva la pluma a (@p x, @p y) [píxeles].
  void MoverA(double x, double y);
  /// Traza hasta (@p x, @p y) [píxeles].
  void LineaA(double x, double y);

private:
  enum class Estado { Rota, Pendiente, Apoyada };

  Lienzo &lienzo_;
  Estado estado_ = Estado::Rota;
  /// Punto bueno tras uno que no lo era; sólo con la pluma pendiente.
  int xPendiente_ = 0;
  int yPendiente_ = 0;
};

} // namespace tesmo
