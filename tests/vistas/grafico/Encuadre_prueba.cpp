#include "vistas/grafico/Encuadre.h"

#include <gtest/gtest.h>

using namespace tesmo;

TEST(Encuadre, LaHoraYElPixelSonInversos) {
  constexpr Encuadre encuadre{1.0, 25.0, 100.0, 1300.0};
  EXPECT_DOUBLE_EQ(encuadre.APixel(1.0), 100.0);
  EXPECT_DOUBLE_EQ(encuadre.APixel(13.0), 700.0);
  EXPECT_DOUBLE_EQ(encuadre.APixel(25.0), 1300.0);
  for (double hora = 1.0; hora <= 25.0; hora += 0.5) {
    EXPECT_DOUBLE_EQ(encuadre.AValor(encuadre.APixel(hora)), hora);
  }
}

TEST(Encuadre, UnTramoOUnMarcoSinAnchoNoDivideEntreCero) {
  constexpr Encuadre sinTramo{5.0, 5.0, 10.0, 20.0};
  EXPECT_EQ(sinTramo.APixel(7.0), 10.0);
  constexpr Encuadre sinMarco{5.0, 9.0, 10.0, 10.0};
  EXPECT_EQ(sinMarco.AValor(12.0), 5.0);
}

struct CasoTramo {
  double desde, hasta, esperadoDesde, esperadoHasta;
};

class TramoLimitado : public ::testing::TestWithParam<CasoTramo> {};

TEST_P(TramoLimitado, QuedaDentroDelPeriodo) {
  auto [desde, hasta, esperadoDesde, esperadoHasta] = GetParam();
  AjustarTramo(desde, hasta, 0.5, 100.5, 3.0);
  EXPECT_DOUBLE_EQ(desde, esperadoDesde);
  EXPECT_DOUBLE_EQ(hasta, esperadoHasta);
}

INSTANTIATE_TEST_SUITE_P(Casos, TramoLimitado,
                         ::testing::Values(CasoTramo{20.0, 40.0, 20.0, 40.0},   // dentro: no se toca
                                           CasoTramo{-10.0, 10.0, 0.5, 20.5},   // empieza antes: se corre
                                           CasoTramo{90.0, 110.0, 80.5, 100.5}, // acaba después: se corre
                                           CasoTramo{-50.0, 300.0, 0.5, 100.5}, // mayor que todo: todo
                                           CasoTramo{50.0, 50.2, 48.6, 51.6})); // muy estrecho: se ensancha
