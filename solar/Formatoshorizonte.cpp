#include "solar/Formatoshorizonte.h"

#include "core/Codificacion.h"
#include "core/Ficheros.h"
#include "core/Formato.h"
#include "core/Lectornumeros.h"
#include "solar/Edicionhorizonte.h"
#include "solar/Giroshorizonte.h"
#include "solar/Listadohorizonte.h"
#include "solar/Perfilcompleto.h"
#include "solar/Puntoshorizonte.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tesmo {

namespace {

constexpr std::array<DatosFormato, 5> FORMATOS{{
    {FormatoHorizonte::Nativo, "nativo", "", "Perfil de horizonte (*.*)"},
    {FormatoHorizonte::Completo, "completo", ".csv", "Perfil completo (*.csv)"},
    {FormatoHorizonte::Pvgis, "pvgis", ".pvgis", "Horizonte de PVGIS (*.pvgis)"},
    {FormatoHorizonte::Tabla, "tabla", ".tsv", "Tabla de acimut desde el norte y altura (*.tsv)"},
    {FormatoHorizonte::Alturas, "alturas", ".alturas", "Alturas equidistantes desde el norte (*.alturas)"},
}};

/// Una línea y su número, desde 1.
struct Linea {
  int numero = 1;
  std::string_view texto;
};

/// La primera línea con algo escrito.
Linea PrimeraLinea(std::string_view texto) {
  int numero = 0;
  for (const std::string_view linea : PartirLineas(texto)) {
    ++numero;
    if (!SinBlancos(linea).empty()) return {numero, SinBlancos(linea)};
  }
  return {};
}

/// Un entero solo en la primera línea es el número de puntos de un perfil nativo.
bool EsCabeceraNativa(std::string_view linea) {
  LectorNumeros lector(linea);
  (void)lector.Entero(); // aunque no quepa: el fallo se cuenta después
  return !linea.empty() && lector.Final();
}

/// Un entero y justo ese número de parejas: sus fines de línea pueden estar en cualquier sitio.
bool EsNativoExacto(std::string_view texto) {
  LectorNumeros lector(texto);
  const std::optional<int> puntos = lector.Entero();
  if (!puntos || *puntos > PerfilHorizonte::PUNTOS_MAXIMOS) return false;
  for (int i = 0; i < *puntos; ++i) {
    if (!lector.Real() || !lector.Literal(',') || !lector.Real()) return false;
  }
  lector.SaltarBlancos();
  return *puntos > 0 && lector.Final();
}

/// El formato nativo no exige fines de línea: "2 -10, 5 20, 8" también lo es.
bool EsNativoSeguido(std::string_view linea) {
  LectorNumeros lector(linea);
  if (!lector.Entero() || lector.Literal(',') || lector.Literal(';')) return false;
  return lector.Real() && lector.Literal(',') && lector.Real();
}

bool LeerNativo(std::string_view texto, HorizonteLeido &leido, FalloLectura &fallo) {
  leido.formato = FormatoHorizonte::Nativo;
  if (LeerPerfil(texto, leido.perfil)) return true;
  fallo = {PrimeraLinea(texto).numero,
           "el número de puntos ha de estar entre 0 y " + std::to_string(PerfilHorizonte::PUNTOS_MAXIMOS)};
  return false;
}

FormatoHorizonte FormatoDe(ClaseListado clase) {
  if (clase == ClaseListado::Pvgis) return FormatoHorizonte::Pvgis;
  return clase == ClaseListado::Tabla ? FormatoHorizonte::Tabla : FormatoHorizonte::Alturas;
}

bool LeerDeOtroPrograma(std::string_view texto, HorizonteLeido &leido, FalloLectura &fallo) {
  ListadoHorizonte listado;
  if (!LeerListado(texto, listado, fallo)) return false;
  leido = {FormatoDe(listado.clase), listado.origenSupuesto, std::move(listado.perfil)};
  return true;
}

bool LeerTexto(std::string_view texto, HorizonteLeido &leido, FalloLectura &fallo) {
  if (EsPerfilCompleto(texto)) {
    leido.formato = FormatoHorizonte::Completo;
    return LeerPerfilCompleto(texto, leido.perfil, fallo);
  }
  const std::string_view primera = PrimeraLinea(texto).texto;
  if (EsCabeceraNativa(primera) && !EsListaDeAlturas(texto)) return LeerNativo(texto, leido, fallo);
  if (EsNativoExacto(texto)) return LeerNativo(texto, leido, fallo);
  if (LeerDeOtroPrograma(texto, leido, fallo)) return true;
  return EsNativoSeguido(primera) && LeerNativo(texto, leido, fallo);
}

std::string TextoNativoEntero(const PerfilHorizonte &perfil) {
  std::string texto = std::to_string(perfil.Tamano()) + "\n";
  for (std::size_t i = 0; i < perfil.X().size(); ++i) {
    texto += FormatoF(perfil.X()[i]) + ", " + FormatoF(perfil.Y()[i]) + "\n";
  }
  return texto;
}

} // namespace

