#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QTableWidget;

namespace tesmo {

/// Tabla de los puntos fijados en la carta, con el proceso entre dos de ellos y los botones de copiar y
/// borrar. Sólo controles. Vacía se ve igual, para que la carta no cambie de tamaño con
/// el primer punto.
class TablaPuntos : public QWidget {
  Q_OBJECT

public:
  explicit TablaPuntos(QWidget *padre = nullptr);

  /// Una fila por punto, con su nombre delante, y lo que dice del proceso (vacío: cómo se fija un punto).
  void Poner(const QList<QStringList> &filas, const QString &proceso);
  /// Filas elegidas, de menor a mayor.
  [[nodiscard]] QList<int> Elegidos() const;
  /// Deja de haber filas elegidas, sin avisar.
  void QuitarEleccion();
  /// Las filas elegidas, o todas si no hay ninguna, como texto con cabecera y tabuladores.
  [[nodiscard]] QString ComoTexto() const;

signals:
  void borrarPedido();
  void elegidosCambiados();

private:
  void CrearTabla();

  QTableWidget *tabla_ = nullptr;
  QLabel *lbProceso_ = nullptr;
  QPushButton *copiar_ = nullptr;
  QPushButton *borrar_ = nullptr;
};

} // namespace tesmo
