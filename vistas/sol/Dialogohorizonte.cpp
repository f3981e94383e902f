#include "vistas/sol/Dialogohorizonte.h"

#include "solar/Giroshorizonte.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/sol/Graficosolar.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tesmo {

namespace {

constexpr QSize TAMANO(860, 520); ///< [px]
constexpr int CUARTOS_DE_VUELTA = 4;
constexpr int GRADOS_DE_UN_CUARTO = 90;
/// Día cuyos caminos se ven debajo: en los solsticios y los equinoccios.
constexpr int DIA_DE_REFERENCIA = 21;

QString Explicacion(const HorizonteLeido &leido, const QString &fichero) {
  const QString origen = leido.origenSupuesto
                             ? QObject::tr("El fichero %1.").arg(Texto(QueSeSupuso(leido)))
                             : QObject::tr("El fichero dice desde dónde cuenta los acimutes.");
  return QObject::tr("%1: %2 puntos. %3 Compare el perfil con el paisaje: si no coincide, gírelo o "
                     "refléjelo.")
      .arg(fichero, QString::number(leido.perfil.Tamano()), origen);
}

} // namespace

DialogoHorizonte::DialogoHorizonte(HorizonteLeido leido, const QString &fichero, float latitud,
                                   QWidget *padre)
    : QDialog(padre), leido_(std::move(leido)) {
  setObjectName(QStringLiteral("dlgHorizonte"));
  setWindowTitle(tr("Comprobar el horizonte"));
  resize(TAMANO);
  PonCurvas(contenido_, CurvasDeMeses(latitud, DIA_DE_REFERENCIA));
  auto *explicacion = new QLabel(Explicacion(leido_, fichero));
  explicacion->setObjectName(QStringLiteral("lbExplicacion"));
  explicacion->setWordWrap(true);
  grafico_ = new GraficoSolar;
  grafico_->setObjectName(QStringLiteral("graPrevia"));
  auto *botones = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  botones->button(QDialogButtonBox::Ok)->setText(tr("Aceptar este perfil"));
  botones->button(QDialogButtonBox::Cancel)->setText(tr("Cancelar"));
  connect(botones, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto *disposicion = new QVBoxLayout(this);
  disposicion->addWidget(explicacion);
  disposicion->addWidget(grafico_, 1);
  disposicion->addWidget(CrearOrdenes());
  disposicion->addWidget(botones);
  grafico_->PonContenido(&contenido_);
  Redibujar();
}

QWidget *DialogoHorizonte::CrearOrdenes() {
  auto *fila = new QWidget;
  auto *disposicion = new QHBoxLayout(fila);
  disposicion->setContentsMargins(0, 0, 0, 0);
  const auto crear = [&](const char *nombre, const QString &texto, int cuartos) {
    auto *boton = new QPushButton(texto);
    boton->setObjectName(QString::fromLatin1(nombre));
    boton->setAutoDefault(false);
    connect(boton, &QPushButton::clicked, this, [this, cuartos] { Girar(cuartos); });
    disposicion->addWidget(boton);
  };
  crear("btnGirarEste", tr("Girar 90º al este"), -1);
  crear("btnGirarOeste", tr("Girar 90º al oeste"), 1);
  cbEspejo_ = new QCheckBox(tr("Reflejar: este por oeste"));
  cbEspejo_->setObjectName(QStringLiteral("cbEspejo"));
  connect(cbEspejo_, &QCheckBox::toggled, this, &DialogoHorizonte::Reflejar);
  disposicion->addWidget(cbEspejo_);
  lbGiro_ = new QLabel;
  lbGiro_->setObjectName(QStringLiteral("lbGiro"));
  disposicion->addWidget(lbGiro_, 1);
  return fila;
}

void DialogoHorizonte::Girar(int cuartos) {
  cuartos_ = (cuartos_ + cuartos + CUARTOS_DE_VUELTA) % CUARTOS_DE_VUELTA;
  Redibujar();
}

/// Se refleja lo que se está viendo: reflejar lo girado es girar al revés lo reflejado.
void DialogoHorizonte::Reflejar() {
  cuartos_ = (CUARTOS_DE_VUELTA - cuartos_) % CUARTOS_DE_VUELTA;
  Redibujar();
}

PerfilHorizonte DialogoHorizonte::Perfil() const {
  PerfilHorizonte perfil = leido_.perfil;
  if (cbEspejo_->isChecked()) perfil = ReflejarPerfil(perfil);
  if (cuartos_ != 0) perfil = GirarPerfil(perfil, cuartos_);
  return CerrarVuelta(perfil);
}

void DialogoHorizonte::Redibujar() {
  EdicionHorizonte serie;
  serie.Tomar(Perfil());
  contenido_.horizonte = serie.Serie();
  grafico_->Redibujar();
  lbGiro_->setText(cuartos_ == 0 ? QString() : tr("Girado %1º al oeste").arg(cuartos_ * GRADOS_DE_UN_CUARTO));
}

} // namespace tesmo
