#include "vistas/datos/Paginaestadisticas.h"

#include "vistas/comun/Botones.h"
#include "vistas/comun/Casillanumero.h"
#include "vistas/comun/Tablatexto.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/datos/Gruposmagnitud.h"

#include <QApplication>
#include <QButtonGroup>
#include <QClipboard>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tesmo {

namespace {

constexpr int MARGEN = 8; ///< alrededor de la página y entre grupos [px]
constexpr int LETRAS_VALOR = 11;
constexpr int LETRAS_FECHA = 24;
constexpr int ALTO_TABLA = 140; ///< en que aún se lee [px]
/// Lo más lejos que se pone una base [ºC].
constexpr double BASE_EXTREMA = 100.0;
constexpr int COLUMNAS = 4;

struct FichaResultado {
  const char *control;
  const char *unidad;
  const char *cuando;
  const char *rotulo;
};
constexpr std::array<FichaResultado, PaginaEstadisticas::NUMERO_RESULTADOS> RESULTADOS{{
    {"edMaximo", "lbUnidadMaximo", "edFechaMaximo", QT_TRANSLATE_NOOP("PaginaEstadisticas", "Máximo")},
    {"edMinimo", "lbUnidadMinimo", "edFechaMinimo", QT_TRANSLATE_NOOP("PaginaEstadisticas", "Mínimo")},
    {"edMedia", "lbUnidadMedia", "", QT_TRANSLATE_NOOP("PaginaEstadisticas", "Media")},
    {"edGDCal", "lbUnidadGDCal", "", QT_TRANSLATE_NOOP("PaginaEstadisticas", "Grados-día de calefacción")},
    {"edGDRef", "lbUnidadGDRef", "", QT_TRANSLATE_NOOP("PaginaEstadisticas", "Grados-día de refrigeración")},
    {"edDepresion", "lbUnidadDepresion", "",
     QT_TRANSLATE_NOOP("PaginaEstadisticas", "Depresión respecto a Temperatura Exterior")},
}};

QString Nombre(const char *control) { return QString::fromLatin1(control); }

} // namespace

PaginaEstadisticas::PaginaEstadisticas(QWidget *padre) : QWidget(padre) {
  setObjectName(QStringLiteral("tsValores"));
  auto *disposicion = new QHBoxLayout(this);
  disposicion->setContentsMargins(4, 4, 4, 4);
  disposicion->setSpacing(MARGEN);
  disposicion->addWidget(CrearMagnitudes());
  auto *derecha = new QVBoxLayout;
  derecha->setSpacing(MARGEN);
  auto *arriba = new QHBoxLayout;
  auto *ajustes = new QVBoxLayout;
  ajustes->addWidget(CrearHorario());
  ajustes->addWidget(CrearBases());
  ajustes->addStretch(1);
  arriba->addLayout(ajustes);
  arriba->addWidget(CrearResultados());
  arriba->addStretch(1);
  derecha->addLayout(arriba);
  derecha->addWidget(CrearMeses(), 1);
  disposicion->addLayout(derecha, 1);
  Vaciar(tr("Elija una localidad."));
}

QWidget *PaginaEstadisticas::CrearMagnitudes() {
  auto *grupos = new QWidget;
  auto *pila = new QVBoxLayout(grupos);
  pila->setContentsMargins(0, 0, 0, 0);
  pila->setSpacing(2);
  auto *juntos = new QButtonGroup(this); // los tres grupos son una sola elección
  const auto crear = [this, juntos](const FichaMagnitud &ficha) {
    auto *boton = new QRadioButton(Texto(ficha.rotulo));
    boton->setObjectName(QStringLiteral("rb") + Texto(ficha.codigo));
    juntos->addButton(boton);
    connect(boton, &QRadioButton::clicked, this, &PaginaEstadisticas::calculoPedido);
    botones_[static_cast<std::size_t>(ficha.magnitud)] = boton;
    return boton;
  };
  for (const GrupoMagnitud grupo : GRUPOS)
    pila->addWidget(CrearGrupoMagnitudes(grupo, QStringLiteral("Val"), ORDEN_DEL_VISOR, crear));
  pila->addStretch(1);
  botones_.front()->setChecked(true);
  auto *desplazable = new QScrollArea;
  desplazable->setFrameShape(QFrame::NoFrame);
  desplazable->setWidgetResizable(true);
  desplazable->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  desplazable->setWidget(grupos);
  desplazable->setFixedWidth(grupos->sizeHint().width() +
                             desplazable->verticalScrollBar()->sizeHint().width());
  return desplazable;
}

