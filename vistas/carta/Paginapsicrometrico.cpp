#include "vistas/carta/Paginapsicrometrico.h"

#include "psicro/Atmosfera.h"
#include "vistas/carta/Marcocarta.h"
#include "vistas/carta/Tablapuntos.h"
#include "vistas/carta/Valoresaire.h"
#include "vistas/comun/Botones.h"
#include "vistas/comun/Casillanumero.h"
#include "vistas/comun/Etiquetapulsable.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace tesmo {

namespace {

struct FichaCasilla {
  const char *control;
  const char *rotulo;
};
constexpr std::array<FichaCasilla, PaginaPsicrometrico::NUMERO_FAMILIAS_VISTAS> FAMILIAS{{
    {"cbVerT", QT_TRANSLATE_NOOP("PaginaPsicrometrico", "Temperatura seca")},
    {"cbVerW", QT_TRANSLATE_NOOP("PaginaPsicrometrico", "Humedad absoluta")},
    {"cbVerH", QT_TRANSLATE_NOOP("PaginaPsicrometrico", "Entalpía")},
    {"cbVerHR", QT_TRANSLATE_NOOP("PaginaPsicrometrico", "Humedad relativa")},
    {"cbVerVE", QT_TRANSLATE_NOOP("PaginaPsicrometrico", "Volumen específico")},
}};

constexpr int ANCHO_VALOR = 78; ///< [px]
constexpr int MAXIMO_HORA = 24; ///< del día

QString Nombre(const char *control) { return QString::fromLatin1(control); }

} // namespace

PaginaPsicrometrico::PaginaPsicrometrico(QWidget *padre) : QWidget(padre) {
  setObjectName(QStringLiteral("tsPsicrometrico"));
  auto *disposicion = new QHBoxLayout(this);
  disposicion->setContentsMargins(4, 4, 4, 4);
  auto *izquierda = new QVBoxLayout;
  marco_ = new MarcoCarta;
  izquierda->addWidget(marco_, 1);
  tabla_ = new TablaPuntos;
  izquierda->addWidget(tabla_);
  disposicion->addLayout(izquierda, 1);
  disposicion->addWidget(CrearColumna());
}

QWidget *PaginaPsicrometrico::CrearColumna() {
  auto *grupos = new QWidget;
  auto *pila = new QVBoxLayout(grupos);
  pila->setContentsMargins(0, 0, 0, 0);
  pila->setSpacing(4);
  pila->addWidget(CrearValores());
  pila->addWidget(CrearNube());
  pila->addWidget(CrearFamilias());
  QPushButton *guardar =
      CrearBoton("btnGuardarCarta", tr("&Guardar imagen…"), tr("Guarda la carta en PNG, SVG o PDF"));
  connect(guardar, &QPushButton::clicked, this, &PaginaPsicrometrico::guardarPedido);
  pila->addWidget(guardar);
  pila->addStretch(1);
  auto *columna = new QScrollArea;
  columna->setFrameShape(QFrame::NoFrame);
  columna->setWidgetResizable(true);
  columna->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  columna->setWidget(grupos);
  columna->setFixedWidth(grupos->sizeHint().width() + columna->verticalScrollBar()->sizeHint().width());
  return columna;
}

QGroupBox *PaginaPsicrometrico::CrearValores() {
  auto *caja = new QGroupBox(tr("Valores  "));
  caja->setObjectName(QStringLiteral("gbValores"));
  caja->setToolTip(tr("Bajo el puntero; pulse en la carta para fijar un punto, y otro para ver el proceso"));
  auto *rejilla = new QGridLayout(caja);
  rejilla->setContentsMargins(6, 2, 6, 4);
  rejilla->setVerticalSpacing(2);
  for (int i = 0; i < NUMERO_VALORES; ++i) CrearValor(*rejilla, i);
  CrearAltitud(*rejilla);
  return caja;
}

void PaginaPsicrometrico::CrearValor(QGridLayout &rejilla, int i) {
  const auto sitio = static_cast<std::size_t>(i);
  const ValorAire &ficha = VALORES_AIRE[sitio];
  auto *valor = new QLineEdit;
  valor->setObjectName(Nombre(ficha.control));
  valor->setReadOnly(true);
  valor->setAlignment(Qt::AlignRight);
  valor->setFixedWidth(ANCHO_VALOR);
  rejilla.addWidget(new QLabel(QString::fromUtf8(ficha.rotulo)), i, 0);
  rejilla.addWidget(valor, i, 1);
  rejilla.addWidget(new QLabel(QString::fromUtf8(ficha.unidad)), i, 2);
  valores_[sitio] = valor;
}

QSpinBox *PaginaPsicrometrico::CrearHora(const char *nombre, int valor) {
  auto *hora = new CasillaEntera;
  hora->setObjectName(Nombre(nombre));
  hora->setRange(1, MAXIMO_HORA);
  hora->setValue(valor);
  return hora;
}

QGroupBox *PaginaPsicrometrico::CrearHorario() {
  auto *caja = new QGroupBox(tr(" Horario  "));
  caja->setObjectName(QStringLiteral("gbHorario"));
  auto *fila = new QHBoxLayout(caja);
  fila->setContentsMargins(6, 2, 6, 4);
  csPHorIni_ = CrearHora("csPHorIni", 1);
  csPHorFin_ = CrearHora("csPHorFin", MAXIMO_HORA);
  fila->addWidget(CrearRotulo(tr("Inici&o"), *csPHorIni_));
  fila->addWidget(csPHorIni_);
  fila->addWidget(CrearRotulo(tr("&Final"), *csPHorFin_));
  fila->addWidget(csPHorFin_);
  return caja;
}

