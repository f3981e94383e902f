#include "intercambio/comun/Perfilmensual.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tesmo {
namespace {

constexpr ValoresPorMes ESCALERA{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};

TEST(PerfilMensual, CadaDiaTieneSuMes) {
  EXPECT_EQ(MesDe(0), 0U);
  EXPECT_EQ(MesDe(30), 0U);
  EXPECT_EQ(MesDe(31), 1U);
  EXPECT_EQ(MesDe(58), 1U);
  EXPECT_EQ(MesDe(59), 2U);
  EXPECT_EQ(MesDe(364), 11U);
}

TEST(PerfilMensual, AMitadDeMesValeElNodo) {
  const PerfilMensual perfil(ESCALERA);
  EXPECT_NEAR(perfil.En(15), 0.0, 1e-12);        // 16 de enero: mitad exacta de 31 días
  EXPECT_NEAR(perfil.En(31 + 13), 1.0, 0.02);    // mitad de febrero, entre dos días
  EXPECT_NEAR(perfil.En(334 + 15), 11.0, 1e-12); // 16 de diciembre
}

TEST(PerfilMensual, EntreDiciembreYEneroSigueLaRecta) {
  const PerfilMensual perfil(ESCALERA);
  const double paso = perfil.En(364) - perfil.En(363);
  EXPECT_LT(paso, 0.0);
  EXPECT_NEAR(perfil.En(0) - perfil.En(364), paso, 1e-12);
  EXPECT_NEAR(perfil.En(1) - perfil.En(0), paso, 1e-12);
}

TEST(PerfilMensual, NingunDiaSaltaMasQueLaRectaMasEmpinada) {
  const PerfilMensual perfil(ESCALERA);
  for (std::size_t dia = 0; dia < DIAS; ++dia) {
    EXPECT_LE(std::fabs(perfil.En((dia + 1) % DIAS) - perfil.En(dia)), 11.0 / 31.0 + 1e-12) << dia;
  }
}

TEST(PerfilMensual, LaMediaYLaDesviacionDelMesSonLasSuyas) {
  SerieDias serie(DIAS, 5.0);
  for (std::size_t dia = 31; dia < 59; ++dia) serie[dia] = dia % 2 == 0 ? 1.0 : 3.0;
  EXPECT_DOUBLE_EQ(MediaDelMes(serie, 0), 5.0);
  EXPECT_DOUBLE_EQ(DesviacionDelMes(serie, 0), 0.0);
  EXPECT_DOUBLE_EQ(MediaDelMes(serie, 1), 2.0);
  EXPECT_DOUBLE_EQ(DesviacionDelMes(serie, 1), std::sqrt(28.0 / 27.0));
}

} // namespace
} // namespace tesmo
