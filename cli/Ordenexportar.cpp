#include "cli/Ordenes.h"

#include "app/Programa.h"
#include "cli/Argumentos.h"
#include "cli/Opcionesseleccion.h"
#include "core/Configuracionregional.h"
#include "meteo/Leermet.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace tesmo::cli {

namespace {

struct Datos {
  OpcionesSeleccion seleccion;
  std::vector<std::string> variables;
  std::optional<std::string> separador, decimal, salida, registro;
  bool sinCabecera = false;
};

template <class Valor, std::size_t N>
Valor Elegir(const std::array<std::pair<const char *, Valor>, N> &posibles, const std::string &nombre,
             const char *opcion) {
  for (const auto &[texto, valor] : posibles)
    if (nombre == texto) return valor;
  throw Fallo(Estado::UsoIncorrecto, std::string(opcion) + ": no se conoce «" + nombre + "»");
}

constexpr std::array<std::pair<const char *, const char *>, 4> SEPARADORES{
    {{"tab", "\t"}, {"espacio", " "}, {"coma", ","}, {"puntoycoma", ";"}}};
constexpr std::array<std::pair<const char *, char>, 2> DECIMALES{{{"punto", '.'}, {"coma", ','}}};

/// Los rótulos por su orden, cada uno una vez; los que no se exportan se dicen y se saltan.
std::vector<std::string> Rotulos(const std::vector<Magnitud> &magnitudes, Contexto &contexto) {
  std::vector<std::string> rotulos;
  for (const Magnitud magnitud : magnitudes) {
    const std::string rotulo(Ficha(magnitud).rotulo);
    if (!SeExporta(Ficha(magnitud))) {
      Avisar(contexto, "«" + rotulo + "» no se exporta; existe en kg/kg, con el código HAkg");
    } else if (std::find(rotulos.begin(), rotulos.end(), rotulo) == rotulos.end()) {
      rotulos.push_back(rotulo);
    }
  }
  return rotulos;
}

void Ejecutar(const Datos &datos, Contexto &contexto) {
  const std::vector<Magnitud> magnitudes = LeerMagnitudes(datos.variables);
  const PeticionSeleccion peticion = Interpretar(datos.seleccion);
  const std::string separador = Elegir(SEPARADORES, datos.separador.value_or("tab"), "--separador");
  const char decimal = Elegir(DECIMALES, datos.decimal.value_or("punto"), "--decimal");
  const std::string salida = RutaDeSalida(datos.salida, "-o");
  IniciarRegistro(datos.registro);
  std::optional<Programa> programa;
  Cargar(peticion, contexto, programa);
  LeerMet &meteo = *programa->DameLeerMet();
  meteo.PonTexto("Separador", separador);
  meteo.PonCabecera("Cabecera", !datos.sinCabecera);
  Configuracionregional::PonSeparadorDecimal(decimal);
  if (!meteo.EscribirFichero(salida, Rotulos(magnitudes, contexto))) throw Fallo(Estado::FaltaSalida, "");
}

} // namespace

void RegistrarExportar(CLI::App &raiz, Contexto &contexto) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden = NuevaOrden(
      raiz, "exportar",
      {"Escribe el fichero horario de las variables elegidas",
       "Las columnas van por el orden en que se dan las variables. La humedad absoluta se exporta en kg/kg "
       "(HAkg).",
       "exportar --localidad Almería -o almeria.met TS HR G\n"
       "exportar --localidad Almería --separador puntoycoma --decimal coma --sin-cabecera -o a.csv TS HAkg"});
  AnadirSeleccion(orden, datos->seleccion);
  Exigir(AnadirValor(orden, "-o,--salida", datos->salida, "FICHERO", "Fichero que se escribe (obligatorio)"));
  AnadirValor(orden, "--separador", datos->separador, "CUAL", "tab, espacio, coma o puntoycoma (tab)");
  AnadirValor(orden, "--decimal", datos->decimal, "CUAL", "punto o coma (punto)");
  AnadirInterruptor(orden, "--sin-cabecera", datos->sinCabecera, "Sin las líneas de la localidad");
  AnadirRegistro(orden, datos->registro);
  AnadirArgumentos(orden, "VARIABLE", datos->variables,
                   "Código (TS, RSDr, …, HAkg) o rótulo exacto; sin ninguna, sólo las fechas");
  AlEjecutar(orden, contexto, datos, Ejecutar);
}

} // namespace tesmo::cli
