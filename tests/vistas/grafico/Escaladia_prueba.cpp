#include "vistas/grafico/Escaladia.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace tesmo;

TEST(EscalaDia, VaDeLaHora0ALa23) {
  const EscalaDia escala;
  EXPECT_EQ(escala.Primero(), 0.0);
  EXPECT_EQ(escala.Ultimo(), 23.0);
  const auto marcas = escala.Marcas(-0.5, 23.5, 1000.0);
  ASSERT_EQ(marcas.size(), 24U);
  EXPECT_EQ(marcas.front().texto, "0");
  EXPECT_EQ(marcas.back().texto, "23");
  EXPECT_EQ(marcas.back().posicion, 23.0);
  EXPECT_TRUE(escala.Submarcas(-0.5, 23.5, 1000.0).empty());
}

TEST(EscalaDia, EnPocoSitioLasMarcasSeSeparanSinTocarse) {
  const EscalaDia escala;
  for (double ancho = 60.0; ancho <= 1500.0; ancho += 20.0) {
    const auto marcas = escala.Marcas(-0.5, 23.5, ancho);
    ASSERT_GE(marcas.size(), 2U) << ancho;
    EXPECT_GE((marcas[1].posicion - marcas[0].posicion) * ancho / 24.0, 28.0) << ancho;
    EXPECT_EQ(escala.Submarcas(-0.5, 23.5, ancho).size(), marcas.size() < 24 ? 24U : 0U) << ancho;
  }
}

TEST(EscalaDia, AlAmpliarSoloSeMarcanLasHorasDelTramo) {
  const auto marcas = EscalaDia().Marcas(5.5, 9.0, 800.0);
  ASSERT_EQ(marcas.size(), 4U);
  EXPECT_EQ(marcas.front().texto, "6");
  EXPECT_EQ(marcas.back().texto, "9");
}

TEST(EscalaDia, ElCursorSeAjustaALaHoraMasCercana) {
  const EscalaDia escala;
  EXPECT_EQ(escala.Ajustar(7.4), 7.0);
  EXPECT_EQ(escala.Ajustar(-3.0), 0.0);
  EXPECT_EQ(escala.Ajustar(40.0), 23.0);
  EXPECT_EQ(escala.Ajustar(std::numeric_limits<double>::quiet_NaN()), 0.0);
  EXPECT_EQ(escala.Nombrar(7.2), "Hora 7 (de 7 a 8 h solares)");
  EXPECT_EQ(escala.Campos(23.0), std::vector<std::string>{"23"});
}
