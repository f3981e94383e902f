// Los controles del diálogo del mapa de columnas.

#include "core/Codificacion.h"
#include "core/Ficheros.h"
#include "intercambio/comun/Aniocanonico.h"
#include "intercambio/formatos/Clavesmapa.h"
#include "psicro/Atmosfera.h"
#include "vistas/comun/Casillanumero.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/intercambio/Dialogomapa.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace tesmo {

namespace {

constexpr QSize TAMANO(940, 620);
constexpr std::size_t BYTES_DE_MUESTRA = 64 * 1024;
constexpr int CABECERA_MAXIMA = 200; ///< líneas

template <typename T, std::size_t N>
QComboBox *CrearLista(const char *nombre, const std::array<Palabra<T>, N> &palabras) {
  auto *lista = new QComboBox;
  lista->setObjectName(QString::fromLatin1(nombre));
  for (const Palabra<T> &palabra : palabras) lista->addItem(Texto(palabra.texto));
  return lista;
}

CasillaReal *CrearReal(const char *nombre, double minimo, double maximo, int decimales,
                       const QString &unidad) {
  auto *casilla = new CasillaReal;
  casilla->setObjectName(QString::fromLatin1(nombre));
  casilla->setDecimals(decimales);
  casilla->setRange(minimo, maximo);
  casilla->setSuffix(unidad);
  return casilla;
}

} // namespace

DialogoMapa::DialogoMapa(const QString &fichero, const MapaColumnas *mapa, QWidget *padre) : QDialog(padre) {
  setObjectName(QStringLiteral("forMapa"));
  setWindowTitle(tr("Mapa de columnas de %1").arg(QFileInfo(fichero).fileName()));
  resize(TAMANO);
  const auto texto = LeerFicheroEntero(RutaDesdeTexto(fichero.toStdString()));
  if (texto) texto_ = AUtf8(std::string_view(*texto).substr(0, BYTES_DE_MUESTRA));
  auto *arriba = new QHBoxLayout;
  arriba->addWidget(CrearTexto());
  arriba->addWidget(CrearSitio());
  tabla_ = new QTableWidget(0, 5);
  tabla_->setObjectName(QStringLiteral("tablaColumnas"));
  tabla_->setHorizontalHeaderLabels(
      {tr("Columna"), tr("Rótulo"), tr("Primer valor"), tr("Qué es"), tr("Unidad")});
  tabla_->verticalHeader()->hide();
  tabla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabla_->setSelectionMode(QAbstractItemView::NoSelection);
  tabla_->horizontalHeader()->setStretchLastSection(true);
  lbAviso_ = new QLabel;
  lbAviso_->setObjectName(QStringLiteral("lbAviso"));
  lbAviso_->setWordWrap(true);
  auto *pila = new QVBoxLayout(this);
  pila->addLayout(arriba);
  pila->addWidget(tabla_, 1);
  pila->addWidget(lbAviso_);
  pila->addWidget(CrearBotones());
  MapaColumnas nuevo;
  nuevo.husoDeLongitud = true;
  Poner(mapa == nullptr ? nuevo : *mapa);
}

QWidget *DialogoMapa::CrearTexto() {
  auto *grupo = new QGroupBox(tr("Texto"));
  auto *forma = new QFormLayout(grupo);
  cbSeparador_ = CrearLista("cbSeparador", SEPARADORES);
  cbDecimal_ = CrearLista("cbDecimal", DECIMALES);
  cbOrden_ = CrearLista("cbOrden", ORDENES);
  csCabecera_ = new CasillaEntera;
  csCabecera_->setObjectName(QStringLiteral("csCabecera"));
  csCabecera_->setRange(0, CABECERA_MAXIMA);
  edSinDato_ = new QLineEdit;
  edSinDato_->setObjectName(QStringLiteral("edSinDato"));
  edSinDato_->setPlaceholderText(tr("ninguno"));
  forma->addRow(tr("&Separador"), cbSeparador_);
  forma->addRow(tr("Decimal&es con"), cbDecimal_);
  forma->addRow(tr("&Líneas de cabecera"), csCabecera_);
  forma->addRow(tr("&Orden de la fecha"), cbOrden_);
  forma->addRow(tr("Código de sin &dato"), edSinDato_);
  connect(cbSeparador_, &QComboBox::currentIndexChanged, this, &DialogoMapa::LeerFilas);
  connect(csCabecera_, &QSpinBox::valueChanged, this, &DialogoMapa::LeerFilas);
  return grupo;
}

