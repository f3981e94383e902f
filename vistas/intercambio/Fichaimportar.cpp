#include "vistas/intercambio/Fichaimportar.h"

#include "intercambio/Aniodefichero.h"
#include "intercambio/comun/Aniocanonico.h"
#include "intercambio/comun/Perfilmensual.h"
#include "psicro/Atmosfera.h"
#include "vistas/comun/Casillanumero.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/intercambio/Dibujoreloj.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tesmo {

namespace {

/// Medio día [min]: con un huso equivocado en su cabecera, un fichero puede ir desfasado horas.
constexpr double DESFASE_MAXIMO = 720.0;
constexpr double PASO_DESFASE = 5.0, PASO_HUSO = 0.5;
constexpr int CIFRAS_DESFASE = 1;
constexpr int CIFRAS_HUSO = 2; ///< los hay de tres cuartos de hora

CasillaReal *CrearCasilla(const QString &nombre, double maximo, int cifras, double paso,
                          const QString &sufijo) {
  auto *casilla = new CasillaReal;
  casilla->setObjectName(nombre);
  casilla->setRange(-maximo, maximo);
  casilla->setSingleStep(paso);
  casilla->setDecimals(cifras);
  casilla->setSuffix(sufijo);
  return casilla;
}

/// Fuera de la hora oficial el huso no es parte del reloj: sólo va al fichero que se escribe.
bool MismoReloj(const RelojFichero &uno, const RelojFichero &otro) {
  return uno.tiempo == otro.tiempo && uno.desfaseMin == otro.desfaseMin &&
         (uno.tiempo != TiempoEtiqueta::OficialEstandar || uno.husoHoras == otro.husoHoras);
}

QString DiaDelAnioTexto(std::size_t dia) {
  const std::size_t mes = MesDe(dia);
  return QStringLiteral("%1 de %2")
      .arg(QString::number(dia - PrimerDiaDe(mes) + 1), Texto(NombreMes(static_cast<int>(mes) + 1)));
}

} // namespace

FichaImportar::FichaImportar(const std::vector<std::string> &provincias, QWidget *padre) : QWidget(padre) {
  setObjectName(QStringLiteral("fichaImportar"));
  auto *pila = new QVBoxLayout(this);
  pila->setContentsMargins(0, 0, 0, 0);
  pila->addWidget(CrearDatos(provincias));
  pila->addWidget(CrearReloj(), 1);
  Poner(nullptr);
}

QWidget *FichaImportar::CrearDatos(const std::vector<std::string> &provincias) {
  auto *grupo = new QGroupBox(tr("Localidad"));
  auto *forma = new QFormLayout(grupo);
  edLocalidad_ = new QLineEdit;
  edLocalidad_->setObjectName(QStringLiteral("edLocalidad"));
  cbProvincia_ = new QComboBox;
  cbProvincia_->setObjectName(QStringLiteral("cbProvincia"));
  cbProvincia_->setEditable(true);
  for (const std::string &provincia : provincias) cbProvincia_->addItem(Texto(provincia));
  btnTodos_ = new QPushButton(tr("Para todos"));
  btnTodos_->setObjectName(QStringLiteral("btnProvinciaTodos"));
  btnTodos_->setAutoDefault(false); // Intro en el nombre no es para todos
  auto *fila = new QHBoxLayout;
  fila->addWidget(cbProvincia_, 1);
  fila->addWidget(btnTodos_);
  cbZona_ = new QComboBox;
  cbZona_->setObjectName(QStringLiteral("cbZona"));
  cbZona_->addItem(QString(), QString());
  cbZona_->addItem(tr("Interior"), QString::fromLatin1(ZONA_INTERIOR));
  cbZona_->addItem(tr("Costa"), QString::fromLatin1(ZONA_COSTA));
  csAltitud_ = new CasillaOpcional(ALTITUD_MINIMA, ALTITUD_MAXIMA, 1, tr("la del fichero"));
  csAltitud_->setObjectName(QStringLiteral("csAltitudSitio"));
  csAltitud_->setSuffix(tr(" m"));
  csAltitud_->setToolTip(tr("Fija la presión y las humedades. Vacía: la que diga el fichero."));
  cbReemplazar_ = new QCheckBox(tr("Reemplazar la localidad si ya existe"));
  cbReemplazar_->setObjectName(QStringLiteral("cbReemplazar"));
  cbRellenar_ = new QCheckBox(tr("Rellenar los huecos largos con los días vecinos"));
  cbRellenar_->setObjectName(QStringLiteral("cbRellenar"));
  forma->addRow(tr("&Nombre"), edLocalidad_);
  auto *rotuloProvincia = new QLabel(tr("&Provincia"));
  rotuloProvincia->setBuddy(cbProvincia_);
  forma->addRow(rotuloProvincia, fila);
  forma->addRow(tr("&Zona"), cbZona_);
  forma->addRow(tr("Al&titud"), csAltitud_);
  forma->addRow(cbReemplazar_);
  forma->addRow(cbRellenar_);
  connect(edLocalidad_, &QLineEdit::textChanged, this, &FichaImportar::LeerDatos);
  connect(cbProvincia_, &QComboBox::currentTextChanged, this, &FichaImportar::LeerDatos);
  connect(cbZona_, &QComboBox::currentIndexChanged, this, &FichaImportar::LeerDatos);
  connect(csAltitud_, &QDoubleSpinBox::valueChanged, this, &FichaImportar::LeerDatos);
  connect(cbReemplazar_, &QCheckBox::toggled, this, &FichaImportar::LeerDatos);
  connect(cbRellenar_, &QCheckBox::toggled, this, &FichaImportar::LeerDatos);
  connect(btnTodos_, &QPushButton::clicked, this, &FichaImportar::provinciaParaTodos);
  return grupo;
}

