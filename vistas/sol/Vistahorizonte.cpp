// El horizonte de la vista de la posición solar: sus ficheros y su edición.

#include "core/Ficheros.h"
#include "core/Formato.h"
#include "core/Mensajes.h"
#include "solar/Influenciahorizonte.h"
#include "solar/Posicionsolar.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/sol/Dialogohorizonte.h"
#include "vistas/sol/Dialogosperfil.h"
#include "vistas/sol/Graficosolar.h"
#include "vistas/sol/Paginaposicionsolar.h"
#include "vistas/sol/Vistaposicionsolar.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr std::string_view PATRON_PARTE = "0.0";
constexpr double CIEN = 100.0;

QString Porcentaje(double parte) { return Texto(FormatearPatron(parte * CIEN, PATRON_PARTE)); }

/// Los puntos de un perfil leído que caen fuera de la vuelta, dichos; vacío si no los hay.
QString LosDeFuera(const PerfilHorizonte &perfil) {
  const auto fuera = std::count_if(perfil.X().begin(), perfil.X().end(), [](float acimut) {
    return !(std::fabs(acimut) <= EdicionHorizonte::ACIMUT_MAXIMO);
  });
  return fuera == 0
             ? QString()
             : QObject::tr(
                   " Fuera de -180 a 180: %1; de ellos sólo cuenta el tramo que los une a los de dentro.")
                   .arg(fuera);
}

} // namespace

void Vistaposicionsolar::btnAbrirPerfilClick() {
  PedirAbrirPerfil(pagina_, avisos_, [this](const std::string &ruta) { AbrirPerfil(ruta); });
}

void Vistaposicionsolar::btnGuardarPerfilClick() {
  PedirGuardarPerfil(pagina_, avisos_, [this](const std::string &ruta, FormatoHorizonte formato) {
    GuardarPerfil(ruta, formato);
  });
}

void Vistaposicionsolar::AbrirPerfil(const std::string &ruta) {
  FalloLectura fallo;
  std::optional<HorizonteLeido> leido = LeerHorizonteDeFichero(ruta, fallo);
  if (!leido) {
    estado_(Texto(DescribirFallo(ruta, fallo)));
    DameMensajes().Mensaje(MENSAJE_FICHERO, ruta);
    return;
  }
  if (!EsPropio(leido->formato)) {
    Previsualizar(*std::move(leido), ruta);
    return;
  }
  CopiarHorizonte(leido->perfil, *sol_);
  horizonte_.Tomar(leido->perfil);
  Editado(true);
  estado_(QObject::tr("Abierto %1: %2 puntos.").arg(Texto(ruta), QString::number(leido->perfil.Tamano())) +
          LosDeFuera(leido->perfil));
}

void Vistaposicionsolar::Previsualizar(HorizonteLeido leido, const std::string &ruta) {
  float latitud = 0.0F;
  sol_->DameReal("Latitud", latitud);
  auto *dialogo =
      new DialogoHorizonte(std::move(leido), QFileInfo(Texto(ruta)).fileName(), latitud, &pagina_);
  dialogo->setAttribute(Qt::WA_DeleteOnClose);
  QObject::connect(dialogo, &QDialog::accepted, &avisos_, [this, dialogo] {
    horizonte_.Proponer(dialogo->Perfil());
    Editado(true);
  });
  dialogo->open();
}

void Vistaposicionsolar::GuardarPerfil(const std::string &ruta, FormatoHorizonte formato) {
  horizonte_.CopiarEn(*sol_);
  const bool entero = formato != FormatoHorizonte::Nativo;
  const bool guardado =
      entero ? EscribirFicheroEntero(RutaDesdeTexto(ruta), TextoDeHorizonte(sol_->Horizonte(), formato))
             : sol_->GuardarHorizonte(ruta);
  if (!guardado) {
    DameMensajes().Mensaje(MENSAJE_FICHERO, ruta);
    return;
  }
  estado_(
      entero || sol_->Horizonte().Tamano() < 2
          ? QObject::tr("Guardado %1").arg(Texto(ruta))
          : QObject::tr("Guardado %1 con uno de cada dos puntos; «Perfil completo (*.csv)» los guarda todos.")
                .arg(Texto(ruta)));
}

void Vistaposicionsolar::EmpezarHorizonte(const SitioRaton &sitio) {
  pagina_.EnsenarGrafico();
  grafico_->setFocus();
  Editado(Soltar(sitio));
}

/// La segunda vez que se suelta un doble clic sólo acaba un arrastre: no pone otro punto encima del primero.
bool Vistaposicionsolar::Soltar(const SitioRaton &sitio) {
  return horizonte_.SoltarIzquierdo(sitio.acimut, sitio.altura, sitio.mayusculas || sitio.repetido);
}

void Vistaposicionsolar::Editado(bool cambio) {
  if (!cambio) return;
  RedibujarHorizonte();
  EnsenarDibujo();
}

void Vistaposicionsolar::RedibujarHorizonte() {
  contenido_.horizonte = horizonte_.Serie();
  contenido_.elegido = horizonte_.Elegido();
  pagina_.PonPasos(horizonte_.PuedeDeshacer(), horizonte_.PuedeRehacer());
  PonInfluencia();
}

void Vistaposicionsolar::PonInfluencia() {
  const PerfilHorizonte perfil = horizonte_.Perfil();
  float latitud = 0.0F;
  sol_->DameReal("Latitud", latitud);
  const HorasDeSolDelAnio horas = HorasDeSolPerdidas(perfil, latitud);
  const double parte = horas.deSol > 0 ? static_cast<double>(horas.perdidas) / horas.deSol : 0.0;
  pagina_.PonInfluencia(
      QObject::tr("Cielo a la vista: %1 %").arg(Porcentaje(ParteDeCielo(perfil))),
      QObject::tr("Horas de sol que tapa al año: %1 de %2 (%3 %)")
          .arg(QString::number(horas.perdidas), QString::number(horas.deSol), Porcentaje(parte)));
}

} // namespace tesmo
