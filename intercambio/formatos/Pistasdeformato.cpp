#include "intercambio/formatos/Pistasdeformato.h"

#include "intercambio/formatos/Cabeceras.h"
#include "intercambio/formatos/Filas.h"
#include "intercambio/formatos/Lineas.h"
#include "intercambio/formatos/Numeros.h"

#include <algorithm>
#include <array>

namespace tesmo {

namespace {

/// Los primeros bytes de un fichero que no es de texto.
struct Firma {
  std::string_view bytes;
  const char *que;
};
constexpr std::array<Firma, 7> FIRMAS{{
    {"\xFF\xFE", "el texto está en UTF-16; guárdelo como UTF-8"},
    {"\xFE\xFF", "el texto está en UTF-16; guárdelo como UTF-8"},
    {"PK\x03\x04",
     "es un fichero comprimido (ZIP) o una hoja de cálculo: descomprímalo y elija el .epw o el .csv de "
     "dentro, o guarde la hoja como CSV"},
    {"\x1F\x8B", "es un fichero comprimido (gzip): descomprímalo"},
    {"7z\xBC\xAF", "es un fichero comprimido (7z): descomprímalo"},
    {"\xD0\xCF\x11\xE0", "es una hoja de cálculo: guárdela como CSV"},
    {"%PDF", "es un documento PDF, no un fichero climático"},
}};

/// Una línea de un .met de trece columnas con comas decimales.
bool SonTreceConComa(std::string_view linea) {
  constexpr std::size_t CAMPOS = 13;
  CamposLinea campos;
  PartirLinea(linea, SEPARADOR_BLANCOS, CAMPOS + 1, campos);
  std::string conPunto;
  const auto esNumero = [&conPunto](std::string_view campo) {
    conPunto.assign(campo);
    std::replace(conPunto.begin(), conPunto.end(), ',', '.');
    return LeerNumero(conPunto).has_value();
  };
  return campos.size() == CAMPOS && linea.find(',') != std::string_view::npos &&
         std::all_of(campos.begin(), campos.end(), esNumero);
}

/// Un registro de EPW sin nada delante: año, mes, día, hora, minuto, banderas y temperatura.
bool EsRegistroDeEpw(std::string_view linea) {
  constexpr std::size_t CAMPOS = 20;
  constexpr std::size_t DE_FECHA = 5;
  CamposLinea campos;
  PartirLinea(linea, ',', CAMPOS, campos);
  return campos.size() == CAMPOS &&
         std::all_of(campos.begin(), campos.begin() + DE_FECHA,
                     [](std::string_view c) { return LeerEntero(c).has_value(); }) &&
         !LeerNumero(campos[DE_FECHA]);
}

/// ¿Es @p linea de la cabecera de un EPW, pero no la primera?
bool EsCabeceraDeEpw(std::string_view linea) {
  constexpr std::array<std::string_view, 7> CLAVES{"design conditions",   "typical/extreme periods",
                                                   "ground temperatures", "holidays/daylight saving",
                                                   "comments 1",          "comments 2",
                                                   "data periods"};
  const std::string_view clave = linea.substr(0, linea.find(','));
  return clave.size() < linea.size() &&
         std::ranges::any_of(CLAVES, [clave](std::string_view otra) { return Contiene(clave, otra); });
}

/// ¿Es @p linea un registro de un .met de trece o de quince columnas?
bool EsRegistroDeMet(std::string_view linea) {
  constexpr std::size_t TRECE = 13;
  constexpr std::size_t QUINCE = 15;
  CamposLinea campos;
  PartirLinea(linea, SEPARADOR_BLANCOS, QUINCE + 1, campos);
  return (campos.size() == TRECE || campos.size() == QUINCE) &&
         std::all_of(campos.begin(), campos.end(),
                     [](std::string_view c) { return LeerNumero(c).has_value(); });
}

std::string PistaDeMet(std::string_view segunda, std::string_view cuarta) {
  if (SonTreceConComa(cuarta)) {
    return "parece un .met de trece columnas con coma decimal; cámbiela por punto, o descríbalo en un mapa "
           "con «separador = blancos» y «decimal = coma»";
  }
  constexpr std::size_t CAMPOS_DEL_SITIO = 3;
  constexpr std::size_t CON_MERIDIANO = 4;
  CamposLinea campos;
  PartirLinea(segunda, ',', CON_MERIDIANO + 1, campos);
  const bool sitioConComas =
      campos.size() >= CAMPOS_DEL_SITIO && campos.size() <= CON_MERIDIANO &&
      std::all_of(campos.begin(), campos.end(), [](std::string_view c) { return LeerNumero(c).has_value(); });
  if (!sitioConComas) return {};
  return "la línea 2 lleva los números separados por comas; en un .met, latitud, longitud, altitud y "
         "meridiano van separados por blancos";
}

} // namespace

std::string PistaDeBinario(std::string_view texto) {
  const auto hallada = std::find_if(FIRMAS.begin(), FIRMAS.end(),
                                    [texto](const Firma &f) { return texto.starts_with(f.bytes); });
  return hallada == FIRMAS.end() ? std::string() : hallada->que;
}

std::string PistaDeFormato(std::string_view texto) {
  Lineas lineas(texto);
  const std::string_view primera = SiguienteConTexto(lineas);
  const std::string_view segunda = SiguienteConTexto(lineas);
  (void)SiguienteConTexto(lineas); // puede llevar rótulos
  const std::string_view cuarta = SiguienteConTexto(lineas);
  if (primera.empty()) return "el fichero está vacío";
  if (primera.front() == '{' || primera.front() == '[')
    return "es un fichero JSON; si es de PVGIS, descargue el año típico (TMY) en CSV o en EPW";
  if (primera.front() == '<') return "es una página web o un XML, no un fichero climático";
  if (Contiene(primera, "source") && Contiene(primera, "location id")) {
    return "es un CSV de la NSRDB; descríbalo en un mapa con «líneas de cabecera = 3», las columnas Year, "
           "Month, Day y Hour y las de sus datos";
  }
  if (Contiene(primera, "date (mm/dd/yyyy)")) {
    return "parece un TMY3 sin su primera línea: estación, nombre, estado, huso, latitud, longitud y "
           "altitud, "
           "con comas; añádala";
  }
  if (EsRegistroDeEpw(segunda) || EsCabeceraDeEpw(primera))
    return "parece un EPW sin su primera línea, «LOCATION,…», que da el sitio y el huso; añádala";
  if (EsRegistroDeMet(segunda)) {
    return "parece un .met sin sus dos primeras líneas: un título, y latitud, longitud, altitud y meridiano "
           "de "
           "la hora oficial; añádalas";
  }
  return PistaDeMet(segunda, cuarta);
}

} // namespace tesmo
