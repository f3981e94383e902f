#pragma once

#include <QWidget>

class QTabWidget;

namespace tesmo {

class PaginaDiasExtremos;
class PaginaEntorno;
class PaginaEstadisticas;
class PaginaExportacion;
class PaginaResultadosExtremos;
class PaginaPosicionSolar;
class PaginaPsicrometrico;
class PanelSeleccion;
class VistaPrograma;

/// Ventana de trabajo: las páginas y, debajo, el panel común. Sus sucesos no hacen nada por sí mismos: cada
/// uno pasa a su controlador.
class TforProgramas : public QWidget {
  Q_OBJECT

public:
  /// @p controlador le sobrevive.
  explicit TforProgramas(VistaPrograma &controlador, QWidget *padre = nullptr);

  // Quien la gobierna, sus páginas y el panel común.
  [[nodiscard]] VistaPrograma &DameControlador() const { return controlador_; }
  [[nodiscard]] PaginaEntorno &DamePaginaEntorno() const { return *paginaEntorno_; }
  [[nodiscard]] PaginaDiasExtremos &DamePaginaDiasExtremos() const { return *paginaDiasExtremos_; }
  [[nodiscard]] PaginaResultadosExtremos &DamePaginaResultados() const { return *paginaResultados_; }
  [[nodiscard]] PaginaPosicionSolar &DamePaginaPosicionSolar() const { return *paginaPosicionSolar_; }
  [[nodiscard]] PaginaPsicrometrico &DamePaginaPsicrometrico() const { return *paginaPsicrometrico_; }
  [[nodiscard]] PaginaEstadisticas &DamePaginaEstadisticas() const { return *paginaEstadisticas_; }
  [[nodiscard]] PaginaExportacion &DamePaginaExportacion() const { return *paginaExportacion_; }
  [[nodiscard]] PanelSeleccion &DamePanel() const { return *panel_; }

  /// Nombre de la página que está delante ("tsDatosGenerales"…).
  [[nodiscard]] QString PestanaDelante() const;

  // Los sucesos de los controles del mismo nombre; cada uno llama a su operación del controlador.
  void cbProvinciasChange();
  void cbLocalidadesChange();
  void pcProgramasChange();
  void btnActualizarClick();
  void csMesIniChange();
  void btnSimulacionClick();
  /// Cualquier casilla del visor.
  void casillaClick();
  void btnCalDiaExtClick();
  void CheckListBox1ClickCheck();
  void Button1Click();
  void btnEscribirClick();
  void btnSubirClick();
  void btnBajarClick();
  /// La casilla de exportación de la magnitud @p rotulo.
  void casillaExportacionClick(const QString &rotulo, bool puesta);
  /// Dice un fallo o una carga incompleta: no se quita al cambiar de pestaña, como lo demás que se dice.
  void Avisar(const QString &texto);
  /// Pone la pestaña de resultados de los días extremos a la vista y delante, o la esconde.
  void EnsenarResultados(bool ensenar);

signals:
  /// La ventana se cierra: quien la gobierna puede destruirla al volver al bucle de sucesos.
  void cerrada();
  /// Algo que decir en la línea de estado; vacío: lo último que dijo esta ventana ya no viene a cuento.
  void estado(const QString &texto);
  /// La localidad elegida tiene un fichero que hay que importar antes de usarlo.
  void importarPedido(const QString &ruta, const QString &localidad, const QString &provincia);

protected:
  /// Lo que se estuviera tecleando se olvida. Con una acción en curso (Accion) no se cierra.
  void closeEvent(QCloseEvent *suceso) override;

private:
  void Conectar();

  VistaPrograma &controlador_;
  bool esAviso_ = false; ///< lo último que dijo es un aviso
  QTabWidget *pcProgramas_ = nullptr;
  PaginaEntorno *paginaEntorno_ = nullptr;
  PaginaDiasExtremos *paginaDiasExtremos_ = nullptr;
  PaginaResultadosExtremos *paginaResultados_ = nullptr;
  PaginaPosicionSolar *paginaPosicionSolar_ = nullptr;
  PaginaPsicrometrico *paginaPsicrometrico_ = nullptr;
  PaginaExportacion *paginaExportacion_ = nullptr;
  PaginaEstadisticas *paginaEstadisticas_ = nullptr;
  PanelSeleccion *panel_ = nullptr;
};

} // namespace tesmo