CasillaEntera *PaginaEstadisticas::CrearHora(const char *nombre, int valor) {
  auto *hora = new CasillaEntera;
  hora->setObjectName(Nombre(nombre));
  hora->setRange(1, HORAS_DEL_DIA);
  hora->setValue(valor);
  hora->setKeyboardTracking(false); // cuenta cuando se termina de teclear
  hora->setToolTip(tr("Horas del día que cuentan, de 1 a 24 y ambas incluidas"));
  connect(hora, &QSpinBox::valueChanged, this, &PaginaEstadisticas::calculoPedido);
  return hora;
}

QGroupBox *PaginaEstadisticas::CrearHorario() {
  auto *caja = new QGroupBox(tr("Horas del día"));
  auto *fila = new QHBoxLayout(caja);
  csVHorIni_ = CrearHora("csVHorIni", 1);
  csVHorFin_ = CrearHora("csVHorFin", HORAS_DEL_DIA);
  fila->addWidget(CrearRotulo(tr("D&e"), *csVHorIni_));
  fila->addWidget(csVHorIni_);
  fila->addWidget(CrearRotulo(tr("a"), *csVHorFin_)); // su única letra ya es de un menú
  fila->addWidget(csVHorFin_);
  fila->addStretch(1);
  return caja;
}

CasillaReal *PaginaEstadisticas::CrearBase(const char *nombre, float valor) {
  auto *base = new CasillaReal;
  base->setObjectName(Nombre(nombre));
  base->setRange(-BASE_EXTREMA, BASE_EXTREMA);
  base->setDecimals(2);
  base->setSuffix(tr(" ºC"));
  base->setValue(static_cast<double>(valor));
  base->setKeyboardTracking(false);
  connect(base, &QDoubleSpinBox::valueChanged, this, &PaginaEstadisticas::calculoPedido);
  return base;
}

QGroupBox *PaginaEstadisticas::CrearBases() {
  auto *caja = new QGroupBox(tr("Bases de los grados-día"));
  auto *rejilla = new QGridLayout(caja);
  csBaseCal_ = CrearBase("csBaseCal", BasesGradosDia{}.calefaccion);
  csBaseRef_ = CrearBase("csBaseRef", BasesGradosDia{}.refrigeracion);
  rejilla->addWidget(CrearRotulo(tr("Cale&facción"), *csBaseCal_), 0, 0);
  rejilla->addWidget(csBaseCal_, 0, 1);
  rejilla->addWidget(CrearRotulo(tr("&Refrigeración"), *csBaseRef_), 1, 0);
  rejilla->addWidget(csBaseRef_, 1, 1);
  return caja;
}

QLineEdit *PaginaEstadisticas::CrearCasillaDeResultado(const QString &nombre, int letras) {
  auto *casilla = new QLineEdit;
  casilla->setObjectName(nombre);
  casilla->setReadOnly(true);
  casilla->setFixedWidth(casilla->fontMetrics().averageCharWidth() * letras + 2 * MARGEN);
  return casilla;
}

void PaginaEstadisticas::CrearResultado(QGridLayout &rejilla, int i) {
  const FichaResultado &ficha = RESULTADOS.at(static_cast<std::size_t>(i));
  Controles &controles = resultados_.at(static_cast<std::size_t>(i));
  controles.rotulo = new QLabel(tr(ficha.rotulo));
  controles.valor = CrearCasillaDeResultado(Nombre(ficha.control), LETRAS_VALOR);
  controles.valor->setAlignment(Qt::AlignRight);
  controles.unidad = new QLabel;
  controles.unidad->setObjectName(Nombre(ficha.unidad));
  controles.unidad->setMinimumWidth(controles.unidad->fontMetrics().horizontalAdvance(tr("Grados-día")));
  rejilla.addWidget(controles.rotulo, i, 0);
  rejilla.addWidget(controles.valor, i, 1);
  rejilla.addWidget(controles.unidad, i, 2);
  if (*ficha.cuando == '\0') return;
  controles.cuando = CrearCasillaDeResultado(Nombre(ficha.cuando), LETRAS_FECHA);
  controles.cuando->setToolTip(tr("Primera hora en que se da"));
  rejilla.addWidget(controles.cuando, i, 3);
}

QGroupBox *PaginaEstadisticas::CrearResultados() {
  auto *caja = new QGroupBox(tr("Resultados del período"));
  caja->setObjectName(QStringLiteral("gbResultados"));
  auto *rejilla = new QGridLayout(caja);
  rejilla->setVerticalSpacing(3);
  for (int i = 0; i < NUMERO_RESULTADOS; ++i) CrearResultado(*rejilla, i);
  lbSituacion_ = new QLabel;
  lbSituacion_->setObjectName(QStringLiteral("lbSituacion"));
  rejilla->addWidget(lbSituacion_, NUMERO_RESULTADOS, 0, 1, COLUMNAS - 1);
  btnCopiarResultados_ =
      CrearBoton("btnCopiarResultados", tr("C&opiar resultados"), tr("Los copia como texto"));
  connect(btnCopiarResultados_, &QPushButton::clicked, this,
          [this] { QApplication::clipboard()->setText(TextoDeResultados()); });
  rejilla->addWidget(btnCopiarResultados_, NUMERO_RESULTADOS, COLUMNAS - 1, Qt::AlignRight);
  return caja;
}

