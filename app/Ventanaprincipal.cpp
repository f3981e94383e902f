#include "app/Ventanaprincipal.h"

#include "app/Acercade.h"
#include "app/Aplicacion.h"
#include "app/Manual.h"
#include "app/Presentacion.h"
#include "app/Programa.h"
#include "app/Ventanaayuda.h"
#include "app/Ventanaprogramas.h"
#include "app/Vistaprograma.h"
#include "core/Ficheros.h"
#include "core/Mensajes.h"
#include "core/Rutas.h"
#include "extremos/Diasextremos.h"
#include "vistas/colores/Configuracion.h"
#include "vistas/colores/Ventanacolores.h"
#include "vistas/comun/Abrirdocumento.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTimer>

#include <algorithm>

namespace tesmo {

namespace {

/// Lo menor en que caben el panel común y un gráfico legible [px].
constexpr QSize TAMANO_MINIMO(960, 600);
constexpr int INTERVALO_PRESENTACION = 100; ///< [ms]
/// Los tictacs que sólo cuentan; en el siguiente la presentación acaba.
constexpr int TICTACS_DE_ESPERA = 6;

} // namespace

TforPrincipal::TforPrincipal(QWidget *padre) : QMainWindow(padre) {
  setObjectName(QStringLiteral("forPrincipal"));
  setWindowTitle(QString::fromLatin1(TITULO));
  setMinimumSize(TAMANO_MINIMO);
  CrearPrograma();
  ayuda_ =
      DameConfiguracion().RutaPrograma("Crindel.hlp"); // la primera petición fija el directorio de trabajo
  area_ = new QMdiArea(this);
  area_->setObjectName(QStringLiteral("areaVentanas"));
  // Una ventana que no quepa tras ordenarlas se alcanza desplazando.
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setCentralWidget(area_);
  setAcceptDrops(true);
  statusBar()->setSizeGripEnabled(false);
  CrearMenus();
  imagen_ = std::make_unique<Presentacion>();
  // En cola: acabar el programa cierra todas las ventanas, y ésta aún se estaría cerrando.
  connect(imagen_.get(), &Presentacion::cerrada, this, &QWidget::close, Qt::QueuedConnection);
  FormCreate();
  Timer1_ = new QTimer(this);
  Timer1_->setObjectName(QStringLiteral("Timer1"));
  connect(Timer1_, &QTimer::timeout, this, &TforPrincipal::Timer1Timer);
  Timer1_->start(INTERVALO_PRESENTACION);
  // Al acabar, la aplicación borra las ventanas cerradas sin atender antes lo que quede en la cola: sin esto
  // cada formulario moriría antes que sus vistas.
  connect(qApp, &QCoreApplication::aboutToQuit, this, &TforPrincipal::RetirarTodos);
}

TforPrincipal::~TforPrincipal() { RetirarTodos(); }

/// Vacía la traza: así el informe de los días extremos sólo guarda lo de esta ejecución. Lo que falle al
/// arrancar se dice en la línea de estado.
void TforPrincipal::FormCreate() {
  QStringList avisos;
  const QString base = QString::fromStdString(DameConfiguracion().DirectorioBase());
  if (!DameConfiguracion().HayFichero())
    avisos << tr("No hay config.ini en %1: todo se busca en ese directorio.").arg(base);
  if (!EscribirFicheroEntero(RutaDesdeTexto(DiasExtremos::RutaSalida()), {}))
    avisos << tr("No se puede escribir en %1: la traza «salida.txt» no se guardará.").arg(base);
  avisoArranque_ = avisos.join(QLatin1Char(' '));
}

QWidget *TforPrincipal::DameImagen() const { return imagen_.get(); }

void TforPrincipal::Presentar() {
  if (imagen_) imagen_->show();
}

void TforPrincipal::Timer1Timer() {
  if (contador_++ < TICTACS_DE_ESPERA) return;
  Timer1_->stop();
  showMaximized();
  AbrirPrimera();
}

void TforPrincipal::AbrirPrimera() {
  Timer1_->stop();
  if (!imagen_) return;
  imagen_->hide();
  imagen_.release()->deleteLater(); // se puede llegar aquí desde su propio cierre
  for (QAction *menu : menuBar()->actions()) menu->setVisible(true);
  AbrirVentana(*programas_.front());
  if (!avisoArranque_.isEmpty()) Decir(nullptr, avisoArranque_);
}

Programa &TforPrincipal::CrearPrograma() {
  programas_.push_back(std::make_unique<Programa>());
  return *programas_.back();
}

void TforPrincipal::AbrirVentana(const Programa &programa) {
  const std::string nombre = "Sin Nombre" + std::to_string(area_->subWindowList().size() + 1);
  auto controlador = std::make_unique<VistaPrograma>(programa, nombre);
  VistaPrograma *este = controlador.get();
  controladores_.push_back(std::move(controlador));
  TforProgramas &formulario = este->DameFormulario();
  QMdiSubWindow *ventana = area_->addSubWindow(&formulario);
  // El menú de sistema de cada ventana trae el mismo atajo que "Cerrar", y un atajo doble no hace nada.
  for (QAction *orden : ventana->systemMenu()->actions()) orden->setShortcuts(QList<QKeySequence>());
  connect(&formulario, &TforProgramas::estado, this,
          [this, este](const QString &texto) { Decir(este, texto); });
  connect(&formulario, &TforProgramas::importarPedido, this, &TforPrincipal::OfrecerImportar,
          Qt::QueuedConnection);
  // El formulario no puede morir dentro de su propio suceso de cierre.
  connect(
      &formulario, &TforProgramas::cerrada, this, [this, este] { Retirar(este); }, Qt::QueuedConnection);
  Decir(quienDijo_, {});
  este->Abrir();
  ventana->showMaximized();
}

void TforPrincipal::Retirar(VistaPrograma *controlador) {
  const auto sitio = std::ranges::find(controladores_, controlador, &std::unique_ptr<VistaPrograma>::get);
  if (sitio == controladores_.end()) return;
  const std::unique_ptr<VistaPrograma> retirado = std::move(*sitio);
  controladores_.erase(sitio);
  Decir(controlador, {});
}

void TforPrincipal::Decir(const VistaPrograma *quien, const QString &texto) {
  if (texto.isEmpty() && quienDijo_ != quien) return;
  quienDijo_ = texto.isEmpty() ? nullptr : quien;
  statusBar()->showMessage(texto);
}

void TforPrincipal::RetirarTodos() {
  while (!controladores_.empty()) Retirar(controladores_.back().get());
}

void TforPrincipal::mnuNuevoClick() { AbrirVentana(CrearPrograma()); }

void TforPrincipal::mnuCerrarClick() { area_->closeActiveSubWindow(); }

void TforPrincipal::mnuCerrarTodoClick() {
  const QList<QMdiSubWindow *> ventanas = area_->subWindowList();
  for (auto ventana = ventanas.rbegin(); ventana != ventanas.rend(); ++ventana) (*ventana)->close();
}

void TforPrincipal::mnuColoresClick() {
  auto *dialogo = new TforColores(DameTablaDeColores(), this);
  dialogo->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialogo, &TforColores::aplicados, this, [this](bool guardados) {
    for (const auto &controlador : controladores_) controlador->AplicarColores();
    if (guardados) return;
    const QString ruta = QString::fromStdString(DameConfiguracion().RutaPrograma("tesmo.inp"));
    Decir(nullptr, tr("Los colores valen hasta cerrar el programa: no se pudieron guardar en %1").arg(ruta));
  });
  dialogo->open();
}

