#include "vistas/grafico/Leyenda.h"

namespace tesmo {

namespace {

constexpr int ANCHO_MUESTRA = 18; ///< [px]
/// En que se reconoce el trazo de una línea discontinua [px].
constexpr int ANCHO_MUESTRA_DE_TRAZO = 56;
constexpr int HUECO = 6; ///< entre la muestra y el texto, y tras él [px]

} // namespace

EntradaLeyenda::EntradaLeyenda(QCPLegend *leyenda, int indice, const QString &texto, const QPen &pluma)
    : QCPAbstractLegendItem(leyenda), indice_(indice), texto_(texto), pluma_(pluma) {
  setMargins(QMargins(HUECO, 1, HUECO, 1));
}

void EntradaLeyenda::draw(QCPPainter *pintor) {
  const QRect sitio = rect();
  pintor->setAntialiasing(false);
  PintarMuestra(*pintor, sitio);
  pintor->setFont(font());
  pintor->setPen(textColor());
  pintor->drawText(sitio.adjusted(AnchoMuestra() + HUECO, 0, HUECO, 0),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, texto_);
}

int EntradaLeyenda::AnchoMuestra() const {
  return pluma_.style() == Qt::CustomDashLine ? ANCHO_MUESTRA_DE_TRAZO : ANCHO_MUESTRA;
}

void EntradaLeyenda::PintarMuestra(QCPPainter &pintor, const QRect &sitio) const {
  const double y = sitio.center().y();
  const double grosor = pluma_.widthF();
  if (pluma_.style() != Qt::CustomDashLine) {
    pintor.fillRect(QRectF(sitio.left(), y - grosor / 2.0, ANCHO_MUESTRA, grosor + 1.0), pluma_.color());
    return;
  }
  pintor.setPen(pluma_);
  pintor.drawLine(QLineF(sitio.left(), y, sitio.left() + ANCHO_MUESTRA_DE_TRAZO, y));
}

QSize EntradaLeyenda::minimumOuterSizeHint() const {
  const QFontMetrics medidas(font());
  const QMargins margen = margins();
  return {AnchoMuestra() + HUECO + medidas.horizontalAdvance(texto_) + margen.left() + margen.right(),
          medidas.height() + margen.top() + margen.bottom()};
}

QSize EntradaLeyenda::maximumOuterSizeHint() const {
  return {QWIDGETSIZE_MAX, minimumOuterSizeHint().height()};
}

} // namespace tesmo
