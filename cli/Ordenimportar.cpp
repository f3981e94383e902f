#include "cli/Ordenes.h"

#include "cli/Argumentos.h"
#include "cli/Opcionesreloj.h"
#include "cli/Opcionesseleccion.h"
#include "core/Codificacion.h"
#include "core/Ficheros.h"
#include "core/Rutas.h"
#include "intercambio/Extensionesclimaticas.h"
#include "intercambio/Importacionlote.h"
#include "intercambio/sintesis/Normalesprograma.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <system_error>

namespace tesmo::cli {

namespace {

namespace fs = std::filesystem;

struct Datos {
  std::vector<std::string> ficheros;
  std::optional<std::string> provincia, localidad, zona, base;
  OpcionesReloj reloj;
  bool reemplazar = false;
};

bool PareceClimatico(const fs::path &ruta) {
  const std::string extension = PlegarMinusculas(TextoDeRuta(ruta.extension()));
  return std::ranges::find(EXTENSIONES_CLIMATICAS, extension) != EXTENSIONES_CLIMATICAS.end();
}

std::string ListaDeExtensiones() {
  std::string lista;
  for (const std::string_view extension : EXTENSIONES_CLIMATICAS)
    lista.append(lista.empty() ? "" : ", ").append(extension);
  return lista;
}

/// El orden alfabético de las ventanas: las mayúsculas, con sus minúsculas.
bool VaAntes(const std::string &a, const std::string &b) {
  const std::string llanoA = PlegarMinusculas(a), llanoB = PlegarMinusculas(b);
  return llanoA != llanoB ? llanoA < llanoB : a < b;
}

/// Los ficheros de la carpeta @p ruta por orden alfabético; @p ruta misma si no es una carpeta.
std::vector<std::string> Desplegar(const std::string &ruta) {
  std::error_code error;
  if (!fs::is_directory(RutaDesdeTexto(ruta), error)) return {ruta};
  std::vector<std::string> ficheros;
  for (fs::directory_iterator it(RutaDesdeTexto(ruta), error), fin; !error && it != fin;
       it.increment(error)) {
    std::error_code otro;
    if (it->is_regular_file(otro) && PareceClimatico(it->path())) ficheros.push_back(TextoDeRuta(it->path()));
  }
  std::ranges::sort(ficheros, VaAntes);
  if (ficheros.empty())
    throw Fallo(Estado::FaltaEntrada, ruta + ": no tiene ficheros climáticos (" + ListaDeExtensiones() + ')');
  return ficheros;
}

/// Los ficheros que se importan, cada uno una vez aunque se dé por dos caminos.
struct Entradas {
  std::vector<std::string> rutas;
  std::vector<bool> deCarpeta; ///< nadie los nombró: si no son climáticos, se saltan

  void Anadir(const std::string &ruta, bool esDeCarpeta) {
    std::error_code error;
    const fs::path propia = fs::weakly_canonical(RutaDesdeTexto(ruta), error);
    const auto [sitio, nueva] = sitios_.try_emplace(error ? RutaDesdeTexto(ruta) : propia, rutas.size());
    if (nueva) {
      rutas.push_back(ruta);
      deCarpeta.push_back(esDeCarpeta);
    } else if (!esDeCarpeta) {
      deCarpeta[sitio->second] = false;
    }
  }

private:
  std::map<fs::path, std::size_t> sitios_;
};

Entradas Reunir(const std::vector<std::string> &dados) {
  Entradas entradas;
  for (const std::string &dado : dados) {
    const std::string ruta = RutaDeEntrada(dado, "FICHERO");
    const std::vector<std::string> desplegados = Desplegar(ruta);
    const bool esCarpeta = desplegados.front() != ruta;
    for (const std::string &uno : desplegados) entradas.Anadir(uno, esCarpeta);
  }
  return entradas;
}

/// Lo que se va sabiendo del lote.
class Marcha {
public:
  Marcha(std::size_t total, Contexto &contexto) : total_(total), contexto_(contexto) {}

  void Uno(std::size_t posicion, const FicheroDeLote &fichero) {
    if (total_ > 1)
      contexto_.error << '[' << posicion + 1 << '/' << total_ << "] " << Nombre(fichero) << '\n';
    if (fichero.saltado) {
      Avisar(contexto_, Nombre(fichero) + ": no es de ningún formato climático conocido; se salta");
      return;
    }
    AvisarDeFichero(Nombre(fichero), fichero.anio, contexto_);
    if (!fichero.anio.errores.empty()) return Empeorar(Estado::FaltaEntrada);
    for (const std::string &aviso : fichero.importacion.avisos)
      Avisar(contexto_, Nombre(fichero) + ": " + aviso);
    if (fichero.importacion.fallo != FalloImportacion::Ninguno) return Fallido(fichero);
    Contar(fichero);
  }

  void Acabar() const {
    if (estado_ != Estado::Hecho) throw Fallo(estado_, "");
    if (hechos_ == 0) throw Fallo(Estado::FaltaEntrada, "ningún fichero se ha podido importar");
  }

private:
  static std::string Nombre(const FicheroDeLote &fichero) {
    return TextoDeRuta(RutaDesdeTexto(fichero.ruta).filename());
  }
  void Empeorar(Estado estado) { estado_ = std::max(estado_, estado); }

