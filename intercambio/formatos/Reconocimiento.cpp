#include "core/Calendario.h"
#include "core/Codificacion.h"
#include "intercambio/formatos/Cabeceras.h"
#include "intercambio/formatos/Filas.h"
#include "intercambio/formatos/Lectura.h"
#include "intercambio/formatos/Lineas.h"
#include "intercambio/formatos/Numeros.h"

#include <algorithm>
#include <array>

namespace tesmo {

namespace {

constexpr int LINEAS_DE_CABECERA_EPW = 8;
constexpr std::size_t CAMPOS_MET_TRECE = 13;
constexpr std::size_t CAMPOS_MET_QUINCE = 15;

bool EmpiezaPor(std::string_view linea, std::string_view clave) {
  return linea.size() >= clave.size() && Contiene(linea.substr(0, clave.size()), clave);
}

/// Las primeras líneas de @p texto hasta @p numero, enteras.
std::string_view PrimerasLineas(std::string_view texto, int numero) {
  Lineas lineas(texto);
  std::string_view linea;
  std::string_view ultima;
  while (lineas.Numero() < numero && lineas.Siguiente(linea)) ultima = linea;
  if (ultima.data() == nullptr) return {};
  return texto.substr(0, static_cast<std::size_t>(ultima.data() + ultima.size() - texto.data()));
}

/// PVGIS no se nombra en sus EPW: se le conoce por el desfase que anota o por su fuente sin ciudad. Su
/// nombre en una cabecera no dice nada: el fichero puede estar ya puesto en hora oficial.
bool EsEpwDePvgis(std::string_view texto, std::string_view location) {
  enum : std::size_t { CIUDAD = 1, FUENTE = 4, CAMPOS };
  if (Contiene(PrimerasLineas(texto, LINEAS_DE_CABECERA_EPW), "irradiance time offset")) return true;
  CamposLinea campos;
  PartirLinea(location, ',', CAMPOS, campos);
  return campos.size() == CAMPOS && PlegarMinusculas(campos[CIUDAD]) == "unknown" &&
         EmpiezaPor(campos[FUENTE], "ecmwf/era");
}

/// ¿Tiene @p linea exactamente @p cuantos campos, y todos son números?
bool SonNumeros(std::string_view linea, std::size_t cuantos, CamposLinea &campos) {
  PartirLinea(linea, SEPARADOR_BLANCOS, cuantos + 1, campos);
  return campos.size() == cuantos && std::all_of(campos.begin(), campos.end(), [](std::string_view c) {
           return LeerNumero(c).has_value();
         });
}

bool EmpiezaConSitio(std::string_view linea, CamposLinea &campos) {
  constexpr std::size_t NUMEROS_DEL_SITIO = 3;
  PartirLinea(linea, SEPARADOR_BLANCOS, NUMEROS_DEL_SITIO, campos);
  return campos.size() == NUMEROS_DEL_SITIO &&
         std::all_of(campos.begin(), campos.end(),
                     [](std::string_view c) { return LeerNumero(c).has_value(); });
}

/// Sin las dos líneas de cabecera, el segundo registro pasaría por el sitio: 1° N, 1° E, 2 m.
bool EsRegistroDeMet(std::string_view linea, CamposLinea &campos) {
  return SonNumeros(linea, CAMPOS_MET_TRECE, campos) || SonNumeros(linea, CAMPOS_MET_QUINCE, campos);
}

/// Quince columnas: el primer registro del 1 de enero, en una línea o partido en dos. La tercera línea puede
/// perderse, así que también se mira la cuarta.
bool EsMetDeQuince(std::string_view texto) {
  constexpr int LINEAS_MIRADAS = 5;
  Lineas lineas(texto);
  std::string_view linea;
  CamposLinea campos;
  if (!lineas.Siguiente(linea) || !lineas.Siguiente(linea) || !EmpiezaConSitio(linea, campos) ||
      EsRegistroDeMet(linea, campos))
    return false;
  while (lineas.Numero() < LINEAS_MIRADAS && lineas.Siguiente(linea)) {
    if (SonNumeros(linea, CAMPOS_MET_QUINCE, campos)) return true;
  }
  return false;
}

/// ¿Llevan trece números todas las líneas de datos?
bool SonDeTrece(std::string_view texto) {
  Lineas lineas(texto);
  std::string_view linea;
  CamposLinea campos;
  if (!lineas.Siguiente(linea) || !lineas.Siguiente(linea) || !EmpiezaConSitio(linea, campos)) return false;
  bool alguno = false;
  while (lineas.Siguiente(linea)) {
    if (EsLineaVacia(linea)) continue;
    if (!SonNumeros(linea, CAMPOS_MET_TRECE, campos)) return false;
    alguno = true;
  }
  return alguno;
}

/// ¿Los llevan casi todas las del primer día? Para importarlo basta: lo estropeado se dice con su línea.
bool ParecenDeTrece(std::string_view texto) {
  constexpr int ESTROPEADAS = 4;
  Lineas lineas(texto);
  std::string_view linea;
  CamposLinea campos;
  if (!lineas.Siguiente(linea) || !lineas.Siguiente(linea) || !EmpiezaConSitio(linea, campos) ||
      EsRegistroDeMet(linea, campos))
    return false;
  int malas = 0;
  int leidas = 0;
  while (leidas < HORAS_DEL_DIA && lineas.Siguiente(linea)) {
    if (EsLineaVacia(linea)) continue;
    ++leidas;
    malas += SonNumeros(linea, CAMPOS_MET_TRECE, campos) ? 0 : 1;
  }
  return malas <= ESTROPEADAS && leidas > 2 * malas;
}

} // namespace

bool EsMetDeTreceColumnas(std::string_view texto) { return SonDeTrece(texto); }

FormatoClima ReconocerFormato(std::string_view texto) {
  Lineas lineas(texto);
  const std::string_view primera = SiguienteConTexto(lineas);
  const std::string_view segunda = SiguienteConTexto(lineas);
  if (EmpiezaPor(SinComilla(primera), "location"))
    return EsEpwDePvgis(texto, primera) ? FormatoClima::PvgisEpw : FormatoClima::Epw;
  if (EmpiezaPor(SinComilla(primera), "latitude (decimal degrees)") ||
      EmpiezaPor(SinComilla(primera), "time(utc)"))
    return FormatoClima::PvgisCsv;
  if (Contiene(segunda, "date (mm/dd/yyyy)") && Contiene(segunda, "time (hh:mm)")) return FormatoClima::Tmy3;
  if (ParecenDeTrece(texto)) return FormatoClima::MetTrece;
  if (EsMetDeQuince(texto)) return FormatoClima::MetQuince;
  return FormatoClima::Desconocido;
}

std::string_view NombreFormato(FormatoClima formato) {
  switch (formato) {
  case FormatoClima::Epw:
    return "EPW";
  case FormatoClima::PvgisCsv:
    return "año típico PVGIS (CSV)";
  case FormatoClima::PvgisEpw:
    return "año típico PVGIS (EPW)";
  case FormatoClima::Tmy3:
    return "TMY3 (CSV)";
  case FormatoClima::MetTrece:
    return ".met de trece columnas";
  case FormatoClima::MetQuince:
    return ".met de quince columnas";
  case FormatoClima::Delimitado:
    return "texto delimitado";
  case FormatoClima::Desconocido:
    break;
  }
  return "formato desconocido";
}

std::string_view NombreCampo(Campo campo) {
  static constexpr std::array<std::string_view, NUMERO_CAMPOS> NOMBRES{
      "temperatura seca (°C)",
      "temperatura de rocío (°C)",
      "temperatura de cielo (°C)",
      "humedad relativa (%)",
      "humedad absoluta (kg/kg)",
      "presión (Pa)",
      "radiación global horizontal (W/m²)",
      "radiación directa normal (W/m²)",
      "radiación directa horizontal (W/m²)",
      "radiación difusa horizontal (W/m²)",
      "radiación infrarroja del cielo (W/m²)",
      "nubosidad total (décimos)",
      "nubosidad opaca (décimos)",
      "velocidad del viento (m/s)",
      "dirección del viento (° N)",
      "acimut solar (°)",
      "cenit solar (°)"};
  return NOMBRES[static_cast<std::size_t>(campo)];
}

} // namespace tesmo
