#include "vistas/Paginapsicrometrico.h"

#include "vistas/Casillanumero.h"
#include "vistas/Marcocarta.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tesmo {

namespace {

struct FichaValor {
  const char *control;
  const char *rotulo;
  const char *unidad;
};
constexpr std::array<FichaValor, PaginaPsicrometrico::NUMERO_VALORES> VALORES{{
    {"edT", "T", "ºC"},
    {"edW", "W", "kg/ kg"},
    {"edH", "H", "J/kg"},
    {"edHR", "HR", ""},
    {"edVE", "VE", "m³/kg"},
    {"edTR", "TR", "ºC"},
    {"edTH", "TH", "ºC"},
    {"edPresion", "Presión", "Pa"},
}};

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

constexpr int ANCHO_VALOR = 78;      ///< [px]
constexpr int ALTO_TABLA = 118;      ///< [px]
constexpr int MAXIMO_HORA = 24;      ///< del día
constexpr int ALTITUD_MINIMA = -500; ///< [m]
constexpr int ALTITUD_MAXIMA = 9000; ///< [m]

QString Nombre(const char *control) { return QString::fromLatin1(control); }

} // namespace

PaginaPsicrometrico::PaginaPsicrometrico(QWidget *padre) : QWidget(padre) {
  setObjectName(QStringLiteral("tsPsicrometrico"));
  auto *disposicion = new QHBoxLayout(this);
  disposicion->setContentsMargins(4, 4, 4, 4);
  auto *izquierda = new QVBoxLayout;
  marco_ = new MarcoCarta;
  izquierda->addWidget(marco_, 1);
  izquierda->addWidget(CrearTabla());
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
  pila->addWidget(CrearAltitud());
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
  return caja;
}