  void Fallido(const FicheroDeLote &fichero) {
    const FalloImportacion fallo = fichero.importacion.fallo;
    contexto_.error << "Error: " << Nombre(fichero) << ": " << fichero.importacion.error
                    << (fallo == FalloImportacion::Existe ? "; no se importa (véase --reemplazar)" : "")
                    << '\n';
    Empeorar(fallo == FalloImportacion::Peticion ? Estado::FaltaEntrada : Estado::FaltaSalida);
  }

  void Contar(const FicheroDeLote &fichero) {
    ++hechos_;
    const ObjetoCiudad &ciudad = fichero.importacion.registro;
    contexto_.salida << Nombre(fichero) << ": " << ciudad.localidad << " (" << ciudad.provincia << "), "
                     << ciudad.fichero << (fichero.importacion.reemplazada ? ", reemplazada" : "") << '\n'
                     << "  Formato: " << NombreFormato(fichero.anio.lectura.formato) << ".\n"
                     << "  Según los datos: " << fichero.anio.veredicto.texto << '\n';
    for (const std::string &linea : TextoInforme(fichero.anio.conversion.informe))
      contexto_.salida << "  " << linea << '\n';
  }

  std::size_t total_;
  Contexto &contexto_;
  std::size_t hechos_ = 0;
  Estado estado_ = Estado::Hecho;
};

OpcionesLote Interpretar(const Datos &datos) {
  OpcionesLote opciones;
  opciones.peticion.provincia = *datos.provincia;
  opciones.peticion.nombre = datos.localidad.value_or("");
  opciones.peticion.zona = datos.zona.value_or("");
  opciones.peticion.reemplazar = datos.reemplazar;
  opciones.reloj = InterpretarReloj(datos.reloj);
  opciones.lectura = InterpretarLectura(datos.reloj);
  const std::string &zona = opciones.peticion.zona;
  if (datos.zona && zona != ZONA_COSTA && zona != ZONA_INTERIOR)
    throw Fallo(Estado::UsoIncorrecto, "--zona: «" + zona + "» no es COSTA ni INTERIOR");
  if (datos.localidad && datos.localidad->empty())
    throw Fallo(Estado::UsoIncorrecto, "--localidad: el nombre está vacío");
  return opciones;
}

void Ejecutar(const Datos &datos, Contexto &contexto) {
  OpcionesLote opciones = Interpretar(datos);
  opciones.normales = NormalesDelPrograma();
  const Entradas entradas = Reunir(datos.ficheros);
  const std::vector<std::string> &rutas = entradas.rutas;
  opciones.saltarDesconocidos = entradas.deCarpeta;
  if (datos.localidad && rutas.size() > 1)
    throw Fallo(Estado::UsoIncorrecto,
                "--localidad da un solo nombre y hay " + std::to_string(rutas.size()) + " ficheros");
  if (datos.reloj.altitud && rutas.size() > 1)
    throw Fallo(Estado::UsoIncorrecto,
                "--altitud es la de un solo sitio y hay " + std::to_string(rutas.size()) + " ficheros");
  IniciarBase(datos.base ? RutaAbsoluta(*datos.base) : std::string(), contexto);
  Marcha marcha(rutas.size(), contexto);
  ImportarLote(DameConfiguracion().RutaMeteo(""), rutas, opciones,
               [&](std::size_t i, const FicheroDeLote &fichero) { marcha.Uno(i, fichero); });
  marcha.Acabar();
}

} // namespace

void RegistrarImportar(CLI::App &raiz, Contexto &contexto) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden =
      NuevaOrden(raiz, "importar",
                 {"Hace localidades de ficheros climáticos ajenos",
                  "Lee EPW, PVGIS (CSV y EPW), TMY3, .met de trece o quince columnas y lo que describa "
                  "--mapa, comprueba su\n"
                  "reloj con el sol, los lleva a la hora solar verdadera y escribe el .met, su registro en "
                  "GDR.TXT y su línea\n"
                  "en LocalidadesCC. Una carpeta vale por los ficheros climáticos que tenga. Cuenta de cada "
                  "uno el veredicto\n"
                  "del reloj y qué se ha copiado, calculado o inventado.",
                  "importar ESP_Almeria.epw --provincia Almería --zona COSTA\n"
                  "importar tmy.csv --provincia Granada --localidad Baza --reloj utc --desfase -50\n"
                  "importar carpeta --provincia Clientes --reemplazar"});
  Exigir(AnadirArgumentos(orden, "FICHERO", datos->ficheros, "Ficheros o carpetas que se importan"));
  Exigir(AnadirValor(orden, "--provincia", datos->provincia, "PROVINCIA", "Donde se listan (obligatoria)"));
  AnadirValor(orden, "--localidad", datos->localidad, "NOMBRE",
              "Nombre de la localidad (si no se da, el que diga el fichero)");
  AnadirReloj(orden, datos->reloj);
  AnadirValor(
      orden, "--zona", datos->zona, "CUAL",
      "COSTA o INTERIOR, para los días extremos (si no se da, la que tuviera, la de las normales del\n"
      "lugar o INTERIOR)");
  AnadirBase(orden, datos->base);
  AnadirInterruptor(orden, "--reemplazar", datos->reemplazar, "Sustituye las localidades que ya estén");
  AlEjecutar(orden, contexto, datos, Ejecutar);
}

} // namespace tesmo::cli
