#include "vistas/intercambio/Dialogoauditar.h"

#include "core/Ficheros.h"
#include "core/Mensajes.h"
#include "intercambio/Ficheroimportable.h"
#include "intercambio/auditoria/Textoauditoria.h"
#include "vistas/comun/Cursorocupado.h"
#include "vistas/comun/Textoqt.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

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
  auto *pila = new QVBoxLayout(this);
  pila->addWidget(mePagina_);
  pila->addWidget(botones);
  resize(COLUMNAS * letra.horizontalAdvance(QLatin1Char('0')), LINEAS * letra.lineSpacing());
  connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(guardar, &QPushButton::clicked, this, &DialogoAuditar::PedirGuardar);
}

void DialogoAuditar::Auditar(const QStringList &rutas) {
  const CursorOcupado ocupado;
  QString paginas;
  for (const QString &ruta : rutas) {
    const FicheroImportable fichero = PrepararFichero(ruta.toStdString(), normales_);
    if (!paginas.isEmpty()) paginas += QStringLiteral("\n\n");
    paginas +=
        Texto(TextoAuditoria(QFileInfo(ruta).fileName().toStdString(), fichero.materia, fichero.auditoria));
  }
  mePagina_->setPlainText(paginas);
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
