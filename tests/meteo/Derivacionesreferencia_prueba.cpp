// Segunda escritura, llana, de la irradiancia sobre la superficie: por ángulos en vez de por vectores y con el
// horizonte buscado a cada paso. Se compara con la del programa sobre datos al azar, siempre los mismos.

#include "meteo/Derivacionessolares.h"
#include "meteo/Fecha.h"
#include "solar/Posicionsolar.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <optional>
#include <random>
#include <string>

namespace tesmo {
namespace {

constexpr double RAD = std::numbers::pi / 180.0;

struct Punto {
  double x, y;
};
using Perfil = std::vector<Punto>;

double AlturaEn(const Perfil &perfil, int grado) {
  for (std::size_t i = 0; i + 1 < perfil.size(); ++i) {
    const Punto &a = perfil[i];
    const Punto &b = perfil[i + 1];
    if (a.x < b.x && a.x <= grado && grado <= b.x) return a.y + (b.y - a.y) * (grado - a.x) / (b.x - a.x);
  }
  for (const Punto &p : perfil) {
    if (p.x == grado) return p.y;
  }
  return 0.0;
}

/// La posición k de la lista de 361 grados es el acimut k − 180.
double FactorDeCielo(const Perfil &perfil, double orientacion) {
  double bajo = orientacion - 90.0;
  double alto = orientacion + 90.0;
  if (bajo < -180.0) bajo += 360.0;
  if (alto > 180.0) alto -= 360.0;
  if (bajo > alto) std::swap(bajo, alto);
  double suma = 0.0;
  for (int a = static_cast<int>(std::trunc(bajo)); a < alto; a++) {
    const int posicion = a < 0 ? -a : a + 180;
    suma += 1.0 - std::sin(AlturaEn(perfil, posicion - 180) * RAD);
  }
  return suma / 360.0;
}

/// El rótulo del acimut truncado, si es uno de los 361.
std::optional<int> BuscarAcimut(double acimut) {
  const std::string texto = std::to_string(static_cast<int>(acimut));
  for (int grado = -180; grado <= 180; ++grado) {
    if (std::to_string(grado) == texto) return grado;
  }
  return std::nullopt;
}

/// Coseno de la incidencia por altura y acimut del sol, del centro de la hora; 0 de noche. Sólo al norte.
double CosenoIncidencia(double latitud, int diaDelAnio, double hora, const SuperficieReceptora &s) {
  const double delta = 23.45 * std::sin(2.0 * std::numbers::pi * (284 + diaDelAnio) / 365.0) * RAD;
  const double phi = latitud * RAD;
  const double omega = (hora - 0.5 - 12.0) * 15.0 * RAD;
  const double senAltura = std::sin(phi) * std::sin(delta) + std::cos(phi) * std::cos(delta) * std::cos(omega);
  if (senAltura <= 0.0) return 0.0;
  const double altura = std::asin(senAltura);
  const double acimut =
      std::atan2(std::cos(delta) * std::sin(omega),
                 std::sin(phi) * std::cos(delta) * std::cos(omega) - std::cos(phi) * std::sin(delta));
  const double beta = s.inclinacion * RAD;
  const double coseno = std::cos(beta) * senAltura +
                        std::sin(beta) * std::cos(altura) * std::cos(acimut - s.orientacion * RAD);
  return std::max(coseno, 0.0);
}

/// Cerca del orto y del ocaso las dos escrituras pueden discrepar en si es de día.
bool JuntoAlHorizonte(double latitud, int diaDelAnio, double hora) {
  const double delta = 23.45 * std::sin(2.0 * std::numbers::pi * (284 + diaDelAnio) / 365.0) * RAD;
  const double coseno = -std::tan(latitud * RAD) * std::tan(delta);
  const double salida = 12.0 - std::acos(coseno) / RAD / 15.0;
  return std::fabs(std::fabs(hora - 12.5) - (12.0 - salida)) < 0.01;
}

TEST(DerivacionDeReferencia, CoincideSobreDatosAlAzar) {
  std::mt19937 azar(36840U);
  const auto entre = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(azar); };
  int conDirecta = 0;
  for (int vuelta = 0; vuelta < 60; ++vuelta) {
    const auto latitud = static_cast<float>(entre(5.0, 60.0));
    const SuperficieReceptora s{static_cast<float>(entre(1.0, 180.0)), static_cast<float>(entre(-180.0, 180.0)),
                                static_cast<float>(entre(0.0, 1.0))};
    PosicionSolar horizonte(latitud, 1, 1, 12.0F);
    Perfil perfil;
    const int puntos = static_cast<int>(entre(0.0, 9.0));
    horizonte.PonTamanoHorizonte(static_cast<float>(puntos));
    for (int i = 0; i < puntos; ++i) {
      const float x = static_cast<float>(vuelta % 2 == 0 ? entre(-180.0, 180.0) : std::round(entre(-185.0, 185.0)));
      const auto y = static_cast<float>(entre(0.0, 60.0));
      horizonte.PonPuntoHorizonte(i, x, y);
      perfil.push_back({x, y});
    }
    SeriesLeidas leidas;
    SeriesDerivadas derivadas;
    derivadas.Reservar(HORAS_DEL_ANIO);
    const int primera = static_cast<int>(entre(0.0, 8000.0));
    const TramoHoras tramo{primera, primera + 300};
    for (int i = tramo.primera; i <= tramo.ultima; ++i) {
      const auto k = static_cast<std::size_t>(i);
      leidas[SerieAlmacenada::RadiacionDirecta][k] = static_cast<float>(entre(0.0, 900.0));
      leidas[SerieAlmacenada::RadiacionDifusa][k] = static_cast<float>(entre(0.0, 400.0));
      leidas[SerieAlmacenada::Acimut][k] = static_cast<float>(entre(-190.0, 190.0));
      leidas[SerieAlmacenada::Cenit][k] = static_cast<float>(entre(0.0, 95.0));
      derivadas[SerieDerivada::Altura][k] = 90.0F - leidas[SerieAlmacenada::Cenit][k];
    }
    const float f =
        DerivarSolares(leidas, derivadas, tramo, FechaDeIndice(primera), s, latitud, horizonte);
    const double fReferencia = FactorDeCielo(perfil, s.orientacion);
    ASSERT_NEAR(f, fReferencia, 1e-6);
    for (int i = tramo.primera; i <= tramo.ultima; ++i) {
      const auto k = static_cast<std::size_t>(i);
      const int dia = i / 24 + 1;
      const double hora = i % 24 + 1;
      if (JuntoAlHorizonte(latitud, dia, hora)) continue;
      const double directa = leidas[SerieAlmacenada::RadiacionDirecta][k];
      const double difusa = leidas[SerieAlmacenada::RadiacionDifusa][k];
      const double cosCenit = std::cos(leidas[SerieAlmacenada::Cenit][k] * RAD);
      const double normal = directa / cosCenit;
      double sobre = CosenoIncidencia(latitud, dia, hora, s) * normal;
      const auto grado = BuscarAcimut(leidas[SerieAlmacenada::Acimut][k]);
      const double altura = 90.0 - leidas[SerieAlmacenada::Cenit][k];
      if (grado && std::fabs(altura - AlturaEn(perfil, *grado)) < 1e-4) continue;
      if (grado && altura < AlturaEn(perfil, *grado)) sobre = 0.0;
      const double reflejada = (1.0 - fReferencia) * (directa + difusa) * s.albedo;
      // El π de 32 bits mueve el cenit 4e-8 y los valores son reales de 32 bits.
      const double margen = 1e-3 + std::fabs(normal) * (1e-5 + 1e-7 / std::fabs(cosCenit));
      ASSERT_NEAR(derivadas[SerieDerivada::DirectaNormal][k], normal, margen);
      ASSERT_NEAR(derivadas[SerieDerivada::Directa][k], sobre, margen) << vuelta << ' ' << i;
      ASSERT_NEAR(derivadas[SerieDerivada::Difusa][k], fReferencia * difusa, 1e-3);
      ASSERT_NEAR(derivadas[SerieDerivada::Reflejada][k], reflejada, 1e-3);
      ASSERT_NEAR(derivadas[SerieDerivada::Global][k], sobre + fReferencia * difusa + reflejada, margen + 2e-3);
      conDirecta += sobre > 0.0 ? 1 : 0;
    }
  }
  EXPECT_GT(conDirecta, 1000);
}

} // namespace
} // namespace tesmo
