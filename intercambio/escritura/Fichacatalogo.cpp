#include "intercambio/escritura/Fichacatalogo.h"

#include "intercambio/escritura/Textomet.h"

namespace tesmo {

namespace {

/// Los meses se reparten con esta cola: la clase extrema de los días tiene una probabilidad de
/// 1/(días · factor) en el cálculo de los días extremos.
constexpr int FACTOR_DE_COLA = 10;

/// Una línea de doce cifras, enero primero.
void EscribirFila(std::string &texto, const ValoresPorMes &fila, std::string_view fin) {
  for (std::size_t mes = 0; mes < MESES; ++mes) {
    if (mes > 0) texto += ' ';
    texto += NumeroDeFichero(fila[mes]);
  }
  texto += fin;
}

} // namespace

std::string LineaDeLocalidad(const FichaLocalidad &ficha) {
  return ficha.nombre + ',' + ficha.corto + ',' + ficha.provincia + ',' + ficha.cuarto + ',' +
         ficha.referencia + ',' + ficha.fichero + ',' + NumeroDeFichero(ficha.latitud) + ',' +
         NumeroDeFichero(ficha.longitud) + ',' + NumeroDeFichero(ficha.meridiano) + ',' +
         NumeroDeFichero(ficha.altitud) + ',' + ficha.undecimo;
}

std::string TextoRegistroGdr(const FichaGdr &ficha, std::string_view fin) {
  std::string texto = ficha.corto + ' ' + ficha.zona + ' ' + NumeroDeFichero(ficha.latitud) + ' ' +
                      NumeroDeFichero(ficha.longitud) + ' ' + NumeroDeFichero(ficha.meridiano) + ' ' +
                      std::to_string(FACTOR_DE_COLA) + " ALT=" + NumeroDeFichero(ficha.altitud);
  if (ficha.humedadCal) texto += " WCAL=" + NumeroDeFichero(*ficha.humedadCal);
  if (ficha.humedadRef) texto += " WREF=" + NumeroDeFichero(*ficha.humedadRef);
  texto += fin;
  for (const ValoresPorMes *fila : {&ficha.maxima, &ficha.minima, &ficha.desviacionMaxima,
                                    &ficha.desviacionMinima, &ficha.radiacion, &ficha.sexta})
    EscribirFila(texto, *fila, fin);
  return texto;
}

} // namespace tesmo
