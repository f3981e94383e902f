#include "vistas/colores/Ventanacolores.h"

#include "vistas/colores/Configuracion.h"
#include "vistas/colores/Selectorcolor.h"
#include "vistas/comun/Botones.h"
#include "vistas/comun/Etiquetapulsable.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/datos/Gruposmagnitud.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tesmo {

namespace {

constexpr int ANCHO_MUESTRA = 48; ///< [px]
constexpr int MARGEN = 10;        ///< [px]

} // namespace

TforColores::TforColores(Configuracion &tabla, QWidget *padre) : QDialog(padre), tabla_(tabla) {
  setObjectName(QStringLiteral("forColores"));
  setWindowTitle(tr("Colores"));
  const auto crear = [this](const FichaMagnitud &ficha) { return CrearFila(ficha); };
  const auto grupo = [&](GrupoMagnitud cual) {
    return CrearGrupoMagnitudes(cual, QStringLiteral("Col"), ORDEN_DEL_VISOR, crear);
  };
  auto *grupos = new QHBoxLayout;
  grupos->addWidget(grupo(GrupoMagnitud::Basicas), 0, Qt::AlignTop);
  auto *derecha = new QVBoxLayout;
  derecha->addWidget(grupo(GrupoMagnitud::Psicrometricas));
  derecha->addWidget(grupo(GrupoMagnitud::Radiacion));
  derecha->addStretch(1);
  grupos->addLayout(derecha);
  auto *botones = new QHBoxLayout;
  auto *ayuda = new QLabel(tr("Pulse el nombre de una variable para cambiar su color."));
  QPushButton *aceptar = CrearBoton("btnAceptar", tr("&Aceptar"));
  QPushButton *cancelar = CrearBoton("btnCancelar", tr("&Cancelar"));
  aceptar->setDefault(true);
  connect(aceptar, &QPushButton::clicked, this, &TforColores::accept);
  connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
  botones->addWidget(ayuda, 1);
  botones->addSpacing(2 * MARGEN);
  botones->addWidget(aceptar);
  botones->addWidget(cancelar);
  auto *disposicion = new QVBoxLayout(this);
  disposicion->addLayout(grupos);
  disposicion->addLayout(botones);
  disposicion->setSizeConstraint(QLayout::SetFixedSize);
  aceptar->setFocus(); // ya dentro del diálogo: antes no contaría
}

QWidget *TforColores::CrearFila(const FichaMagnitud &ficha) {
  const auto i = static_cast<int>(ficha.magnitud);
  auto *etiqueta = new EtiquetaPulsable(Texto(ficha.leyendaColor), [this, i] { ElegirColor(i); });
  etiqueta->setObjectName(Texto(ficha.etiquetaColor));
  auto *muestra = new QLineEdit;
  muestra->setObjectName(QStringLiteral("ed") + Texto(ficha.codigo));
  muestra->setEnabled(false);
  muestra->setFixedWidth(ANCHO_MUESTRA);
  muestras_[static_cast<std::size_t>(i)] = muestra;
  PonMuestra(i, Color(tabla_.dameColor(i, ficha.color)));
  auto *fila = new QWidget;
  auto *disposicion = new QHBoxLayout(fila);
  disposicion->setContentsMargins(0, 1, 0, 1);
  disposicion->addWidget(etiqueta, 1);
  disposicion->addSpacing(MARGEN);
  disposicion->addWidget(muestra);
  return fila;
}

QColor TforColores::Muestra(int i) const {
  return muestras_.at(static_cast<std::size_t>(i))->palette().color(QPalette::Disabled, QPalette::Base);
}

void TforColores::PonMuestra(int i, const QColor &color) {
  QLineEdit *muestra = muestras_.at(static_cast<std::size_t>(i));
  QPalette paleta = muestra->palette();
  paleta.setColor(QPalette::Disabled, QPalette::Base, color);
  muestra->setPalette(paleta);
}

void TforColores::ElegirColor(int i) {
  AbrirSelectorDeColor(*this, QStringLiteral("cdColores"), Muestra(i), *this,
                       [this, i](const QColor &color) { PonMuestra(i, color); });
}

void TforColores::accept() {
  for (int i = 0; i < static_cast<int>(muestras_.size()); ++i) tabla_.ponColor(i, EnteroDeColor(Muestra(i)));
  emit aplicados(tabla_.escribirConfiguracion());
  QDialog::accept();
}

} // namespace tesmo
