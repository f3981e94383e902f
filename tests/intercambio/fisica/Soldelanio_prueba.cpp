#include "intercambio/fisica/Soldelanio.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace tesmo {
namespace {

TEST(SolDelAnio, LaIrradiacionExtraterrestreEsLaDelEjemploPublicado) {
  // Duffie y Beckman (1991), ejemplo 1.10.1: 43° N, 15 de abril, 33,8 MJ/m².
  const SolDelAnio sol = CalcularSolDelAnio(43.0);
  EXPECT_NEAR(sol.extraterrestre[104] * 3.6, 33.8, 0.05);
}

TEST(SolDelAnio, ElDiaYLaNochePolaresNoEnganan) {
  // Los años de cada latitud [kWh/m²], de la integral hora a hora del coseno del cenit.
  constexpr std::array<std::array<double, 2>, 5> CASOS{
      {{69.65, 1710.0}, {71.3, 1673.0}, {78.2, 1561.0}, {80.0, 1544.0}, {-90.0, 1570.0}}};
  for (const auto &[latitud, anual] : CASOS) {
    const SerieDias dias = CalcularSolDelAnio(latitud).extraterrestre;
    EXPECT_NEAR(std::accumulate(dias.begin(), dias.end(), 0.0), anual, 0.02 * anual) << latitud;
    EXPECT_GE(*std::ranges::min_element(dias), 0.0) << latitud;
  }
  const SolDelAnio norte = CalcularSolDelAnio(71.0);
  EXPECT_EQ(norte.extraterrestre[355], 0.0); // el 22 de diciembre no sale
  // El 21 de junio no se pone: 24 h de sin φ · sin δ.
  EXPECT_NEAR(norte.extraterrestre[171], 1367.0 * 0.9678 * 24.0 * 0.94552 * 0.39795 / 1000.0, 0.01);
  EXPECT_EQ(CalcularSolDelAnio(-71.0).extraterrestre[171], 0.0);
}

TEST(SolDelAnio, LaTierraEstaMasCercaDelSolEnEnero) {
  EXPECT_NEAR(IrradianciaExtraterrestre(2), 1367.0 * 1.033, 1.0);
  EXPECT_NEAR(IrradianciaExtraterrestre(184), 1367.0 * 0.967, 1.0);
}

TEST(SolDelAnio, LaEcuacionDelTiempoEsLaDelAlmanaque) {
  // Extremos y un paso por cero, redondeados, de cualquier almanaque: 11 de febrero −14,2 min; 14 de mayo
  // +3,7; 26 de julio −6,5; 3 de noviembre +16,4; 15 de abril 0.
  EXPECT_NEAR(EcuacionDelTiempoEnHoras(41) * 60.0, -14.2, 0.5);
  EXPECT_NEAR(EcuacionDelTiempoEnHoras(133) * 60.0, 3.7, 0.5);
  EXPECT_NEAR(EcuacionDelTiempoEnHoras(206) * 60.0, -6.5, 0.5);
  EXPECT_NEAR(EcuacionDelTiempoEnHoras(306) * 60.0, 16.4, 0.5);
  EXPECT_NEAR(EcuacionDelTiempoEnHoras(104) * 60.0, 0.0, 0.5);
}

TEST(SolDelAnio, DeNocheElCenitEs90YElAcimutCero) {
  const SolDelAnio sol = CalcularSolDelAnio(37.0);
  int noches = 0;
  for (std::size_t i = 0; i < HORAS; ++i) {
    if (sol.diurna[i]) continue;
    ++noches;
    EXPECT_EQ(sol.cenit[i], 90.0) << i;
    EXPECT_EQ(sol.acimut[i], 0.0) << i;
  }
  EXPECT_NEAR(noches, 4380, 40);
}

TEST(SolDelAnio, PorLaMananaElSolEstaAlEsteYPorLaTardeAlOesteIgualDeAlto) {
  const SolDelAnio sol = CalcularSolDelAnio(37.0);
  for (std::size_t dia : {0UL, 79UL, 171UL, 265UL}) {
    for (std::size_t h = 0; h < 12; ++h) {
      const std::size_t manana = dia * HORAS_POR_DIA + h;
      const std::size_t tarde = dia * HORAS_POR_DIA + 23 - h;
      EXPECT_LE(sol.acimut[manana], 0.0);
      EXPECT_NEAR(sol.acimut[manana], -sol.acimut[tarde], 0.011);
      EXPECT_NEAR(sol.cenit[manana], sol.cenit[tarde], 0.011);
    }
  }
}

} // namespace
} // namespace tesmo
