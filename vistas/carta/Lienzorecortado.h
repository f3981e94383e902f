#pragma once

#include "psicro/Lienzo.h"

#include <QPointF>
#include <QRectF>

class QPainter;

namespace tesmo {

/// Lienzo sobre un QPainter que no recorta, como el de un SVG: traza sólo lo que cae dentro de @p area
/// [píxeles]. El pintor ha de vivir más que él.
class LienzoRecortado : public Lienzo {
public:
  LienzoRecortado(QPainter &pintor, const QRectF &area) : pintor_(pintor), area_(area) {}

  void PonColor(ColorBgr color) override { color_ = color; }
  void PonGrueso(int grueso) override { grueso_ = grueso; }
  void MoverA(int x, int y) override { pluma_ = QPointF(x, y); }
  void LineaA(int x, int y) override;

private:
  QPainter &pintor_;
  QRectF area_;
  ColorBgr color_ = 0;
  int grueso_ = 1;
  QPointF pluma_;
};

} // namespace tesmo
