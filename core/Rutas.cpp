#include "core/Rutas.h"

#include "core/Ficheros.h"
#include "core/Sistema.h"

#include <filesystem>
#include <memory>
#include <utility>

namespace tesmo {

namespace fs = std::filesystem;

namespace {

/// Claves de "config.ini" en su orden de lectura; el blanco final forma parte de la clave.
constexpr std::array<std::string_view, 11> CLAVES{"PER ", "MET ", "TMP ", "RES ", "LIB ", "EXE ",
                                                  "DAT",  "IMG",  "FOT",  "DOC",  "BIN"};
enum Directorio : std::size_t { PERFILES = 0, METEO = 1, RESULTADOS = 3, PROGRAMA = 5 };

std::string ConSeparadorFinal(std::string base) {
  if (base.empty()) base = ".";
  if (base.back() != '/' && base.back() != static_cast<char>(fs::path::preferred_separator)) base += '/';
  return base;
}

std::unique_ptr<ServicioConfiguracion> &Servicio() {
  static std::unique_ptr<ServicioConfiguracion> servicio;
  return servicio;
}

} // namespace

ServicioConfiguracion::ServicioConfiguracion(const std::string &base) {
  std::error_code error;
  const fs::path absoluta = fs::absolute(RutaDesdeTexto(base), error);
  base_ = ConSeparadorFinal(error ? base : TextoDeRuta(absoluta));
  fs::current_path(RutaDesdeTexto(base_), error);
  const fs::path ini = BuscarSinMayusculas(RutaDesdeTexto(base_ + "config.ini"));
  if (auto lector = LeerFicheroDeClaves(ini)) {
    lector_ = std::move(*lector);
    hayFichero_ = true;
  }
  for (std::size_t i = 0; i < NUMERO_CLAVES; ++i) lector_.LeerClave(CLAVES[i], directorios_[i]);
}

int ServicioConfiguracion::LeerClave(std::string_view clave, std::string &destino) const {
  return lector_.LeerClave(clave, destino);
}

int ServicioConfiguracion::LeerClaveReal(std::string_view clave, float &destino) const {
  return lector_.LeerClaveReal(clave, destino);
}

const std::string &ServicioConfiguracion::Componer(std::size_t directorio, std::string_view nombre) {
  const std::string ruta =
      base_ + NormalizarSeparadores(directorios_[directorio]) + NormalizarSeparadores(nombre);
  bufer_ = TextoDeRuta(BuscarSinMayusculas(RutaDesdeTexto(ruta)));
  return bufer_;
}

const std::string &ServicioConfiguracion::RutaPerfiles(std::string_view n) { return Componer(PERFILES, n); }
const std::string &ServicioConfiguracion::RutaPrograma(std::string_view n) { return Componer(PROGRAMA, n); }
const std::string &ServicioConfiguracion::RutaMeteo(std::string_view n) { return Componer(METEO, n); }
const std::string &ServicioConfiguracion::RutaResultados(std::string_view n) {
  return Componer(RESULTADOS, n);
}

ServicioConfiguracion &DameConfiguracion() {
  if (!Servicio()) {
    const fs::path ejecutable = RutaEjecutable();
    IniciarConfiguracion(TextoDeRuta(ejecutable.parent_path()));
  }
  return *Servicio();
}

void IniciarConfiguracion(const std::string &base) {
  Servicio() = std::make_unique<ServicioConfiguracion>(base);
}

void LiberarConfiguracion() { Servicio().reset(); }

} // namespace tesmo
