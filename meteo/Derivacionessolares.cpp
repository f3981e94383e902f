#include "meteo/Derivacionessolares.h"

#include "meteo/Derivacionesrecorrido.h"
#include "solar/Alturashorizonte.h"
#include "solar/Posicionsolar.h"

#include <cmath>

namespace tesmo {

namespace {

constexpr float MEDIA_HORA = 0.5F;

/// Vector unitario normal a la superficie: sur, oeste, cenit.
struct Normal {
  double s, w, z;

  explicit Normal(const SuperficieReceptora &superficie) {
    const double beta = superficie.inclinacion * RADIANES_DE_SERIES;
    const double gamma = superficie.orientacion * RADIANES_DE_SERIES;
    s = std::sin(beta) * std::cos(gamma);
    w = std::sin(beta) * std::sin(gamma);
    z = std::cos(beta);
  }
  /// Coseno del ángulo de incidencia; 0 con el sol detrás.
  [[nodiscard]] double Incidencia(const VectorSolar &sol) const {
    const auto coseno = static_cast<double>(s * sol.s + w * sol.w + z * sol.z);
    return coseno < 0.0 ? 0.0 : coseno;
  }
};

/// Lo que no cambia de una hora a otra.
struct Receptor {
  const SuperficieReceptora &superficie;
  Normal normal;
  AlturasDeHorizonte horizonte;
  double factorDeCielo;
};

/// Directa sobre la superficie [W/m²]; en una horizontal la incidencia es la del cenit del fichero.
double DirectaSobreSuperficie(const Receptor &receptor, const VectorSolar &sol, double cosCenit,
                              float directa) {
  if (cosCenit == 0.0) return 0.0;
  const double incidencia =
      receptor.superficie.inclinacion == 0.0F ? cosCenit : receptor.normal.Incidencia(sol);
  return incidencia / cosCenit * directa;
}

void DerivarHora(const Receptor &receptor, const SeriesLeidas &leidas, const VectorSolar &sol, std::size_t i,
                 SeriesDerivadas &derivadas) {
  const float directaHorizontal = leidas[SerieAlmacenada::RadiacionDirecta][i];
  const float difusaHorizontal = leidas[SerieAlmacenada::RadiacionDifusa][i];
  const double cosCenit = std::cos(leidas[SerieAlmacenada::Cenit][i] * RADIANES_DE_SERIES);
  // Sin guarda para un cenit de 90°: la directa normal puede quedar sin límite.
  derivadas[SerieDerivada::DirectaNormal][i] = static_cast<float>(directaHorizontal / cosCenit);

  auto directa = static_cast<float>(DirectaSobreSuperficie(receptor, sol, cosCenit, directaHorizontal));
  const float altura = derivadas[SerieDerivada::Altura][i];
  if (receptor.horizonte.Tapa(leidas[SerieAlmacenada::Acimut][i], altura)) directa = 0.0F;

  const double f = receptor.factorDeCielo;
  const float globalHorizontal = directaHorizontal + difusaHorizontal;
  const auto reflejada = static_cast<float>((1.0 - f) * globalHorizontal * receptor.superficie.albedo);
  const auto difusa = static_cast<float>(f * difusaHorizontal);
  derivadas[SerieDerivada::Directa][i] = directa;
  derivadas[SerieDerivada::Difusa][i] = difusa;
  derivadas[SerieDerivada::Reflejada][i] = reflejada;
  derivadas[SerieDerivada::Global][i] = static_cast<float>(static_cast<double>(directa) + difusa + reflejada);
}

} // namespace

float DerivarSolares(const SeriesLeidas &leidas, SeriesDerivadas &derivadas, TramoHoras tramo,
                     FechaHora inicio, const SuperficieReceptora &superficie, float latitud,
                     const PosicionSolar &horizonte) {
  const AlturasDeHorizonte alturas(horizonte.HorizonteX(), horizonte.HorizonteY());
  const float factorDeCielo = alturas.FactorDeCielo(superficie.orientacion);
  const Receptor receptor{superficie, Normal(superficie), alturas, factorDeCielo};
  PosicionSolar sol(latitud, inicio.mes, inicio.dia, static_cast<float>(inicio.hora));
  RecorrerHoras(tramo, inicio, derivadas[SerieDerivada::Altura].size(),
                [&](std::size_t i, const FechaHora &fecha) {
                  const float hora = static_cast<float>(fecha.hora) - MEDIA_HORA;
                  const VectorSolar vector = sol.CalcularVectorSolar(latitud, fecha.mes, fecha.dia, hora);
                  DerivarHora(receptor, leidas, vector, i, derivadas);
                });
  return factorDeCielo;
}

} // namespace tesmo
