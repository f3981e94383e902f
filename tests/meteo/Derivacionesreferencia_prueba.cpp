// Segunda escritura, llana, de la irradiancia sobre la superficie: por ángulos en vez de por vectores y con
// el horizonte buscado a cada paso. Se compara con la del programa sobre datos al azar, siempre los mismos.

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
  const double senAltura =
      std::sin(phi) * std::sin(delta) + std::cos(phi) * std::cos(delta) * std::cos(omega);
  if (senAltura <= 0.0) return 0.0;
  const double altura = std::asin(senAltura);
  const double acimut =
      std::atan2(std::cos(delta) * std::sin(omega),
                 std::sin(phi) * std::cos(delta) * std::cos(omega) - std::cos(phi) * std::sin(delta));
  const double beta = s.inclinacion * RAD;
  const double coseno =
      std::cos(beta) * senAltura + std::sin(beta) * std::cos(altura) * std::cos(acimut - s.orientacion * RAD);
  return std::max(coseno, 0.0);
}

/// Cerca del orto y del ocaso las dos escrituras pueden discrepar en si es de día.
bool JuntoAlHorizonte(double latitud, int diaDelAnio, double hora) {
  const double delta = 23.45 * std::sin(2.0 * std::numbers::pi * (284 + diaDelAnio) / 365.0) * RAD;
  const double coseno = -std::tan(latitud * RAD) * std::tan(delta);
  const double salida = 12.0 - std::acos(coseno) / RAD / 15.0;
  return std::fabs(std::fabs(hora - 12.5) - (12.0 - salida)) < 0.01;
}

/// Una superficie, un horizonte y unas horas al azar.
class Caso {
public:
  Caso(std::mt19937 &azar, bool gradosEnteros)
      : azar_(azar), latitud(Real(5.0, 60.0)), horizonte(latitud, 1, 1, 12.0F) {
    superficie = {Real(1.0, 180.0), Real(-180.0, 180.0), Real(0.0, 1.0)};
    PonHorizonte(gradosEnteros);
    derivadas.Reservar(HORAS_DEL_ANIO);
    const int primera = static_cast<int>(Real(0.0, 8000.0));
    tramo = {primera, primera + 300};
    for (int i = tramo.primera; i <= tramo.ultima; ++i) PonHora(static_cast<std::size_t>(i));
  }

private:
  std::mt19937 &azar_;

  float Real(double a, double b) {
    return static_cast<float>(std::uniform_real_distribution<double>(a, b)(azar_));
  }
  void PonHorizonte(bool gradosEnteros) {
    const int puntos = static_cast<int>(Real(0.0, 9.0));
    horizonte.PonTamanoHorizonte(static_cast<float>(puntos));
    for (int i = 0; i < puntos; ++i) {
      const float x = gradosEnteros ? std::round(Real(-185.0, 185.0)) : Real(-180.0, 180.0);
      const float y = Real(0.0, 60.0);
      horizonte.PonPuntoHorizonte(i, x, y);
      perfil.push_back({x, y});
    }
  }
  void PonHora(std::size_t k) {
    leidas[SerieAlmacenada::RadiacionDirecta][k] = Real(0.0, 900.0);
    leidas[SerieAlmacenada::RadiacionDifusa][k] = Real(0.0, 400.0);
    leidas[SerieAlmacenada::Acimut][k] = Real(-190.0, 190.0);
    leidas[SerieAlmacenada::Cenit][k] = Real(0.0, 95.0);
    derivadas[SerieDerivada::Altura][k] = 90.0F - leidas[SerieAlmacenada::Cenit][k];
  }

public:
  float latitud;
  PosicionSolar horizonte;
  SuperficieReceptora superficie;
  Perfil perfil;
  SeriesLeidas leidas;
  SeriesDerivadas derivadas;
  TramoHoras tramo;
};

/// Compara la hora @p k; cierto si tuvo directa. Las que están justo en un límite no se comparan.
bool CompararHora(const Caso &caso, std::size_t k, double f) {
  const int dia = static_cast<int>(k) / HORAS_DEL_DIA + 1;
  const double hora = static_cast<double>(k % HORAS_DEL_DIA) + 1.0;
  if (JuntoAlHorizonte(caso.latitud, dia, hora)) return false;
  const double directa = caso.leidas[SerieAlmacenada::RadiacionDirecta][k];
  const double difusa = caso.leidas[SerieAlmacenada::RadiacionDifusa][k];
  const double cenit = caso.leidas[SerieAlmacenada::Cenit][k];
  const double cosCenit = std::cos(cenit * RAD);
  const double normal = directa / cosCenit;
  double sobre = CosenoIncidencia(caso.latitud, dia, hora, caso.superficie) * normal;
  if (const auto grado = BuscarAcimut(caso.leidas[SerieAlmacenada::Acimut][k])) {
    const double sobreElHorizonte = 90.0 - cenit - AlturaEn(caso.perfil, *grado);
    if (std::fabs(sobreElHorizonte) < 1e-4) return false;
    if (sobreElHorizonte < 0.0) sobre = 0.0;
  }
  const double reflejada = (1.0 - f) * (directa + difusa) * caso.superficie.albedo;
  // El π de 32 bits mueve el cenit 4e-8 y los valores son reales de 32 bits.
  const double margen = 1e-3 + std::fabs(normal) * (1e-5 + 1e-7 / std::fabs(cosCenit));
  EXPECT_NEAR(caso.derivadas[SerieDerivada::DirectaNormal][k], normal, margen);
  EXPECT_NEAR(caso.derivadas[SerieDerivada::Directa][k], sobre, margen) << k;
  EXPECT_NEAR(caso.derivadas[SerieDerivada::Difusa][k], f * difusa, 1e-3);
  EXPECT_NEAR(caso.derivadas[SerieDerivada::Reflejada][k], reflejada, 1e-3);
  EXPECT_NEAR(caso.derivadas[SerieDerivada::Global][k], sobre + f * difusa + reflejada, margen + 2e-3);
  return sobre > 0.0;
}

TEST(DerivacionDeReferencia, CoincideSobreDatosAlAzar) {
  std::mt19937 azar(36840U);
  int conDirecta = 0;
  for (int vuelta = 0; vuelta < 60; ++vuelta) {
    Caso caso(azar, vuelta % 2 != 0);
    const float f = DerivarSolares(caso.leidas, caso.derivadas, caso.tramo, FechaDeIndice(caso.tramo.primera),
                                   caso.superficie, caso.latitud, caso.horizonte);
    const double referencia = FactorDeCielo(caso.perfil, caso.superficie.orientacion);
    ASSERT_NEAR(f, referencia, 1e-6) << vuelta;
    for (int i = caso.tramo.primera; i <= caso.tramo.ultima; ++i) {
      conDirecta += CompararHora(caso, static_cast<std::size_t>(i), referencia) ? 1 : 0;
    }
    ASSERT_FALSE(HasFailure()) << vuelta;
  }
  EXPECT_GT(conDirecta, 1000);
}

} // namespace
} // namespace tesmo