QWidget *FichaImportar::CrearReloj() {
  auto *grupo = new QGroupBox(tr("Reloj"));
  auto *pila = new QVBoxLayout(grupo);
  auto *fila = new QHBoxLayout;
  cbReloj_ = new QComboBox;
  cbReloj_->setObjectName(QStringLiteral("cbReloj"));
  cbReloj_->addItems({tr("El que dicen los datos"), tr("El que declara el fichero"), tr("Hora solar"),
                      tr("Hora oficial"), tr("UTC")});
  csDesfase_ =
      CrearCasilla(QStringLiteral("csDesfase"), DESFASE_MAXIMO, CIFRAS_DESFASE, PASO_DESFASE, tr(" min"));
  csDesfase_->setToolTip(
      tr("De la etiqueta al centro de la hora que cubre: −30 si la etiqueta es su final, 0 si "
         "es su centro."));
  csHuso_ = CrearCasilla(QStringLiteral("csHuso"), HUSO_MAXIMO, CIFRAS_HUSO, PASO_HUSO, tr(" h"));
  csHuso_->setPrefix(tr("UTC "));
  csHuso_->setToolTip(tr("Adelanto de la hora oficial de invierno sobre UTC; al este, positivo."));
  fila->addWidget(cbReloj_, 1);
  fila->addWidget(csDesfase_);
  fila->addWidget(csHuso_);
  dibujo_ = new DibujoReloj;
  pila->addLayout(fila);
  pila->addWidget(dibujo_, 1);
  connect(cbReloj_, &QComboBox::currentIndexChanged, this, &FichaImportar::ElegirReloj);
  connect(csDesfase_, &QDoubleSpinBox::valueChanged, this,
          [this](double minutos) { PonReloj(&RelojFichero::desfaseMin, minutos); });
  connect(csHuso_, &QDoubleSpinBox::valueChanged, this,
          [this](double horas) { PonReloj(&RelojFichero::husoHoras, horas); });
  return grupo;
}

void FichaImportar::Poner(FicheroImportable *fichero) {
  fichero_ = fichero;
  setEnabled(fichero != nullptr && fichero->legible);
  ensenando_ = true;
  Ensenar();
  ensenando_ = false;
}

