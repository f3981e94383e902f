#pragma once

#include <qcustomplot.h>

namespace tesmo {

/// Entrada de leyenda de una serie: una muestra de su línea, su título y su rótulo.
class EntradaLeyenda : public QCPAbstractLegendItem {
public:
  /// @p indice es el de la serie en el gráfico.
  EntradaLeyenda(QCPLegend *leyenda, int indice, const QString &texto, const QPen &pluma);

  [[nodiscard]] int Indice() const { return indice_; }
  [[nodiscard]] const QString &Texto() const { return texto_; }
  /// Lo que ocupa sin recortar el texto [px].
  [[nodiscard]] int AnchoNecesario() const { return minimumOuterSizeHint().width(); }

protected:
  void draw(QCPPainter *pintor) override;
  [[nodiscard]] QSize minimumOuterSizeHint() const override;
  [[nodiscard]] QSize maximumOuterSizeHint() const override;

private:
  [[nodiscard]] int AnchoMuestra() const;
  void PintarMuestra(QCPPainter &pintor, const QRect &sitio) const;
  int indice_;
  QString texto_;
  QPen pluma_;
};

} // namespace tesmo
