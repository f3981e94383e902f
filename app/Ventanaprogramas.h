#pragma once

#include <QWidget>

class QTabWidget;

namespace tesmo {

class PaginaEntorno;
class PanelSeleccion;
class VistaPrograma;

/// Ventana de trabajo: las páginas y, debajo, el panel común. Sus sucesos no hacen nada por sí mismos: cada
/// uno pasa a su controlador.
class TforProgramas : public QWidget {
  Q_OBJECT

public:
  /// @p controlador le sobrevive.
  explicit TforProgramas(VistaPrograma &controlador, QWidget *padre = nullptr);

  [[nodiscard]] VistaPrograma &DameControlador() const { return controlador_; }
  [[nodiscard]] PaginaEntorno &DamePaginaEntorno() const { return *paginaEntorno_; }
  [[nodiscard]] PanelSeleccion &DamePanel() const { return *panel_; }

  void cbProvinciasChange();
  void cbLocalidadesChange();
  void pcProgramasChange();
  void btnActualizarClick();
  void csMesIniChange();
  void btnSimulacionClick();
  void casillaClick();

signals:
  /// La ventana se cierra: quien la gobierna puede destruirla al volver al bucle de sucesos.
  void cerrada();
  /// Algo que decir en la línea de estado.
  void estado(const QString &texto);

protected:
  void closeEvent(QCloseEvent *suceso) override;

private:
  void Conectar();

  VistaPrograma &controlador_;
  QTabWidget *pcProgramas_ = nullptr;
  PaginaEntorno *paginaEntorno_ = nullptr;
  PanelSeleccion *panel_ = nullptr;
};

} // namespace tesmo
