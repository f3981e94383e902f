#pragma once

#include <QPixmap>
#include <QWidget>

namespace tesmo {

/// Ventana sin borde con la imagen del programa, centrada en la pantalla. Va aparte del marco: cambiar las
/// banderas de una ventana ya a la vista compite con el gestor de ventanas.
class Presentacion : public QWidget {
  Q_OBJECT

public:
  Presentacion();

signals:
  /// Alguien la cerró a mano: el programa no debe seguir.
  void cerrada();

protected:
  void paintEvent(QPaintEvent *suceso) override;
  void closeEvent(QCloseEvent *suceso) override;

private:
  QPixmap dibujo_;
};

} // namespace tesmo
