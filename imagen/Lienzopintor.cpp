#include "imagen/Lienzopintor.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace tesmo {

namespace {

constexpr unsigned BITS = 8;
constexpr unsigned BYTE = 0xFF;

QColor DeBgr(ColorBgr color) {
  return QColor(static_cast<int>(color & BYTE), static_cast<int>((color >> BITS) & BYTE),
                static_cast<int>((color >> 2 * BITS) & BYTE));
}

} // namespace

void LienzoPintor::PonColor(ColorBgr color) {
  plumaPuesta_ = plumaPuesta_ && color == color_;
  color_ = color;
}

void LienzoPintor::PonGrueso(int grueso) {
  plumaPuesta_ = plumaPuesta_ && grueso == grueso_;
  grueso_ = grueso;
}

void LienzoPintor::MoverA(int x, int y) {
  x_ = x;
  y_ = y;
  seguido_ = false;
}

void LienzoPintor::LineaA(int x, int y) {
  if (seguido_ && plumaPuesta_ && x == x_ && y == y_) return; // con pasos finos serían casi todos
  if (grueso_ > 1 && (x == x_ || y == y_)) {
    PintarRecta(x, y);
  } else {
    PonPluma();
    pintor_.drawLine(x_, y_, x, y);
  }
  MoverA(x, y);
  seguido_ = true;
}

/// Un trazo grueso horizontal o vertical es un rectángulo: los dos píxeles de los extremos de largo y el
/// grueso de ancho. El trazador general tarda mucho más y lo alarga por las puntas.
void LienzoPintor::PintarRecta(int x, int y) {
  const int alto = x == x_ ? std::abs(y - y_) + 1 : grueso_;
  const int ancho = y == y_ ? std::abs(x - x_) + 1 : grueso_;
  const int aUnLado = grueso_ / 2;
  pintor_.fillRect(std::min(x, x_) - (x == x_ ? aUnLado : 0), std::min(y, y_) - (y == y_ ? aUnLado : 0),
                   ancho, alto, DeBgr(color_));
}

/// Cambiar de pluma cuesta más que trazar: sólo cuando se va a usar otra.
void LienzoPintor::PonPluma() {
  if (plumaPuesta_) return;
  pintor_.setPen(QPen(DeBgr(color_), grueso_));
  plumaPuesta_ = true;
}

} // namespace tesmo
