#include "solar/Posicionsolar.h"
#include "tests/comun/Rejilla.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tesmo {
namespace {

constexpr float ALMERIA = 36.84F;
constexpr float POLO = 89.0F;
constexpr double GRADOS_POR_RADIAN = 57.295779513082320876;

TEST(SalidaPuesta, GuardaLaDeclinacionYNoTocaLaMarcaDeDia) {
  PosicionSolar sol(ALMERIA, 12, 21, 12.0F);
  ASSERT_TRUE(sol.EsDeDia());
  const SalidaPuesta horas = sol.CalcularSalidaPuesta(ALMERIA, 6, 21);
  EXPECT_EQ(sol.Declinacion(), DeclinacionSolar(6, 21));
  EXPECT_LT(horas.salida, 5.0F);
  EXPECT_EQ(horas.puesta, 24.0F - horas.salida);
  EXPECT_TRUE(sol.EsDeDia());
}

TEST(Polo, EnJunioTodaHoraEsDeDia) {
  PosicionSolar sol(POLO, 6, 21, 0.0F);
  EXPECT_EQ(sol.HorasDelDia().salida, -1.0F);
  EXPECT_EQ(sol.HorasDelDia().puesta, 25.0F);
  for (const float hora : prueba::Rejilla(0.0F, 24.0F, 0.5F)) {
    const VectorSolar v = sol.CalcularVectorSolar(POLO, 6, 21, hora);
    EXPECT_TRUE(sol.EsDeDia()) << hora;
    EXPECT_GT(v.z, 0.0L);
  }
}

TEST(Polo, EnDiciembreTodaHoraEsNoche) {
  PosicionSolar sol(POLO, 12, 21, 12.0F);
  EXPECT_EQ(sol.HorasDelDia().salida, -1.0F);
  EXPECT_EQ(sol.HorasDelDia().puesta, -1.0F);
  for (const float hora : prueba::Rejilla(0.0F, 24.0F, 0.5F)) {
    const VectorSolar v = sol.CalcularVectorSolar(POLO, 12, 21, hora);
    EXPECT_FALSE(sol.EsDeDia());
    EXPECT_TRUE(v.s == 0.0L && v.w == 0.0L && v.z == 0.0L);
  }
}

TEST(CalcularPosicion, LaHoraDeSalidaEsNoche) {
  PosicionSolar sol(ALMERIA, 3, 1, 12.0F);
  const SalidaPuesta horas = sol.CalcularSalidaPuesta(ALMERIA, 3, 1);
  for (const float hora : {horas.salida, horas.puesta}) {
    (void)sol.CalcularPosicion(ALMERIA, 3, 1, hora);
    EXPECT_FALSE(sol.EsDeDia());
  }
  (void)sol.CalcularPosicion(ALMERIA, 3, 1, horas.salida * 1.0002F);
  EXPECT_TRUE(sol.EsDeDia());
}

TEST(CalcularPosicion, DeNocheDaCeroYCenitNoventa) {
  PosicionSolar sol(ALMERIA, 6, 21, 12.0F);
  ASSERT_TRUE(sol.EsDeDia());
  const AngulosSolares noche = sol.CalcularPosicion(ALMERIA, 6, 21, 2.0F);
  EXPECT_EQ(noche.acimut, 0.0F);
  EXPECT_EQ(noche.altura, 0.0F);
  EXPECT_EQ(noche.cenit, 90.0F);
  EXPECT_FALSE(sol.EsDeDia());
}

TEST(CalcularPosicion, AMediodiaElAcimutEsCeroOCientoOchenta) {
  PosicionSolar sol(ALMERIA, 6, 21, 12.0F);
  EXPECT_EQ(sol.CalcularVectorSolar(ALMERIA, 6, 21, 12.0F).w, 0.0L);
  EXPECT_EQ(sol.CalcularPosicion(ALMERIA, 6, 21, 12.0F).acimut, 0.0F);
  EXPECT_FLOAT_EQ(sol.CalcularPosicion(10.0F, 6, 21, 12.0F).acimut, 180.0F);
}

TEST(CalcularPosicion, LaMananaEsNegativaYLaTardePositiva) {
  PosicionSolar sol(ALMERIA, 1, 1, 12.0F);
  for (int mes = 1; mes <= 12; ++mes) {
    for (const float hora : prueba::Rejilla(8.0F, 11.75F, 0.5F)) {
      const float manana = sol.CalcularPosicion(ALMERIA, mes, 15, hora).acimut;
      const float tarde = sol.CalcularPosicion(ALMERIA, mes, 15, 24.0F - hora).acimut;
      EXPECT_LT(manana, 0.0F);
      EXPECT_FLOAT_EQ(tarde, -manana);
    }
  }
}

TEST(CalcularPosicion, NoCambiaLosCamposGuardados) {
  PosicionSolar sol(ALMERIA, 6, 21, 10.0F);
  const AngulosSolares antes = sol.Angulos();
  (void)sol.CalcularPosicion(10.0F, 1, 1, 9.0F);
  EXPECT_EQ(sol.DameTexto("Latitud"), "36.84");
  EXPECT_EQ(sol.DameTexto("Hora"), "10.00");
  EXPECT_EQ(sol.Angulos().acimut, antes.acimut);
}

TEST(Calcular, CoincideConCalcularPosicionFueraDelMediodia) {
  for (const float hora : prueba::Rejilla(6.0F, 18.0F, 0.35F)) {
    PosicionSolar sol(ALMERIA, 5, 10, hora);
    const AngulosSolares guardados = sol.Angulos();
    const AngulosSolares directos = sol.CalcularPosicion(ALMERIA, 5, 10, hora);
    EXPECT_NEAR(guardados.acimut, directos.acimut, 1e-3F);
    EXPECT_NEAR(guardados.altura, directos.altura, 1e-3F);
    EXPECT_NEAR(guardados.cenit, directos.cenit, 1e-3F);
  }
}

// A mediodía la componente oeste es nula y el acimut guardado no se recalcula, sólo se escala.
TEST(Calcular, AMediodiaElAcimutGuardadoSeEscala) {
  PosicionSolar sol(ALMERIA, 6, 21, 10.0F);
  const double previo = sol.Angulos().acimut;
  ASSERT_LT(previo, 0.0);
  sol.PonTexto("Hora", "12");
  sol.Calcular();
  EXPECT_FLOAT_EQ(sol.Angulos().acimut, static_cast<float>(previo * GRADOS_POR_RADIAN));
  const double escalado = sol.Angulos().acimut;
  sol.Calcular();
  EXPECT_FLOAT_EQ(sol.Angulos().acimut, static_cast<float>(escalado * GRADOS_POR_RADIAN));
  EXPECT_EQ(sol.CalcularPosicion(ALMERIA, 6, 21, 12.0F).acimut, 0.0F);
}

TEST(Calcular, UnaHoraAbsurdaEsNoche) {
  for (const float hora : {-5.0F, 30.0F, std::nanf("")}) {
    const PosicionSolar sol(ALMERIA, 6, 21, hora);
    EXPECT_FALSE(sol.EsDeDia());
    EXPECT_EQ(sol.VectorGuardado()[2], 0.0F);
  }
  EXPECT_FALSE(PosicionSolar(std::nanf(""), 6, 21, 12.0F).EsDeDia());
}

TEST(FijarReferencia, SinGiroLosAngulosRelativosSonLosDelSol) {
  PosicionSolar sol(ALMERIA, 5, 10, 9.0F);
  EXPECT_EQ(sol.AngulosRelativos().acimut, sol.Angulos().acimut);
  EXPECT_EQ(sol.AngulosRelativos().altura, sol.Angulos().altura);
  EXPECT_EQ(sol.AngulosRelativos().cenit, sol.Angulos().cenit);
}

// El acimut de la referencia gira de sur a este, al revés que el del sol: se restan como si fuese el opuesto.
TEST(FijarReferencia, ElAcimutGiraAlReves) {
  PosicionSolar sol(ALMERIA, 5, 10, 9.0F);
  sol.FijarReferencia(30.0F, 0.0F);
  EXPECT_NEAR(sol.AngulosRelativos().acimut, sol.Angulos().acimut + 30.0F, 1e-3F);
  EXPECT_NEAR(sol.AngulosRelativos().altura, sol.Angulos().altura, 1e-3F);
}

TEST(FijarReferencia, MirandoAlSolElVectorRelativoEsElPrimerEje) {
  PosicionSolar sol(ALMERIA, 5, 10, 9.0F);
  sol.FijarReferencia(-sol.Angulos().acimut, sol.Angulos().altura);
  EXPECT_NEAR(sol.VectorRelativo()[0], 1.0F, 1e-6F);
  EXPECT_NEAR(sol.VectorRelativo()[1], 0.0F, 1e-6F);
  EXPECT_NEAR(sol.VectorRelativo()[2], 0.0F, 1e-6F);
}

} // namespace
} // namespace tesmo
