#include "cli/Guioncorrientes.h"

#include "core/Caracteres.h"
#include "core/Error.h"
#include "core/Ficheros.h"
#include "core/Sistema.h"
#include "psicro/Corrienteaire.h"
#include "psicro/Registrocorrientes.h"

#include <array>

namespace tesmo::cli {

namespace {

struct OrdenCorriente {
  std::string_view nombre;
  std::string_view argumentos;
  std::string_view que;
};

/// Las que se alcanzan: dameQSen y dameQLat las captura «dame».
constexpr std::array<OrdenCorriente, 12> ORDENES{{
    {"ponNombre", "NOMBRE", "cambia el nombre de la corriente"},
    {"mostrar", "", "escribe sus nueve magnitudes"},
    {"ponm", "M UNIDAD", "caudal, en kg/s, kg/h, m3/s o m3/h"},
    {"pont_w", "T W [P]", "temperatura seca [°C], humedad absoluta [kg/kg] y presión [Pa]"},
    {"pont_th", "T TH [P]", "temperaturas seca y húmeda [°C]"},
    {"pont_tr", "T TR [P]", "temperaturas seca y de rocío [°C]"},
    {"pont_hr", "T HR [P]", "temperatura seca [°C] y humedad relativa [%]"},
    {"pont_h", "T H [P]", "temperatura seca [°C] y entalpía [J/kg]"},
    {"ponw_h", "W H [P]", "humedad absoluta [kg/kg] y entalpía [J/kg]"},
    {"escribir", "FICHERO", "«mostrar» en un fichero"},
    {"dame", "CÓDIGO", "una magnitud: m, p, t, w, th, tr, hr, h, ro o ve"},
    {"mezclar", "A B RESULTADO", "mezcla dos corrientes en otra, por sus nombres"},
}};

constexpr std::string_view ESCRIBIR = "escribir";
constexpr std::size_t ANCHO_ORDEN = 24; ///< de la columna de la ayuda [caracteres]

std::string ComponerAyuda() {
  std::string texto = "NOMBRE ORDEN [ARGUMENTOS…], con NOMBRE una corriente; si no existe, se crea.\n";
  for (const OrdenCorriente &orden : ORDENES) {
    std::string izquierda = "  " + std::string(orden.nombre) + " " + std::string(orden.argumentos);
    // La tilde de CÓDIGO ocupa dos bytes y una columna.
    const std::size_t ancho = ANCHO_ORDEN + (izquierda.find("Ó") == std::string::npos ? 0 : 1);
    izquierda.resize(std::max(izquierda.size(), ancho), ' ');
    texto += izquierda + std::string(orden.que) + "\n";
  }
  return texto +
         "Sin P, la presión es 101325 Pa. Las comillas dobles juntan palabras; # empieza un comentario.\n";
}

/// ¿Quedó escrito el fichero de un "escribir"? La orden misma no lo dice.
bool QuedoEscrito(const std::vector<std::string> &palabras) {
  if (palabras.size() < 2 || !palabras[1].starts_with(ESCRIBIR)) return true;
  const std::filesystem::path ruta = RutaDesdeTexto(palabras.size() > 2 ? palabras[2] : std::string());
  std::error_code error;
  return std::filesystem::exists(ruta, error) && !std::filesystem::is_directory(ruta, error) &&
         SePuedeEscribir(ruta);
}

std::vector<std::string> NombresVivos() {
  std::vector<std::string> nombres;
  for (auto *i = InscripcionCorriente::Primera(); i != nullptr; i = i->Siguiente())
    nombres.push_back(i->Corriente().Nombre());
  return nombres;
}

} // namespace

LineaPartida PartirLinea(std::string_view linea) {
  LineaPartida partida;
  bool enPalabra = false;
  for (const char c : linea) {
    if (!partida.comillasSinCerrar && c == '#') break;
    const bool comilla = c == '"';
    const bool separa = !partida.comillasSinCerrar && EsBlanco(c);
    if (!separa && !enPalabra) partida.palabras.emplace_back();
    enPalabra = !separa;
    if (comilla) {
      partida.comillasSinCerrar = !partida.comillasSinCerrar;
    } else if (!separa) {
      partida.palabras.back() += c;
    }
  }
  if (partida.comillasSinCerrar && partida.palabras.back().ends_with('\r'))
    partida.palabras.back().pop_back();
  return partida;
}

const std::string &AyudaCorrientes() {
  static const std::string ayuda = ComponerAyuda();
  return ayuda;
}

GuionCorrientes::GuionCorrientes(Destino destino) : destino_(std::move(destino)) {
  AbrirRegistroEn(destino_);
}

GuionCorrientes::~GuionCorrientes() { CerrarRegistro(); }

bool GuionCorrientes::Ejecutar(const std::vector<std::string> &palabras) {
  if (palabras.empty()) return true;
  std::vector<const char *> argv;
  argv.reserve(palabras.size());
  for (const std::string &palabra : palabras) argv.push_back(palabra.c_str());
  Corriente(palabras.front()).ProcesarOrden(static_cast<int>(argv.size()), argv.data());
  if (!RegistroAbierto()) AbrirRegistroEn(destino_); // «escribir» lo deja cerrado
  return QuedoEscrito(palabras);
}

std::vector<std::string> GuionCorrientes::Candidatos(const std::vector<std::string> &anteriores) {
  std::vector<std::string> candidatos;
  if (anteriores.size() == 1) {
    for (const OrdenCorriente &orden : ORDENES) candidatos.emplace_back(orden.nombre);
  } else if (anteriores.empty() || anteriores[1] == "mezclar") {
    candidatos = NombresVivos();
    if (anteriores.empty()) candidatos.insert(candidatos.end(), {"ayuda", "salir"});
  } else if (anteriores[1] == "dame" && anteriores.size() == 2) {
    candidatos = {"m", "p", "t", "w", "th", "tr", "hr", "h", "ro", "ve"};
  } else if (anteriores[1] == "ponm" && anteriores.size() == 3) {
    candidatos = {"kg/s", "kg/h", "m3/s", "m3/h"};
  }
  return candidatos;
}

CorrienteAire &GuionCorrientes::Corriente(const std::string &nombre) {
  if (CorrienteAire *viva = BuscarCorriente(nombre)) return *viva;
  return *corrientes_.emplace_back(std::make_unique<CorrienteAire>(nombre));
}

} // namespace tesmo::cli
