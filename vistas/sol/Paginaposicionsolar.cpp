#include "vistas/sol/Paginaposicionsolar.h"

#include "vistas/comun/Botones.h"
#include "vistas/sol/Graficosolar.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace tesmo {

namespace {

using Casilla = PaginaPosicionSolar::Casilla;

struct FichaCasilla {
  const char *control;
  const char *rotulo;
  const char *ayuda;
};
constexpr std::array<FichaCasilla, PaginaPosicionSolar::NUMERO_CASILLAS> CASILLAS{{
    {"edMes", "Mes", "Mes, de 1 a 12"},
    {"edDia", "Dia", "Día del mes; uno que el mes no tiene cuenta en el siguiente"},
    {"edHora", "Hora Solar", "Hora solar verdadera, de 0 a 24: 12 es el mediodía"},
    {"edAcimut", "Azimuth", "Acimut del sol en grados: 0 al sur, negativo al este y positivo al oeste"},
    {"edAltura", "Altura", "Altura del sol en grados sobre el horizonte llano"},
    {"edOrientacion", "Orientación", "Grados desde el sur, de -180 a 180: negativos al este"},
    {"edInclinacion", "Inclinación", "Grados desde la horizontal, de 0 a 180: 90 es una pared"},
    {"edAlbedo", "Albedo del terreno", "Fracción de la radiación que refleja el suelo, de 0 a 1"},
}};

constexpr int MARGEN = 4; ///< [px]
constexpr QMargins DENTRO(6, 2, 6, 4);
constexpr int ANCHO_CASILLA = 72; ///< [px]

const FichaCasilla &Ficha(Casilla casilla) { return CASILLAS.at(static_cast<std::size_t>(casilla)); }

QGroupBox *CrearGrupo(const char *nombre, const QString &titulo) {
  auto *caja = new QGroupBox(titulo);
  caja->setObjectName(QString::fromLatin1(nombre));
  return caja;
}

QGridLayout *RejillaDe(QGroupBox &caja) {
  auto *rejilla = new QGridLayout(&caja);
  rejilla->setContentsMargins(DENTRO);
  rejilla->setVerticalSpacing(3);
  return rejilla;
}

QLabel *CrearRotulo(const char *nombre) {
  auto *rotulo = new QLabel;
  rotulo->setObjectName(QString::fromLatin1(nombre));
  rotulo->setWordWrap(true);
  return rotulo;
}

} // namespace

PaginaPosicionSolar::PaginaPosicionSolar(QWidget *padre) : QWidget(padre) {
  setObjectName(QStringLiteral("tsPosicionSolar"));
  auto *disposicion = new QHBoxLayout(this);
  disposicion->setContentsMargins(MARGEN, MARGEN, MARGEN, MARGEN);
  disposicion->addWidget(CrearColumna());
  disposicion->addWidget(CrearCarta(), 1);
  CrearAtajos();
}

QWidget *PaginaPosicionSolar::CrearColumna() {
  auto *grupos = new QWidget;
  auto *pila = new QVBoxLayout(grupos);
  pila->setContentsMargins(0, 0, 0, 0);
  pila->setSpacing(MARGEN);
  for (QGroupBox *grupo : {CrearMomento(), CrearCalculos(), CrearHorizonte(), CrearSuperficie()})
    pila->addWidget(grupo);
  pila->addStretch(1);
  auto *columna = new QScrollArea;
  columna->setFrameShape(QFrame::NoFrame);
  columna->setWidgetResizable(true);
  columna->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  columna->setWidget(grupos);
  columna->setFixedWidth(grupos->sizeHint().width() + columna->verticalScrollBar()->sizeHint().width());
  return columna;
}

void PaginaPosicionSolar::CrearCasilla(QGridLayout &rejilla, Casilla casilla, int fila, int columna) {
  auto *texto = new QLineEdit;
  texto->setObjectName(QString::fromLatin1(Ficha(casilla).control));
  texto->setToolTip(tr(Ficha(casilla).ayuda));
  texto->setAlignment(Qt::AlignRight);
  texto->setFixedWidth(ANCHO_CASILLA);
  auto *rotulo = new QLabel(Rotulo(casilla));
  rotulo->setBuddy(texto);
  rejilla.addWidget(rotulo, fila, columna);
  rejilla.addWidget(texto, fila, columna + 1, Qt::AlignRight);
  casillas_[static_cast<std::size_t>(casilla)] = texto;
}

