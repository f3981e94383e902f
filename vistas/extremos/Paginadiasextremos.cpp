#include "vistas/extremos/Paginadiasextremos.h"

#include "core/Calendario.h"
#include "vistas/comun/Textoqt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace tesmo {

namespace {

using Estacion = PaginaDiasExtremos::Estacion;
using Ajuste = PaginaDiasExtremos::Ajuste;

constexpr int MARGEN = 12;    ///< alrededor de la página y entre grupos [px]
constexpr int ANCHO_MES = 28; ///< columna de un mes [px]
constexpr int LETRAS_PERCENTIL = 8;
constexpr int ANCHO_TEXTO = 620; ///< renglón legible de las explicaciones [px]
/// Números de los rótulos de mes y de las casillas de cada temporada, según su fila.
constexpr std::array<int, 2> PRIMER_ROTULO{6, 18};
constexpr std::array<int, 2> PRIMERA_CASILLA{1, 13};

template <class Enumerado>
constexpr std::size_t Sitio(Enumerado valor) {
  return static_cast<std::size_t>(valor);
}

} // namespace

PaginaDiasExtremos::PaginaDiasExtremos(QWidget *padre) : QWidget(padre) {
  setObjectName(QStringLiteral("tsDiasExtremos"));
  auto *contenido = new QWidget;
  auto *pila = new QVBoxLayout(contenido);
  pila->setContentsMargins(MARGEN, MARGEN, MARGEN, MARGEN);
  pila->setSpacing(MARGEN);
  pila->addWidget(CrearAjustes(), 0, Qt::AlignLeft);
  pila->addWidget(CrearTemporada(Estacion::Calefaccion, tr("Meses de la temporada de calefacción")), 0,
                  Qt::AlignLeft);
  pila->addWidget(CrearTemporada(Estacion::Refrigeracion, tr("Meses de la temporada de refrigeración")), 0,
                  Qt::AlignLeft);
  pila->addWidget(CrearAccion());
  pila->addStretch(1);
  auto *desplazable = new QScrollArea(this);
  desplazable->setFrameShape(QFrame::NoFrame);
  desplazable->setWidgetResizable(true);
  desplazable->setWidget(contenido);
  auto *disposicion = new QVBoxLayout(this);
  disposicion->setContentsMargins(0, 0, 0, 0);
  disposicion->addWidget(desplazable);
}

QLabel *PaginaDiasExtremos::CrearRotulo(Ajuste ajuste, const QString &nombre, const QString &texto) {
  auto *rotulo = new QLabel(texto);
  rotulo->setObjectName(nombre);
  rotulos_[Sitio(ajuste)] = rotulo;
  return rotulo;
}

QComboBox *PaginaDiasExtremos::CrearMeses(const QString &nombre) {
  auto *lista = new QComboBox;
  lista->setObjectName(nombre);
  for (int mes = 1; mes <= static_cast<int>(MESES_DEL_ANIO); ++mes)
    lista->addItem(Texto(ConMayuscula(NombreMes(mes))));
  lista->setMaxVisibleItems(lista->count());
  return lista;
}

QLineEdit *PaginaDiasExtremos::CrearPercentil(const QString &nombre, const QString &texto) {
  auto *casilla = new QLineEdit(texto);
  casilla->setObjectName(nombre);
  casilla->setFixedWidth(casilla->fontMetrics().averageCharWidth() * LETRAS_PERCENTIL + 2 * MARGEN);
  casilla->setToolTip(tr("De 0 a 100"));
  return casilla;
}

QWidget *PaginaDiasExtremos::CrearAjustes() {
  auto *grupo = new QWidget;
  auto *rejilla = new QGridLayout(grupo);
  rejilla->setContentsMargins(0, 0, 0, 0);
  rejilla->setHorizontalSpacing(MARGEN);
  const auto fila = [&](int cual, int columna, QLabel *rotulo, QWidget *control) {
    rotulo->setBuddy(control);
    rejilla->addWidget(rotulo, cual, columna);
    rejilla->addWidget(control, cual, columna + 1, Qt::AlignLeft | Qt::AlignVCenter);
  };
  lbProvincia_ = new QLabel;
  lbProvincia_->setObjectName(QStringLiteral("lbProvincia"));
  lbLocalidad_ = new QLabel;
  lbLocalidad_->setObjectName(QStringLiteral("lbLocalidad"));
  for (QLabel *valor : {lbProvincia_, lbLocalidad_})
    valor->setTextInteractionFlags(Qt::TextSelectableByMouse);
  meses_ = {CrearMeses(QStringLiteral("cbMesCal")), CrearMeses(QStringLiteral("cbMesRef"))};
  percentiles_ = {CrearPercentil(QStringLiteral("edPerCal"), QStringLiteral("99.0")),
                  CrearPercentil(QStringLiteral("edPerRef"), QStringLiteral("1.0"))};
  fila(0, 0, CrearRotulo(Ajuste::Localidad, QStringLiteral("Label1"), tr("Localidad")), lbLocalidad_);
  fila(0, 2, CrearRotulo(Ajuste::Provincia, QStringLiteral("rotProvincia"), tr("Provincia")), lbProvincia_);
  fila(1, 0, CrearRotulo(Ajuste::MesCal, QStringLiteral("Label2"), tr("Mes Extremo Invierno")), meses_[0]);
  fila(2, 0, CrearRotulo(Ajuste::MesRef, QStringLiteral("Label3"), tr("Mes Extremo Verano")), meses_[1]);
  fila(1, 2, CrearRotulo(Ajuste::PerCal, QStringLiteral("Label4"), tr("Percentil Calefacción (%)")),
       percentiles_[0]);
  fila(2, 2, CrearRotulo(Ajuste::PerRef, QStringLiteral("Label5"), tr("Percentil Refrigeración (%)")),
       percentiles_[1]);
  return grupo;
}