QWidget *DialogoMapa::CrearSitio() {
  auto *grupo = new QGroupBox(tr("Sitio y reloj"));
  auto *forma = new QFormLayout(grupo);
  edNombre_ = new QLineEdit;
  edNombre_->setObjectName(QStringLiteral("edNombre"));
  csLatitud_ = CrearReal("csLatitud", -90.0, 90.0, 4, tr(" °"));
  csLatitud_->setToolTip(tr("Norte, positiva"));
  csLongitud_ = CrearReal("csLongitud", -180.0, 180.0, 4, tr(" °"));
  csLongitud_->setToolTip(tr("Este, positiva"));
  csAltitud_ = new CasillaOpcional(ALTITUD_MINIMA, ALTITUD_MAXIMA, 1, tr("no se sabe"));
  csAltitud_->setObjectName(QStringLiteral("csAltitud"));
  csAltitud_->setSuffix(tr(" m"));
  forma->addRow(tr("&Nombre"), edNombre_);
  forma->addRow(tr("Lat&itud"), csLatitud_);
  forma->addRow(tr("Lon&gitud"), csLongitud_);
  forma->addRow(tr("Al&titud"), csAltitud_);
  AnadirReloj(*forma);
  return grupo;
}

void DialogoMapa::AnadirReloj(QFormLayout &forma) {
  cbTiempo_ = CrearLista("cbTiempo", RELOJES);
  csDesfase_ = CrearReal("csDesfaseMapa", -DESFASE_MAXIMO_MIN, DESFASE_MAXIMO_MIN, 1, tr(" min"));
  csDesfase_->setToolTip(tr("De la etiqueta (de 1 a 24) al centro de su hora: −30 si es su final"));
  csHuso_ = new CasillaOpcional(-HUSO_MAXIMO, HUSO_MAXIMO, 2, tr("el de la longitud"));
  csHuso_->setObjectName(QStringLiteral("csHusoMapa"));
  csHuso_->setSuffix(tr(" h"));
  auto *fila = new QHBoxLayout;
  fila->addWidget(cbTiempo_, 1);
  fila->addWidget(csDesfase_);
  fila->addWidget(csHuso_);
  auto *rotulo = new QLabel(tr("&Reloj, desfase y huso"));
  rotulo->setBuddy(cbTiempo_);
  forma.addRow(rotulo, fila);
}

QWidget *DialogoMapa::CrearBotones() {
  auto *pie = new QWidget;
  auto *fila = new QHBoxLayout(pie);
  fila->setContentsMargins(0, 0, 0, 0);
  auto *abrir = new QPushButton(tr("A&brir mapa…"));
  abrir->setObjectName(QStringLiteral("btnAbrirMapa"));
  auto *guardar = new QPushButton(tr("G&uardar mapa…"));
  guardar->setObjectName(QStringLiteral("btnGuardarMapa"));
  auto *botones = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  botones->setObjectName(QStringLiteral("botonesMapa"));
  fila->addWidget(abrir);
  fila->addWidget(guardar);
  fila->addStretch(1);
  fila->addWidget(botones);
  connect(abrir, &QPushButton::clicked, this, &DialogoMapa::PedirAbrir);
  connect(guardar, &QPushButton::clicked, this, &DialogoMapa::PedirGuardar);
  connect(botones, &QDialogButtonBox::accepted, this, &DialogoMapa::accept);
  connect(botones, &QDialogButtonBox::rejected, this, &DialogoMapa::reject);
  return pie;
}

} // namespace tesmo