std::span<const DatosFormato> FormatosDeHorizonte() { return FORMATOS; }

const DatosFormato &DatosDe(FormatoHorizonte formato) {
  return *std::find_if(FORMATOS.begin(), FORMATOS.end(),
                       [&](const DatosFormato &datos) { return datos.formato == formato; });
}

std::optional<FormatoHorizonte> FormatoPorNombre(std::string_view nombre) {
  for (const DatosFormato &datos : FORMATOS) {
    if (PlegarMinusculas(nombre) == datos.nombre) return datos.formato;
  }
  return std::nullopt;
}

FormatoHorizonte FormatoPorExtension(std::string_view ruta) {
  const std::string extension = PlegarMinusculas(TextoDeRuta(RutaDesdeTexto(ruta).extension()));
  for (const DatosFormato &datos : FORMATOS) {
    if (!datos.extension.empty() && extension == datos.extension) return datos.formato;
  }
  return FormatoHorizonte::Nativo;
}

std::optional<HorizonteLeido> LeerHorizonteDeTexto(std::string_view contenido, FalloLectura &fallo) {
  HorizonteLeido leido;
  if (!LeerTexto(AUtf8(contenido), leido, fallo)) return std::nullopt;
  return leido;
}

std::optional<HorizonteLeido> LeerHorizonteDeFichero(const std::string &ruta, FalloLectura &fallo) {
  const std::optional<std::string> contenido = LeerFicheroEntero(RutaDesdeTexto(ruta));
  if (contenido) return LeerHorizonteDeTexto(*contenido, fallo);
  fallo = {0, "no se puede abrir"};
  return std::nullopt;
}

std::string_view QueSeSupuso(const HorizonteLeido &leido) {
  switch (leido.formato) {
  case FormatoHorizonte::Alturas:
    return "trae alturas sueltas y se ha supuesto que empiezan en el norte y giran hacia el este";
  case FormatoHorizonte::Pvgis:
    return "no dice desde dónde cuenta los acimutes y se ha supuesto que desde el sur, como PVGIS";
  default:
    return "no dice desde dónde cuenta los acimutes y se han supuesto por sus valores";
  }
}

PerfilHorizonte PerfilParaUsar(const HorizonteLeido &leido) {
  return EsPropio(leido.formato) ? leido.perfil : CerrarVuelta(leido.perfil);
}

bool CabeEnFormato(const PerfilHorizonte &perfil, FormatoHorizonte formato, std::string &fallo) {
  if (EsPropio(formato)) return true;
  const std::string nombre = "el formato " + std::string(DatosDe(formato).nombre) + " no admite ";
  if (perfil.Tamano() == 0 && formato != FormatoHorizonte::Alturas) {
    fallo = nombre + "un perfil sin puntos";
    return false;
  }
  for (const PuntoHorizonte &punto : PuntosDe(perfil)) {
    if (std::fabs(punto.acimut) <= EdicionHorizonte::ACIMUT_MAXIMO &&
        std::fabs(punto.altura) <= EdicionHorizonte::ALTURA_MAXIMA)
      continue;
    fallo = nombre + "el punto de acimut " + FormatoGeneral15(static_cast<double>(punto.acimut), '.') +
            " y altura " + FormatoGeneral15(static_cast<double>(punto.altura), '.');
    return false;
  }
  return true;
}

std::string TextoDeHorizonte(const PerfilHorizonte &perfil, FormatoHorizonte formato) {
  switch (formato) {
  case FormatoHorizonte::Completo:
    return TextoCompleto(perfil);
  case FormatoHorizonte::Pvgis:
    return TextoPvgis(perfil);
  case FormatoHorizonte::Tabla:
    return TextoTabla(perfil);
  case FormatoHorizonte::Alturas:
    return TextoAlturas(perfil);
  case FormatoHorizonte::Nativo:
    break;
  }
  return TextoNativoEntero(perfil);
}

std::string DescribirFallo(std::string_view fichero, const FalloLectura &fallo) {
  std::string texto(fichero);
  if (fallo.linea > 0) texto += ", línea " + std::to_string(fallo.linea);
  return texto + ": " + fallo.texto;
}

} // namespace tesmo
