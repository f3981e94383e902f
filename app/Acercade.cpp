#include "app/Acercade.h"

#include "app/Aplicacion.h"
#include "app/Imagenprograma.h"
#include "vistas/grafico/Bibliotecagraficos.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace tesmo {

namespace {

constexpr QSize TAMANO_IMAGEN(150, 140); ///< la de presentación, reducida [px]

QString TextoDelPrograma() {
  return QObject::tr(
             "<h3>%1 %2</h3>"
             "<p>Año meteorológico típico, aire húmedo y sol para la ingeniería de la edificación.</p>"
             "<p>Se distribuye bajo la licencia pública general de GNU, versión 3 o posterior, y sin "
             "garantía alguna.</p>"
             "<p>Bibliotecas:</p><ul><li>Qt %3 (LGPL 3)</li><li>QCustomPlot %4 (GPL 3)</li></ul>")
      .arg(QString::fromLatin1(TITULO), QString::fromLatin1(VERSION), QString::fromLatin1(qVersion()),
           VersionDeLosGraficos());
}

} // namespace

TforAcercade::TforAcercade(QWidget *padre) : QDialog(padre, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint) {
  setObjectName(QStringLiteral("forAcercade"));
  setWindowTitle(tr("Acerca de Tesmo-A"));
  auto *panel = new QFrame(this);
  panel->setFrameShape(QFrame::StyledPanel);
  auto *ProgramIcon = new QLabel(panel);
  ProgramIcon->setObjectName(QStringLiteral("ProgramIcon"));
  QPixmap imagen = ImagenPresentacion(devicePixelRatioF());
  imagen = imagen.scaled(TAMANO_IMAGEN * devicePixelRatioF(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
  imagen.setDevicePixelRatio(devicePixelRatioF());
  ProgramIcon->setPixmap(imagen);
  auto *texto = new QLabel(TextoDelPrograma(), panel);
  texto->setObjectName(QStringLiteral("lbTexto"));
  texto->setWordWrap(true);
  texto->setMinimumWidth(2 * TAMANO_IMAGEN.width());
  texto->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto *dentro = new QHBoxLayout(panel);
  dentro->addWidget(ProgramIcon, 0, Qt::AlignTop);
  dentro->addWidget(texto, 1);
  // "OK" y no "Aceptar": es el rótulo de siempre de esta caja.
  auto *OKButton = new QPushButton(QStringLiteral("OK"), this);
  OKButton->setObjectName(QStringLiteral("OKButton"));
  OKButton->setDefault(true);
  connect(OKButton, &QPushButton::clicked, this, &QDialog::accept);
  auto *disposicion = new QVBoxLayout(this);
  disposicion->addWidget(panel);
  disposicion->addWidget(OKButton, 0, Qt::AlignHCenter);
  disposicion->setSizeConstraint(QLayout::SetFixedSize);
}

/// En el centro de la pantalla, no del marco.
void TforAcercade::showEvent(QShowEvent *suceso) {
  QDialog::showEvent(suceso);
  QRect sitio = frameGeometry();
  sitio.moveCenter(screen()->availableGeometry().center());
  move(sitio.topLeft());
}

} // namespace tesmo
