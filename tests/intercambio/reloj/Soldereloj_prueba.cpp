#include "intercambio/reloj/Soldereloj.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace tesmo {
namespace {

constexpr double GRADO = std::numbers::pi / 180.0;
constexpr std::size_t SOLSTICIO = 171U * 24U; // 21 de junio

AnioCanonico EnLatitud(double latitud) {
  AnioCanonico anio;
  anio.sitio.latitud = latitud;
  anio.sitio.longitud = 0.0;
  return anio;
}

SolDeReloj EnSolar(const AnioCanonico &anio, double desfase) {
  return {anio, EscalaTiempo({TiempoEtiqueta::SolarVerdadero, 0.0, desfase}, anio.sitio.longitud)};
}

TEST(SolDeReloj, AMediodiaElCenitEsLaLatitudMenosLaDeclinacion) {
  const AnioCanonico anio = EnLatitud(40.0);
  EXPECT_NEAR(EnSolar(anio, 0.0).Coseno(SOLSTICIO + 11), std::cos((40.0 - 23.44) * GRADO), 1e-4);
  EXPECT_NEAR(EnSolar(anio, 0.0).CosenoSolar(SOLSTICIO + 12.0), std::cos((40.0 - 23.44) * GRADO), 1e-4);
}

TEST(SolDeReloj, LosMinutosSonDespuesDelCentroDeLaHora) {
  const AnioCanonico anio = EnLatitud(40.0);
  const SolDeReloj tarde = EnSolar(anio, -30.0);
  EXPECT_NEAR(tarde.Coseno(SOLSTICIO + 11, 30.0), EnSolar(anio, 0.0).Coseno(SOLSTICIO + 11), 1e-12);
  EXPECT_GT(tarde.Coseno(SOLSTICIO + 8, 10.0), tarde.Coseno(SOLSTICIO + 8));
}

TEST(SolDeReloj, ElInstanteSolarYElRegistroDicenLoMismo) {
  AnioCanonico anio = EnLatitud(-35.0);
  anio.sitio.longitud = 140.0;
  const SolDeReloj sol(anio, EscalaTiempo({TiempoEtiqueta::OficialEstandar, 9.5, -30.0}, 140.0));
  for (std::size_t i = 0; i < 8760; i += 37)
    ASSERT_NEAR(sol.Coseno(i), sol.CosenoSolar(sol.Escala().ASolar(sol.Escala().Centro(i))), 1e-9) << i;
}

TEST(SolDeReloj, SinLatitudNoHayCoseno) {
  EXPECT_TRUE(std::isnan(EnSolar(EnLatitud(AUSENTE), 0.0).Coseno(SOLSTICIO + 11)));
}

} // namespace
} // namespace tesmo