QWidget *PaginaDiasExtremos::CrearTemporada(Estacion estacion, const QString &titulo) {
  auto *grupo = new QGroupBox(titulo);
  auto *rejilla = new QGridLayout(grupo);
  rejilla->setHorizontalSpacing(MARGEN);
  const std::size_t cual = Sitio(estacion);
  for (std::size_t i = 0; i < MESES_DEL_ANIO; ++i) {
    const int columna = static_cast<int>(i);
    const QString nombre = Texto(ConMayuscula(NombreMes(columna + 1)));
    auto *rotulo = new QLabel(Texto(ConMayuscula(MesCorto(columna + 1))));
    rotulo->setObjectName(QStringLiteral("Label%1").arg(PRIMER_ROTULO[cual] + columna));
    auto *casilla = new QCheckBox;
    casilla->setObjectName(QStringLiteral("CheckBox%1").arg(PRIMERA_CASILLA[cual] + columna));
    casilla->setAccessibleName(titulo + QStringLiteral(": ") + nombre);
    casilla->setToolTip(nombre);
    rotulo->setBuddy(casilla);
    rejilla->setColumnMinimumWidth(columna, ANCHO_MES);
    rejilla->addWidget(rotulo, 0, columna, Qt::AlignHCenter);
    rejilla->addWidget(casilla, 1, columna, Qt::AlignHCenter);
    temporadas_[cual][i] = casilla;
  }
  return grupo;
}

QWidget *PaginaDiasExtremos::CrearAccion() {
  auto *grupo = new QWidget;
  auto *pila = new QVBoxLayout(grupo);
  pila->setContentsMargins(0, 0, 0, 0);
  pila->setSpacing(MARGEN);
  auto *boton = new QPushButton(tr("Calcular"));
  boton->setObjectName(QStringLiteral("btnCalDiaExt"));
  boton->setToolTip(tr("Calcula los dos días de proyecto y escribe extreCal.met y extreRef.met"));
  connect(boton, &QPushButton::clicked, this, &PaginaDiasExtremos::calcularPedido);
  auto *nota = new QLabel(
      tr("El percentil es la parte de las horas de la temporada que quedan por encima de la temperatura de "
         "proyecto: 99 % en calefacción, 1 % en refrigeración. El día es el 15 del mes elegido. La localidad "
         "se elige debajo; sus estadísticas mensuales se leen de GDR.TXT."));
  nota->setWordWrap(true);
  nota->setFixedSize(ANCHO_TEXTO, nota->heightForWidth(ANCHO_TEXTO));
  pila->addWidget(boton, 0, Qt::AlignLeft);
  pila->addWidget(nota, 0, Qt::AlignLeft);
  return grupo;
}

void PaginaDiasExtremos::PonLocalidad(const std::string &localidad, const std::string &provincia) {
  lbLocalidad_->setText(Texto(localidad));
  lbProvincia_->setText(Texto(provincia));
}

void PaginaDiasExtremos::PonMes(Estacion estacion, int mes) {
  meses_[Sitio(estacion)]->setCurrentIndex(mes - 1);
}

int PaginaDiasExtremos::Mes(Estacion estacion) const { return meses_[Sitio(estacion)]->currentIndex() + 1; }

void PaginaDiasExtremos::PonPercentil(Estacion estacion, const std::string &texto) {
  percentiles_[Sitio(estacion)]->setText(Texto(texto));
}

std::string PaginaDiasExtremos::Percentil(Estacion estacion) const {
  return percentiles_[Sitio(estacion)]->text().toStdString();
}

void PaginaDiasExtremos::PonTemporada(Estacion estacion, const MesesDeTemporada &meses) {
  for (std::size_t i = 0; i < meses.size(); ++i) temporadas_[Sitio(estacion)][i]->setChecked(meses[i] == 1);
}

MesesDeTemporada PaginaDiasExtremos::Temporada(Estacion estacion) const {
  MesesDeTemporada meses{};
  for (std::size_t i = 0; i < meses.size(); ++i) {
    meses[i] = temporadas_[Sitio(estacion)][i]->isChecked() ? std::int16_t{1} : std::int16_t{0};
  }
  return meses;
}

void PaginaDiasExtremos::EnfocarTemporada(Estacion estacion) { temporadas_[Sitio(estacion)][0]->setFocus(); }

void PaginaDiasExtremos::EnfocarPercentil(Estacion estacion) {
  percentiles_[Sitio(estacion)]->setFocus();
  percentiles_[Sitio(estacion)]->selectAll();
}

void PaginaDiasExtremos::PonColor(Ajuste ajuste, const QColor &color) {
  QPalette paleta = rotulos_[Sitio(ajuste)]->palette();
  paleta.setColor(QPalette::WindowText, color);
  rotulos_[Sitio(ajuste)]->setPalette(paleta);
}

std::string PaginaDiasExtremos::Rotulo(Ajuste ajuste) const {
  return rotulos_[Sitio(ajuste)]->text().toStdString();
}

} // namespace tesmo
