#include "cli/Ordenes.h"

#include "cli/Argumentos.h"
#include "cli/Guioncorrientes.h"
#include "cli/Opcionesseleccion.h"
#include "cli/Teclado.h"
#include "core/Codificacion.h"
#include "core/Ficheros.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>

namespace tesmo::cli {

namespace {

constexpr const char *ENTRADA = "-";                        ///< la entrada del programa en vez de un fichero
constexpr const char *FICHERO_DE_LA_ENTRADA = "/dev/stdin"; ///< donde no lo hay, no se compara

struct Datos {
  std::optional<std::string> fichero, registro;
};

/// El registro de la orden: un fichero propio o la salida, siempre abierto y con fin de línea.
class Registro {
public:
  Registro(const std::optional<std::string> &ruta, std::ostream &salida) : salida_(salida) {
    if (!ruta) return;
    // Añadiendo: un «escribir» en este mismo fichero lo vacía, y lo siguiente ha de ir tras lo suyo.
    std::ofstream(RutaDesdeTexto(*ruta), std::ios::trunc).close();
    fichero_.open(RutaDesdeTexto(*ruta), std::ios::app);
    if (ruta->empty() || !fichero_.is_open())
      throw Fallo(Estado::FaltaSalida, "--registro: no se puede escribir: " + *ruta);
  }
  void Escribir(std::string_view texto) { Donde() << texto << '\n' << std::flush; }
  [[nodiscard]] bool Bien() { return Donde().good(); }

private:
  std::ostream &Donde() { return fichero_.is_open() ? fichero_ : salida_; }
  std::ostream &salida_;
  std::ofstream fichero_;
};

/// Lee líneas y las ejecuta, de un flujo o del teclado.
class Lector {
public:
  Lector(GuionCorrientes &guion, Contexto &contexto) : guion_(guion), contexto_(contexto) {}

  /// Línea a línea, para que una tubería responda a cada una; la marca de orden de bytes no es del nombre.
  void Seguido(std::istream &entrada) {
    for (std::string linea; std::getline(entrada, linea);) Linea(PartirLinea(AUtf8(linea)), contexto_.error);
  }
  void Tecleado() {
    const Completar completar = [](const std::string &escrito) {
      return GuionCorrientes::Candidatos(PartirLinea(escrito).palabras);
    };
    contexto_.error << "«ayuda» enseña las órdenes; «salir» o Ctrl+D terminan.\n";
    while (const auto linea = LeerLineaTecleada("tesmo> ", completar)) {
      const LineaPartida partida = PartirLinea(*linea);
      if (partida.palabras == std::vector<std::string>{"salir"}) return;
      Linea(partida, contexto_.salida);
    }
  }
  [[nodiscard]] bool FaltoAlguno() const { return faltoAlguno_; }

private:
  void Linea(const LineaPartida &partida, std::ostream &ayuda) {
    ++numero_;
    if (partida.comillasSinCerrar)
      Avisar(contexto_, "línea " + std::to_string(numero_) + ": comillas sin cerrar");
    if (partida.palabras == std::vector<std::string>{"ayuda"}) {
      ayuda << AyudaCorrientes() << std::flush;
    } else if (!guion_.Ejecutar(partida.palabras)) {
      faltoAlguno_ = true;
      Avisar(contexto_,
             "línea " + std::to_string(numero_) + ": no se pudo escribir el fichero de «escribir»");
    }
  }

  GuionCorrientes &guion_;
  Contexto &contexto_;
  int numero_ = 0;
  bool faltoAlguno_ = false;
};

/// Las líneas del fichero pedido; vacío si son las de la entrada.
std::optional<std::string> LeerGuion(const std::optional<std::string> &ruta) {
  if (ruta.value_or(ENTRADA) == ENTRADA) return std::nullopt;
  const std::optional<std::string> contenido = LeerFicheroEntero(RutaDesdeTexto(*ruta));
  if (!contenido) throw Fallo(Estado::FaltaEntrada, "no se puede leer: " + *ruta);
  return contenido;
}

/// El registro empieza vaciando su fichero: sobre el guion lo perdería.
void ExigirDistintos(const Datos &datos) {
  if (!datos.registro) return;
  const std::string lineas = datos.fichero.value_or(ENTRADA);
  std::error_code sinInteres; // el que falte, o no sea un fichero, no es el mismo
  if (std::filesystem::equivalent(RutaDesdeTexto(lineas == ENTRADA ? FICHERO_DE_LA_ENTRADA : lineas),
                                  RutaDesdeTexto(*datos.registro), sinInteres))
    throw Fallo(Estado::UsoIncorrecto,
                "--registro: «" + *datos.registro + "» es el mismo fichero que las líneas; dé otro");
}

void Ejecutar(const Datos &datos, Contexto &contexto) {
  ExigirDistintos(datos);
  const std::optional<std::string> lineas = LeerGuion(datos.fichero);
  Registro registro(datos.registro, contexto.salida);
  GuionCorrientes guion([&registro](std::string_view texto) { registro.Escribir(texto); });
  Lector lector(guion, contexto);
  if (lineas) {
    std::istringstream entrada(*lineas);
    lector.Seguido(entrada);
  } else if (EntradaEsTerminal()) {
    lector.Tecleado();
  } else {
    lector.Seguido(std::cin);
  }
  if (!registro.Bien()) throw Fallo(Estado::FaltaSalida, "no se pudo escribir el registro");
  if (lector.FaltoAlguno()) throw Fallo(Estado::FaltaSalida, "");
}

} // namespace

void RegistrarCorriente(CLI::App &raiz, Contexto &contexto) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden =
      NuevaOrden(raiz, "corriente",
                 {"Órdenes de texto sobre corrientes de aire con nombre",
                  "Cada línea es:\n" + AyudaCorrientes() +
                      "Lo que escriben las corrientes sale texto a texto, uno por línea. Desde un "
                      "terminal, las líneas se\nteclean con historia y el tabulador completa.",
                  "corriente aire.txt\ncorriente - --registro salida.txt < aire.txt\ncorriente"});
  AnadirArgumento(orden, "FICHERO", datos->fichero, "De dónde se leen las líneas; - o nada, de la entrada");
  AnadirValor(orden, "--registro", datos->registro, "FICHERO", "Adónde van los textos (a la salida)");
  AlEjecutar(orden, contexto, datos, Ejecutar);
}

} // namespace tesmo::cli
