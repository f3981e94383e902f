#include "vistas/extremos/Ajustesextremos.h"

#include "core/Mensajes.h"
#include "core/Varios.h"
#include "extremos/Diasextremos.h"
#include "vistas/comun/Textoqt.h"

#include <array>
#include <string>

namespace tesmo {

namespace {

using Estacion = PaginaDiasExtremos::Estacion;
using Ajuste = PaginaDiasExtremos::Ajuste;

/// Un ajuste con rótulo: la clave con que el motor lo conoce y su sitio en la página.
struct Clave {
  const char *nombre;
  Ajuste ajuste;
};
constexpr std::array<Clave, 6> CLAVES{{{"Provincia", Ajuste::Provincia},
                                       {"Localidad", Ajuste::Localidad},
                                       {"Mes calefacción", Ajuste::MesCal},
                                       {"Mes refrigeración", Ajuste::MesRef},
                                       {"Percentil calefacción", Ajuste::PerCal},
                                       {"Percentil refrigeración", Ajuste::PerRef}}};

/// Los nombres de los ajustes de una estación.
struct ClavesEstacion {
  Estacion estacion;
  const char *mes;
  const char *percentil;
  const char *temporada;
};
constexpr std::array<ClavesEstacion, 2> ESTACIONES{
    {{Estacion::Calefaccion, "Mes calefacción", "Percentil calefacción", "Temporada calefacción"},
     {Estacion::Refrigeracion, "Mes refrigeración", "Percentil refrigeración", "Temporada refrigeración"}}};

/// Los mismos límites con que el objeto lo admite.
bool EsPercentil(const std::string &texto) {
  constexpr float MAXIMO = 100.0F;
  bool correcto = false;
  const float valor = TextoARealOCero(texto, correcto);
  return correcto && valor >= 0.0F && valor <= MAXIMO;
}

} // namespace

void AjustesExtremos::Mostrar(const DiasExtremos &motor) {
  for (const ClavesEstacion &claves : ESTACIONES) {
    std::int32_t mes = 1;
    motor.DameEntero(claves.mes, mes);
    MesesDeTemporada temporada{};
    motor.DameTemporada(claves.temporada, temporada);
    pagina_.PonMes(claves.estacion, mes);
    pagina_.PonPercentil(claves.estacion, motor.DameTexto(claves.percentil));
    pagina_.PonTemporada(claves.estacion, temporada);
  }
  for (const auto &[nombre, ajuste] : CLAVES) {
    std::int32_t estado = ENTRADA_BLANCO;
    motor.DameEstado(nombre, estado);
    pagina_.PonColor(ajuste, Color(static_cast<std::uint32_t>(estado)));
  }
}

void AjustesExtremos::Tomar(DiasExtremos &motor) const {
  for (const ClavesEstacion &claves : ESTACIONES)
    motor.PonTexto(claves.percentil, pagina_.Percentil(claves.estacion));
  TomarCallando(motor);
}

void AjustesExtremos::TomarCallando(DiasExtremos &motor) const {
  for (const ClavesEstacion &claves : ESTACIONES) {
    const std::string percentil = pagina_.Percentil(claves.estacion);
    if (EsPercentil(percentil)) motor.PonTexto(claves.percentil, percentil);
    motor.PonTemporada(claves.temporada, pagina_.Temporada(claves.estacion));
    motor.PonTexto(claves.mes, std::to_string(pagina_.Mes(claves.estacion)));
  }
}

void AjustesExtremos::AvisarPercentiles() const {
  for (const auto &[estacion, ajuste] : {std::pair{Estacion::Calefaccion, Ajuste::PerCal},
                                         std::pair{Estacion::Refrigeracion, Ajuste::PerRef}}) {
    if (!RealTecleado(pagina_.Percentil(estacion)))
      DameMensajes().Mensaje(MENSAJE_VALOR_INCORRECTO, pagina_.Rotulo(ajuste));
  }
}

std::optional<Estacion> AjustesExtremos::TemporadaVacia() const {
  for (const ClavesEstacion &claves : ESTACIONES)
    if (!DiasExtremos::TieneMeses(pagina_.Temporada(claves.estacion))) return claves.estacion;
  return std::nullopt;
}

PeticionDias AjustesExtremos::Peticion(const DiasExtremos &motor) {
  PeticionDias peticion{motor.DameTexto("Localidad"), motor.DameTexto("Provincia"), {}, {}};
  const auto leer = [&](const ClavesEstacion &claves, extremos::AjustesEstacion &ajustes) {
    std::int32_t mes = 1;
    motor.DameEntero(claves.mes, mes);
    ajustes.mes = mes;
    motor.DameReal(claves.percentil, ajustes.percentil);
    motor.DameTemporada(claves.temporada, ajustes.temporada);
  };
  leer(ESTACIONES[0], peticion.calefaccion);
  leer(ESTACIONES[1], peticion.refrigeracion);
  return peticion;
}

} // namespace tesmo
