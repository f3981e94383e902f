#include "imagen/Lienzopintor.h"

#include <QPainter>

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
}

void LienzoPintor::LineaA(int x, int y) {
  PonPluma();
  pintor_.drawLine(x_, y_, x, y);
  MoverA(x, y);
}

/// Cambiar de pluma cuesta más que trazar: sólo cuando se va a usar otra.
void LienzoPintor::PonPluma() {
  if (plumaPuesta_) return;
  pintor_.setPen(QPen(DeBgr(color_), grueso_));
  plumaPuesta_ = true;
}

} // namespace tesmo
