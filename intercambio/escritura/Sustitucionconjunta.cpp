#include "intercambio/escritura/Sustitucionconjunta.h"

#include "core/Ficheros.h"
#include "core/Sistema.h"
#include "intercambio/escritura/Diarioconjunto.h"

#include <algorithm>
#include <system_error>

namespace tesmo {

namespace fs = std::filesystem;

namespace {

constexpr const char *DIARIO = ".tesmo-importacion";

/// Dónde están un fichero y sus dos acompañantes.
struct Rutas {
  Rutas(const fs::path &directorio, const std::string &nombre, std::size_t i)
      : destino(SeguirEnlaces(directorio / RutaDesdeTexto(nombre))) {
    nueva = destino.parent_path() / (DIARIO + ("-" + std::to_string(i)) + ".nuevo");
    anterior = destino.parent_path() / (DIARIO + ("-" + std::to_string(i)) + ".anterior");
  }
  fs::path destino, nueva, anterior;
};

void Avisar(const TrasPaso &tras) {
  if (tras) tras();
}

bool Existe(const fs::path &ruta) {
  std::error_code error;
  return fs::exists(fs::symlink_status(ruta, error));
}

bool Borrar(const fs::path &ruta) {
  std::error_code error;
  fs::remove(ruta, error);
  return !Existe(ruta);
}

bool Mover(const fs::path &origen, const fs::path &destino) {
  std::error_code error;
  fs::rename(origen, destino, error);
  return !error;
}

/// Huella del fichero; vacía si no lo hay.
std::optional<std::uint64_t> HuellaDe(const fs::path &ruta) {
  const std::optional<std::string> contenido = LeerFicheroEntero(ruta);
  return contenido ? std::optional(Huella(*contenido)) : std::nullopt;
}

bool BorrarAcompanantes(const fs::path &directorio, const std::vector<std::string> &nombres) {
  bool todos = true;
  for (std::size_t i = 0; i < FICHEROS_JUNTOS; ++i) {
    for (const std::string &nombre : nombres) {
      const Rutas rutas(directorio, nombre, i);
      todos = Borrar(rutas.nueva) && Borrar(rutas.anterior) && todos;
    }
  }
  return todos;
}

std::vector<std::string> Nombres(const std::vector<ApunteConjunto> &apuntes) {
  std::vector<std::string> nombres;
  for (const ApunteConjunto &apunte : apuntes) nombres.push_back(apunte.nombre);
  return nombres;
}

/// Deja escritos junto a su destino el contenido nuevo y una copia del que hay.
bool Preparar(const Rutas &rutas, const FicheroConjunto &fichero, ApunteConjunto &apunte,
              const TrasPaso &tras) {
  apunte = {fichero.nombre, Huella(fichero.contenido), std::nullopt};
  if (!EscribirFicheroEntero(rutas.nueva, fichero.contenido)) return false;
  Avisar(tras);
  if (!Existe(rutas.destino)) return true;
  const std::optional<std::string> habia = LeerFicheroEntero(rutas.destino);
  if (!habia || !SePuedeEscribir(rutas.destino)) return false;
  ConservarDuenoYPermisos(rutas.destino, rutas.nueva);
  apunte.anterior = Huella(*habia);
  if (!EscribirFicheroEntero(rutas.anterior, *habia)) return false;
  ConservarDuenoYPermisos(rutas.destino, rutas.anterior);
  Avisar(tras);
  return true;
}

/// ¿Sigue todo como lo dejó el diario, de modo que se puede acabar? Un fichero ya cambiado no tiene su nuevo;
/// si no queda ninguno por cambiar, lo que alguien hiciera después es cosa suya.
bool SePuedeTerminar(const fs::path &directorio, const std::vector<ApunteConjunto> &apuntes) {
  bool pendientes = false, intactos = true;
  for (std::size_t i = 0; i < apuntes.size(); ++i) {
    const Rutas rutas(directorio, apuntes[i].nombre, i);
    const bool pendiente = Existe(rutas.nueva);
    pendientes = pendientes || pendiente;
    intactos = intactos && (pendiente ? HuellaDe(rutas.nueva) == apuntes[i].huellaNueva &&
                                            HuellaDe(rutas.destino) == apuntes[i].anterior
                                      : HuellaDe(rutas.destino) == apuntes[i].huellaNueva);
  }
  return intactos || !pendientes;
}

/// El nombre del fichero que no se pudo cambiar; vacío si se cambiaron todos.
std::string Terminar(const fs::path &directorio, const std::vector<ApunteConjunto> &apuntes,
                     const TrasPaso &tras) {
  for (std::size_t i = 0; i < apuntes.size(); ++i) {
    const Rutas rutas(directorio, apuntes[i].nombre, i);
    if (!Existe(rutas.nueva)) continue;
    if (!Mover(rutas.nueva, rutas.destino)) return apuntes[i].nombre;
    Avisar(tras);
  }
  return {};
}

/// Devuelve al fichero lo que había, si ya se había cambiado; si alguien lo cambió después, se deja como
/// está.
bool Reponer(const Rutas &rutas, const ApunteConjunto &apunte) {
  const bool cambiado = !Existe(rutas.nueva) && HuellaDe(rutas.destino) == apunte.huellaNueva;
  if (!cambiado) return true;
  if (!apunte.anterior) return Borrar(rutas.destino);
  return !Existe(rutas.anterior) || Mover(rutas.anterior, rutas.destino);
}

/// Del último al primero. El diario dice antes que se deshace: uno repuesto ya no tiene su nuevo, y quien
/// muriera aquí dejaría algo que no se debe terminar.
bool Deshacer(const fs::path &directorio, const DiarioConjunto &diario, const TrasPaso &tras) {
  const DiarioConjunto deshacer{true, diario.apuntes};
  if (!diario.deshacer && !EscribirFicheroEntero(directorio / DIARIO, TextoDiario(deshacer))) return false;
  Avisar(tras);
  bool todos = true;
  for (std::size_t i = diario.apuntes.size(); i-- > 0;) {
    todos = Reponer(Rutas(directorio, diario.apuntes[i].nombre, i), diario.apuntes[i]) && todos;
    Avisar(tras);
  }
  return todos;
}

/// El diario se borra el último: mientras esté, lo demás se puede repetir.
bool Limpiar(const fs::path &directorio, const std::vector<std::string> &nombres, const TrasPaso &tras) {
  if (!BorrarAcompanantes(directorio, nombres)) return false;
  Avisar(tras);
  const bool borrado = Borrar(directorio / DIARIO);
  Avisar(tras);
  return borrado;
}

} // namespace

std::string SustituirJuntos(const fs::path &directorio, const std::vector<FicheroConjunto> &ficheros,
                            const TrasPaso &tras) {
  DiarioConjunto diario;
  for (std::size_t i = 0; i < ficheros.size(); ++i) {
    diario.apuntes.push_back({ficheros[i].nombre, 0, std::nullopt});
    if (Preparar(Rutas(directorio, ficheros[i].nombre, i), ficheros[i], diario.apuntes[i], tras)) continue;
    static_cast<void>(BorrarAcompanantes(directorio, Nombres(diario.apuntes)));
    return ficheros[i].nombre + ": no se puede escribir en " + TextoDeRuta(directorio);
  }
  if (!EscribirFicheroEntero(directorio / DIARIO, TextoDiario(diario))) {
    static_cast<void>(BorrarAcompanantes(directorio, Nombres(diario.apuntes)));
    return TextoDeRuta(directorio) + ": no se puede escribir";
  }
  Avisar(tras);
  const std::string fallido = Terminar(directorio, diario.apuntes, tras);
  if (!fallido.empty() && !Deshacer(directorio, diario, tras))
    return fallido + ": no se puede sustituir, ni reponer lo anterior; se intentará al empezar otra vez";
  static_cast<void>(Limpiar(directorio, Nombres(diario.apuntes), tras));
  return fallido.empty() ? std::string() : fallido + ": no se puede sustituir";
}

bool QuedanRestos(const fs::path &directorio, const std::vector<std::string> &nombres) {
  if (Existe(directorio / DIARIO)) return true;
  for (std::size_t i = 0; i < FICHEROS_JUNTOS; ++i) {
    for (const std::string &nombre : nombres) {
      const Rutas rutas(directorio, nombre, i);
      if (Existe(rutas.nueva) || Existe(rutas.anterior)) return true;
    }
  }
  return false;
}

Recuperacion RecuperarConjunto(const fs::path &directorio, const std::vector<std::string> &nombres,
                               const TrasPaso &tras) {
  if (!QuedanRestos(directorio, nombres)) return Recuperacion::Nada;
  const auto diario = LeerDiario(LeerFicheroEntero(directorio / DIARIO).value_or(""));
  std::vector<std::string> todos = nombres;
  Recuperacion hecho = Recuperacion::Deshecha;
  if (diario) {
    for (const ApunteConjunto &apunte : diario->apuntes) todos.push_back(apunte.nombre);
    const bool termina = !diario->deshacer && SePuedeTerminar(directorio, diario->apuntes);
    if (termina && !Terminar(directorio, diario->apuntes, tras).empty()) return Recuperacion::Imposible;
    if (!termina && !Deshacer(directorio, *diario, tras)) return Recuperacion::Imposible;
    if (termina) hecho = Recuperacion::Terminada;
  }
  return Limpiar(directorio, todos, tras) ? hecho : Recuperacion::Imposible;
}

} // namespace tesmo
