#include "intercambio/formatos/Cabeceras.h"

#include "core/Caracteres.h"
#include "core/Unidades.h"
#include "intercambio/formatos/Numeros.h"
#include "psicro/Atmosfera.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace tesmo {

namespace {

constexpr double LATITUD_MAXIMA = 90.0;
constexpr double LONGITUD_MAXIMA = 180.0;

std::size_t Buscar(std::string_view texto, std::string_view clave) {
  const auto igual = [](char a, char b) { return Minuscula(a) == Minuscula(b); };
  const auto *hallado = std::search(texto.begin(), texto.end(), clave.begin(), clave.end(), igual);
  return hallado == texto.end() && !clave.empty() ? std::string_view::npos
                                                  : static_cast<std::size_t>(hallado - texto.begin());
}

std::string Donde(int linea) { return linea == 0 ? "mapa" : "línea " + std::to_string(linea); }

double Angulo(std::optional<double> valor, double maximo, const char *nombre, int linea, Cuaderno &cuaderno) {
  if (valor && std::fabs(*valor) <= maximo) return *valor;
  cuaderno.Error({.clase = ClaseNota::Cabecera,
                  .linea = linea,
                  .texto = Donde(linea) + ": la " + nombre +
                           (valor ? " no cabe en un círculo" : " falta o no es un número") +
                           "; escríbala en grados con punto decimal" +
                           (linea == 0 ? " («" + std::string(nombre) + " = 37.5»)" : "")});
  return AUSENTE;
}

} // namespace

void PonerSitio(std::optional<double> latitud, std::optional<double> longitud, std::optional<double> altitud,
                int linea, SitioClima &sitio, Cuaderno &cuaderno) {
  sitio.latitud = Angulo(latitud, LATITUD_MAXIMA, "latitud", linea, cuaderno);
  sitio.longitud = Angulo(longitud, LONGITUD_MAXIMA, "longitud", linea, cuaderno);
  if (!std::isnan(sitio.altitud)) return;
  if (altitud && AltitudCreible(*altitud)) {
    sitio.altitud = *altitud;
    return;
  }
  cuaderno.Aviso(
      {.clase = ClaseNota::Cabecera,
       .linea = linea,
       .texto = Donde(linea) +
                ": no da una altitud creíble, y de ella sale la presión de las horas que no la traen; "
                "escríbala " +
                (linea == 0 ? "en el mapa («altitud = 600»)" : "en la línea " + std::to_string(linea)) +
                " o con --altitud"});
}

bool RechazarSeparador(std::string_view linea, int numeroDeLinea, Cuaderno &cuaderno) {
  constexpr std::ptrdiff_t MINIMOS = 2; // uno suelto puede estar en un nombre
  const auto comas = std::count(linea.begin(), linea.end(), ',');
  const auto otros = [&](char separador) {
    const auto cuantos = std::count(linea.begin(), linea.end(), separador);
    return cuantos >= MINIMOS && cuantos > comas;
  };
  const bool puntoYComa = otros(';');
  if (!puntoYComa && !otros('\t')) return false;
  cuaderno.Error({.clase = ClaseNota::Cabecera,
                  .linea = numeroDeLinea,
                  .texto = "línea " + std::to_string(numeroDeLinea) + ": los campos van separados por " +
                           (puntoYComa ? "punto y coma" : "tabuladores") +
                           " y este formato lleva comas; lo habrá guardado una hoja de cálculo, que "
                           "además puede cambiar números por fechas: use el fichero original o descríbalo "
                           "en un mapa"});
  return true;
}

double HusoDeLongitud(double longitud) {
  return std::isfinite(longitud) ? std::round(longitud / GRADOS_POR_HORA) + 0.0 : 0.0;
}

double HusoCreible(std::optional<double> huso, double longitud, int linea, Cuaderno &cuaderno) {
  if (huso && std::fabs(*huso) <= HUSO_MAXIMO) return *huso;
  cuaderno.Aviso({.clase = ClaseNota::Cabecera,
                  .linea = linea,
                  .texto = Donde(linea) + ": no da un huso horario creíble; se toma el de su longitud"});
  return HusoDeLongitud(longitud);
}

std::optional<double> NumeroTras(std::string_view texto, std::string_view clave) {
  const std::size_t hallada = Buscar(texto, clave);
  if (hallada == std::string_view::npos) return std::nullopt;
  std::string_view resto = texto.substr(hallada + clave.size());
  const std::size_t inicio = resto.find_first_not_of(" \t:");
  if (inicio == std::string_view::npos) return std::nullopt;
  resto.remove_prefix(inicio);
  constexpr std::string_view CIFRAS = "0123456789";
  const std::size_t fin = std::min(resto.find_first_not_of("0123456789.+-eE"), resto.size());
  const bool comaDecimal =
      fin + 1 < resto.size() && resto[fin] == ',' && CIFRAS.find(resto[fin + 1]) != std::string_view::npos;
  return comaDecimal ? std::nullopt : LeerNumero(resto.substr(0, fin));
}

bool Contiene(std::string_view texto, std::string_view clave) {
  return Buscar(texto, clave) != std::string_view::npos;
}

} // namespace tesmo
