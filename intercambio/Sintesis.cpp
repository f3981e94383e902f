#include "intercambio/Sintesis.h"

#include "core/Codificacion.h"
#include "core/Ficheros.h"
#include "intercambio/sintesis/Aniosintetico.h"
#include "intercambio/sintesis/Escriturameteo.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <sstream>
#include <system_error>

namespace tesmo {

namespace {

/// Registros de GDR.TXT que llega a mirar el cálculo de los días extremos.
constexpr std::size_t REGISTROS_MIRADOS = 177;
/// Claridades medias de un mes que la síntesis sabe seguir.
constexpr double CLARIDAD_MINIMA = 0.1;
constexpr double CLARIDAD_MAXIMA = 0.78;

bool Fallar(ResultadoSintesis &resultado, FalloSintesis fallo, std::string texto) {
  resultado.fallo = fallo;
  if (!texto.empty()) resultado.errores.push_back(std::move(texto));
  return false;
}

/// La radiación depende de la latitud, y por eso no basta con mirar cada columna por separado.
bool ComprobarRadiacion(const std::vector<NormalesLocalidad> &localidades, const std::string &fichero,
                        ResultadoSintesis &resultado) {
  bool bien = true;
  for (const NormalesLocalidad &localidad : localidades) {
    const ValoresPorMes claridades = ClaridadesPedidas(localidad);
    for (std::size_t mes = 0; mes < MESES; ++mes) {
      if (claridades[mes] >= CLARIDAD_MINIMA && claridades[mes] <= CLARIDAD_MAXIMA) continue;
      bien = Fallar(resultado, FalloSintesis::Contenido,
                    fichero + ": " + localidad.nombre + ", mes " + std::to_string(mes + 1) +
                        ": ghi_kwh_m2_dia no es posible a esa latitud");
    }
  }
  return bien;
}

/// ¿Es un año que no hizo la síntesis? Lo es un fichero que no empieza por su marca.
bool EsAjeno(const std::filesystem::path &ruta) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(ruta, error)) return false;
  std::ifstream fichero(ruta, std::ios::binary);
  std::string comienzo(MARCA_SINTESIS.size(), '\0');
  fichero.read(comienzo.data(), static_cast<std::streamsize>(comienzo.size()));
  comienzo.resize(static_cast<std::size_t>(fichero.gcount()));
  return !comienzo.empty() && comienzo != MARCA_SINTESIS;
}

bool Escribir(const std::filesystem::path &ruta, const std::string &contenido, ResultadoSintesis &resultado) {
  const std::string texto = TextoDeRuta(ruta);
  if (!EscribirFicheroEntero(ruta, contenido)) {
    return Fallar(resultado, FalloSintesis::Salida, texto + ": no se puede escribir");
  }
  resultado.ficheros.push_back(texto);
  return true;
}

/// Los nombres que encabezan los registros de una lista: lo que precede a @p separador en las líneas que
/// empiezan por una letra.
std::set<std::string> Nombres(const std::string &lista, char separador) {
  std::set<std::string> nombres;
  std::istringstream lineas(lista);
  for (std::string linea; std::getline(lineas, linea);) {
    const bool esNumero =
        linea.empty() || std::string_view("-+.0123456789 \t\r").find(linea[0]) != std::string_view::npos;
    if (!esNumero) nombres.insert(linea.substr(0, linea.find(separador)));
  }
  return nombres;
}

/// Escribe una lista salvo que la que hay nombre localidades que esta síntesis no conoce: alguien las añadió.
bool EscribirLista(const std::filesystem::path &ruta, const std::string &contenido, char separador,
                   ResultadoSintesis &resultado) {
  const std::set<std::string> nuestros = Nombres(contenido, separador);
  const std::set<std::string> presentes = Nombres(AUtf8(LeerFicheroEntero(ruta).value_or("")), separador);
  if (!std::ranges::includes(nuestros, presentes)) {
    resultado.avisos.push_back(TextoDeRuta(ruta) + ": tiene localidades añadidas; se deja como está");
    return true;
  }
  return Escribir(ruta, contenido, resultado);
}

bool EscribirAnio(const std::filesystem::path &meteo, const NormalesLocalidad &localidad,
                  ResultadoSintesis &resultado) {
  const std::filesystem::path ruta = meteo / RutaDesdeTexto(FicheroMet(localidad));
  if (EsAjeno(ruta)) {
    resultado.avisos.push_back(TextoDeRuta(ruta) + ": no lo hizo esta síntesis; se deja como está");
    return true;
  }
  return Escribir(ruta, TextoMetSintetico(localidad, GenerarAnio(localidad)), resultado);
}

bool EscribirTodo(const std::filesystem::path &meteo, const std::vector<NormalesLocalidad> &localidades,
                  ResultadoSintesis &resultado) {
  std::error_code error;
  std::filesystem::create_directories(meteo, error);
  if (!std::filesystem::is_directory(meteo, error)) {
    return Fallar(resultado, FalloSintesis::Salida, TextoDeRuta(meteo) + ": no se puede crear el directorio");
  }
  // La lista va la última: una localidad sólo se ofrece cuando su año ya está escrito.
  for (const NormalesLocalidad &localidad : localidades) {
    if (!EscribirAnio(meteo, localidad, resultado)) return false;
  }
  return EscribirLista(meteo / "GDR.TXT", TextoGdr(localidades), ' ', resultado) &&
         EscribirLista(meteo / "LocalidadesCC", TextoLocalidades(localidades), ',', resultado);
}

} // namespace

bool Sintetizar(const std::string &normales_csv, const std::string &directorio,
                ResultadoSintesis &resultado) {
  resultado = {};
  const std::optional<std::string> texto = LeerFicheroEntero(RutaDesdeTexto(normales_csv));
  if (!texto) {
    return Fallar(resultado, FalloSintesis::Entrada,
                  normales_csv + ": falta, no es un fichero regular o no se puede abrir");
  }
  const std::vector<NormalesLocalidad> localidades = LeerNormales(*texto, normales_csv, resultado.errores);
  if (!resultado.errores.empty()) return Fallar(resultado, FalloSintesis::Contenido, {});
  resultado.localidades = localidades.size();
  if (!ComprobarRadiacion(localidades, normales_csv, resultado)) return false;
  if (localidades.size() > REGISTROS_MIRADOS) {
    resultado.avisos.push_back("el cálculo de los días extremos no verá las localidades que siguen a las " +
                               std::to_string(REGISTROS_MIRADOS) + " primeras");
  }
  return EscribirTodo(RutaDesdeTexto(directorio) / "Meteo", localidades, resultado);
}

} // namespace tesmo
