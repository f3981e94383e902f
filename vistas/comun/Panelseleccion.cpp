#include "vistas/comun/Panelseleccion.h"

#include "app/Seleccion.h"
#include "vistas/comun/Casillanumero.h"
#include "vistas/comun/Textoqt.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
namespace tesmo {

namespace {

constexpr int MAXIMO_DIA = 31;
/// Columnas de la rejilla del lugar (dos selectores y latitud) y de la del período (rótulo y tres casillas
/// por extremo, y botón, con huecos entre medias).
constexpr int COLUMNA_LATITUD = 2;
constexpr int COLUMNA_FIN = 5;
constexpr int COLUMNA_BOTON = 10;
constexpr int HUECO = 12;           ///< entre grupos de controles [px]
constexpr int LETRAS_SELECTOR = 16; ///< las que se ven del nombre más largo
constexpr const char *LATITUD_MAS_ANCHA = "-88.88";

} // namespace

PanelSeleccion::PanelSeleccion(QWidget *padre) : QWidget(padre) {
  setObjectName(QStringLiteral("panelSeleccion"));
  caja_ = new QBoxLayout(QBoxLayout::LeftToRight, this);
  caja_->setContentsMargins(6, 2, 6, 4);
  caja_->setSpacing(HUECO);
  auto *lugar = CrearRejilla();
  cbProvincias_ = CrearSelector(*lugar, 0, QStringLiteral("cbProvincias"), tr("&Provincia:"));
  cbLocalidades_ = CrearSelector(*lugar, 1, QStringLiteral("cbLocalidades"), tr("&Localidad:"));
  edLatitud_ = CrearLatitud(*lugar, COLUMNA_LATITUD);
  lugar->setColumnStretch(COLUMNA_LATITUD + 1, 1);
  auto *periodo = CrearRejilla();
  inicio_ = CrearExtremo(*periodo, 0, tr("&Desde:"), QStringLiteral("Ini"));
  periodo->setColumnMinimumWidth(COLUMNA_FIN - 1, HUECO);
  fin_ = CrearExtremo(*periodo, COLUMNA_FIN, tr("&Hasta:"), QStringLiteral("Fin"));
  periodo->setColumnMinimumWidth(COLUMNA_BOTON - 1, HUECO);
  periodo->setColumnStretch(COLUMNA_BOTON - 1, 1);
  btnActualizar_ = new QPushButton(tr("Ac&tualizar"), this);
  btnActualizar_->setObjectName(QStringLiteral("btnActualizar"));
  btnActualizar_->setToolTip(tr("Vuelve a leer la localidad y rehace el gráfico del período"));
  periodo->addWidget(btnActualizar_, 1, COLUMNA_BOTON);
  caja_->setStretch(1, 1);
  connect(cbProvincias_, &QComboBox::currentIndexChanged, this, &PanelSeleccion::provinciaCambiada);
  connect(cbLocalidades_, &QComboBox::currentIndexChanged, this, &PanelSeleccion::localidadCambiada);
  connect(btnActualizar_, &QPushButton::clicked, this, &PanelSeleccion::actualizarPedido);
  PonLocalidades({});
  PonPeriodo({});
}

QGridLayout *PanelSeleccion::CrearRejilla() {
  auto *rejilla = new QGridLayout;
  rejilla->setVerticalSpacing(1);
  caja_->addLayout(rejilla);
  return rejilla;
}

/// Lo que cabe en una fila va en una; si no, el período pasa debajo.
void PanelSeleccion::resizeEvent(QResizeEvent *suceso) {
  QWidget::resizeEvent(suceso);
  const QMargins margenes = caja_->contentsMargins();
  const int unaFila = margenes.left() + caja_->itemAt(0)->sizeHint().width() + HUECO +
                      caja_->itemAt(1)->sizeHint().width() + margenes.right();
  caja_->setDirection(width() >= unaFila ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

/// El de las dos filas: así la ventana puede estrecharse hasta él.
QSize PanelSeleccion::minimumSizeHint() const {
  const QMargins margenes = caja_->contentsMargins();
  const int ancho =
      std::max(caja_->itemAt(0)->minimumSize().width(), caja_->itemAt(1)->minimumSize().width());
  return {margenes.left() + ancho + margenes.right(), caja_->minimumSize().height()};
}

QComboBox *PanelSeleccion::CrearSelector(QGridLayout &rejilla, int columna, const QString &nombre,
                                         const QString &titulo) {
  auto *selector = new QComboBox(this);
  selector->setObjectName(nombre);
  selector->setMinimumContentsLength(LETRAS_SELECTOR);
  selector->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  auto *rotulo = new QLabel(titulo, this);
  rotulo->setBuddy(selector);
  rejilla.addWidget(rotulo, 0, columna);
  rejilla.addWidget(selector, 1, columna);
  return selector;
}

QLineEdit *PanelSeleccion::CrearLatitud(QGridLayout &rejilla, int columna) {
  auto *casilla = new QLineEdit(this);
  casilla->setObjectName(QStringLiteral("edLatitud"));
  casilla->setReadOnly(true);
  casilla->setToolTip(tr("Latitud de la localidad en grados, norte positivo"));
  const QMargins margenes = casilla->textMargins();
  casilla->setFixedWidth(casilla->fontMetrics().horizontalAdvance(QLatin1String(LATITUD_MAS_ANCHA)) +
                         2 * HUECO + margenes.left() + margenes.right());
  auto *rotulo = new QLabel(tr("Latitud (º):"), this);
  rotulo->setBuddy(casilla);
  rejilla.addWidget(rotulo, 0, columna);
  rejilla.addWidget(casilla, 1, columna);
  return casilla;
}

void PanelSeleccion::PonLatitud(const std::string &latitud) { edLatitud_->setText(Texto(latitud)); }

std::string PanelSeleccion::Latitud() const { return edLatitud_->text().toStdString(); }

PanelSeleccion::Extremo PanelSeleccion::CrearExtremo(QGridLayout &rejilla, int columna, const QString &titulo,
                                                     const QString &sufijo) {
  auto *rotulo = new QLabel(titulo, this);
  rejilla.addWidget(rotulo, 1, columna);
  const Extremo extremo{
      CrearCasilla(QStringLiteral("csMes") + sufijo, static_cast<int>(MESES_DEL_ANIO), tr("Mes, de 1 a 12")),
      CrearCasilla(QStringLiteral("csDia") + sufijo, MAXIMO_DIA, tr("Día del mes")),
      CrearCasilla(QStringLiteral("csHor") + sufijo, HORAS_DEL_DIA, tr("Hora del día, de 1 a 24"))};
  rotulo->setBuddy(extremo.mes);
  int sitio = columna + 1;
  for (const auto &[casilla, texto] : {std::pair{extremo.mes, tr("Mes")}, std::pair{extremo.dia, tr("Día")},
                                       std::pair{extremo.hora, tr("Hora")}}) {
    rejilla.addWidget(new QLabel(texto, this), 0, sitio, Qt::AlignHCenter);
    rejilla.addWidget(casilla, 1, sitio++);
  }
  return extremo;
}

QSpinBox *PanelSeleccion::CrearCasilla(const QString &nombre, int maximo, const QString &ayuda) {
  auto *casilla = new CasillaEntera(this);
  casilla->setObjectName(nombre);
  casilla->setRange(1, maximo);
  casilla->setKeyboardTracking(false); // las reglas del período no se aplican a medio teclear
  casilla->setToolTip(ayuda);
  connect(casilla, &QSpinBox::valueChanged, this, &PanelSeleccion::periodoCambiado);
  return casilla;
}

void PanelSeleccion::PonProvincias(const std::vector<std::string> &provincias) {
  const QSignalBlocker sinAvisos(cbProvincias_);
  cbProvincias_->clear();
  for (const std::string &provincia : provincias) cbProvincias_->addItem(Texto(provincia));
}

void PanelSeleccion::PonLocalidades(const std::vector<std::string> &localidades) {
  const QSignalBlocker sinAvisos(cbLocalidades_);
  cbLocalidades_->clear();
  cbLocalidades_->addItem(Texto(SIN_LOCALIDAD));
  for (const std::string &localidad : localidades) cbLocalidades_->addItem(Texto(localidad));
}

void PanelSeleccion::ActualizarProvincias(const std::vector<std::string> &provincias) {
  const QSignalBlocker sinAvisos(cbProvincias_);
  const QString elegida = cbProvincias_->currentText();
  PonProvincias(provincias);
  cbProvincias_->setCurrentIndex(std::max(0, cbProvincias_->findText(elegida)));
}

void PanelSeleccion::ActualizarLocalidades(const std::vector<std::string> &localidades) {
  const QSignalBlocker sinAvisos(cbLocalidades_);
  const QString elegida = cbLocalidades_->currentText();
  PonLocalidades(localidades);
  cbLocalidades_->setCurrentIndex(std::max(0, cbLocalidades_->findText(elegida)));
}

std::string PanelSeleccion::Provincia() const { return cbProvincias_->currentText().toStdString(); }

std::string PanelSeleccion::Localidad() const { return cbLocalidades_->currentText().toStdString(); }

FechaHora PanelSeleccion::Leer(const Extremo &extremo) {
  for (QSpinBox *casilla : {extremo.mes, extremo.dia, extremo.hora}) casilla->interpretText();
  return {extremo.mes->value(), extremo.dia->value(), extremo.hora->value()};
}

Periodo PanelSeleccion::LeerPeriodo() const { return {Leer(inicio_), Leer(fin_)}; }

void PanelSeleccion::Poner(const Extremo &extremo, const FechaHora &fecha) {
  const QSignalBlocker sinAvisos[] = {QSignalBlocker(extremo.mes), QSignalBlocker(extremo.dia),
                                      QSignalBlocker(extremo.hora)};
  extremo.dia->setMaximum(DiasDelMes(fecha.mes));
  extremo.mes->setValue(fecha.mes);
  extremo.dia->setValue(fecha.dia);
  extremo.hora->setValue(fecha.hora);
}

void PanelSeleccion::PonPeriodo(const Periodo &periodo) {
  Poner(inicio_, periodo.inicio);
  Poner(fin_, periodo.fin);
}

} // namespace tesmo
