#pragma once

#include <QMainWindow>

#include <memory>
#include <string>
#include <vector>

class QAction;
class QMdiArea;
class QMenu;

namespace tesmo {

class Programa;
class VistaPrograma;

/// Marco de la aplicación: documentos múltiples, una ventana de trabajo por documento. Es dueño de los
/// controladores y de los programas; cerrarlo cierra las ventanas de la última a la primera.
class TforPrincipal : public QMainWindow {
  Q_OBJECT

public:
  explicit TforPrincipal(QWidget *padre = nullptr);
  ~TforPrincipal() override;

  /// Abre la primera ventana, sobre el programa con que nació el marco.
  void AbrirPrimera();
  [[nodiscard]] const std::vector<std::unique_ptr<VistaPrograma>> &Controladores() const {
    return controladores_;
  }
  [[nodiscard]] const std::vector<std::unique_ptr<Programa>> &Programas() const { return programas_; }
  /// Ruta del fichero de ayuda, en el directorio del programa; puede no existir.
  [[nodiscard]] const std::string &FicheroAyuda() const { return ayuda_; }

public slots:
  void mnuNuevoClick();
  void mnuCerrarClick();
  void mnuCerrarTodoClick();

protected:
  void closeEvent(QCloseEvent *suceso) override;

private:
  void CrearMenus();
  QAction *CrearOrden(QMenu &menu, const QString &nombre, const QString &texto, const QKeySequence &atajo);
  void ListarVentanas(QMenu &menu);
  Programa &CrearPrograma();
  void AbrirVentana(const Programa &programa);
  void Retirar(VistaPrograma *controlador);
  void RetirarTodos();

  std::string ayuda_;
  QMdiArea *area_ = nullptr;
  QList<QAction *> listaVentanas_; ///< las del menú, rehechas cada vez que se abre
  std::vector<std::unique_ptr<Programa>> programas_;
  std::vector<std::unique_ptr<VistaPrograma>> controladores_;
};

} // namespace tesmo
