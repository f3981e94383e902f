#include "vistas/carta/Superficiepintor.h"

#include "vistas/comun/Textoqt.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace tesmo {

void SuperficiePintor::PonModo(ModoPluma modo) {
  pintor_.setCompositionMode(modo == ModoPluma::Inversion ? QPainter::RasterOp_NotDestination
                                                          : QPainter::CompositionMode_SourceOver);
}

void SuperficiePintor::Rectangulo(ColorBgr color, const Pixel &a, const Pixel &b) {
  pintor_.save();
  pintor_.setPen(QPen(Color(color), 1));
  pintor_.setBrush(Qt::NoBrush);
  pintor_.drawRect(std::min(a.x, b.x), std::min(a.y, b.y), std::abs(b.x - a.x), std::abs(b.y - a.y));
  pintor_.restore();
}

} // namespace tesmo
