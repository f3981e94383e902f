#pragma once

#include "intercambio/sintesis/Normales.h"

#include <QDialog>
#include <QStringList>

#include <vector>

class QPlainTextEdit;

namespace tesmo {

/// La auditoría de uno o varios ficheros climáticos, para leerla, copiarla o guardarla.
class DialogoAuditar : public QDialog {
  Q_OBJECT

public:
  explicit DialogoAuditar(std::vector<NormalesLocalidad> normales, QWidget *padre = nullptr);

  /// Audita @p rutas y enseña sus páginas, una tras otra.
  void Auditar(const QStringList &rutas);
  /// Escribe en @p ruta lo que se ve; falso si no se puede.
  [[nodiscard]] bool Guardar(const QString &ruta) const;

private:
  void PedirGuardar();

  std::vector<NormalesLocalidad> normales_;
  QPlainTextEdit *mePagina_ = nullptr;
};

} // namespace tesmo
