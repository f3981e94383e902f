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
  apoyada_ = CabeEnPixel(x) && CabeEnPixel(y);
  if (apoyada_) lienzo_.MoverA(static_cast<int>(x), static_cast<int>(y));
}

void Pluma::LineaA(double x, double y) {
  if (!apoyada_) {
    MoverA(x, y);
    return;
  }
  apoyada_ = CabeEnPixel(x) && CabeEnPixel(y);
  if (apoyada_) lienzo_.LineaA(static_cast<int>(x), static_cast<int>(y));
}

} // namespace tesmo
