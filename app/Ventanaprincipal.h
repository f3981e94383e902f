#pragma once

#include <QMainWindow>
#include <QPointer>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QAction;
class QMdiArea;
class QMenu;
class QTimer;

namespace tesmo {

class DialogoImportar;
class Presentacion;
class Programa;
class TforProgramas;
class VentanaAyuda;
class VistaPrograma;

/// Marco de la aplicación: la presentación y, en el séptimo tictac, los documentos múltiples, una ventana de
/// trabajo por documento. Es dueño de los controladores y de los programas. Cerrarlo cierra las ventanas de
/// la última a la primera y acaba el programa; cerrar la última ventana lo deja abierto.
class TforPrincipal : public QMainWindow {
  Q_OBJECT

public:
  /// Nace escondido, con el reloj de la presentación en marcha y los menús sin enseñar.
  explicit TforPrincipal(QWidget *padre = nullptr);
  ~TforPrincipal() override;

  /// Enseña la imagen de presentación hasta el séptimo tictac.
  void Presentar();
  /// Acaba la presentación: para el reloj, enseña los menús y abre la primera ventana, sobre el programa con
  /// que nació el marco. Otra vez no hace nada.
  void AbrirPrimera();
  [[nodiscard]] const std::vector<std::unique_ptr<VistaPrograma>> &Controladores() const {
    return controladores_;
  }
  [[nodiscard]] const std::vector<std::unique_ptr<Programa>> &Programas() const { return programas_; }
  /// Ruta del fichero de ayuda, en el directorio del programa; puede no existir.
  [[nodiscard]] const std::string &FicheroAyuda() const { return ayuda_; }
  /// La imagen de presentación; nula cuando ya pasó.
  [[nodiscard]] QWidget *DameImagen() const;

public slots:
  // Las órdenes de los menús del mismo nombre.
  void mnuNuevoClick();
  void mnuImportarClick();
  void mnuAuditarClick();
  void mnuCerrarClick();
  void mnuCerrarTodoClick();
  void mnuColoresClick();
  void mnuContenidoClick();
  void mnuAcercadeClick();

private slots:
  /// Un tictac de la presentación; el séptimo la acaba.
  void Timer1Timer();

protected:
  /// Un aviso de estado vacío, el que manda cada menú al pasar por él, no borra lo que se dijo.
  bool event(QEvent *suceso) override;
  void closeEvent(QCloseEvent *suceso) override;
  /// Ficheros soltados sobre el marco: se importan.
  void dragEnterEvent(QDragEnterEvent *suceso) override;
  void dropEvent(QDropEvent *suceso) override;

private:
  /// Una orden de un menú; sin nombre es una raya.
  struct Orden {
    const char *nombre = nullptr;
    QString texto;
    QKeySequence atajo;
    std::function<void()> alElegir;
  };
  void FormCreate();
  void CrearMenus();
  QMenu *CrearMenu(const char *nombre, const QString &titulo, const std::vector<Orden> &ordenes);
  [[nodiscard]] std::vector<Orden> OrdenesDeArchivo();
  [[nodiscard]] std::vector<Orden> OrdenesDeHerramienta();
  [[nodiscard]] std::vector<Orden> OrdenesDeVentana();
  [[nodiscard]] std::vector<Orden> OrdenesDeAyuda();
  void ListarVentanas(QMenu &menu);
  void AbrirManual();
  DialogoImportar &AbrirImportar();
  void OfrecerImportar(const QString &ruta, const QString &localidad, const QString &provincia);
  [[nodiscard]] TforProgramas *VentanaDelante() const;
  Programa &CrearPrograma();
  void AbrirVentana(const Programa &programa);
  /// Pone @p texto en la línea de estado; vacío, quita lo que hubiera dicho @p quien y nada más. Nulo: el
  /// marco.
  void Decir(const VistaPrograma *quien, const QString &texto);
  void Retirar(VistaPrograma *controlador);
  void RetirarTodos();

  int contador_ = 0; ///< tictacs de la presentación
  QTimer *Timer1_ = nullptr;
  std::unique_ptr<Presentacion> imagen_;
  std::string ayuda_;
  QString avisoArranque_; ///< lo que falló al arrancar sin que nadie lo dijera
  const VistaPrograma *quienDijo_ =
      nullptr; ///< de quién es lo que está en la línea de estado; nulo: del marco
  QMdiArea *area_ = nullptr;
  QPointer<DialogoImportar> importar_; ///< nulo si no está abierto
  VentanaAyuda *manual_ = nullptr;     ///< nula hasta que se abre por primera vez
  QList<QAction *> listaVentanas_;     ///< las del menú, rehechas cada vez que se abre
  std::vector<std::unique_ptr<Programa>> programas_;
  std::vector<std::unique_ptr<VistaPrograma>> controladores_;
};

} // namespace tesmo
