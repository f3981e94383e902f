#include "vistas/Leyenda.h"

namespace tesmo {

namespace {

constexpr int ANCHO_MUESTRA = 18; ///< [px]
constexpr int HUECO = 6;          ///< entre la muestra y el texto, y tras él [px]

} // namespace

EntradaLeyenda::EntradaLeyenda(QCPLegend *leyenda, int indice, const QString &texto, const QPen &pluma)
    : QCPAbstractLegendItem(leyenda), indice_(indice), texto_(texto), pluma_(pluma) {
  setMargins(QMargins(HUECO, 1, HUECO, 1));
}

void EntradaLeyenda::draw(QCPPainter *pintor) {
  const QRect sitio = rect();
  pintor->setAntialiasing(false);
  pintor->fillRect(
      QRectF(sitio.left(), sitio.center().y() - pluma_.widthF() / 2.0, ANCHO_MUESTRA, pluma_.widthF() + 1.0),
      pluma_.color());
  pintor->setFont(font());
  pintor->setPen(textColor());
  pintor->drawText(sitio.adjusted(ANCHO_MUESTRA + HUECO, 0, HUECO, 0),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, texto_);
}

QSize EntradaLeyenda::minimumOuterSizeHint() const {
  const QFontMetrics medidas(font());
  const QMargins margen = margins();
  return {ANCHO_MUESTRA + HUECO + medidas.horizontalAdvance(texto_) + margen.left() + margen.right(),
          medidas.height() + margen.top() + margen.bottom()};
}

QSize EntradaLeyenda::maximumOuterSizeHint() const {
  return {QWIDGETSIZE_MAX, minimumOuterSizeHint().height()};
}

} // namespace tesmo
