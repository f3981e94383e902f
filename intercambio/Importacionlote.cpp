#include "intercambio/Importacionlote.h"

#include "core/Codificacion.h"
#include "core/Ficheros.h"
#include "intercambio/auditoria/Materia.h"
#include "intercambio/escritura/Nombrescatalogo.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <optional>
#include <set>
#include <thread>

namespace tesmo {

namespace {

/// Hace un trabajo por posición en varios hilos y da los resultados por su orden. No se adelanta más de dos
/// trabajos por hilo a quien los recoge: la memoria no crece con el lote.
template <class Resultado>
class TrabajosEnOrden {
public:
  TrabajosEnOrden(std::size_t cuantos, unsigned hilos, std::function<Resultado(std::size_t)> trabajo)
      : trabajo_(std::move(trabajo)), listos_(cuantos), adelanto_(2 * static_cast<std::size_t>(hilos)) {
    for (unsigned i = 0; i < hilos; ++i) hilos_.emplace_back([this] { Trabajar(); });
  }
  ~TrabajosEnOrden() {
    {
      const std::lock_guard guardia(cerrojo_);
      siguiente_ = listos_.size();
    }
    cambio_.notify_all();
    for (std::thread &hilo : hilos_) hilo.join();
  }
  TrabajosEnOrden(const TrabajosEnOrden &) = delete;
  TrabajosEnOrden &operator=(const TrabajosEnOrden &) = delete;

  /// El resultado siguiente, esperándolo si hace falta; se llama una vez por trabajo.
  Resultado Recoger() {
    std::unique_lock guardia(cerrojo_);
    std::optional<Resultado> &listo = listos_[recogidos_];
    cambio_.wait(guardia, [&] { return listo.has_value(); });
    Resultado resultado = std::move(*listo);
    listo.reset();
    ++recogidos_;
    cambio_.notify_all();
    return resultado;
  }

private:
  void Trabajar() {
    std::unique_lock guardia(cerrojo_);
    while (true) {
      cambio_.wait(guardia,
                   [&] { return siguiente_ >= listos_.size() || siguiente_ < recogidos_ + adelanto_; });
      if (siguiente_ >= listos_.size()) return;
      const std::size_t i = siguiente_++;
      guardia.unlock();
      Resultado resultado = trabajo_(i);
      guardia.lock();
      listos_[i] = std::move(resultado);
      cambio_.notify_all();
    }
  }

  std::function<Resultado(std::size_t)> trabajo_;
  std::mutex cerrojo_;
  std::condition_variable cambio_;
  std::vector<std::optional<Resultado>> listos_;
  std::size_t adelanto_;
  std::size_t siguiente_ = 0;
  std::size_t recogidos_ = 0;
  std::vector<std::thread> hilos_;
};

unsigned Hilos(const OpcionesLote &opciones, std::size_t ficheros) {
  const unsigned nucleos = opciones.hilos > 0 ? opciones.hilos : std::thread::hardware_concurrency();
  return std::max(1U, std::min(nucleos, static_cast<unsigned>(std::min<std::size_t>(ficheros, 256))));
}

/// Una excepción en un hilo (falta de memoria) es un error de su fichero y no el fin del programa.
AnioDeFichero Leer(const std::string &ruta, const OpcionesLote &opciones) {
  try {
    return LeerAnioDeFichero(ruta, opciones.reloj, opciones.lectura);
  } catch (const std::exception &fallo) {
    AnioDeFichero anio;
    anio.errores.push_back(std::string("no se ha podido leer: ") + fallo.what());
    return anio;
  }
}

bool EsDeOtraCosa(const AnioDeFichero &anio) {
  return anio.lectura.formato == FormatoClima::Desconocido && !anio.errores.empty();
}

void Importar(const std::string &directorio, const OpcionesLote &opciones, std::set<std::string> &hechos,
              FicheroDeLote &fichero) {
  PeticionImportacion peticion = opciones.peticion;
  if (peticion.nombre.empty()) peticion.nombre = NombreDeLocalidad(fichero.ruta, fichero.anio.sitio);
  peticion.fuente = fichero.ruta;
  if (const NormalesLocalidad *normales = NormalesDelSitio(opciones.normales, fichero.anio.sitio))
    peticion.zonaPropuesta = normales->zona;
  peticion.origen = TextoDeRuta(RutaDesdeTexto(fichero.ruta).filename());
  fichero.nombre = TextoDeCampo(peticion.nombre);
  if (!hechos.insert(fichero.nombre).second) {
    fichero.importacion.fallo = FalloImportacion::Peticion;
    fichero.importacion.error =
        "otro fichero de los dados da también «" + fichero.nombre + "»; impórtelo aparte con otro nombre";
    return;
  }
  fichero.importacion = ImportarLocalidad(directorio, peticion, *fichero.anio.conversion.anio);
}

} // namespace

bool DiceAlgo(const std::string &nombre) {
  const std::string plegado = PlegarMinusculas(nombre);
  return !TextoDeCampo(nombre).empty() && plegado != "unknown" && plegado != "-";
}

std::string NombreDeLocalidad(const std::string &ruta, const SitioClima &sitio) {
  return DiceAlgo(sitio.nombre) ? sitio.nombre : TextoDeRuta(RutaDesdeTexto(ruta).stem());
}

void ImportarLote(const std::string &directorio, const std::vector<std::string> &rutas,
                  const OpcionesLote &opciones, const AlImportarUno &alImportar) {
  if (rutas.empty()) return;
  TrabajosEnOrden<AnioDeFichero> lecturas(rutas.size(), Hilos(opciones, rutas.size()),
                                          [&](std::size_t i) { return Leer(rutas[i], opciones); });
  std::set<std::string> hechos;
  for (std::size_t i = 0; i < rutas.size(); ++i) {
    FicheroDeLote fichero;
    fichero.ruta = rutas[i];
    fichero.anio = lecturas.Recoger();
    const bool saltable = i < opciones.saltarDesconocidos.size() && opciones.saltarDesconocidos[i];
    fichero.saltado = saltable && EsDeOtraCosa(fichero.anio);
    if (fichero.anio.errores.empty()) Importar(directorio, opciones, hechos, fichero);
    if (alImportar) alImportar(i, fichero);
  }
}

} // namespace tesmo
