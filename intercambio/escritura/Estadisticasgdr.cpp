#include "intercambio/escritura/Estadisticasgdr.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numeric>
#include <span>

namespace tesmo {

namespace {

constexpr double CENTESIMAS = 100.0;
constexpr double KILOJULIOS_POR_WH = 3.6;
constexpr double GRAMOS_POR_KILO = 1000.0;
constexpr double PARTES_DE_DIAS = 20.0;
constexpr std::size_t DICIEMBRE = 11;

using Dia = std::span<const double>;

/// Una cifra de cada día de @p horas.
template <typename Cifra>
SerieDias PorDias(const std::vector<double> &horas, Cifra cifra) {
  SerieDias dias(DIAS);
  for (std::size_t d = 0; d < DIAS; ++d)
    dias[d] = cifra(Dia(horas).subspan(d * HORAS_POR_DIA, HORAS_POR_DIA));
  return dias;
}

double Maxima(Dia dia) { return *std::ranges::max_element(dia); }
double Minima(Dia dia) { return *std::ranges::min_element(dia); }
double Suma(Dia dia) { return std::accumulate(dia.begin(), dia.end(), 0.0); }
double Media(Dia dia) { return Suma(dia) / static_cast<double>(dia.size()); }

/// Una cifra de cada mes, redondeada a 1/@p partes.
template <typename Cifra>
ValoresPorMes PorMeses(const SerieDias &dias, double partes, Cifra cifra) {
  ValoresPorMes meses{};
  for (std::size_t mes = 0; mes < MESES; ++mes) meses[mes] = std::round(cifra(dias, mes) * partes) / partes;
  return meses;
}

std::vector<std::size_t> DiasDeMeses(std::initializer_list<std::size_t> meses) {
  std::vector<std::size_t> dias;
  for (const std::size_t mes : meses)
    for (std::size_t d = 0; d < DiasDe(mes); ++d) dias.push_back(PrimerDiaDe(mes) + d);
  return dias;
}

/// Humedad media [g/kg] de la veinteava parte de @p dias de menor @p orden.
double HumedadDeExtremos(std::vector<std::size_t> dias, const SerieDias &orden, const SerieDias &humedad) {
  std::ranges::stable_sort(dias, [&](std::size_t a, std::size_t b) { return orden[a] < orden[b]; });
  const double cuantos = std::round(static_cast<double>(dias.size()) / PARTES_DE_DIAS);
  dias.resize(static_cast<std::size_t>(cuantos));
  double suma = 0.0;
  for (const std::size_t dia : dias) suma += humedad[dia];
  return std::round(suma / cuantos * GRAMOS_POR_KILO * CENTESIMAS) / CENTESIMAS;
}

} // namespace

FichaGdr EstadisticasDelAnio(const AnioSolar &anio) {
  const std::vector<double> &temperatura = anio[SerieAlmacenada::TemperaturaSeca].valores;
  const SerieDias maximas = PorDias(temperatura, Maxima);
  const SerieDias minimas = PorDias(temperatura, Minima);
  const SerieDias medias = PorDias(temperatura, Media);
  const SerieDias humedad = PorDias(anio[SerieAlmacenada::HumedadAbsoluta].valores, Media);
  SerieDias global = PorDias(anio[SerieAlmacenada::RadiacionDirecta].valores, Suma);
  const SerieDias difusa = PorDias(anio[SerieAlmacenada::RadiacionDifusa].valores, Suma);
  for (std::size_t d = 0; d < DIAS; ++d) global[d] = (global[d] + difusa[d]) * KILOJULIOS_POR_WH;
  SerieDias opuestas(DIAS);
  std::ranges::transform(medias, opuestas.begin(), [](double t) { return -t; });

  FichaGdr ficha;
  ficha.maxima = PorMeses(maximas, CENTESIMAS, MediaDelMes);
  ficha.minima = PorMeses(minimas, CENTESIMAS, MediaDelMes);
  ficha.desviacionMaxima = PorMeses(maximas, CENTESIMAS, DesviacionDelMes);
  ficha.desviacionMinima = PorMeses(minimas, CENTESIMAS, DesviacionDelMes);
  ficha.radiacion = PorMeses(global, 1.0, MediaDelMes);
  ficha.sexta = PorMeses(PorDias(anio[SerieAlmacenada::HumedadRelativa].valores, Media), 10.0, MediaDelMes);
  ficha.humedadCal = HumedadDeExtremos(DiasDeMeses({DICIEMBRE, 0, 1}), medias, humedad);
  ficha.humedadRef = HumedadDeExtremos(DiasDeMeses({5, 6, 7, 8}), opuestas, humedad);
  return ficha;
}

} // namespace tesmo