void PaginaPsicrometrico::CrearValor(QGridLayout &rejilla, int i) {
  const auto sitio = static_cast<std::size_t>(i);
  const FichaValor &ficha = VALORES[sitio];
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
  fila->addWidget(new QLabel(tr("Inicio")));
  fila->addWidget(csPHorIni_);
  fila->addWidget(new QLabel(tr("Final")));
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
  lbPunto_ = new QLabel(tr("Punto"));
  lbPunto_->setObjectName(QStringLiteral("lbPunto"));
  lbPunto_->setCursor(Qt::PointingHandCursor);
  lbPunto_->setToolTip(tr("Pulse para elegir el color de las marcas"));
  lbPunto_->installEventFilter(this);
  edPunto_ = new QLineEdit;
  edPunto_->setObjectName(QStringLiteral("edPunto"));
  edPunto_->setReadOnly(true);
  edPunto_->setFixedWidth(edPunto_->sizeHint().height());
  auto *colorear = new QComboBox;
  colorear->setObjectName(QStringLiteral("cbColorear"));
  colorear->addItems({tr("Un color"), tr("Por hora"), tr("Por mes"), tr("Por estación")});
  connect(colorear, &QComboBox::currentIndexChanged, this,
          [this](int i) { emit coloreoCambiado(static_cast<ColoreoNube>(i)); });
  punto->addWidget(lbPunto_);
  punto->addWidget(edPunto_);
  punto->addWidget(colorear, 1);
  pila->addLayout(punto);
  auto *botones = new QHBoxLayout;
  QPushButton *nubes = CrearBoton("btnNubes", tr("&Representar"), tr("Marca las horas del período"));
  QPushButton *limpiar = CrearBoton("btnLimpiar", tr("&Limpiar"), tr("Quita las marcas"));
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

QGroupBox *PaginaPsicrometrico::CrearAltitud() {
  auto *caja = new QGroupBox(tr("Altitud"));
  auto *fila = new QHBoxLayout(caja);
  fila->setContentsMargins(6, 2, 6, 4);
  csAltitud_ = new CasillaEntera;
  csAltitud_->setObjectName(QStringLiteral("csAltitud"));
  csAltitud_->setRange(ALTITUD_MINIMA, ALTITUD_MAXIMA);
  csAltitud_->setSuffix(tr(" m"));
  csAltitud_->setKeyboardTracking(false); // cuenta cuando se termina de teclear
  csAltitud_->setToolTip(tr("Fija la presión de esta ventana hasta que cambie la localidad"));
  connect(csAltitud_, &QSpinBox::valueChanged, this, &PaginaPsicrometrico::altitudCambiada);
  btnAltitudFichero_ =
      CrearBoton("btnAltitudFichero", tr("Del fichero"), tr("Vuelve a la del fichero climático"));
  connect(btnAltitudFichero_, &QPushButton::clicked, this, &PaginaPsicrometrico::altitudDelFicheroPedida);
  fila->addWidget(csAltitud_, 1);
  fila->addWidget(btnAltitudFichero_);
  return caja;
}

QWidget *PaginaPsicrometrico::CrearTabla() {
  panelPuntos_ = new QWidget;
  tablaPuntos_ = new QTableWidget(0, NUMERO_VALORES + 1);
  tablaPuntos_->setObjectName(QStringLiteral("tablaPuntos"));
  QStringList titulos{tr("Punto")};
  for (const FichaValor &ficha : VALORES) {
    const QString unidad = QString::fromUtf8(ficha.unidad);
    titulos << QString::fromUtf8(ficha.rotulo) + (unidad.isEmpty() ? QString() : " (" + unidad + ")");
  }
  tablaPuntos_->setHorizontalHeaderLabels(titulos);
  tablaPuntos_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  tablaPuntos_->verticalHeader()->hide();
  tablaPuntos_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tablaPuntos_->setSelectionBehavior(QAbstractItemView::SelectRows);
  connect(tablaPuntos_, &QTableWidget::itemSelectionChanged, this,
          &PaginaPsicrometrico::puntosElegidosCambiados);
  lbProceso_ = new QLabel;
  lbProceso_->setObjectName(QStringLiteral("lbProceso"));
  lbProceso_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  QPushButton *copiar = CrearBoton("btnCopiarPuntos", tr("&Copiar tabla"), tr("Copia los puntos como texto"));
  QPushButton *borrar =
      CrearBoton("btnBorrarPuntos", tr("&Borrar puntos"), tr("Borra los elegidos o, sin elegir, todos"));
  connect(copiar, &QPushButton::clicked, this,
          [this] { QApplication::clipboard()->setText(TextoDePuntos()); });
  connect(borrar, &QPushButton::clicked, this, &PaginaPsicrometrico::borrarPuntosPedido);
  auto *fila = new QHBoxLayout;
  fila->addWidget(lbProceso_, 1);
  fila->addWidget(copiar);
  fila->addWidget(borrar);
  auto *pila = new QVBoxLayout(panelPuntos_);
  pila->setContentsMargins(0, 0, 0, 0);
  pila->addWidget(tablaPuntos_);
  pila->addLayout(fila);
  panelPuntos_->setFixedHeight(ALTO_TABLA);
  panelPuntos_->hide();
  return panelPuntos_;
}

QPushButton *PaginaPsicrometrico::CrearBoton(const char *nombre, const QString &texto, const QString &ayuda) {
  auto *boton = new QPushButton(texto);
  boton->setObjectName(Nombre(nombre));
  boton->setToolTip(ayuda);
  return boton;
}

void PaginaPsicrometrico::PonValores(const QStringList &textos) {
  for (int i = 0; i < NUMERO_VALORES; ++i) valores_[static_cast<std::size_t>(i)]->setText(textos.at(i));
}

void PaginaPsicrometrico::PonColorPunto(const QColor &color) {
  QPalette paleta = edPunto_->palette();
  paleta.setColor(QPalette::Base, color);
  edPunto_->setPalette(paleta);
}

void PaginaPsicrometrico::PonAltitud(int altitud, bool delUsuario) {
  const QSignalBlocker callada(csAltitud_);
  csAltitud_->setValue(altitud);
  btnAltitudFichero_->setEnabled(delUsuario);
}

int PaginaPsicrometrico::HoraInicial() const { return csPHorIni_->value(); }

int PaginaPsicrometrico::HoraFinal() const { return csPHorFin_->value(); }

void PaginaPsicrometrico::PonPuntos(const QList<QStringList> &filas, const QString &proceso) {
  const QSignalBlocker callada(tablaPuntos_);
  tablaPuntos_->setRowCount(static_cast<int>(filas.size()));
  for (int i = 0; i < filas.size(); ++i)
    for (int j = 0; j < filas[i].size(); ++j) tablaPuntos_->setItem(i, j, new QTableWidgetItem(filas[i][j]));
  lbProceso_->setText(proceso);
  panelPuntos_->setVisible(!filas.isEmpty());
}

QList<int> PaginaPsicrometrico::PuntosElegidos() const {
  QList<int> filas;
  for (const QModelIndex &indice : tablaPuntos_->selectionModel()->selectedRows()) filas << indice.row();
  std::sort(filas.begin(), filas.end());
  return filas;
}

QString PaginaPsicrometrico::TextoDePuntos() const {
  QStringList lineas;
  QStringList campos;
  for (int j = 0; j < tablaPuntos_->columnCount(); ++j)
    campos << tablaPuntos_->horizontalHeaderItem(j)->text();
  lineas << campos.join('\t');
  for (int i = 0; i < tablaPuntos_->rowCount(); ++i) {
    campos.clear();
    for (int j = 0; j < tablaPuntos_->columnCount(); ++j) campos << tablaPuntos_->item(i, j)->text();
    lineas << campos.join('\t');
  }
  return lineas.join('\n') + '\n';
}

bool PaginaPsicrometrico::eventFilter(QObject *objeto, QEvent *suceso) {
  if (objeto == lbPunto_ && suceso->type() == QEvent::MouseButtonRelease) emit colorPuntoPedido();
  return QWidget::eventFilter(objeto, suceso);
}

} // namespace tesmo
