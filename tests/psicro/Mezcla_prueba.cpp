#include "psicro/Corrienteaire.h"
#include "tests/comun/Apoyos.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace tesmo;
using Textos = std::vector<std::string>;

namespace {

constexpr float P = aire::PRESION_NORMAL;
constexpr const char *CAUDALES_DISTINTOS =
    "**Corrientes con caudales diferentes:float dameQSen(CorrienteAire& cEnt,CorrienteAire& cSal)";

CorrienteAire Aire(float t, float hr, float m, float p = P) {
  CorrienteAire c;
  c.pont_hr(t, hr, p);
  c.ponm(m, "kg/s");
  return c;
}

} // namespace

TEST(Mezclar, CorrientesIgualesDanElMismoAireYElDobleDeCaudal) {
  const CorrienteAire a = Aire(30, 40, 3);
  CorrienteAire r;
  mezclar(a, a, r);
  EXPECT_EQ(r.caudal(), 6.0F);
  EXPECT_EQ(r.humedadAbsoluta(), a.humedadAbsoluta());
  EXPECT_NEAR(static_cast<double>(r.dame("h") / a.dame("h")), 1.0, 1e-7);
  EXPECT_EQ(r.presion(), P);
}

TEST(Mezclar, ConservaAguaYEntalpia) {
  const CorrienteAire a = Aire(35, 30, 2);
  const CorrienteAire b = Aire(10, 80, 5);
  CorrienteAire r;
  mezclar(a, b, r);
  EXPECT_EQ(r.caudal(), 7.0F);
  const double agua = 2.0 * static_cast<double>(a.dame("w")) + 5.0 * static_cast<double>(b.dame("w"));
  const double calor = 2.0 * static_cast<double>(a.dame("h")) + 5.0 * static_cast<double>(b.dame("h"));
  EXPECT_NEAR(7.0 * static_cast<double>(r.dame("w")), agua, 1e-7 * agua);
  EXPECT_NEAR(7.0 * static_cast<double>(r.dame("h")), calor, 1e-6 * calor);
  EXPECT_EQ(a.caudal(), 2.0F);
  EXPECT_EQ(b.caudal(), 5.0F);
}

TEST(Mezclar, ConPresionesDistintasLoDiceYNoTocaElResultado) {
  prueba::RegistroApuntado registro;
  const CorrienteAire a = Aire(35, 30, 2);
  const CorrienteAire b = Aire(10, 80, 5, 90000);
  CorrienteAire r = Aire(1, 2, 3);
  mezclar(a, b, r);
  EXPECT_EQ(registro.textos, Textos{"**Las dos corrientes deben tener la misma presión,mezclar"});
  EXPECT_EQ(r.caudal(), 3.0F);
  EXPECT_EQ(r.temperatura(), 1.0F);
}

TEST(Mezclar, UnResultadoQueEsTambienEntradaCambiaDeCaudalAntesDeUsarse) {
  CorrienteAire a = Aire(35, 30, 2);
  const CorrienteAire b = Aire(10, 80, 5);
  // Caudal 2 + 5 = 7; a entra ya con 7: w = (7·w_a + 5·w_b) / 7, sin copias.
  const double w = (7.0 * static_cast<double>(a.dame("w")) + 5.0 * static_cast<double>(b.dame("w"))) / 7.0;
  const double h = (7.0 * static_cast<double>(a.dame("h")) + 5.0 * static_cast<double>(b.dame("h"))) / 7.0;
  mezclar(a, b, a);
  EXPECT_EQ(a.caudal(), 7.0F);
  EXPECT_EQ(a.humedadAbsoluta(), static_cast<float>(w));
  EXPECT_NEAR(static_cast<double>(a.dame("h")), h, 1e-6 * h);
}

TEST(Mezclar, SinCaudalAlgunoElEstadoQuedaEnElAireSeco) {
  CorrienteAire r;
  mezclar(Aire(35, 30, 0), Aire(10, 80, 0), r);
  EXPECT_EQ(r.caudal(), 0.0F);
  EXPECT_EQ(r.humedadAbsoluta(), 0.0F); // 0/0 no es número y se acota al mínimo
  EXPECT_TRUE(std::isfinite(r.temperatura()));
}

TEST(Calores, SensibleYLatenteSiguenSusFormulas) {
  CorrienteAire ent;
  CorrienteAire sal;
  ent.pont_w(20.0F, 0.005F, P);
  sal.pont_w(30.0F, 0.0078125F, P);
  ent.ponm(2.0F, "kg/s");
  sal.ponm(2.0F, "kg/s");
  // (1805·0.005 + 1006)·2·10 y (1805·30 + 2501000)·2·0.0028125
  EXPECT_NEAR(dameQSen(ent, sal), 20300.5, 2e-3);
  EXPECT_NEAR(dameQLat(ent, sal), 14372.71875, 2e-3);
  EXPECT_NEAR(dameQSen(sal, ent), -(1805 * 0.0078125 + 1006) * 20.0, 2e-3);
}

TEST(Calores, ConCaudalesDistintosAmbosNombranAlSensibleYDanCero) {
  prueba::RegistroApuntado registro;
  const CorrienteAire ent = Aire(20, 50, 2);
  const CorrienteAire sal = Aire(30, 50, 2.0000002F);
  EXPECT_EQ(dameQSen(ent, sal), 0.0F);
  EXPECT_EQ(dameQLat(ent, sal), 0.0F);
  EXPECT_EQ(registro.textos, (Textos{CAUDALES_DISTINTOS, CAUDALES_DISTINTOS}));
}
