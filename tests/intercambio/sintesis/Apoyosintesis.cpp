#include "tests/intercambio/sintesis/Apoyosintesis.h"

#include "tests/comun/Apoyos.h"
#include "tests/comun/Lugares.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <sstream>

namespace tesmo::prueba {

std::string RutaNormales() { return tesmo::prueba::Raiz() + "/datos/normales.csv"; }

const std::vector<NormalesLocalidad> &NormalesDelPrograma() {
  static const std::vector<NormalesLocalidad> NORMALES = [] {
    std::vector<std::string> errores;
    auto leidas = LeerNormales(Contenido(RutaNormales()), "normales.csv", errores);
    for (const std::string &error : errores) ADD_FAILURE() << error;
    return leidas;
  }();
  return NORMALES;
}

MetLeido LeerMetDePrueba(const std::string &ruta) {
  std::istringstream texto(Contenido(RutaDesdeTexto(ruta)));
  texto.imbue(std::locale::classic());
  MetLeido met;
  std::string linea;
  std::getline(texto, met.primeraLinea);
  std::getline(texto, linea);
  std::istringstream sitio(linea);
  for (double valor = 0.0; sitio >> valor;) met.sitio.push_back(valor);
  while (std::getline(texto, linea)) {
    std::istringstream campos(linea);
    std::array<double, 15> registro{};
    for (double &campo : registro) {
      if (!(campos >> campo)) ADD_FAILURE() << ruta << ": registro corto: " << linea;
    }
    std::string resto;
    if (campos >> resto) ADD_FAILURE() << ruta << ": registro largo: " << linea;
    met.registros.push_back(registro);
  }
  return met;
}

const std::vector<AnioDePrueba> &AniosDelPrograma() {
  static const std::vector<AnioDePrueba> ANIOS = [] {
    const DirectorioTemporal directorio;
    ResultadoSintesis resultado;
    if (!Sintetizar(RutaNormales(), TextoDeRuta(directorio.Ruta()), resultado))
      ADD_FAILURE() << "no hay síntesis";
    std::vector<AnioDePrueba> anios;
    for (std::size_t i = 0; i < NormalesDelPrograma().size() && i < resultado.ficheros.size(); ++i) {
      anios.push_back({NormalesDelPrograma()[i], LeerMetDePrueba(resultado.ficheros[i])});
    }
    return anios;
  }();
  return ANIOS;
}

double Media(const std::vector<double> &valores) {
  return std::accumulate(valores.begin(), valores.end(), 0.0) / static_cast<double>(valores.size());
}

double Desviacion(const std::vector<double> &valores) {
  const double media = Media(valores);
  double suma = 0.0;
  for (double valor : valores) suma += (valor - media) * (valor - media);
  return std::sqrt(suma / static_cast<double>(valores.size() - 1));
}

double Correlacion(const std::vector<double> &a, const std::vector<double> &b) {
  const double mediaA = Media(a);
  const double mediaB = Media(b);
  double suma = 0.0;
  for (std::size_t i = 0; i < a.size(); ++i) suma += (a[i] - mediaA) * (b[i] - mediaB);
  return suma / (static_cast<double>(a.size() - 1) * Desviacion(a) * Desviacion(b));
}

std::vector<double> HorasDelMes(const MetLeido &met, int mes, Columna columna) {
  std::vector<double> horas;
  for (const auto &registro : met.registros) {
    if (registro[MES] == mes) horas.push_back(registro[columna]);
  }
  return horas;
}

namespace {

template <typename Elegir>
std::vector<double> UnoPorDia(const std::vector<double> &horas, Elegir elegir) {
  std::vector<double> dias;
  for (auto hora = horas.begin(); hora != horas.end(); hora += 24) dias.push_back(*elegir(hora, hora + 24));
  return dias;
}

} // namespace

std::vector<double> MaximosDelMes(const MetLeido &met, int mes, Columna columna) {
  return UnoPorDia(HorasDelMes(met, mes, columna), [](auto a, auto b) { return std::max_element(a, b); });
}

std::vector<double> MinimosDelMes(const MetLeido &met, int mes, Columna columna) {
  return UnoPorDia(HorasDelMes(met, mes, columna), [](auto a, auto b) { return std::min_element(a, b); });
}

} // namespace tesmo::prueba
