#pragma once

#include "intercambio/reloj/Cursodeldia.h"

#include <QString>
#include <QWidget>

class QPainter;
class QRectF;

namespace tesmo {

/// Dibujo de un reloj: el haz de un día claro frente al curso del sol, con lo declarado a la izquierda y con
/// lo elegido a la derecha. Con el reloj bueno los puntos caen sobre la curva.
class DibujoReloj : public QWidget {
  Q_OBJECT

public:
  explicit DibujoReloj(QWidget *padre = nullptr);

  /// @p dia en palabras. Los relojes, en las suyas.
  void Poner(const QString &dia, const CursoReloj &declarado, const QString &relojDeclarado,
             const CursoReloj &elegido, const QString &relojElegido);
  /// Nada que enseñar; @p motivo se escribe en su lugar.
  void Vaciar(const QString &motivo);
  [[nodiscard]] const CursoReloj &Declarado() const { return declarado_.curso; }
  [[nodiscard]] const CursoReloj &Elegido() const { return elegido_.curso; }
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

protected:
  void paintEvent(QPaintEvent *suceso) override;

private:
  struct Lado {
    QString titulo;
    QString reloj;
    CursoReloj curso;
  };
  void PintarLado(QPainter &pintor, const QRectF &caja, const Lado &lado) const;

  QString dia_;
  QString motivo_;
  Lado declarado_;
  Lado elegido_;
};

} // namespace tesmo
