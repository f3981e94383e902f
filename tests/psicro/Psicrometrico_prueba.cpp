#include "psicro/Constantes.h"
#include "psicro/Psicrometrico.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace tesmo;

TEST(Psicro, SeLlamaPsicroYNoTieneNombreDeClase) {
  const Psicro carta;
  EXPECT_EQ(carta.Nombre(), "Psicro");
  EXPECT_EQ(carta.nombreClase(), "");
}

TEST(Psicro, LosParametrosIniciales) {
  const Psicro carta;
  const float esperado[] = {120000.0F, 0.0F,  10000.0F, 100.0F, 0.0F,  10.0F, 50.0F, 0.0F,
                            5.0F,      0.03F, 0.001F,   0.001F, 0.93F, 0.74F, 0.01F, 101325.0F};
  for (int i = 0; i < 16; ++i) EXPECT_EQ(carta.dameParametro(i), esperado[i]) << i;
}

TEST(Psicro, UnIndiceFueraDeLosQueHayDaMenosUno) {
  const Psicro carta;
  for (const int i :
       {16, 17, 1000, -1, -16, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
    EXPECT_EQ(carta.dameParametro(i), -1.0F) << i;
}

TEST(Psicro, LosColoresInicialesVanEnAzulVerdeRojoYTodoEstaALaVista) {
  const Psicro carta;
  EXPECT_EQ(carta.dameColor(Familia::T), 0xFF00FFU);
  EXPECT_EQ(carta.dameColor(Familia::W), 0x0000FFU);
  EXPECT_EQ(carta.dameColor(Familia::H), 0x000000U);
  EXPECT_EQ(carta.dameColor(Familia::HR), 0x808000U);
  EXPECT_EQ(carta.dameColor(Familia::VE), 0x000080U);
  for (const Familia f : {Familia::T, Familia::W, Familia::H, Familia::HR, Familia::VE})
    EXPECT_TRUE(carta.esVisible(f));
}

TEST(Psicro, CadaFamiliaGuardaLoSuyo) {
  Psicro carta;
  carta.ponRango(Familia::H, {1.0F, 2.0F, 3.0F});
  carta.ponColor(Familia::HR, 0x123456);
  carta.ponVisible(Familia::VE, false);
  EXPECT_EQ(carta.dameParametro(0), 2.0F);
  EXPECT_EQ(carta.dameParametro(1), 1.0F);
  EXPECT_EQ(carta.dameParametro(2), 3.0F);
  EXPECT_EQ(carta.dameParametro(3), 100.0F);
  EXPECT_EQ(carta.dameColor(Familia::HR), 0x123456U);
  EXPECT_FALSE(carta.esVisible(Familia::VE));
  EXPECT_TRUE(carta.esVisible(Familia::H));
}

TEST(Psicro, LosExtremosDeLaCartaCaenEnLosBordesConCualquierTamano) {
  Psicro carta;
  for (int lado = 1; lado <= 5000; ++lado) {
    const auto l = static_cast<float>(lado);
    carta.ponTamano(l, l);
    ASSERT_EQ(carta.x(0.0), 0.0F) << lado;
    ASSERT_EQ(carta.x(50.0), l) << lado;
    ASSERT_EQ(carta.y(0.0), l) << lado;
    ASSERT_EQ(carta.y(0.03), 0.0F) << lado;
    ASSERT_EQ(carta.t(lado), 50.0F) << lado;
    ASSERT_EQ(carta.t(0), 0.0F) << lado;
    ASSERT_EQ(carta.w(0), 0.03F) << lado;
    ASSERT_NEAR(carta.w(lado), 0.0, 1e-9) << lado; // un píxel por debajo de la imagen
  }
}

TEST(Psicro, LaCorrespondenciaInversaDeshaceLaDirecta) {
  Psicro carta;
  carta.ponTamano(900.0F, 600.0F);
  for (int i = 0; i <= 900; i += 7) EXPECT_NEAR(carta.x(static_cast<double>(carta.t(i))), i, 1e-3);
  for (int j = 0; j <= 600; j += 7) EXPECT_NEAR(carta.y(static_cast<double>(carta.w(j))), j, 1e-3);
}

TEST(Psicro, AlNivelDelMarLaPresionEsLaNormal) {
  Psicro carta;
  carta.ponPresion(90000.0F);
  EXPECT_EQ(carta.damePresion(), 90000.0F);
  carta.ponAltitud(0.0F);
  EXPECT_EQ(carta.damePresion(), 101325.0F);
}

// ASHRAE Handbook of Fundamentals (2017), capítulo 1, tabla 1: presión [kPa] de la atmósfera normal. La tabla
// redondea a la centésima de kPa.
TEST(Psicro, LaPresionConLaAltitudCoincideConLaTablaDelManual) {
  const std::pair<float, double> filas[] = {{-500, 107478}, {500, 95461},  {1000, 89875}, {1500, 84556},
                                            {2000, 79495},  {3000, 70108}, {5000, 54020}};
  Psicro carta;
  for (const auto &[z, p] : filas) {
    carta.ponAltitud(z);
    EXPECT_NEAR(carta.damePresion(), p, 12.0) << z;
  }
}

TEST(Psicro, PorEncimaDeLaAtmosferaDelModeloLaPresionNoEsUnNumero) {
  Psicro carta;
  carta.ponAltitud(45000.0F);
  EXPECT_TRUE(std::isnan(carta.damePresion()));
}
