#include "core/Ficheros.h"

#include "core/Codificacion.h"
#include "core/Sistema.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <system_error>

namespace tesmo {

namespace fs = std::filesystem;

fs::path RutaDesdeTexto(std::string_view texto) { return {std::u8string(texto.begin(), texto.end())}; }

std::string TextoDeRuta(const fs::path &ruta) {
  const std::u8string texto = ruta.u8string();
  return {texto.begin(), texto.end()};
}

std::string NormalizarSeparadores(std::string_view texto) {
  std::string normal(texto);
  std::replace(normal.begin(), normal.end(), '\\', '/');
  return normal;
}

namespace {

/// La entrada de @p directorio cuyo nombre coincide con @p nombre sin distinguir mayúsculas; la primera por
/// orden alfabético si hay varias, para que el resultado no dependa del disco.
fs::path EntradaParecida(const fs::path &directorio, const fs::path &nombre) {
  const std::string buscado = PlegarMinusculas(TextoDeRuta(nombre));
  fs::path hallada;
  std::error_code error;
  for (fs::directory_iterator it(directorio.empty() ? fs::path(".") : directorio, error), fin;
       !error && it != fin; it.increment(error)) {
    const fs::path candidata = it->path().filename();
    if (PlegarMinusculas(TextoDeRuta(candidata)) != buscado) continue;
    if (hallada.empty() || candidata < hallada) hallada = candidata;
  }
  return hallada.empty() ? nombre : hallada;
}

} // namespace

fs::path BuscarSinMayusculas(const fs::path &ruta) {
  std::error_code error;
  if (fs::exists(ruta, error)) return ruta;
  fs::path hallada = ruta.root_path();
  for (const fs::path &componente : ruta.relative_path()) {
    const bool tal_cual = componente.empty() || fs::exists(hallada / componente, error);
    hallada /= tal_cual ? componente : EntradaParecida(hallada, componente);
  }
  return hallada;
}

std::optional<std::string> LeerFicheroEntero(const fs::path &ruta) {
  std::error_code error;
  if (!fs::is_regular_file(ruta, error)) return std::nullopt;
  std::ifstream fichero(ruta, std::ios::binary);
  if (!fichero) return std::nullopt;
  const std::uintmax_t tamano = fs::file_size(ruta, error);
  std::string contenido(error ? 0 : static_cast<std::size_t>(tamano), '\0');
  fichero.read(contenido.data(), static_cast<std::streamsize>(contenido.size()));
  contenido.resize(static_cast<std::size_t>(fichero.gcount()));
  // Un fichero que crece mientras se lee, o que no dice su tamaño, se acaba a trozos.
  std::string trozo(1 << 16, '\0');
  while (fichero) {
    fichero.read(trozo.data(), static_cast<std::streamsize>(trozo.size()));
    contenido.append(trozo, 0, static_cast<std::size_t>(fichero.gcount()));
  }
  if (fichero.bad()) return std::nullopt;
  return contenido;
}

namespace {

bool Volcar(const fs::path &ruta, std::string_view contenido, std::ios::openmode modo) {
  std::ofstream fichero(ruta, std::ios::binary | modo);
  if (!fichero) return false;
  fichero.write(contenido.data(), static_cast<std::streamsize>(contenido.size()));
  fichero.close();
  return !fichero.fail();
}

} // namespace

fs::path SeguirEnlaces(fs::path ruta) {
  constexpr int ENLACES_MAXIMOS = 40; // el límite habitual de los núcleos antes de dar un bucle por tal
  std::error_code error;
  for (int i = 0; i < ENLACES_MAXIMOS && fs::is_symlink(fs::symlink_status(ruta, error)); ++i) {
    const fs::path destino = fs::read_symlink(ruta, error);
    if (error) return ruta;
    ruta = destino.is_absolute() ? destino : ruta.parent_path() / destino;
  }
  return ruta;
}

namespace {

/// Sustituye @p ruta por un fichero nuevo con @p contenido.
Creacion SustituirEntero(const fs::path &ruta, std::string_view contenido, bool existia) {
  std::error_code error;
  const fs::path temporal = RutaTemporalJunto(ruta);
  const Creacion creacion = CrearFicheroNuevo(temporal);
  if (creacion != Creacion::Hecha) return creacion;
  bool hecho = Volcar(temporal, contenido, std::ios::trunc);
  if (hecho && existia) ConservarDuenoYPermisos(ruta, temporal);
  if (hecho) {
    fs::rename(temporal, ruta, error);
    hecho = !error;
  }
  if (!hecho) fs::remove(temporal, error);
  return hecho ? Creacion::Hecha : Creacion::Imposible;
}

/// Escribe sin truncar antes y, si no cabe, repone lo que había, cuyo sitio en el disco sigue siendo suyo.
bool EscribirEnSuSitio(const fs::path &ruta, std::string_view contenido) {
  const std::optional<std::string> anterior = LeerFicheroEntero(ruta);
  std::error_code error;
  if (Volcar(ruta, contenido, std::ios::in | std::ios::out)) {
    fs::resize_file(ruta, contenido.size(), error);
    return !error;
  }
  if (anterior && Volcar(ruta, *anterior, std::ios::in | std::ios::out)) {
    fs::resize_file(ruta, anterior->size(), error);
  }
  return false;
}

} // namespace

bool EscribirFicheroEntero(const fs::path &ruta, std::string_view contenido) {
  std::error_code error;
  const fs::path destino = SeguirEnlaces(ruta);
  const fs::file_status estado = fs::status(destino, error);
  const bool existe = fs::exists(estado);
  if (existe && !fs::is_regular_file(estado)) {
    return !fs::is_directory(estado) && Volcar(destino, contenido, std::ios::out);
  }
  if (existe && !SePuedeEscribir(destino)) return false;
  const Creacion sustitucion = SustituirEntero(destino, contenido, existe);
  if (sustitucion == Creacion::SinPermiso && existe) return EscribirEnSuSitio(destino, contenido);
  return sustitucion == Creacion::Hecha;
}

bool AnadirAFichero(const fs::path &ruta, std::string_view contenido) {
  return Volcar(ruta, contenido, std::ios::app);
}

} // namespace tesmo
