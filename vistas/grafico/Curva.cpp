#include "vistas/grafico/Curva.h"

#include "vistas/grafico/Diezmado.h"
#include "vistas/grafico/Recorte.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tesmo {

namespace {

/// Columnas por punto de dibujo en un formato vectorial: a esa finura no se aprecia el diezmado al ampliar.
constexpr double ANCHO_COLUMNA_VECTORIAL = 0.25;

std::span<const QPointF> Tramo(const QVector<QPointF> &linea) {
  return {linea.constData(), static_cast<std::size_t>(linea.size())};
}

/// Por dónde se pinta una línea discontinua según la abscisa: con más puntos que columnas no hay recorrido
/// que seguir, y el trazo se lee a lo ancho.
class TrazoDiscontinuo {
public:
  explicit TrazoDiscontinuo(const QPen &pluma) {
    if (pluma.style() != Qt::CustomDashLine) return;
    for (const qreal tramo : pluma.dashPattern()) fines_.push_back(periodo_ += tramo * pluma.widthF());
  }
  [[nodiscard]] bool SePinta(double x) const {
    if (fines_.empty()) return true;
    const double sitio = std::fmod(std::fmod(x, periodo_) + periodo_, periodo_);
    const auto tramo = std::upper_bound(fines_.begin(), fines_.end(), sitio);
    return (tramo - fines_.begin()) % 2 == 0; // los pares son guiones; los impares, huecos
  }

private:
  std::vector<double> fines_; ///< [px]
  double periodo_ = 0.0;      ///< [px]
};

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
  // Un trazo discontinuo se sigue de un segmento a otro: va como una sola línea mientras cabe.
  const double columnas = keyAxis()->axisRect()->width() * escala;
  if (static_cast<double>(linea.size()) >= columnas) {
    PintarColumnas(*pintor, linea, 1.0 / escala);
  } else if (pen().style() == Qt::CustomDashLine) {
    PintarVectorial(*pintor, linea);
  } else {
    PintarSegmentos(*pintor, linea);
  }
}

void CurvaDiezmada::PintarColumnas(QCPPainter &pintor, const QVector<QPointF> &linea, double ancho) const {
  const double grosor = std::max(pen().widthF(), ancho);
  const TrazoPorColumnas trazo = TrazarColumnas(DiezmarPorColumnas(Tramo(linea), ancho), ancho, grosor);
  QVector<QRectF> rectangulos;
  rectangulos.reserve(static_cast<qsizetype>(trazo.barras.size()));
  const TrazoDiscontinuo discontinuo(pen());
  for (const Barra &b : trazo.barras)
    if (discontinuo.SePinta(b.x)) rectangulos.emplace_back(b.x, b.y, b.ancho, b.alto);
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
