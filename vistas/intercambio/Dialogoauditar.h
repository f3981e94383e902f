#pragma once

#include "intercambio/formatos/Mapacolumnas.h"
#include "intercambio/sintesis/Normales.h"

#include <QDialog>
#include <QStringList>

#include <memory>
#include <vector>

class QPlainTextEdit;
class QPushButton;

namespace tesmo {

/// La auditoría de uno o varios ficheros climáticos, para leerla, copiarla o guardarla. Los que no son de
/// ningún formato conocido se leen con un mapa de columnas, el mismo para todos.
class DialogoAuditar : public QDialog {
  Q_OBJECT

public:
  explicit DialogoAuditar(std::vector<NormalesLocalidad> normales, QWidget *padre = nullptr);

  /// Audita @p rutas y enseña sus páginas, una tras otra.
  void Auditar(const QStringList &rutas);
  /// Lee con @p mapa los que no son de ningún formato conocido, y los audita otra vez.
  void PonMapa(const MapaColumnas &mapa);
  /// Escribe en @p ruta lo que se ve; falso si no se puede.
  [[nodiscard]] bool Guardar(const QString &ruta) const;

private:
  /// Uno de los ficheros que se auditan.
  struct Auditado {
    QString ruta;
    QString pagina;
    bool conMapa = false; ///< sólo se puede leer con un mapa de columnas
  };
  void AuditarUno(Auditado &auditado);
  void Ensenar();
  void PedirMapa();
  void PedirGuardar();

  std::vector<NormalesLocalidad> normales_;
  std::vector<Auditado> auditados_;
  std::shared_ptr<const MapaColumnas> mapa_; ///< nulo mientras no se haga
  QPlainTextEdit *mePagina_ = nullptr;
  QPushButton *btnMapa_ = nullptr;
};

} // namespace tesmo
