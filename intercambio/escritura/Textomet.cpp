#include "intercambio/escritura/Textomet.h"

#include "core/Codificacion.h"
#include "core/Formato.h"
#include "intercambio/comun/Perfilmensual.h"

#include <algorithm>

namespace tesmo {

namespace {

/// Bytes que ocupa, más o menos, un registro: evita crecer a tientas.
constexpr std::size_t BYTES_POR_REGISTRO = 96;

constexpr std::array<PatronNumero, COLUMNAS_MET> PATRONES{
    PatronNumero("0.00"),      PatronNumero("0.00"), PatronNumero("0.0"), PatronNumero("0.0"),
    PatronNumero("0.0000000"), PatronNumero("0.00"), PatronNumero("0.0"), PatronNumero("0"),
    PatronNumero("0.0#"),      PatronNumero("0.0#")};

/// La primera línea sin saltos y en los bytes que el lector descarta de una vez; lo que pasara de ahí se
/// tomaría por los números del sitio.
std::string PrimeraLinea(std::string texto) {
  constexpr std::size_t BYTES = 298; // con su fin de línea, los 299 de la lectura
  std::replace_if(
      texto.begin(), texto.end(), [](char c) { return c == '\n' || c == '\r' || c == '\0'; }, ' ');
  return std::string(RecortarUtf8(texto, BYTES));
}

void EscribirRegistro(std::string &texto, const ColumnasMet &columnas, std::size_t i) {
  const std::size_t dia = i / HORAS_POR_DIA;
  const std::size_t mes = MesDe(dia);
  texto += std::to_string(mes + 1) + ' ' + std::to_string(dia - PrimerDiaDe(mes) + 1) + ' ' +
           std::to_string(i % HORAS_POR_DIA + 1);
  for (std::size_t c = 0; c < COLUMNAS_MET; ++c) {
    texto += ' ';
    PATRONES[c].Escribir(texto, columnas[c][i], '.');
  }
  texto += " 0 0\n";
}

} // namespace

ColumnasMet ColumnasDe(const AnioSolar &anio) {
  ColumnasMet columnas;
  for (std::size_t i = 0; i < COLUMNAS_MET; ++i) columnas[i] = anio.series[i].valores;
  return columnas;
}

std::string NumeroDeFichero(double valor) { return FormatoGeneral15(valor, '.'); }

std::string TextoMet(const CabeceraMet &cabecera, const ColumnasMet &columnas) {
  static constexpr PatronNumero GRADOS_DE_MERIDIANO("0.0##");
  std::string texto;
  texto.reserve(HORAS * BYTES_POR_REGISTRO);
  texto += PrimeraLinea(cabecera.primera) + '\n' + NumeroDeFichero(cabecera.latitud) + ' ' +
           NumeroDeFichero(cabecera.longitud) + ' ' + NumeroDeFichero(cabecera.altitud) + ' ';
  GRADOS_DE_MERIDIANO.Escribir(texto, cabecera.meridiano, '.');
  texto += '\n';
  for (std::size_t i = 0; i < HORAS; ++i) EscribirRegistro(texto, columnas, i);
  return texto;
}

} // namespace tesmo
