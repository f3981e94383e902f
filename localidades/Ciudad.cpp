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

void BaseDeLocalidades::PonRegistro(const ObjetoCiudad &registro) {
  const auto deSuNombre = [&](const auto &otro) { return otro->localidad == registro.localidad; };
  const auto deSuProvincia = [&](const auto &otro) { return otro->provincia == registro.provincia; };
  const auto anterior = std::find_if(registros_.begin(), registros_.end(), deSuNombre);
  ObjetoCiudad *puesto = nullptr;
  if (anterior != registros_.end() && deSuProvincia(*anterior)) {
    puesto = anterior->get();
    *puesto = registro;
  } else {
    if (anterior != registros_.end()) registros_.erase(anterior);
    const auto ultimo = std::find_if(registros_.rbegin(), registros_.rend(), deSuProvincia);
    const auto sitio = ultimo == registros_.rend() ? registros_.end() : ultimo.base();
    puesto = registros_.insert(sitio, std::make_unique<ObjetoCiudad>(registro))->get();
  }
  cargada_ = true;
  Avisar(*puesto);
}

std::shared_ptr<void> BaseDeLocalidades::AlCambiar(std::function<void(const ObjetoCiudad &)> aviso) {
  auto guardado = std::make_shared<AvisoDeAlta>(std::move(aviso));
  std::erase_if(avisos_, [](const auto &otro) { return otro.expired(); });
  avisos_.push_back(guardado);
  return guardado;
}

void BaseDeLocalidades::Avisar(const ObjetoCiudad &registro) const {
  const auto avisos = avisos_; // quien recibe el aviso puede apuntarse o borrarse
  for (const auto &debil : avisos)
    if (const auto aviso = debil.lock()) (*aviso)(registro);
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
