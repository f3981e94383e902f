#include "intercambio/fisica/Solverdadero.h"

#include <gtest/gtest.h>

#include <numbers>

namespace tesmo {
namespace {

constexpr double GRADO = std::numbers::pi / 180.0;

TEST(SolVerdadero, EsElDelEjemploPublicado) {
  // Meeus, «Astronomical Algorithms» (1998), ejemplos 25.a y 28.b: 13 de octubre de 1992 a las 0 h,
  // declinación −7,785° y ecuación del tiempo 13 min 42,6 s. 1992 es bisiesto: su 13 de octubre es el mismo
  // día del año de 365.
  const SolDeInstante sol = SolVerdadero(1992, 285.0);
  EXPECT_NEAR(sol.declinacion / GRADO, -7.785, 0.01);
  EXPECT_NEAR(sol.ecuacionMinutos, 13.71, 0.1);
}

TEST(SolVerdadero, EquinoccioYSolsticioCaenEnSuHora) {
  // Equinoccio del 20 de marzo de 2001 a las 13:31 UT y solsticio del 21 de junio de 2003 a las 19:10 UT.
  EXPECT_NEAR(SolVerdadero(2001, 78.0 + 13.52 / 24.0).declinacion / GRADO, 0.0, 0.012);
  EXPECT_NEAR(SolVerdadero(2003, 171.0 + 19.17 / 24.0).declinacion / GRADO, 23.44, 0.01);
}

TEST(SolVerdadero, LaEcuacionDelTiempoEsLaDeCualquierAlmanaque) {
  // 11 de febrero −14,2 min; 14 de mayo +3,7; 26 de julio −6,5; 3 de noviembre +16,4.
  EXPECT_NEAR(SolVerdadero(2002, 41.5).ecuacionMinutos, -14.2, 0.1);
  EXPECT_NEAR(SolVerdadero(2002, 133.5).ecuacionMinutos, 3.7, 0.1);
  EXPECT_NEAR(SolVerdadero(2002, 206.5).ecuacionMinutos, -6.5, 0.1);
  EXPECT_NEAR(SolVerdadero(2002, 306.5).ecuacionMinutos, 16.4, 0.1);
}

TEST(SolVerdadero, SinAnioOFueraDeRangoValeElMedio) {
  for (const int anio : {0, -5, 1949, 2051, 9999}) {
    EXPECT_EQ(SolVerdadero(anio, 100.0).declinacion, SolVerdadero(2002, 100.0).declinacion) << anio;
  }
}

TEST(SolVerdadero, UnAnioDespuesElSolEstaDondeEstaba) {
  EXPECT_NEAR(SolVerdadero(2002, 365.0 + 40.0).declinacion, SolVerdadero(2003, 40.0).declinacion, 1e-9);
}

} // namespace
} // namespace tesmo
