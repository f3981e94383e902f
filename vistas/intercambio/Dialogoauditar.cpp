#include "vistas/intercambio/Dialogoauditar.h"

#include "core/Ficheros.h"
#include "core/Mensajes.h"
#include "intercambio/Ficheroimportable.h"
#include "intercambio/auditoria/Textoauditoria.h"
#include "vistas/comun/Cursorocupado.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/intercambio/Dialogomapa.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tesmo {

namespace {

constexpr int COLUMNAS = 104, LINEAS = 40; ///< caracteres que se ven de una página

} // namespace

DialogoAuditar::DialogoAuditar(std::vector<NormalesLocalidad> normales, QWidget *padre)
    : QDialog(padre), normales_(std::move(normales)) {
  setObjectName(QStringLiteral("forAuditar"));
  setWindowTitle(tr("Auditoría de fichero climático"));
  mePagina_ = new QPlainTextEdit;
  mePagina_->setObjectName(QStringLiteral("mePagina"));
  mePagina_->setReadOnly(true);
  mePagina_->setLineWrapMode(QPlainTextEdit::NoWrap);
  mePagina_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  const QFontMetrics letra(mePagina_->font());
  auto *botones = new QDialogButtonBox(QDialogButtonBox::Close);
  botones->button(QDialogButtonBox::Close)->setObjectName(QStringLiteral("btnCerrar"));
  auto *guardar = botones->addButton(tr("&Guardar…"), QDialogButtonBox::ActionRole);
  guardar->setObjectName(QStringLiteral("btnGuardar"));
  btnMapa_ = botones->addButton(tr("&Mapa de columnas…"), QDialogButtonBox::ActionRole);
  btnMapa_->setObjectName(QStringLiteral("btnMapa"));
  btnMapa_->setToolTip(tr("Qué es cada columna de un texto que no es de ningún formato conocido"));
  btnMapa_->setEnabled(false);
  auto *pila = new QVBoxLayout(this);
  pila->addWidget(mePagina_);
  pila->addWidget(botones);
  resize(COLUMNAS * letra.horizontalAdvance(QLatin1Char('0')), LINEAS * letra.lineSpacing());
  connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(guardar, &QPushButton::clicked, this, &DialogoAuditar::PedirGuardar);
  connect(btnMapa_, &QPushButton::clicked, this, &DialogoAuditar::PedirMapa);
}

void DialogoAuditar::Auditar(const QStringList &rutas) {
  const CursorOcupado ocupado;
  auditados_.clear();
  for (const QString &ruta : rutas) AuditarUno(auditados_.emplace_back(Auditado{ruta, {}}));
  Ensenar();
}

void DialogoAuditar::AuditarUno(Auditado &auditado) {
  const FicheroImportable fichero =
      PrepararFichero(auditado.ruta.toStdString(), normales_, auditado.conMapa ? mapa_ : nullptr);
  auditado.conMapa = auditado.conMapa || fichero.materia.anio.formato == FormatoClima::Desconocido;
  auditado.pagina = Texto(
      TextoAuditoria(QFileInfo(auditado.ruta).fileName().toStdString(), fichero.materia, fichero.auditoria));
}

void DialogoAuditar::Ensenar() {
  QStringList paginas;
  for (const Auditado &auditado : auditados_) paginas << auditado.pagina;
  mePagina_->setPlainText(paginas.join(QStringLiteral("\n\n")));
  btnMapa_->setEnabled(std::ranges::any_of(auditados_, &Auditado::conMapa));
}

void DialogoAuditar::PonMapa(const MapaColumnas &mapa) {
  const CursorOcupado ocupado;
  mapa_ = std::make_shared<MapaColumnas>(mapa);
  for (Auditado &auditado : auditados_) {
    if (auditado.conMapa) AuditarUno(auditado);
  }
  Ensenar();
}

void DialogoAuditar::PedirMapa() {
  const auto primero = std::ranges::find(auditados_, true, &Auditado::conMapa);
  if (primero == auditados_.end()) return;
  DialogoMapa dialogo(primero->ruta, mapa_.get(), this);
  if (dialogo.exec() == QDialog::Accepted) PonMapa(dialogo.Mapa());
}

bool DialogoAuditar::Guardar(const QString &ruta) const {
  return EscribirFicheroEntero(RutaDesdeTexto(ruta.toStdString()), mePagina_->toPlainText().toStdString());
}

void DialogoAuditar::PedirGuardar() {
  QFileDialog dialogo(this, tr("Guardar auditoría"), {}, tr("Texto (*.txt)"));
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.setDefaultSuffix(QStringLiteral("txt"));
  if (dialogo.exec() != QDialog::Accepted) return;
  const QString ruta = dialogo.selectedFiles().constFirst();
  if (!Guardar(ruta)) DameMensajes().Mensaje(MENSAJE_FICHERO_RESULTADO, ruta.toStdString());
}

} // namespace tesmo
