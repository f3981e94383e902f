#include "app/Ventanaprincipal.h"

#include "app/Aplicacion.h"
#include "app/Programa.h"
#include "app/Ventanaprogramas.h"
#include "app/Vistaprograma.h"
#include "core/Ficheros.h"
#include "core/Rutas.h"
#include "extremos/Diasextremos.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include <algorithm>

namespace tesmo {

namespace {

/// Lo menor en que caben el panel común y un gráfico legible [px].
constexpr QSize TAMANO_MINIMO(960, 600);

} // namespace

TforPrincipal::TforPrincipal(QWidget *padre) : QMainWindow(padre) {
  setObjectName(QStringLiteral("forPrincipal"));
  setWindowTitle(QString::fromLatin1(TITULO));
  setMinimumSize(TAMANO_MINIMO);
  CrearPrograma();
  ayuda_ =
      DameConfiguracion().RutaPrograma("Crindel.hlp"); // la primera petición fija el directorio de trabajo
  // El informe de los días extremos sólo guarda lo de esta ejecución; si no se puede vaciar, no se dice.
  (void)EscribirFicheroEntero(RutaDesdeTexto(DiasExtremos::RutaSalida()), {});
  area_ = new QMdiArea(this);
  area_->setObjectName(QStringLiteral("areaVentanas"));
  setCentralWidget(area_);
  statusBar()->setSizeGripEnabled(false);
  CrearMenus();
  // Al acabar, la aplicación borra las ventanas cerradas sin atender antes lo que quede en la cola: sin esto
  // cada formulario moriría antes que sus vistas.
  connect(qApp, &QCoreApplication::aboutToQuit, this, &TforPrincipal::RetirarTodos);
}

TforPrincipal::~TforPrincipal() { RetirarTodos(); }

void TforPrincipal::CrearMenus() {
  QMenu *archivo = menuBar()->addMenu(tr("&Archivo"));
  archivo->setObjectName(QStringLiteral("mnuArchivo"));
  connect(CrearOrden(*archivo, QStringLiteral("mnuNuevo"), tr("&Nuevo"), QKeySequence::New),
          &QAction::triggered, this, &TforPrincipal::mnuNuevoClick);
  connect(CrearOrden(*archivo, QStringLiteral("mnuCerrar"), tr("&Cerrar"), QKeySequence(tr("Ctrl+W"))),
          &QAction::triggered, this, &TforPrincipal::mnuCerrarClick);
  connect(CrearOrden(*archivo, QStringLiteral("mnuCerrarTodo"), tr("Cerrar &todo"),
                     QKeySequence(tr("Ctrl+Shift+W"))),
          &QAction::triggered, this, &TforPrincipal::mnuCerrarTodoClick);
  archivo->addSeparator();
  connect(CrearOrden(*archivo, QStringLiteral("mnuSalir"), tr("&Salir"), QKeySequence(tr("Ctrl+Q"))),
          &QAction::triggered, this, &QWidget::close);

  QMenu *ventana = menuBar()->addMenu(tr("Ve&ntana"));
  ventana->setObjectName(QStringLiteral("mnuVentana"));
  connect(CrearOrden(*ventana, QStringLiteral("WindowCascade1"), tr("&Cascada"), {}), &QAction::triggered,
          area_, &QMdiArea::cascadeSubWindows);
  connect(CrearOrden(*ventana, QStringLiteral("mnuMosaico"), tr("&Mosaico"), {}), &QAction::triggered, area_,
          &QMdiArea::tileSubWindows);
  ventana->addSeparator();
  connect(ventana, &QMenu::aboutToShow, this, [this, ventana] { ListarVentanas(*ventana); });
}

void TforPrincipal::ListarVentanas(QMenu &menu) {
  qDeleteAll(listaVentanas_);
  listaVentanas_.clear();
  for (QMdiSubWindow *ventana : area_->subWindowList()) {
    QAction *orden = menu.addAction(ventana->windowTitle());
    orden->setCheckable(true);
    orden->setChecked(ventana == area_->activeSubWindow());
    connect(orden, &QAction::triggered, ventana, [this, ventana] { area_->setActiveSubWindow(ventana); });
    listaVentanas_.append(orden);
  }
}

QAction *TforPrincipal::CrearOrden(QMenu &menu, const QString &nombre, const QString &texto,
                                   const QKeySequence &atajo) {
  QAction *orden = menu.addAction(texto);
  orden->setObjectName(nombre);
  orden->setShortcut(atajo);
  return orden;
}

Programa &TforPrincipal::CrearPrograma() {
  programas_.push_back(std::make_unique<Programa>());
  return *programas_.back();
}

void TforPrincipal::AbrirPrimera() { AbrirVentana(*programas_.front()); }

void TforPrincipal::mnuNuevoClick() { AbrirVentana(CrearPrograma()); }

void TforPrincipal::AbrirVentana(const Programa &programa) {
  const std::string nombre = "Sin Nombre" + std::to_string(area_->subWindowList().size() + 1);
  auto controlador = std::make_unique<VistaPrograma>(programa, nombre);
  VistaPrograma *este = controlador.get();
  controladores_.push_back(std::move(controlador));
  TforProgramas &formulario = este->DameFormulario();
  QMdiSubWindow *ventana = area_->addSubWindow(&formulario);
  // El menú de sistema de cada ventana trae el mismo atajo que "Cerrar", y un atajo doble no hace nada.
  for (QAction *orden : ventana->systemMenu()->actions()) orden->setShortcuts(QList<QKeySequence>());
  connect(&formulario, &TforProgramas::estado, statusBar(),
          [this](const QString &texto) { statusBar()->showMessage(texto); });
  // El formulario no puede morir dentro de su propio suceso de cierre.
  connect(
      &formulario, &TforProgramas::cerrada, this, [this, este] { Retirar(este); }, Qt::QueuedConnection);
  statusBar()->clearMessage();
  este->Abrir();
  ventana->showMaximized();
}

void TforPrincipal::Retirar(VistaPrograma *controlador) {
  const auto sitio = std::ranges::find(controladores_, controlador, &std::unique_ptr<VistaPrograma>::get);
  if (sitio == controladores_.end()) return;
  const std::unique_ptr<VistaPrograma> retirado = std::move(*sitio);
  controladores_.erase(sitio);
  statusBar()->clearMessage();
}

void TforPrincipal::RetirarTodos() {
  while (!controladores_.empty()) Retirar(controladores_.back().get());
}

void TforPrincipal::mnuCerrarClick() { area_->closeActiveSubWindow(); }

void TforPrincipal::mnuCerrarTodoClick() {
  const QList<QMdiSubWindow *> ventanas = area_->subWindowList();
  for (auto ventana = ventanas.rbegin(); ventana != ventanas.rend(); ++ventana) (*ventana)->close();
}

void TforPrincipal::closeEvent(QCloseEvent *suceso) {
  LiberarConfiguracion();
  mnuCerrarTodoClick();
  suceso->accept();
}

} // namespace tesmo
