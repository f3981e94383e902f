#include "app/Ventanaprogramas.h"

#include "app/Vistaprograma.h"
#include "vistas/carta/Paginapsicrometrico.h"
#include "vistas/comun/Panelseleccion.h"
#include "vistas/datos/Paginaentorno.h"
#include "vistas/datos/Paginaestadisticas.h"
#include "vistas/datos/Paginaexportacion.h"
#include "vistas/datos/Vistaexportacion.h"
#include "vistas/extremos/Paginadiasextremos.h"
#include "vistas/extremos/Paginaresultadosextremos.h"
#include "vistas/sol/Paginaposicionsolar.h"

#include <QAbstractSpinBox>
#include <QCloseEvent>
#include <QLineEdit>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tesmo {

TforProgramas::TforProgramas(VistaPrograma &controlador, QWidget *padre)
    : QWidget(padre), controlador_(controlador) {
  setObjectName(QStringLiteral("forProgramas"));
  pcProgramas_ = new QTabWidget(this);
  pcProgramas_->setObjectName(QStringLiteral("pcProgramas"));
  pcProgramas_->setDocumentMode(true);
  paginaEntorno_ = new PaginaEntorno;
  pcProgramas_->addTab(paginaEntorno_, tr("Visualizar datos"));
  paginaDiasExtremos_ = new PaginaDiasExtremos;
  pcProgramas_->addTab(paginaDiasExtremos_, tr("Dias extremos  "));
  paginaResultados_ = new PaginaResultadosExtremos;
  pcProgramas_->addTab(paginaResultados_, tr("Resultados Dias extremos"));
  EnsenarResultados(false);
  paginaPosicionSolar_ = new PaginaPosicionSolar;
  pcProgramas_->addTab(paginaPosicionSolar_, tr("Posicion solar  "));
  paginaPsicrometrico_ = new PaginaPsicrometrico;
  pcProgramas_->addTab(paginaPsicrometrico_, tr("Psicrométrico  "));
  paginaExportacion_ = new PaginaExportacion;
  pcProgramas_->addTab(paginaExportacion_, tr("Archivos horarios  "));
  paginaEstadisticas_ = new PaginaEstadisticas;
  pcProgramas_->addTab(paginaEstadisticas_, tr("Valores medios y globales  "));
  panel_ = new PanelSeleccion(this);
  auto *disposicion = new QVBoxLayout(this);
  disposicion->setContentsMargins(0, 0, 0, 0);
  disposicion->setSpacing(0);
  disposicion->addWidget(pcProgramas_, 1);
  disposicion->addWidget(panel_);
  Conectar();
}

void TforProgramas::Conectar() {
  connect(this, &TforProgramas::estado, this, [this] { esAviso_ = false; });
  connect(panel_, &PanelSeleccion::provinciaCambiada, this, &TforProgramas::cbProvinciasChange);
  connect(panel_, &PanelSeleccion::localidadCambiada, this, &TforProgramas::cbLocalidadesChange);
  connect(panel_, &PanelSeleccion::periodoCambiado, this, &TforProgramas::csMesIniChange);
  connect(panel_, &PanelSeleccion::actualizarPedido, this, &TforProgramas::btnActualizarClick);
  connect(pcProgramas_, &QTabWidget::currentChanged, this, &TforProgramas::pcProgramasChange);
  connect(paginaEntorno_, &PaginaEntorno::visualizarPedido, this, &TforProgramas::btnSimulacionClick);
  connect(paginaEntorno_, &PaginaEntorno::casillaCambiada, this, &TforProgramas::casillaClick);
  connect(paginaEntorno_, &PaginaEntorno::ejesPorUnidadPedidos, this,
          [this] { controlador_.EjesPorUnidad(); });
  connect(paginaDiasExtremos_, &PaginaDiasExtremos::calcularPedido, this, &TforProgramas::btnCalDiaExtClick);
  connect(paginaResultados_, &PaginaResultadosExtremos::CheckListBox1ClickCheck, this,
          &TforProgramas::CheckListBox1ClickCheck);
  connect(paginaResultados_, &PaginaResultadosExtremos::Button1Click, this, &TforProgramas::Button1Click);
  connect(paginaExportacion_, &PaginaExportacion::escribirPedido, this, &TforProgramas::btnEscribirClick);
  connect(paginaExportacion_, &PaginaExportacion::subirPedido, this, &TforProgramas::btnSubirClick);
  connect(paginaExportacion_, &PaginaExportacion::bajarPedido, this, &TforProgramas::btnBajarClick);
  connect(paginaExportacion_, &PaginaExportacion::casillaCambiada, this,
          &TforProgramas::casillaExportacionClick);
}

void TforProgramas::cbProvinciasChange() { controlador_.CambiarProvincia(); }
void TforProgramas::cbLocalidadesChange() { controlador_.CambiarLocalidad(); }
void TforProgramas::pcProgramasChange() {
  controlador_.PonTitulo();
  if (!esAviso_) emit estado(QString());
}
void TforProgramas::btnActualizarClick() { controlador_.Actualizar(); }
void TforProgramas::csMesIniChange() { controlador_.CambiarPeriodo(); }
void TforProgramas::btnSimulacionClick() { controlador_.Visualizar(); }
void TforProgramas::casillaClick() { controlador_.ActualizarVisibles(); }

void TforProgramas::btnCalDiaExtClick() { controlador_.CalcularDiasExtremos(); }
void TforProgramas::CheckListBox1ClickCheck() { controlador_.ElegirMagnitudesExtremas(); }
void TforProgramas::Button1Click() { controlador_.VisualizarFicherosExtremos(); }

void TforProgramas::Avisar(const QString &texto) {
  emit estado(texto);
  esAviso_ = true;
}

QString TforProgramas::PestanaDelante() const { return pcProgramas_->currentWidget()->objectName(); }
void TforProgramas::btnEscribirClick() { controlador_.EscribirArchivoHorario(); }
void TforProgramas::btnSubirClick() { controlador_.DameVistaExportacion().btnSubirClick(); }
void TforProgramas::btnBajarClick() { controlador_.DameVistaExportacion().btnBajarClick(); }
void TforProgramas::casillaExportacionClick(const QString &rotulo, bool puesta) {
  controlador_.DameVistaExportacion().casillaClick(rotulo, puesta);
}

void TforProgramas::EnsenarResultados(bool ensenar) {
  const int sitio = pcProgramas_->indexOf(paginaResultados_);
  if (!ensenar && pcProgramas_->currentIndex() == sitio) pcProgramas_->setCurrentWidget(paginaDiasExtremos_);
  pcProgramas_->setTabVisible(sitio, ensenar);
  if (ensenar) pcProgramas_->setCurrentIndex(sitio);
}

void TforProgramas::closeEvent(QCloseEvent *suceso) {
  // A mitad de una acción, quizá con un mensaje suyo delante, aún hace falta todo.
  if (controlador_.DameAccion() != nullptr) return suceso->ignore();
  // Al esconderse, una casilla termina lo que se tecleaba y avisa: ya no ha de calcularse nada.
  for (QAbstractSpinBox *casilla : findChildren<QAbstractSpinBox *>()) casilla->blockSignals(true);
  for (QLineEdit *casilla : findChildren<QLineEdit *>()) casilla->blockSignals(true);
  suceso->accept();
  emit cerrada();
}

} // namespace tesmo
