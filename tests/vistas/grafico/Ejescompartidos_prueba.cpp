#include "vistas/grafico/Ejescompartidos.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>

using namespace tesmo;

TEST(EjesCompartidos, SinNingunaSerieVanDeMenosTresAUnoConUno) {
  const EjesCompartidos ejes = RepartirEjes({});
  for (const LimitesEje &limites : {ejes.izquierdo, ejes.derecho}) {
    EXPECT_DOUBLE_EQ(limites.minimo, -3.0);
    EXPECT_DOUBLE_EQ(limites.maximo, 1.1);
  }
}

TEST(EjesCompartidos, UnaRadiacionDe800LlevaElEjeDerechoA880) {
  const std::array<float, 3> radiacion{0.0F, 800.0F, 120.0F};
  const EjesCompartidos ejes = RepartirEjes(std::array{SerieCompartida{radiacion, LadoEje::Derecho}});
  EXPECT_DOUBLE_EQ(ejes.derecho.maximo, 880.0);
  EXPECT_DOUBLE_EQ(ejes.derecho.minimo, -3.0);
  EXPECT_DOUBLE_EQ(ejes.izquierdo.maximo, 1.1);
}

TEST(EjesCompartidos, TodasLasSeriesDeUnLadoCuentanJuntas) {
  const std::array<float, 2> fria{-7.0F, 4.0F};
  const std::array<float, 2> calida{21.0F, 40.0F};
  const EjesCompartidos ejes = RepartirEjes(std::array{SerieCompartida{fria}, SerieCompartida{calida}});
  EXPECT_DOUBLE_EQ(ejes.izquierdo.minimo, -10.0);
  EXPECT_DOUBLE_EQ(ejes.izquierdo.maximo, 44.0);
}

TEST(EjesCompartidos, PorDebajoDeUnoYPorEncimaDeCeroMandanLosDePartida) {
  const std::array<float, 2> valores{0.25F, 0.5F};
  const EjesCompartidos ejes = RepartirEjes(std::array{SerieCompartida{valores}});
  EXPECT_DOUBLE_EQ(ejes.izquierdo.minimo, -3.0);
  EXPECT_DOUBLE_EQ(ejes.izquierdo.maximo, 1.1);
}

TEST(EjesCompartidos, LoQueNoEsFinitoNoCuenta) {
  constexpr float INFINITO = std::numeric_limits<float>::infinity();
  const std::array<float, 4> valores{INFINITO, -INFINITO, std::numeric_limits<float>::quiet_NaN(), 10.0F};
  const EjesCompartidos ejes = RepartirEjes(std::array{SerieCompartida{valores}});
  EXPECT_DOUBLE_EQ(ejes.izquierdo.minimo, -3.0);
  EXPECT_DOUBLE_EQ(ejes.izquierdo.maximo, 11.0);
}