QGroupBox *PaginaPosicionSolar::CrearMomento() {
  QGroupBox *caja = CrearGrupo("gbMomento", tr("Momento"));
  QGridLayout *rejilla = RejillaDe(*caja);
  int fila = 0;
  for (const Casilla casilla : {Casilla::Mes, Casilla::Dia, Casilla::Hora, Casilla::Acimut, Casilla::Altura})
    CrearCasilla(*rejilla, casilla, fila++, 0);
  for (const Casilla resultado : {Casilla::Acimut, Casilla::Altura})
    casillas_[static_cast<std::size_t>(resultado)]->setReadOnly(true);
  lbMomento_ = CrearRotulo("lbMomento");
  rejilla->addWidget(lbMomento_, fila, 0, 1, 2, Qt::AlignRight);
  return caja;
}

QGroupBox *PaginaPosicionSolar::CrearCalculos() {
  using Pagina = PaginaPosicionSolar;
  QGroupBox *caja = CrearGrupo("gbCalculos", tr("Calculo Posiciones Solares"));
  QGridLayout *rejilla = RejillaDe(*caja);
  rejilla->addWidget(CrearBoton("btnMomento", tr("Este momento"),
                                tr("Dónde está el sol a esa hora; si su camino no está a la vista, dibuja el "
                                   "de ese día"),
                                &Pagina::momentoPedido),
                     0, 0);
  rejilla->addWidget(
      CrearBoton("btnDia", tr("Este día"), tr("Dibuja el camino del sol de ese día"), &Pagina::diaPedido), 0,
      1);
  rejilla->addWidget(CrearBoton("btnMeses", tr("Todos los Meses"),
                                tr("Dibuja el camino del sol de ese día de cada mes"), &Pagina::mesesPedido),
                     1, 0);
  QPushButton *imprimir =
      CrearBoton("btnImprimir", tr("Imprimir"),
                 tr("No imprime: para llevar la carta a un documento use «Guardar imagen…»"), nullptr);
  imprimir->setEnabled(false);
  rejilla->addWidget(imprimir, 1, 1);
  rejilla->addWidget(CrearBoton("btnGuardarImagen", tr("Guardar imagen…"),
                                tr("Guarda la carta en PNG, SVG o PDF"), &Pagina::imagenPedida),
                     2, 0);
  rejilla->addWidget(
      CrearBoton("btnFichero", tr("GENERAR"),
                 tr("Escribe FPS.TXT, la posición del sol en el año: la línea de la hora h es de "
                    "las h y media (la de la hora 1, de la 1:30)"),
                 &Pagina::ficheroPedido),
      2, 1);
  return caja;
}

QGroupBox *PaginaPosicionSolar::CrearHorizonte() {
  using Pagina = PaginaPosicionSolar;
  QGroupBox *caja = CrearGrupo("gbHorizonte", tr(" Perfil de horizonte  "));
  QGridLayout *rejilla = RejillaDe(*caja);
  rejilla->addWidget(CrearBoton("btnAbrirPerfil", tr("Abrir"),
                                tr("Abre un perfil propio, un listado de PVGIS o una tabla"),
                                &Pagina::abrirPedido),
                     0, 0);
  rejilla->addWidget(
      CrearBoton("btnGuardarPerfil", tr("Guardar"), tr("Guarda el perfil"), &Pagina::guardarPedido), 0, 1);
  btnDeshacer_ = CrearBoton("btnDeshacer", tr("Deshacer"), tr("Ctrl+Z"), &Pagina::deshacerPedido);
  btnRehacer_ = CrearBoton("btnRehacer", tr("Rehacer"), tr("Ctrl+Mayús+Z"), &Pagina::rehacerPedido);
  rejilla->addWidget(btnDeshacer_, 1, 0);
  rejilla->addWidget(btnRehacer_, 1, 1);
  lbCielo_ = CrearRotulo("lbCielo");
  lbHoras_ = CrearRotulo("lbHoras");
  QLabel *efecto = CrearRotulo("lbEfecto");
  efecto->setText(tr("El horizonte y la superficie cuentan en la irradiancia desde la próxima carga o "
                     "«Actualizar»."));
  rejilla->addWidget(lbCielo_, 2, 0, 1, 2);
  rejilla->addWidget(lbHoras_, 3, 0, 1, 2);
  rejilla->addWidget(efecto, 4, 0, 1, 2);
  return caja;
}

