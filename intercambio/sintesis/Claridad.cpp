#include "intercambio/sintesis/Claridad.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace tesmo {

namespace {

constexpr double CLARIDAD_MINIMA = 0.05;
constexpr double MEDIA_MINIMA = 0.1;
constexpr double MEDIA_MAXIMA = 0.78;
/// Lo que al menos dista el máximo de la media: sin ello no habría días distintos que repartir.
constexpr double HOLGURA = 0.03;
constexpr double AUTOCORRELACION = 0.29;
/// Correlación supuesta entre claridad y recorrido de temperatura: Bristow y Campbell (1984) dan el signo y
/// la fuerza de la relación pero no este número.
constexpr double LIGADURA_RECORRIDO = 0.5;
/// Más allá la distribución ya es un escalón y la exponencial se desborda.
constexpr double GAMMA_LIMITE = 60.0;
constexpr int BISECCIONES = 80;

/// Media de la exponencial acotada a [a, b] con forma g; con g pequeño, la del reparto uniforme.
double MediaExponencial(double g, double a, double b) {
  const double x = g * (b - a);
  if (std::fabs(x) < 1e-6) return (a + b) / 2.0 + (b - a) * x / 12.0;
  return b - 1.0 / g + (b - a) / std::expm1(x);
}

SerieDias Tipificar(SerieDias serie) {
  for (std::size_t mes = 0; mes < MESES; ++mes) {
    const double media = MediaDelMes(serie, mes);
    const double desviacion = DesviacionDelMes(serie, mes);
    for (std::size_t dia = PrimerDiaDe(mes); dia < PrimerDiaDe(mes) + DiasDe(mes); ++dia) {
      serie[dia] = desviacion > 0.0 ? (serie[dia] - media) / desviacion : 0.0;
    }
  }
  return serie;
}

SerieDias Recorrido(const TemperaturasDiarias &dias) {
  SerieDias recorrido(DIAS);
  for (std::size_t dia = 0; dia < DIAS; ++dia) recorrido[dia] = dias.maximas[dia] - dias.minimas[dia];
  return recorrido;
}

/// Da a los días de @p mes los cuantiles de @p distribucion en el orden de @p guia.
void Repartir(SerieDias &claridad, const SerieDias &guia, std::size_t mes,
              const DistribucionClaridad &distribucion) {
  std::vector<std::size_t> orden(DiasDe(mes));
  std::iota(orden.begin(), orden.end(), PrimerDiaDe(mes));
  std::stable_sort(orden.begin(), orden.end(),
                   [&](std::size_t a, std::size_t b) { return guia[a] < guia[b]; });
  for (std::size_t i = 0; i < orden.size(); ++i) {
    claridad[orden[i]] =
        distribucion.Cuantil((static_cast<double>(i) + 0.5) / static_cast<double>(orden.size()));
  }
}

/// Irradiación del mes con la claridad dada [kWh/m²].
double Irradiacion(const SerieDias &claridad, const SolDelAnio &sol, std::size_t mes) {
  double suma = 0.0;
  for (std::size_t dia = PrimerDiaDe(mes); dia < PrimerDiaDe(mes) + DiasDe(mes); ++dia) {
    suma += claridad[dia] * sol.extraterrestre[dia];
  }
  return suma;
}

} // namespace

double ClaridadDespejada(double altitud) { return 0.75 + 2e-5 * altitud; }

DistribucionClaridad::DistribucionClaridad(double media, double despejado) {
  const double k = std::clamp(media, MEDIA_MINIMA, MEDIA_MAXIMA);
  const double publicado = 0.6313 + 0.267 * k - 11.9 * std::pow(k - 0.75, 8.0);
  maximo_ = std::min(publicado, std::max(despejado, k + HOLGURA));
  double bajo = -GAMMA_LIMITE;
  double alto = GAMMA_LIMITE;
  for (int i = 0; i < BISECCIONES; ++i) {
    const double g = (bajo + alto) / 2.0;
    (MediaExponencial(g, CLARIDAD_MINIMA, maximo_) < k ? bajo : alto) = g;
  }
  gamma_ = (bajo + alto) / 2.0;
}

double DistribucionClaridad::Cuantil(double f) const {
  const double ancho = maximo_ - CLARIDAD_MINIMA;
  const double x = gamma_ * ancho;
  if (std::fabs(x) < 1e-6) return CLARIDAD_MINIMA + ancho * f;
  return CLARIDAD_MINIMA + std::log1p(f * std::expm1(x)) / gamma_;
}

SerieDias GenerarClaridad(const NormalesLocalidad &localidad, const SolDelAnio &sol,
                          const TemperaturasDiarias &dias, Azar &azar) {
  const SerieDias recorrido = Tipificar(Recorrido(dias));
  SerieDias guia = SerieAutorregresiva(azar, DIAS, AUTOCORRELACION);
  const double propio = std::sqrt(1.0 - LIGADURA_RECORRIDO * LIGADURA_RECORRIDO);
  for (std::size_t dia = 0; dia < DIAS; ++dia)
    guia[dia] = LIGADURA_RECORRIDO * recorrido[dia] + propio * guia[dia];

  SerieDias claridad(DIAS);
  const double despejado = ClaridadDespejada(localidad.altitud);
  const SerieDias todoElSol(DIAS, 1.0);
  for (std::size_t mes = 0; mes < MESES; ++mes) {
    const double pedida = localidad.meses[mes].ghi * static_cast<double>(DiasDe(mes));
    Repartir(claridad, guia, mes, DistribucionClaridad(pedida / Irradiacion(todoElSol, sol, mes), despejado));
    const double factor = pedida / Irradiacion(claridad, sol, mes);
    for (std::size_t dia = PrimerDiaDe(mes); dia < PrimerDiaDe(mes) + DiasDe(mes); ++dia)
      claridad[dia] *= factor;
  }
  return claridad;
}

} // namespace tesmo
