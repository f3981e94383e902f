#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

#include <vector>

namespace tesmo {

/// Lo que el cursor dice de una serie.
struct LineaCursor {
  QString texto;
  QColor color;
  double y = 0.0; ///< ordenada del punto [px]; no finita: sin marca
};

/// Capa transparente sobre un gráfico: cruz del cursor con su lectura y, sin series, un aviso. Va aparte para
/// que mover el ratón no repinte los datos ni salga en las imágenes guardadas.
class CapaCursor : public QWidget {
  Q_OBJECT

public:
  explicit CapaCursor(QWidget *padre);

  /// Enseña la cruz en @p cruz, dentro de @p marco, con el título y las líneas de la lectura.
  void Ensenar(const QRect &marco, const QPointF &cruz, const QString &titulo,
               std::vector<LineaCursor> lineas);
  void Ocultar();
  /// Texto centrado en @p marco; vacío: ninguno.
  void PonAviso(const QRect &marco, const QString &aviso);
  /// Título y líneas, una por renglón; vacío si no se está leyendo nada.
  [[nodiscard]] QString Texto() const;

protected:
  void paintEvent(QPaintEvent *suceso) override;

private:
  void PintarCruz(QPainter &pintor) const;
  void PintarLectura(QPainter &pintor) const;
  [[nodiscard]] QSize TamanoLectura() const;
  [[nodiscard]] QRect SitioDeLectura() const;

  QRect marco_;
  QPointF cruz_;
  QString titulo_;
  std::vector<LineaCursor> lineas_;
  bool leyendo_ = false;
  QRect marcoAviso_;
  QString aviso_;
};

} // namespace tesmo