QGroupBox *PaginaPosicionSolar::CrearSuperficie() {
  QGroupBox *caja = CrearGrupo("gbSuperficie", tr("Superficie Inclinada"));
  QGridLayout *rejilla = RejillaDe(*caja);
  int fila = 0;
  for (const Casilla casilla : {Casilla::Orientacion, Casilla::Inclinacion, Casilla::Albedo}) {
    CrearCasilla(*rejilla, casilla, fila++, 0);
    connect(casillas_[static_cast<std::size_t>(casilla)], &QLineEdit::textEdited, this,
            &PaginaPosicionSolar::superficieTecleada);
  }
  return caja;
}

QWidget *PaginaPosicionSolar::CrearCarta() {
  graHueco_ = new GraficoSolar;
  graHueco_->setObjectName(QStringLiteral("graHueco"));
  graHueco_->PonAviso(
      tr("Pulse «Este día» o «Todos los Meses» para ver el camino del sol, «Abrir» para traer "
         "un perfil de horizonte, o aquí mismo para empezar a dibujarlo."));
  graPosSol_ = new GraficoSolar;
  graPosSol_->setObjectName(QStringLiteral("graPosSol"));
  graPosSol_->OrdenDeMeses().setObjectName(QStringLiteral("stMeses"));
  pila_ = new QStackedWidget;
  pila_->addWidget(graHueco_);
  pila_->addWidget(graPosSol_);
  auto *carta = new QWidget;
  auto *disposicion = new QVBoxLayout(carta);
  disposicion->setContentsMargins(0, 0, 0, 0);
  disposicion->setSpacing(2);
  disposicion->addWidget(pila_, 1);
  QLabel *ayuda = CrearRotulo("lbAyuda");
  ayuda->setText(tr("Horizonte: clic, añade un punto; Mayús y arrastre, lo sube o lo baja; botón derecho o "
                    "Supr, lo borra; Ctrl+Z, deshace."));
  disposicion->addWidget(ayuda);
  return carta;
}

QPushButton *PaginaPosicionSolar::CrearBoton(const char *nombre, const QString &texto, const QString &ayuda,
                                             void (PaginaPosicionSolar::*senal)()) {
  QPushButton *boton = tesmo::CrearBoton(nombre, texto, ayuda);
  if (senal != nullptr) connect(boton, &QPushButton::clicked, this, [this, senal] { emit(this->*senal)(); });
  return boton;
}

/// Dentro de una casilla las mismas teclas son de su texto: ella se las queda.
void PaginaPosicionSolar::CrearAtajos() {
  const auto crear = [this](const QKeySequence &teclas, void (PaginaPosicionSolar::*senal)()) {
    auto *atajo = new QShortcut(teclas, this);
    atajo->setContext(Qt::WidgetWithChildrenShortcut);
    connect(atajo, &QShortcut::activated, this, senal);
  };
  crear(QKeySequence(QStringLiteral("Ctrl+Z")), &PaginaPosicionSolar::deshacerPedido);
  crear(QKeySequence(QStringLiteral("Ctrl+Shift+Z")), &PaginaPosicionSolar::rehacerPedido);
  crear(QKeySequence(Qt::Key_Delete), &PaginaPosicionSolar::borrarPedido);
}

void PaginaPosicionSolar::EnsenarGrafico() { pila_->setCurrentWidget(graPosSol_); }

QString PaginaPosicionSolar::TextoDe(Casilla casilla) const {
  return casillas_.at(static_cast<std::size_t>(casilla))->text();
}

void PaginaPosicionSolar::PonTexto(Casilla casilla, const QString &texto) {
  QLineEdit &control = *casillas_.at(static_cast<std::size_t>(casilla));
  if (control.text() != texto) control.setText(texto); // el cursor de quien teclea no se mueve
}

QString PaginaPosicionSolar::Rotulo(Casilla casilla) { return tr(Ficha(casilla).rotulo); }

void PaginaPosicionSolar::PonMomento(const QString &texto) { lbMomento_->setText(texto); }

void PaginaPosicionSolar::PonInfluencia(const QString &cielo, const QString &horas) {
  lbCielo_->setText(cielo);
  lbHoras_->setText(horas);
}

void PaginaPosicionSolar::PonPasos(bool hayAnterior, bool haySiguiente) {
  btnDeshacer_->setEnabled(hayAnterior);
  btnRehacer_->setEnabled(haySiguiente);
}

} // namespace tesmo
