#include "intercambio/formatos/Lectura.h"

#include "core/Ficheros.h"
#include "intercambio/formatos/Cuaderno.h"
#include "intercambio/formatos/Huecos.h"
#include "intercambio/formatos/Lectores.h"
#include "intercambio/formatos/Pistasdeformato.h"
#include "intercambio/formatos/Radiacionnula.h"

#include <algorithm>
#include <system_error>

namespace tesmo {

namespace {

/// Un año horario ocupa unos dos millones de bytes; con cien veces eso ya no es un año.
constexpr std::uintmax_t BYTES_MAXIMOS = 200'000'000;

void ErrorDeFichero(Cuaderno &cuaderno, std::string texto) {
  cuaderno.Error({.clase = ClaseNota::Fichero, .texto = std::move(texto)});
}

void DecirDesconocido(std::string_view texto, Cuaderno &cuaderno) {
  std::string pista = PistaDeFormato(texto);
  if (!pista.empty()) return ErrorDeFichero(cuaderno, std::move(pista));
  ErrorDeFichero(cuaderno, "no es un formato que se conozca (EPW, PVGIS, TMY3, .met de trece o de quince "
                           "columnas); si es un texto con columnas, descríbalas en un mapa");
}

void LeerSegunFormato(std::string_view texto, const OpcionesLectura &opciones, AnioCanonico &anio,
                      Cuaderno &cuaderno) {
  switch (anio.formato) {
  case FormatoClima::Epw:
  case FormatoClima::PvgisEpw:
    return LeerEpw(texto, anio, cuaderno);
  case FormatoClima::PvgisCsv:
    return LeerPvgisCsv(texto, anio, cuaderno);
  case FormatoClima::Tmy3:
    return LeerTmy3(texto, anio, cuaderno);
  case FormatoClima::MetTrece:
    return LeerMetTrece(texto, anio, cuaderno);
  case FormatoClima::MetQuince:
    return LeerMetQuince(texto, anio, cuaderno);
  case FormatoClima::Delimitado:
    return LeerDelimitado(texto, *opciones.mapa, anio, cuaderno);
  case FormatoClima::Desconocido:
    return DecirDesconocido(texto, cuaderno);
  }
}

void AvisarDeCodigos(Cuaderno &cuaderno) {
  const auto &ausentes = cuaderno.Resultado().ausentes;
  for (std::size_t c = 0; c < NUMERO_CAMPOS; ++c) {
    const CuentaAusentes &cuenta = ausentes[c];
    if (cuenta.veces == 0) continue;
    const auto campo = static_cast<Campo>(c);
    cuaderno.Aviso({.clase = ClaseNota::CodigoAusente,
                    .campo = campo,
                    .linea = cuenta.primeraLinea,
                    .ultimaLinea = cuenta.ultimaLinea,
                    .veces = cuenta.veces,
                    .texto = std::string(NombreCampo(campo)) + ": sin dato " + std::to_string(cuenta.veces) +
                             (cuenta.veces == 1 ? " vez (" : " veces (") +
                             TextoLineas(cuenta.primeraLinea, cuenta.ultimaLinea) + ")"});
  }
}

bool TieneRegistros(const AnioCanonico &anio) {
  return std::any_of(anio.lineas.begin(), anio.lineas.end(), [](int linea) { return linea != 0; });
}

/// Un aire que en todo el año no pasa del uno por ciento de humedad está en otra unidad.
void AvisarDeHumedadEnTantoPorUno(const AnioCanonico &anio, Cuaderno &cuaderno) {
  const std::vector<double> &valores = anio[Campo::HumedadRelativa].valores;
  const bool algunoPasa = std::any_of(valores.begin(), valores.end(), [](double v) { return v > 1.0; });
  const bool hay = std::any_of(valores.begin(), valores.end(), [](double v) { return v > 0.0; });
  if (!hay || algunoPasa) return;
  cuaderno.Aviso(
      {.clase = ClaseNota::ValorImposible,
       .campo = Campo::HumedadRelativa,
       .veces = HORAS_DEL_ANIO,
       .texto = std::string(NombreCampo(Campo::HumedadRelativa)) +
                ": no pasa de 1 en todo el año; parece en tanto por uno, y entonces el fichero ha de "
                "describirse en un mapa con «[tanto por uno]»"});
}

/// Tapa los huecos del año, o sólo dice cuáles no se podrían tapar.
void Terminar(AnioCanonico anio, const OpcionesLectura &opciones, Cuaderno &cuaderno) {
  ResultadoLectura &resultado = cuaderno.Resultado();
  AvisarDeCodigos(cuaderno);
  if (TieneRegistros(anio)) {
    // El .met de quince columnas se toma como lo toman las localidades, que no preguntan.
    if (anio.formato != FormatoClima::MetQuince) QuitarRadiacionNula(anio, cuaderno);
    AvisarDeHumedadEnTantoPorUno(anio, cuaderno);
    if (opciones.paraAuditar) resultado.anio = anio;
    TaparHuecos(anio, opciones.huecosLargos, cuaderno);
    if (!opciones.paraAuditar && resultado.errores.empty()) resultado.anio = std::move(anio);
  }
  cuaderno.Cerrar();
}

} // namespace

ResultadoLectura LeerTextoClima(std::string_view texto, const OpcionesLectura &opciones) {
  ResultadoLectura resultado;
  Cuaderno cuaderno(resultado);
  AnioCanonico anio;
  anio.sitio.altitud = opciones.altitud.value_or(AUSENTE);
  anio.formato = opciones.mapa ? FormatoClima::Delimitado : ReconocerFormato(texto);
  resultado.formato = anio.formato;
  std::string binario = PistaDeBinario(texto);
  if (binario.empty()) {
    LeerSegunFormato(texto, opciones, anio, cuaderno);
  } else {
    ErrorDeFichero(cuaderno, std::move(binario));
  }
  Terminar(std::move(anio), opciones, cuaderno);
  return resultado;
}

bool EsFicheroMetDeTreceColumnas(const std::string &ruta) {
  const std::optional<std::string> texto = LeerFicheroEntero(BuscarSinMayusculas(RutaDesdeTexto(ruta)));
  return texto && EsMetDeTreceColumnas(*texto);
}

ResultadoLectura LeerFicheroClima(const std::string &ruta, const OpcionesLectura &opciones) {
  ResultadoLectura resultado;
  Cuaderno cuaderno(resultado);
  const std::filesystem::path hallada = BuscarSinMayusculas(RutaDesdeTexto(ruta));
  std::error_code error;
  const std::uintmax_t bytes = std::filesystem::file_size(hallada, error);
  if (!error && bytes > BYTES_MAXIMOS) {
    ErrorDeFichero(cuaderno, ruta + ": ocupa " + std::to_string(bytes) +
                                 " bytes, y un año horario no pasa de unos pocos millones");
    return resultado;
  }
  const std::optional<std::string> texto = LeerFicheroEntero(hallada);
  if (texto) return LeerTextoClima(*texto, opciones);
  ErrorDeFichero(cuaderno, ruta +
                               ": no se puede abrir; compruebe que existe, que es un fichero y que se tiene "
                               "permiso para leerlo");
  return resultado;
}

} // namespace tesmo