void FichaImportar::OfrecerProvincia(const QString &provincia) {
  if (cbProvincia_->findText(provincia, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0)
    cbProvincia_->addItem(provincia);
}

void FichaImportar::Ensenar() {
  static const FicheroImportable NINGUNO;
  const FicheroImportable &fichero = fichero_ == nullptr ? NINGUNO : *fichero_;
  edLocalidad_->setText(Texto(fichero.peticion.nombre));
  cbProvincia_->setCurrentText(Texto(fichero.peticion.provincia));
  cbZona_->setItemText(0, fichero.peticion.zonaPropuesta == ZONA_COSTA
                              ? tr("La que ya tuviera; si no, costa")
                              : tr("La que ya tuviera; si no, interior"));
  cbZona_->setCurrentIndex(std::max(0, cbZona_->findData(Texto(fichero.peticion.zona))));
  csAltitud_->PonValor(fichero.altitud);
  cbReemplazar_->setChecked(fichero.peticion.reemplazar);
  cbRellenar_->setChecked(fichero.huecosLargos == HuecosLargos::RellenarVecinos);
  const VeredictoReloj &veredicto = fichero.materia.reloj;
  if (MismoReloj(fichero.reloj, tesmo::ElegirReloj(veredicto)))
    cbReloj_->setCurrentIndex(DeLosDatos);
  else if (MismoReloj(fichero.reloj, veredicto.declarado.reloj))
    cbReloj_->setCurrentIndex(Declarado);
  else
    cbReloj_->setCurrentIndex(Solar + static_cast<int>(fichero.reloj.tiempo));
  EnsenarReloj();
}

void FichaImportar::EnsenarReloj() {
  const RelojFichero reloj = fichero_ == nullptr ? RelojFichero{} : fichero_->reloj;
  const bool propio = cbReloj_->currentIndex() >= Solar;
  ensenando_ = true;
  csDesfase_->setValue(reloj.desfaseMin);
  csHuso_->setValue(reloj.husoHoras);
  ensenando_ = false;
  csDesfase_->setEnabled(propio);
  csHuso_->setEnabled(propio || reloj.tiempo != TiempoEtiqueta::OficialEstandar);
  Dibujar();
}

void FichaImportar::Dibujar() {
  const auto dia = fichero_ == nullptr ? std::nullopt : DiaMasClaro(fichero_->materia.anio);
  if (!dia) return dibujo_->Vaciar(tr("No hay radiación con que comprobar el reloj."));
  const AnioCanonico &anio = fichero_->materia.anio;
  const RelojFichero &declarado = fichero_->materia.reloj.declarado.reloj;
  dibujo_->Poner(DiaDelAnioTexto(*dia), CursoDelDia(anio, declarado, *dia), Texto(TextoReloj(declarado)),
                 CursoDelDia(anio, fichero_->reloj, *dia), Texto(TextoReloj(fichero_->reloj)));
}

void FichaImportar::LeerDatos() {
  if (ensenando_ || fichero_ == nullptr) return;
  PeticionImportacion &peticion = fichero_->peticion;
  peticion.nombre = edLocalidad_->text().trimmed().toStdString();
  peticion.provincia = cbProvincia_->currentText().trimmed().toStdString();
  peticion.zona = cbZona_->currentData().toString().toStdString();
  peticion.reemplazar = cbReemplazar_->isChecked();
  fichero_->altitud = csAltitud_->Valor();
  fichero_->huecosLargos = cbRellenar_->isChecked() ? HuecosLargos::RellenarVecinos : HuecosLargos::Rechazar;
  emit cambiada();
}

void FichaImportar::ElegirReloj() {
  if (ensenando_ || fichero_ == nullptr) return;
  const VeredictoReloj &veredicto = fichero_->materia.reloj;
  const double huso = fichero_->reloj.husoHoras;
  switch (cbReloj_->currentIndex()) {
  case DeLosDatos:
    fichero_->reloj = tesmo::ElegirReloj(veredicto);
    break;
  case Declarado:
    fichero_->reloj = veredicto.declarado.reloj;
    break;
  default:
    const auto tiempo = static_cast<TiempoEtiqueta>(cbReloj_->currentIndex() - Solar);
    fichero_->reloj = tesmo::ElegirReloj(veredicto, {.tiempo = tiempo});
  }
  if (fichero_->reloj.tiempo != TiempoEtiqueta::OficialEstandar) fichero_->reloj.husoHoras = huso;
  EnsenarReloj();
  emit cambiada();
}

/// Sólo el número que se cambió: la otra casilla puede enseñar el suyo redondeado.
void FichaImportar::PonReloj(double RelojFichero::*numero, double valor) {
  if (ensenando_ || fichero_ == nullptr) return;
  fichero_->reloj.*numero = valor;
  Dibujar();
  emit cambiada();
}

} // namespace tesmo
