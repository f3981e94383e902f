#include "intercambio/reloj/Repartoradiacion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

namespace tesmo {
namespace {

const RelojFichero EN_PUNTO{TiempoEtiqueta::SolarVerdadero, 0.0, 0.0};
constexpr double LATITUD = 40.0;
/// El 21 de junio a las 12, en hora solar.
constexpr std::size_t MEDIODIA_DE_JUNIO = 171 * HORAS_POR_DIA + 12;

double Total(const SerieHoras &serie) { return std::accumulate(serie.begin(), serie.end(), 0.0); }

RepartoRadiacion Reparto(const RelojFichero &reloj) {
  return {CortesDelAnio(EscalaTiempo(reloj, 0.0)), SolDeReparto::DeLosMotores(LATITUD),
          std::vector<bool>(HORAS, true)};
}

TEST(SolDeReparto, LaEnergiaDeUnDiaEsLaDelEjemploPublicado) {
  // Duffie y Beckman (1991), ejemplo 1.10.1: 43° N, 15 de abril, 33,8 MJ/m².
  const SolDeReparto sol = SolDeReparto::DeLosMotores(43.0);
  double energia = 0.0;
  for (int h = 0; h < 24; ++h) energia += sol.Energia(104.0 * 24.0 + h, 104.0 * 24.0 + h + 1.0);
  EXPECT_NEAR(energia * 0.0036, 33.8, 0.05);
}

TEST(SolDeReparto, DeNocheNoHayEnergiaNiHoras) {
  const SolDeReparto sol = SolDeReparto::Verdadero(LATITUD);
  EXPECT_EQ(sol.Energia(1.0, 2.0), 0.0);
  EXPECT_EQ(sol.HorasDeSol(1.0, 2.0), 0.0);
  EXPECT_EQ(sol.HorasDeSol(12.0, 13.0), 1.0);
  EXPECT_LT(sol.Coseno(0.0), 0.0);
}

TEST(SolDeReparto, EnElPoloEsDeDiaONocheEntera) {
  const SolDeReparto sol = SolDeReparto::DeLosMotores(89.0);
  EXPECT_EQ(sol.HorasDeSol(0.0, 1.0), 0.0);
  EXPECT_EQ(sol.HorasDeSol(171.0 * 24.0, 171.0 * 24.0 + 1.0), 1.0);
}

TEST(RepartoRadiacion, UnaHoraSueltaSeDaALasDosQueToca) {
  SerieHoras valores(HORAS);
  valores[MEDIODIA_DE_JUNIO] = 800.0;
  double perdida = 0.0;
  const SerieHoras destinos = Reparto(EN_PUNTO).Repartir(valores, perdida);
  EXPECT_NEAR(Total(destinos), 800.0, 1e-9);
  EXPECT_NEAR(destinos[MEDIODIA_DE_JUNIO] + destinos[MEDIODIA_DE_JUNIO + 1], 800.0, 1e-9);
  EXPECT_NEAR(destinos[MEDIODIA_DE_JUNIO], 400.0, 10.0);
  EXPECT_EQ(perdida, 0.0);
}

TEST(RepartoRadiacion, LoQueCaeLejosDelSolSePierdeYSeCuenta) {
  SerieHoras valores(HORAS);
  valores[171 * HORAS_POR_DIA] = 5.0; // medianoche
  double perdida = 0.0;
  EXPECT_EQ(Total(Reparto(EN_PUNTO).Repartir(valores, perdida)), 0.0);
  EXPECT_EQ(perdida, 5.0);
}

TEST(RepartoRadiacion, NoCreaExtremosNuevosEnElCociente) {
  // La mitad del año con cociente 0,2 y la otra con 0,7, a saltos de un día.
  const RepartoRadiacion reparto = Reparto(EN_PUNTO);
  SerieHoras valores = reparto.Extraterrestre();
  for (std::size_t i = 0; i < HORAS; ++i) valores[i] *= i / HORAS_POR_DIA % 2 == 0 ? 0.2 : 0.7;
  double perdida = 0.0;
  const SerieHoras destinos = reparto.Repartir(valores, perdida);
  const SolDeReparto sol = SolDeReparto::DeLosMotores(LATITUD);
  for (std::size_t h = 0; h < HORAS; ++h) {
    const double fuera = sol.Energia(static_cast<double>(h), static_cast<double>(h) + 1.0);
    ASSERT_LE(destinos[h], 0.7 * fuera + 1e-9) << h;
    ASSERT_GE(destinos[h], 0.2 * fuera - 1e-9) << h;
  }
}

TEST(RepartoRadiacion, UnaDirectaNormalConstanteSigueSiendolo) {
  const SerieHoras medias = Reparto(EN_PUNTO).Promediar(SerieHoras(HORAS, 650.0));
  EXPECT_NEAR(std::ranges::max(medias), 650.0, 1e-9);
  EXPECT_NEAR(medias[MEDIODIA_DE_JUNIO], 650.0, 1e-9);
}

} // namespace
} // namespace tesmo
