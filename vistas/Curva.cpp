#include "vistas/Curva.h"

#include "vistas/Diezmado.h"
#include "vistas/Recorte.h"

namespace tesmo {

namespace {

/// Columnas por punto de dibujo en un formato vectorial: a esa finura no se aprecia el diezmado al ampliar.
constexpr double ANCHO_COLUMNA_VECTORIAL = 0.25;

std::span<const QPointF> Tramo(const QVector<QPointF> &linea) {
  return {linea.constData(), static_cast<std::size_t>(linea.size())};
}

} // namespace

CurvaDiezmada::CurvaDiezmada(QCPAxis *ejeX, QCPAxis *ejeY) : QCPGraph(ejeX, ejeY) {
  setAdaptiveSampling(false); // el diezmado es sólo el de aquí, que no pierde picos
}

void CurvaDiezmada::drawLinePlot(QCPPainter *pintor, const QVector<QPointF> &linea) const {
  if (pintor->modes().testFlag(QCPPainter::pmVectorized)) {
    PintarVectorial(*pintor, linea);
    return;
  }
  const double escala = std::max(pintor->deviceTransform().m11(), 1.0e-3);
  const double columnas = keyAxis()->axisRect()->width() * escala;
  if (static_cast<double>(linea.size()) >= columnas) {
    PintarColumnas(*pintor, linea, 1.0 / escala);
  } else {
    PintarSegmentos(*pintor, linea);
  }
}

void CurvaDiezmada::PintarColumnas(QCPPainter &pintor, const QVector<QPointF> &linea, double ancho) const {
  const double grosor = std::max(pen().widthF(), ancho);
  const TrazoPorColumnas trazo = TrazarColumnas(DiezmarPorColumnas(Tramo(linea), ancho), ancho, grosor);
  QVector<QRectF> rectangulos;
  rectangulos.reserve(static_cast<qsizetype>(trazo.barras.size()));
  for (const Barra &b : trazo.barras) rectangulos.emplace_back(b.x, b.y, b.ancho, b.alto);
  QVector<QPointF> segmentos(trazo.segmentos.begin(), trazo.segmentos.end());
  pintor.setAntialiasing(false);
  pintor.drawLines(segmentos);
  pintor.setPen(Qt::NoPen);
  pintor.setBrush(pen().color());
  pintor.drawRects(rectangulos);
}

void CurvaDiezmada::PintarSegmentos(QCPPainter &pintor, const QVector<QPointF> &linea) {
  pintor.setAntialiasing(true);
  QPen pluma = pintor.pen();
  pluma.setCapStyle(Qt::RoundCap); // cada segmento por su lado: los extremos redondos cierran las juntas
  pintor.setPen(pluma);
  for (qsizetype i = 0; i + 1 < linea.size(); ++i) {
    const QVector<QPointF> &p = linea;
    if (qIsFinite(p[i].y()) && qIsFinite(p[i + 1].y())) pintor.drawLine(p[i], p[i + 1]);
  }
}

void CurvaDiezmada::PintarVectorial(QCPPainter &pintor, const QVector<QPointF> &linea) const {
  const QRectF marco = keyAxis()->axisRect()->rect();
  for (const QVector<QPointF> &tramo : PolilineaDiezmada(Tramo(linea), ANCHO_COLUMNA_VECTORIAL)) {
    for (const QVector<QPointF> &dentro : RecortarPolilinea(tramo, marco)) {
      pintor.drawPolyline(dentro.constData(), static_cast<int>(dentro.size()));
    }
  }
}

} // namespace tesmo
