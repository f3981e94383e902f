#include "app/Ventanaprogramas.h"

#include "app/Vistaprograma.h"
#include "vistas/Paginaentorno.h"
#include "vistas/Panelseleccion.h"

#include <QCloseEvent>
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
  panel_ = new PanelSeleccion(this);
  auto *disposicion = new QVBoxLayout(this);
  disposicion->setContentsMargins(0, 0, 0, 0);
  disposicion->setSpacing(0);
  disposicion->addWidget(pcProgramas_, 1);
  disposicion->addWidget(panel_);
  Conectar();
}

void TforProgramas::Conectar() {
  connect(panel_, &PanelSeleccion::provinciaCambiada, this, &TforProgramas::cbProvinciasChange);
  connect(panel_, &PanelSeleccion::localidadCambiada, this, &TforProgramas::cbLocalidadesChange);
  connect(panel_, &PanelSeleccion::periodoCambiado, this, &TforProgramas::csMesIniChange);
  connect(panel_, &PanelSeleccion::actualizarPedido, this, &TforProgramas::btnActualizarClick);
  connect(pcProgramas_, &QTabWidget::currentChanged, this, &TforProgramas::pcProgramasChange);
  connect(paginaEntorno_, &PaginaEntorno::visualizarPedido, this, &TforProgramas::btnSimulacionClick);
  connect(paginaEntorno_, &PaginaEntorno::casillaCambiada, this, &TforProgramas::casillaClick);
  connect(paginaEntorno_, &PaginaEntorno::ejesPorUnidadPedidos, this,
          [this] { controlador_.EjesPorUnidad(); });
}

void TforProgramas::cbProvinciasChange() { controlador_.CambiarProvincia(); }
void TforProgramas::cbLocalidadesChange() { controlador_.CambiarLocalidad(); }
void TforProgramas::pcProgramasChange() { controlador_.PonTitulo(); }
void TforProgramas::btnActualizarClick() { controlador_.Actualizar(); }
void TforProgramas::csMesIniChange() { controlador_.CambiarPeriodo(); }
void TforProgramas::btnSimulacionClick() { controlador_.Visualizar(); }
void TforProgramas::casillaClick() { controlador_.ActualizarVisibles(); }

void TforProgramas::closeEvent(QCloseEvent *suceso) {
  suceso->accept();
  emit cerrada();
}

} // namespace tesmo
