#include "vistas/datos/Paginaexportacion.h"

#include "vistas/comun/Botones.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/datos/Gruposmagnitud.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>

namespace tesmo {

namespace {

constexpr int MARGEN = 8;        ///< alrededor de la página y entre columnas [px]
constexpr int ANCHO_LISTA = 280; ///< en que cabe el rótulo más largo [px]

} // namespace

PaginaExportacion::PaginaExportacion(QWidget *padre) : QWidget(padre) {
  setObjectName(QStringLiteral("tsArchivosHorarios"));
  auto *contenido = new QWidget;
  auto *fila = new QHBoxLayout(contenido);
  fila->setContentsMargins(MARGEN, MARGEN, MARGEN, MARGEN);
  fila->setSpacing(2 * MARGEN);
  fila->addWidget(CrearMagnitudes(), 0, Qt::AlignTop);
  fila->addWidget(CrearLista());
  fila->addWidget(CrearOpciones(), 0, Qt::AlignTop);
  fila->addStretch(1);
  auto *desplazable = new QScrollArea;
  desplazable->setFrameShape(QFrame::NoFrame);
  desplazable->setWidgetResizable(true);
  desplazable->setWidget(contenido);
  auto *disposicion = new QHBoxLayout(this);
  disposicion->setContentsMargins(0, 0, 0, 0);
  disposicion->addWidget(desplazable);
}

QWidget *PaginaExportacion::CrearMagnitudes() {
  auto *columnas = new QWidget;
  auto *fila = new QHBoxLayout(columnas);
  fila->setContentsMargins(0, 0, 0, 0);
  auto *derecha = new QVBoxLayout;
  const auto crear = [this](const FichaMagnitud &ficha) { return CrearCasilla(ficha); };
  const QString sufijo = QStringLiteral("Exp");
  fila->addWidget(CrearGrupoMagnitudes(GrupoMagnitud::Basicas, sufijo, ORDEN_DE_EXPORTACION, crear), 0,
                  Qt::AlignTop);
  for (const GrupoMagnitud grupo : {GrupoMagnitud::Psicrometricas, GrupoMagnitud::Radiacion})
    derecha->addWidget(CrearGrupoMagnitudes(grupo, sufijo, ORDEN_DE_EXPORTACION, crear));
  fila->addLayout(derecha);
  return columnas;
}

QCheckBox *PaginaExportacion::CrearCasilla(const FichaMagnitud &ficha) {
  const QString rotulo = Texto(ficha.rotulo);
  auto *casilla = new QCheckBox(rotulo);
  casilla->setObjectName(Texto(ficha.casillaExportacion));
  connect(casilla, &QCheckBox::toggled, this,
          [this, rotulo](bool puesta) { emit casillaCambiada(rotulo, puesta); });
  return casilla;
}

QGroupBox *PaginaExportacion::CrearLista() {
  auto *caja = new QGroupBox(tr(" Variables seleccionadas  "));
  caja->setObjectName(QStringLiteral("gbVariablesSeleccionadas"));
  lbListaVariables_ = new QListWidget;
  lbListaVariables_->setObjectName(QStringLiteral("lbListaVariables"));
  lbListaVariables_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  lbListaVariables_->setDragDropMode(QAbstractItemView::InternalMove);
  lbListaVariables_->setMinimumWidth(ANCHO_LISTA);
  lbListaVariables_->setToolTip(tr("Las columnas del fichero, en su orden: arrástrelas para cambiarlo"));
  auto *pila = new QVBoxLayout(caja);
  pila->addWidget(lbListaVariables_, 1);
  auto *botones = new QHBoxLayout;
  QPushButton *subir = CrearBoton("btnSubir", tr("&Subir"), tr("Sube un lugar la variable elegida"));
  QPushButton *bajar = CrearBoton("btnBajar", tr("&Bajar"), tr("Baja un lugar la variable elegida"));
  connect(subir, &QPushButton::clicked, this, &PaginaExportacion::subirPedido);
  connect(bajar, &QPushButton::clicked, this, &PaginaExportacion::bajarPedido);
  botones->addWidget(subir);
  botones->addWidget(bajar);
  pila->addLayout(botones);
  return caja;
}

QWidget *PaginaExportacion::CrearOpciones() {
  auto *caja = new QGroupBox(tr(" Opciones fichero  "));
  caja->setObjectName(QStringLiteral("gbOpcionesFichero"));
  auto *pila = new QVBoxLayout(caja);
  cbCabecera_ = new QCheckBox(tr("Escribi&r cabecera"));
  cbCabecera_->setObjectName(QStringLiteral("cbCabecera"));
  cbCabecera_->setChecked(true);
  cbCabecera_->setToolTip(tr("Las dos líneas con la localidad y su sitio"));
  pila->addWidget(cbCabecera_);
  pila->addWidget(CrearSeparadores());
  QPushButton *escribir =
      CrearBoton("btnEscribir", tr("&Escribir"), tr("Pregunta dónde y escribe el fichero del período"));
  connect(escribir, &QPushButton::clicked, this, &PaginaExportacion::escribirPedido);
  pila->addWidget(escribir);
  return caja;
}

QGroupBox *PaginaExportacion::CrearSeparadores() {
  auto *caja = new QGroupBox(tr(" Separador   "));
  caja->setObjectName(QStringLiteral("gbSeparador"));
  auto *pila = new QVBoxLayout(caja);
  const auto anadir = [&](const char *nombre, const QString &texto, const char *separador) {
    auto *boton = new QRadioButton(texto);
    boton->setObjectName(QString::fromLatin1(nombre));
    pila->addWidget(boton);
    separadores_.emplace_back(boton, separador);
    return boton;
  };
  anadir("rbEspacio", tr("Espac&io"), " ");
  anadir("rbTabulador", tr("Tabulad&or"), "\t")->setChecked(true);
  anadir("rbComa", tr("&Coma"), ",");
  anadir("rbPuntoComa", tr("P&unto y coma"), ";");
  return caja;
}

void PaginaExportacion::Anadir(const QString &rotulo) {
  if (!lbListaVariables_->findItems(rotulo, Qt::MatchExactly).isEmpty()) return;
  auto *variable = new QListWidgetItem(rotulo, lbListaVariables_);
  // Soltar una encima de otra no dice en qué lugar va: sólo se sueltan entre dos.
  variable->setFlags(variable->flags() & ~Qt::ItemIsDropEnabled);
}

void PaginaExportacion::Quitar(const QString &rotulo) {
  qDeleteAll(lbListaVariables_->findItems(rotulo, Qt::MatchExactly));
}

void PaginaExportacion::Subir() { Mover(-1); }

void PaginaExportacion::Bajar() { Mover(1); }

void PaginaExportacion::Mover(int paso) {
  const int tope = paso < 0 ? 0 : lbListaVariables_->count() - 1;
  for (int i = 0; i < lbListaVariables_->count(); ++i) {
    if (i == tope || !lbListaVariables_->item(i)->isSelected()) continue;
    const QList<QListWidgetItem *> elegidas = lbListaVariables_->selectedItems();
    QListWidgetItem *movida = lbListaVariables_->takeItem(i);
    lbListaVariables_->insertItem(i + paso, movida);
    // Al sacarla, la lista elige por su cuenta otra: se repone lo que había.
    lbListaVariables_->setCurrentItem(movida, QItemSelectionModel::ClearAndSelect);
    for (QListWidgetItem *elegida : elegidas) elegida->setSelected(true);
    return;
  }
}

std::vector<std::string> PaginaExportacion::Rotulos() const {
  std::vector<std::string> rotulos;
  for (int i = 0; i < lbListaVariables_->count(); ++i)
    rotulos.push_back(lbListaVariables_->item(i)->text().toStdString());
  return rotulos;
}

std::string PaginaExportacion::Separador() const {
  for (const auto &[boton, separador] : separadores_)
    if (boton->isChecked()) return separador;
  return {};
}

bool PaginaExportacion::Cabecera() const { return cbCabecera_->isChecked(); }

} // namespace tesmo
