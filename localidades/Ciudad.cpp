#include "localidades/Ciudad.h"

#include "core/Ficheros.h"
#include "core/Mensajes.h"
#include "core/Rutas.h"

#include <algorithm>
#include <utility>

namespace tesmo {

namespace {

constexpr const char *FICHERO_LOCALIDADES = "LocalidadesCC";

std::shared_ptr<BaseDeLocalidades> &Compartida() {
  static std::shared_ptr<BaseDeLocalidades> base;
  return base;
}

AvisoLocalidades &Aviso() {
  static AvisoLocalidades aviso;
  return aviso;
}

void AnadirSiFalta(std::vector<std::string> &lista, const std::string &texto) {
  if (std::find(lista.begin(), lista.end(), texto) == lista.end()) lista.push_back(texto);
}

} // namespace

BaseDeLocalidades::BaseDeLocalidades() : ObjetoBase("Localidades") {
  const std::string ruta = DameConfiguracion().RutaMeteo(FICHERO_LOCALIDADES);
  const std::optional<std::string> contenido = LeerFicheroEntero(RutaDesdeTexto(ruta));
  if (!contenido) {
    DameMensajes().Mensaje(MENSAJE_FICHERO, "Meteorológico"); // la palabra y no la ruta: se conserva
    return;
  }
  registros_ = LeerLocalidades(*contenido, FICHERO_LOCALIDADES, Aviso());
  cargada_ = true;
}

std::string BaseDeLocalidades::DameTexto(std::string_view clave) const {
  return clave == "Ciudad" ? actual_ : DameTextoDe(actual_, clave);
}

void BaseDeLocalidades::PonTexto(std::string_view clave, const std::string &texto) {
  if (clave == "Ciudad") actual_ = texto;
}

std::string BaseDeLocalidades::DameTextoDe(std::string_view localidad, std::string_view nombre) const {
  const ObjetoCiudad *registro = BuscarLocalidad(localidad);
  return registro != nullptr ? registro->DameTexto(nombre) : std::string();
}

void BaseDeLocalidades::ListaDe(std::string_view clave, std::vector<std::string> &lista) const {
  if (clave != "Provincias") return;
  for (const auto &registro : registros_) AnadirSiFalta(lista, registro->provincia);
}

void BaseDeLocalidades::ListaDe(std::string_view clave, std::string_view provincia,
                                std::vector<std::string> &lista) const {
  if (clave != "Localidades") return;
  for (const auto &registro : registros_)
    if (registro->provincia == provincia) AnadirSiFalta(lista, registro->localidad);
}

const ObjetoCiudad *BaseDeLocalidades::BuscarLocalidad(std::string_view nombre) const {
  for (const auto &registro : registros_)
    if (registro->localidad == nombre) return registro.get();
  return nullptr;
}

std::shared_ptr<BaseDeLocalidades> CompartirBaseDeLocalidades() {
  if (!Compartida()) Compartida() = std::make_shared<BaseDeLocalidades>();
  return Compartida();
}

BaseDeLocalidades &DameBaseDeLocalidades() { return *CompartirBaseDeLocalidades(); }

void LiberarBaseDeLocalidades() { Compartida().reset(); }

AvisoLocalidades PonAvisoLocalidades(AvisoLocalidades aviso) {
  return std::exchange(Aviso(), std::move(aviso));
}

} // namespace tesmo