TforProgramas *TforPrincipal::VentanaDelante() const {
  const QMdiSubWindow *ventana = area_->currentSubWindow();
  return ventana == nullptr ? nullptr : qobject_cast<TforProgramas *>(ventana->widget());
}

void TforPrincipal::mnuContenidoClick() {
  QDir::setCurrent(QString::fromStdString(DameConfiguracion().RutaPrograma({})));
  const QString ayuda = QString::fromStdString(ayuda_);
  if (!QFileInfo(ayuda).isFile()) return AbrirManual();
  const QPointer<TforPrincipal> marco(this); // el sistema puede contestar cuando ya no esté
  AbrirDocumento(ayuda, [marco](const QString &) {
    if (marco) marco->AbrirManual();
  });
}

void TforPrincipal::AbrirManual() {
  const QString directorio = DirectorioManual();
  if (directorio.isEmpty()) {
    Decir(nullptr, tr("No se encuentra el manual: falta el directorio «manual» junto al programa."));
    return;
  }
  if (manual_ == nullptr) manual_ = new VentanaAyuda(this);
  const TforProgramas *ventana = VentanaDelante();
  manual_->Ensenar(directorio, PaginaDelManual(ventana == nullptr ? QString() : ventana->PestanaDelante()));
}

void TforPrincipal::mnuAcercadeClick() {
  TforAcercade caja(this);
  caja.exec();
}

bool TforPrincipal::event(QEvent *suceso) {
  if (suceso->type() == QEvent::StatusTip && static_cast<QStatusTipEvent *>(suceso)->tip().isEmpty())
    return true;
  return QMainWindow::event(suceso);
}

void TforPrincipal::closeEvent(QCloseEvent *suceso) {
  Timer1_->stop();
  LiberarConfiguracion();
  mnuCerrarTodoClick();
  DameMensajes().PonPresentador(nullptr);
  suceso->accept();
  // No basta con que se cierre la última ventana: si lo que se cierra es la presentación, ésta no cuenta.
  QCoreApplication::quit();
}

} // namespace tesmo
