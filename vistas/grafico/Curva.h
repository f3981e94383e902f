#pragma once

#include <qcustomplot.h>

namespace tesmo {

/// Curva de una serie larga. Sus datos y su pluma son los de siempre; sólo cambia cómo se pinta: cuando hay
/// más puntos que columnas de píxeles, cada columna se pinta de una vez, del menor al mayor de sus valores,
/// porque el trazador de mapas de bits es cientos de veces más lento con una polilínea ancha que se pisa a sí
/// misma.
class CurvaDiezmada : public QCPGraph {
public:
  CurvaDiezmada(QCPAxis *ejeX, QCPAxis *ejeY);

protected:
  void drawLinePlot(QCPPainter *pintor, const QVector<QPointF> &linea) const override;

private:
  void PintarColumnas(QCPPainter &pintor, const QVector<QPointF> &linea, double ancho) const;
  static void PintarSegmentos(QCPPainter &pintor, const QVector<QPointF> &linea);
  void PintarVectorial(QCPPainter &pintor, const QVector<QPointF> &linea) const;
};

} // namespace tesmo
