#include "vistas/carta/Lienzorecortado.h"

#include "vistas/comun/Textoqt.h"
#include "vistas/grafico/Recorte.h"

#include <QLineF>
#include <QPainter>

#include <utility>

namespace tesmo {

void LienzoRecortado::LineaA(int x, int y) {
  const QPointF desde = std::exchange(pluma_, QPointF(x, y));
  const auto dentro = RecortarSegmento(desde, pluma_, area_);
  if (!dentro) return;
  pintor_.setPen(QPen(Color(color_), grueso_, Qt::SolidLine, Qt::FlatCap));
  pintor_.drawLine(QLineF(dentro->first, dentro->second));
}

} // namespace tesmo