QGroupBox *PaginaPsicrometrico::CrearNube() {
  auto *caja = new QGroupBox(tr("Nube de horas"));
  auto *pila = new QVBoxLayout(caja);
  pila->setContentsMargins(6, 2, 6, 4);
  pila->setSpacing(3);
  pila->addWidget(CrearHorario());
  auto *punto = new QHBoxLayout;
  auto *rotulo = new EtiquetaPulsable(tr("Punto"), [this] { emit colorPuntoPedido(); });
  rotulo->setObjectName(QStringLiteral("lbPunto"));
  rotulo->setToolTip(tr("Pulse para elegir el color de las marcas"));
  edPunto_ = new QLineEdit;
  edPunto_->setObjectName(QStringLiteral("edPunto"));
  edPunto_->setReadOnly(true);
  edPunto_->setFixedWidth(edPunto_->sizeHint().height());
  auto *colorear = new QComboBox;
  colorear->setObjectName(QStringLiteral("cbColorear"));
  colorear->addItems({tr("Un color"), tr("Por hora"), tr("Por mes"), tr("Por estación")});
  connect(colorear, &QComboBox::currentIndexChanged, this,
          [this](int i) { emit coloreoCambiado(static_cast<ColoreoNube>(i)); });
  punto->addWidget(rotulo);
  punto->addWidget(edPunto_);
  punto->addWidget(colorear, 1);
  pila->addLayout(punto);
  auto *botones = new QHBoxLayout;
  QPushButton *nubes = CrearBoton("btnNubes", tr("&Representar"), tr("Marca las horas del período"));
  QPushButton *limpiar = CrearBoton("btnLimpiar", tr("Limp&iar"), tr("Quita las marcas"));
  connect(nubes, &QPushButton::clicked, this, &PaginaPsicrometrico::representarPedido);
  connect(limpiar, &QPushButton::clicked, this, &PaginaPsicrometrico::limpiarPedido);
  botones->addWidget(nubes);
  botones->addWidget(limpiar);
  pila->addLayout(botones);
  return caja;
}

QGroupBox *PaginaPsicrometrico::CrearFamilias() {
  auto *caja = new QGroupBox(tr("Líneas"));
  auto *pila = new QVBoxLayout(caja);
  pila->setContentsMargins(6, 2, 6, 4);
  pila->setSpacing(0);
  for (int i = 0; i < NUMERO_FAMILIAS_VISTAS; ++i) {
    const FichaCasilla &ficha = FAMILIAS[static_cast<std::size_t>(i)];
    auto *casilla = new QCheckBox(tr(ficha.rotulo));
    casilla->setObjectName(Nombre(ficha.control));
    casilla->setChecked(true);
    connect(casilla, &QCheckBox::toggled, this, [this, i](bool puesta) { emit familiaCambiada(i, puesta); });
    pila->addWidget(casilla);
  }
  return caja;
}

/// Bajo la presión, que sale de ella.
void PaginaPsicrometrico::CrearAltitud(QGridLayout &rejilla) {
  csAltitud_ = new CasillaReal;
  csAltitud_->setObjectName(QStringLiteral("csAltitud"));
  csAltitud_->setRange(ALTITUD_MINIMA, ALTITUD_MAXIMA);
  csAltitud_->setDecimals(2);
  csAltitud_->setAlignment(Qt::AlignRight);
  csAltitud_->setFixedWidth(ANCHO_VALOR);
  csAltitud_->setKeyboardTracking(false); // cuenta cuando se termina de teclear
  csAltitud_->setToolTip(tr("Fija la presión de esta ventana hasta que cambie la localidad"));
  connect(csAltitud_, &QDoubleSpinBox::valueChanged, this, &PaginaPsicrometrico::altitudCambiada);
  btnAltitudFichero_ =
      CrearBoton("btnAltitudFichero", tr("Altitud del fichero"), tr("Vuelve a la del fichero climático"));
  connect(btnAltitudFichero_, &QPushButton::clicked, this, &PaginaPsicrometrico::altitudDelFicheroPedida);
  const int fila = rejilla.rowCount();
  rejilla.addWidget(CrearRotulo(tr("Altit&ud"), *csAltitud_), fila, 0);
  rejilla.addWidget(csAltitud_, fila, 1);
  rejilla.addWidget(new QLabel(tr("m")), fila, 2);
  rejilla.addWidget(btnAltitudFichero_, fila + 1, 0, 1, 3);
}

void PaginaPsicrometrico::PonValores(const QStringList &textos) {
  for (int i = 0; i < NUMERO_VALORES; ++i) valores_[static_cast<std::size_t>(i)]->setText(textos.at(i));
}

void PaginaPsicrometrico::PonColorPunto(const QColor &color) {
  QPalette paleta = edPunto_->palette();
  paleta.setColor(QPalette::Base, color);
  edPunto_->setPalette(paleta);
}

void PaginaPsicrometrico::PonAltitud(double altitud, bool delUsuario) {
  const QSignalBlocker callada(csAltitud_);
  csAltitud_->setValue(altitud);
  btnAltitudFichero_->setEnabled(delUsuario);
}

void PaginaPsicrometrico::TerminarDeTeclear() {
  for (QSpinBox *hora : {csPHorIni_, csPHorFin_}) hora->interpretText();
  csAltitud_->interpretText();
}

int PaginaPsicrometrico::HoraInicial() const { return csPHorIni_->value(); }

int PaginaPsicrometrico::HoraFinal() const { return csPHorFin_->value(); }

} // namespace tesmo
