#include "intercambio/escritura/Textoepw.h"

#include "core/Formato.h"
#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/escritura/Nombrescatalogo.h"
#include "intercambio/escritura/Textomet.h"
#include "meteo/Fecha.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string_view>

namespace tesmo {

namespace {

constexpr std::size_t BYTES_POR_REGISTRO = 240;
/// Un año sin 29 de febrero que empieza en lunes, como dice la línea DATA PERIODS.
constexpr std::string_view ANIO = "2001";
constexpr std::string_view DIA_DE_COMIENZO = "Monday";
/// Sin noticia de dónde sale ni qué incertidumbre tiene cada dato (un signo y una cifra por campo).
constexpr std::string_view PROCEDENCIA = "?9?9?9?9?9?9?9?9?9?9?9?9?9?9?9?9?9?9?9?9?9";

/// Un campo del registro, tras el de procedencia: la magnitud que lleva, si Tesmo la sabe, y el código con
/// que el formato dice que no hay dato.
struct ColumnaEpw {
  std::optional<Campo> campo;
  PatronNumero patron;
  std::string_view sinDato;
};

constexpr PatronNumero ENTERO("0");
constexpr PatronNumero DECIMAS("0.0");
constexpr PatronNumero CENTESIMAS("0.00");
constexpr std::size_t COLUMNAS = 29;

constexpr std::array<ColumnaEpw, COLUMNAS> TABLA{{
    {Campo::TemperaturaSeca, CENTESIMAS, "99.9"},
    {Campo::TemperaturaRocio, CENTESIMAS, "99.9"},
    {Campo::HumedadRelativa, DECIMAS, "999"},
    {Campo::Presion, ENTERO, "999999"},
    {std::nullopt, ENTERO, "9999"}, // extraterrestre horizontal
    {std::nullopt, ENTERO, "9999"}, // extraterrestre normal
    {Campo::InfrarrojaHorizontal, DECIMAS, "9999"},
    {Campo::GlobalHorizontal, DECIMAS, "9999"},
    {Campo::DirectaNormal, DECIMAS, "9999"},
    {Campo::DifusaHorizontal, DECIMAS, "9999"},
    {std::nullopt, ENTERO, "999999"}, // iluminancias: global,
    {std::nullopt, ENTERO, "999999"}, // directa normal
    {std::nullopt, ENTERO, "999999"}, // y difusa
    {std::nullopt, ENTERO, "9999"},   // luminancia del cenit
    {Campo::DireccionViento, ENTERO, "999"},
    {Campo::VelocidadViento, DECIMAS, "999"},
    {Campo::NubosidadTotal, ENTERO, "99"},
    {Campo::NubosidadOpaca, ENTERO, "99"},
    {std::nullopt, ENTERO, "9999"},      // visibilidad
    {std::nullopt, ENTERO, "99999"},     // techo de nubes
    {std::nullopt, ENTERO, "9"},         // observación del tiempo
    {std::nullopt, ENTERO, "999999999"}, // y sus códigos
    {std::nullopt, ENTERO, "999"},       // agua precipitable
    {std::nullopt, ENTERO, "0.999"},     // espesor óptico
    {std::nullopt, ENTERO, "999"},       // nieve
    {std::nullopt, ENTERO, "99"},        // días desde la última
    {std::nullopt, ENTERO, "999"},       // albedo
    {std::nullopt, ENTERO, "999"},       // precipitación: cantidad
    {std::nullopt, ENTERO, "99"},        // y duración
}};

std::string NumeroOCero(double valor) { return NumeroDeFichero(std::isfinite(valor) ? valor : 0.0); }

std::string TextoOGuion(const std::string &texto) {
  const std::string limpio = TextoDeCampo(texto);
  return limpio.empty() ? "-" : limpio;
}

bool SabePresion(const AnioSolar &anio) {
  return std::ranges::all_of(anio.presion.procedencias, [](Procedencia p) {
    return p == Procedencia::Copiada || p == Procedencia::Calculada;
  });
}

std::string Cabecera(const AnioSolar &anio, bool conPresion) {
  const SitioClima &sitio = anio.sitio;
  std::string texto = "LOCATION," + TextoOGuion(sitio.nombre) + ',' + TextoOGuion(sitio.region) + ',' +
                      TextoOGuion(sitio.pais) + ",Tesmo," + TextoOGuion(sitio.identificador) + ',' +
                      NumeroOCero(sitio.latitud) + ',' + NumeroOCero(sitio.longitud) + ',' +
                      NumeroDeFichero(anio.husoHoras) + ',' + NumeroOCero(sitio.altitud) + '\n';
  texto += "DESIGN CONDITIONS,0\nTYPICAL/EXTREME PERIODS,0\nGROUND TEMPERATURES,0\n"
           "HOLIDAYS/DAYLIGHT SAVINGS,No,0,0,0\n";
  texto += "COMMENTS 1,Escrito por Tesmo desde la hora solar verdadera: hora oficial de invierno y cada "
           "registro con la hora que acaba en su etiqueta\n";
  texto += "COMMENTS 2,Sin dato y con el código del formato: " + std::string(conPresion ? "" : "presión; ") +
           "radiación extraterrestre; iluminancias; nubosidad; visibilidad; techo; tiempo observado; agua "
           "precipitable; aerosoles; nieve; albedo y lluvia\n";
  return texto + "DATA PERIODS,1,1,Data," + std::string(DIA_DE_COMIENZO) + ", 1/ 1,12/31\n";
}

void EscribirRegistro(std::string &texto, const AnioCanonico &anio, std::size_t hora, bool conPresion) {
  const FechaHora fecha = FechaDeIndice(static_cast<int>(hora));
  texto.append(ANIO).append(1, ',').append(std::to_string(fecha.mes)).append(1, ',');
  texto.append(std::to_string(fecha.dia)).append(1, ',').append(std::to_string(fecha.hora)).append(",60,");
  texto.append(PROCEDENCIA);
  for (const ColumnaEpw &columna : TABLA) {
    const bool callada = !columna.campo || (columna.campo == Campo::Presion && !conPresion);
    const double valor = callada ? AUSENTE : anio[*columna.campo].valores[hora];
    texto += ',';
    if (std::isnan(valor)) {
      texto += columna.sinDato;
    } else {
      columna.patron.Escribir(texto, valor, '.');
    }
  }
  texto += '\n';
}

} // namespace

std::string TextoEpw(const AnioSolar &anio) {
  const AnioCanonico oficial = AHoraOficial(anio, anio.husoHoras);
  const bool conPresion = SabePresion(anio);
  std::string texto = Cabecera(anio, conPresion);
  texto.reserve(texto.size() + HORAS * BYTES_POR_REGISTRO);
  for (std::size_t hora = 0; hora < HORAS; ++hora) EscribirRegistro(texto, oficial, hora, conPresion);
  return texto;
}

} // namespace tesmo
