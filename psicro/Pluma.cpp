#include "psicro/Pluma.h"

#include <limits>

namespace tesmo {

namespace {

/// Falso también para lo que no es número.
bool CabeEnPixel(double valor) {
  return valor > static_cast<double>(std::numeric_limits<int>::min()) - 1.0 &&
         valor < static_cast<double>(std::numeric_limits<int>::max()) + 1.0;
}

} // namespace

void Pluma::MoverA(double x, double y) {
  estado_ = CabeEnPixel(x) && CabeEnPixel(y) ? Estado::Apoyada : Estado::Rota;
  if (estado_ == Estado::Apoyada) lienzo_.MoverA(static_cast<int>(x), static_cast<int>(y));
}

void Pluma::LineaA(double x, double y) {
  if (!CabeEnPixel(x) || !CabeEnPixel(y)) {
    estado_ = Estado::Rota;
    return;
  }
  const int px = static_cast<int>(x);
  const int py = static_cast<int>(y);
  if (estado_ == Estado::Rota) {
    xPendiente_ = px;
    yPendiente_ = py;
    estado_ = Estado::Pendiente;
    return;
  }
  if (estado_ == Estado::Pendiente) lienzo_.MoverA(xPendiente_, yPendiente_);
  estado_ = Estado::Apoyada;
  lienzo_.LineaA(px, py);
}

} // namespace tesmo
