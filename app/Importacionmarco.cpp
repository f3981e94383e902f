// Importar y auditar ficheros climáticos desde el marco.

#include "app/Ventanaprincipal.h"
#include "core/Rutas.h"
#include "intercambio/sintesis/Normalesprograma.h"
#include "localidades/Ciudad.h"
#include "vistas/intercambio/Dialogoauditar.h"
#include "vistas/intercambio/Dialogoimportar.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace tesmo {

namespace {

ServiciosImportar ServiciosDelPrograma() {
  ServiciosImportar servicios;
  servicios.directorio = DameConfiguracion().RutaMeteo({});
  servicios.normales = NormalesDelPrograma();
  DameBaseDeLocalidades().ListaDe("Provincias", servicios.provincias);
  servicios.alta = [](const ObjetoCiudad &registro) { DameBaseDeLocalidades().PonRegistro(registro); };
  return servicios;
}

} // namespace

DialogoImportar &TforPrincipal::AbrirImportar() {
  if (!importar_) {
    importar_ = new DialogoImportar(ServiciosDelPrograma(), this);
    importar_->setAttribute(Qt::WA_DeleteOnClose);
  }
  importar_->show();
  importar_->raise();
  importar_->activateWindow();
  return *importar_;
}

void TforPrincipal::mnuImportarClick() { AbrirImportar(); }

void TforPrincipal::mnuAuditarClick() {
  const QStringList rutas =
      QFileDialog::getOpenFileNames(this, tr("Auditar fichero climático"), {}, FiltroClimatico());
  if (rutas.isEmpty()) return;
  auto *dialogo = new DialogoAuditar(NormalesDelPrograma(), this);
  dialogo->setAttribute(Qt::WA_DeleteOnClose);
  dialogo->Auditar(rutas);
  dialogo->show();
}

void TforPrincipal::dragEnterEvent(QDragEnterEvent *suceso) {
  if (!FicherosArrastrados(*suceso).isEmpty()) suceso->acceptProposedAction();
}

void TforPrincipal::dropEvent(QDropEvent *suceso) {
  const QStringList rutas = FicherosArrastrados(*suceso);
  suceso->acceptProposedAction();
  if (!rutas.isEmpty()) AbrirImportar().Anadir(rutas);
}

/// Se pregunta sin detener a la ventana: el fichero ya está leído, aunque mal.
void TforPrincipal::OfrecerImportar(const QString &ruta, const QString &localidad, const QString &provincia) {
  auto *caja =
      new QMessageBox(QMessageBox::Question, tr("Importar fichero climático"),
                      tr("«%1» tiene trece columnas y no quince: leído así, las magnitudes no están en su "
                         "sitio.\n¿Quiere importarlo como %2?")
                          .arg(QFileInfo(ruta).fileName(), localidad),
                      QMessageBox::NoButton, this);
  caja->setObjectName(QStringLiteral("cajaTreceColumnas"));
  caja->setAttribute(Qt::WA_DeleteOnClose);
  QPushButton *importar = caja->addButton(tr("&Importar…"), QMessageBox::AcceptRole);
  caja->addButton(tr("A&hora no"), QMessageBox::RejectRole);
  connect(importar, &QPushButton::clicked, this, [this, ruta, localidad, provincia] {
    PeticionImportacion peticion;
    peticion.nombre = localidad.toStdString();
    peticion.provincia = provincia.toStdString();
    peticion.reemplazar = true;
    AbrirImportar().AnadirParaReemplazar(ruta, peticion);
  });
  caja->open();
}

} // namespace tesmo
