#include "vistas/datos/Paginaentorno.h"

#include "vistas/comun/Botones.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/datos/Gruposmagnitud.h"
#include "vistas/grafico/Grafico.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace tesmo {

namespace {

constexpr int LADO_MUESTRA = 12; ///< cuadrado de color de cada casilla [px]

/// El borde deja ver también los colores casi blancos.
QPixmap Muestra(const QColor &color, double densidad) {
  QPixmap muestra(QSize(LADO_MUESTRA, LADO_MUESTRA) * densidad);
  muestra.setDevicePixelRatio(densidad);
  muestra.fill(color);
  QPainter pintor(&muestra);
  pintor.setPen(color.darker(150));
  pintor.drawRect(0, 0, LADO_MUESTRA - 1, LADO_MUESTRA - 1);
  return muestra;
}

} // namespace

PaginaEntorno::PaginaEntorno(QWidget *padre) : QWidget(padre) {
  setObjectName(QStringLiteral("tsDatosGenerales"));
  auto *disposicion = new QHBoxLayout(this);
  disposicion->setContentsMargins(4, 4, 4, 4);
  disposicion->addWidget(CrearColumna());
  graEntorno_ = new Grafico(this);
  graEntorno_->setObjectName(QStringLiteral("graEntorno"));
  graEntorno_->PonAviso(tr("Elija una localidad, marque las variables y pulse «Visualizar»."));
  disposicion->addWidget(graEntorno_, 1);
}

QWidget *PaginaEntorno::CrearCasillas() {
  auto *grupos = new QWidget;
  auto *pila = new QVBoxLayout(grupos);
  pila->setContentsMargins(0, 0, 0, 0);
  pila->setSpacing(2);
  const auto crear = [this](const FichaMagnitud &ficha) { return CrearCasilla(ficha); };
  for (const GrupoMagnitud grupo : GRUPOS)
    pila->addWidget(CrearGrupoMagnitudes(grupo, {}, ORDEN_DEL_VISOR, crear));
  pila->addStretch(1);
  auto *desplazable = new QScrollArea;
  desplazable->setFrameShape(QFrame::NoFrame);
  desplazable->setWidgetResizable(true);
  desplazable->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  desplazable->setWidget(grupos);
  desplazable->setMinimumWidth(grupos->sizeHint().width() +
                               desplazable->verticalScrollBar()->sizeHint().width());
  return desplazable;
}

QWidget *PaginaEntorno::CrearColumna() {
  auto *columna = new QWidget(this);
  columna->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  auto *disposicion = new QVBoxLayout(columna);
  disposicion->setContentsMargins(0, 0, 0, 0);
  disposicion->addWidget(CrearCasillas(), 1);
  cbTrazosDistintos_ = new QCheckBox(tr("Tra&zos distintos"));
  cbTrazosDistintos_->setObjectName(QStringLiteral("cbTrazosDistintos"));
  cbTrazosDistintos_->setToolTip(
      tr("Las líneas se distinguen también por sus guiones, no sólo por el color"));
  connect(cbTrazosDistintos_, &QCheckBox::toggled, this, &PaginaEntorno::trazosCambiados);
  disposicion->addWidget(cbTrazosDistintos_);
  disposicion->addLayout(CrearBotones());
  return columna;
}

QHBoxLayout *PaginaEntorno::CrearBotones() {
  auto *botones = new QHBoxLayout;
  QPushButton *visualizar =
      CrearBoton("btnSimulacion", tr("&Visualizar"), tr("Dibuja las variables del período elegido"));
  QPushButton *ejes = CrearBoton("btnEjesPorUnidad", tr("E&jes por unidad"),
                                 tr("Reparte las variables entre los dos ejes según sus unidades"));
  connect(visualizar, &QPushButton::clicked, this, &PaginaEntorno::visualizarPedido);
  connect(ejes, &QPushButton::clicked, this, &PaginaEntorno::ejesPorUnidadPedidos);
  botones->addWidget(visualizar);
  botones->addWidget(ejes);
  return botones;
}

QCheckBox *PaginaEntorno::CrearCasilla(const FichaMagnitud &ficha) {
  const auto i = static_cast<int>(ficha.magnitud);
  auto *casilla = new QCheckBox(Texto(ficha.rotulo));
  casilla->setObjectName(QStringLiteral("cb") + Texto(ficha.codigo));
  casilla->setContextMenuPolicy(Qt::CustomContextMenu);
  casilla->setToolTip(tr("Botón derecho: eje de la variable"));
  connect(casilla, &QCheckBox::toggled, this, [this, i] { emit casillaCambiada(i); });
  connect(casilla, &QWidget::customContextMenuRequested, this,
          [this, i, casilla](const QPoint &donde) { EnsenarMenu(i, casilla->mapToGlobal(donde)); });
  casillas_[static_cast<std::size_t>(i)] = casilla;
  PonColor(i, Color(ficha.color)); // la muestra cuenta en el ancho de la columna
  return casilla;
}

void PaginaEntorno::PonColor(int i, const QColor &color) {
  Casilla(i).setIcon(Muestra(color, devicePixelRatioF()));
  Casilla(i).setIconSize(QSize(LADO_MUESTRA, LADO_MUESTRA));
}

bool PaginaEntorno::TrazosDistintos() const { return cbTrazosDistintos_->isChecked(); }

void PaginaEntorno::EnsenarMenu(int i, const QPoint &donde) {
  auto *menu = new QMenu(this);
  menu->setObjectName(QStringLiteral("menuCasilla"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  emit menuPreparado(menu, i);
  menu->popup(donde);
}

} // namespace tesmo
