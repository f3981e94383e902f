#pragma once

#include <QDialog>

namespace tesmo {

/// Caja "Acerca de Tesmo-A": imagen, versión, licencia y bibliotecas. "OK" la cierra con el resultado OK.
class TforAcercade : public QDialog {
  Q_OBJECT

public:
  explicit TforAcercade(QWidget *padre = nullptr);

protected:
  void showEvent(QShowEvent *suceso) override;
};

} // namespace tesmo