QGroupBox *PaginaEstadisticas::CrearMeses() {
  auto *caja = new QGroupBox(tr("Mes a mes"));
  caja->setObjectName(QStringLiteral("gbMeses"));
  tablaMeses_ = new QTableWidget;
  tablaMeses_->setObjectName(QStringLiteral("tablaMeses"));
  tablaMeses_->setMinimumHeight(ALTO_TABLA);
  tablaMeses_->verticalHeader()->hide();
  tablaMeses_->verticalHeader()->setDefaultSectionSize(tablaMeses_->fontMetrics().height() + MARGEN);
  tablaMeses_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tablaMeses_->setAlternatingRowColors(true);
  auto *pila = new QVBoxLayout(caja);
  pila->addWidget(tablaMeses_, 1);
  btnCopiarMeses_ = CrearBoton("btnCopiarMeses", tr("&Copiar tabla"), tr("La copia como texto"));
  connect(btnCopiarMeses_, &QPushButton::clicked, this,
          [this] { QApplication::clipboard()->setText(TextoDeTabla(*tablaMeses_)); });
  pila->addWidget(btnCopiarMeses_, 0, Qt::AlignRight);
  return caja;
}

Magnitud PaginaEstadisticas::Elegida() const {
  const auto elegido =
      std::ranges::find_if(botones_, [](const QRadioButton *boton) { return boton->isChecked(); });
  return static_cast<Magnitud>(elegido - botones_.begin());
}

std::pair<int, int> PaginaEstadisticas::HorasDelDia() const {
  for (CasillaEntera *hora : {csVHorIni_, csVHorFin_}) hora->interpretText();
  return {csVHorIni_->value(), csVHorFin_->value()};
}

BasesGradosDia PaginaEstadisticas::Bases() const {
  for (CasillaReal *base : {csBaseCal_, csBaseRef_}) base->interpretText();
  return {static_cast<float>(csBaseCal_->value()), static_cast<float>(csBaseRef_->value())};
}

void PaginaEstadisticas::PonResultados(const std::array<Cifra, NUMERO_RESULTADOS> &cifras) {
  for (std::size_t i = 0; i < cifras.size(); ++i) {
    const Controles &controles = resultados_[i];
    controles.valor->setText(cifras[i].valor);
    controles.unidad->setText(cifras[i].unidad);
    controles.rotulo->setEnabled(!cifras[i].valor.isEmpty());
    if (controles.cuando != nullptr) controles.cuando->setText(cifras[i].cuando);
  }
  btnCopiarResultados_->setEnabled(HayResultados());
  lbSituacion_->clear();
}

void PaginaEstadisticas::PonMeses(const QStringList &titulos, const QList<QStringList> &filas) {
  tablaMeses_->clear();
  tablaMeses_->setColumnCount(static_cast<int>(titulos.size()));
  tablaMeses_->setHorizontalHeaderLabels(titulos);
  tablaMeses_->setRowCount(static_cast<int>(filas.size()));
  for (int i = 0; i < filas.size(); ++i) {
    for (int j = 0; j < filas[i].size(); ++j) {
      auto *celda = new QTableWidgetItem(filas[i][j]);
      if (j > 0) celda->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      tablaMeses_->setItem(i, j, celda);
    }
  }
  tablaMeses_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  btnCopiarMeses_->setEnabled(!filas.isEmpty());
}

void PaginaEstadisticas::Vaciar(const QString &motivo) {
  PonResultados({});
  PonMeses({}, {});
  lbSituacion_->setText(motivo);
}

bool PaginaEstadisticas::HayResultados() const { return !resultados_.front().valor->text().isEmpty(); }

QString PaginaEstadisticas::TextoDeResultados() const {
  QString texto = botones_.at(static_cast<std::size_t>(Elegida()))->text() + '\n';
  for (const Controles &controles : resultados_) {
    if (controles.valor->text().isEmpty()) continue;
    QStringList campos{controles.rotulo->text(), controles.valor->text(), controles.unidad->text()};
    if (controles.cuando != nullptr) campos << controles.cuando->text();
    texto += campos.join('\t') + '\n';
  }
  return texto;
}

} // namespace tesmo
