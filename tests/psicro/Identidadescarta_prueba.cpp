#include "psicro/Corrienteaire.h"
#include "psicro/Psicrometrico.h"
#include "psicro/Saturacion.h"
#include "tests/psicro/Lienzodeprueba.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace tesmo;

namespace {

// Con un millón de píxeles por lado, uno vale 5e-5 °C y 3e-8 kg/kg.
constexpr int LADO = 1'000'000;

struct Estado {
  double t, w;
  bool traza;
};

/// Los puntos, en coordenadas de la carta, que dibuja una sola familia.
std::vector<Estado> Puntos(Familia familia, float presion) {
  Psicro carta;
  carta.ponVista(0, 0, 0, 0, 1);
  carta.ponPresion(presion);
  for (const Familia f : {Familia::T, Familia::W, Familia::H, Familia::HR, Familia::VE})
    carta.ponVisible(f, f == familia);
  LienzoDePrueba lienzo;
  carta.dibujar(lienzo, LADO, LADO);
  std::vector<Estado> estados;
  for (const auto &p : lienzo.puntos)
    estados.push_back({static_cast<double>(carta.t(p.x)), static_cast<double>(carta.w(p.y)), p.traza});
  EXPECT_GT(estados.size(), 20U);
  return estados;
}

double Entalpia(double t, double w) { return (1805.0 * t + 2501000.0) * w + 1006.0 * t; }

} // namespace

class IdentidadesCarta : public ::testing::TestWithParam<float> {};

TEST_P(IdentidadesCarta, CadaPuntoDeUnaLineaDeEntalpiaTieneEsaEntalpia) {
  double primera = 0.0;
  int lineas = 0;
  for (const Estado &e : Puntos(Familia::H, GetParam())) {
    const double h = Entalpia(e.t, e.w);
    if (!e.traza) {
      primera = h;
      ++lineas;
      EXPECT_NEAR(h, 10000.0 * std::round(h / 10000.0), 2.0);
    } else {
      EXPECT_NEAR(h, primera, 2.0) << e.t;
      CorrienteAire saturado;
      saturado.pont_hr(static_cast<float>(e.t), 100.0F, GetParam());
      EXPECT_NEAR(e.w, saturado.humedadAbsoluta(), 2e-7);
    }
  }
  // La de 10000 J/kg sólo corta la saturación por encima de 0 °C si el aire saturado a 0 °C tiene menos.
  const double saturadoACero = 2501000.0 * humedadSaturacion(0.0F, GetParam());
  EXPECT_EQ(lineas, saturadoACero < 10000.0 ? 12 : 11);
}

TEST_P(IdentidadesCarta, CadaPuntoDeUnaLineaDeVolumenTieneEseVolumenConLaConstanteDeLaCarta) {
  double seco = 0.0;
  const std::vector<Estado> puntos = Puntos(Familia::VE, GetParam());
  for (std::size_t i = 0; i + 1 < puntos.size(); i += 2) {
    const Estado &saturado = puntos[i];
    ASSERT_TRUE(!saturado.traza && puntos[i + 1].traza);
    const double v = (puntos[i + 1].t + 273.15) * 287.0 / static_cast<double>(GetParam());
    EXPECT_NEAR(puntos[i + 1].w, 0.0, 1e-7);
    EXPECT_NEAR(v, 0.01 * std::round(v * 100.0), 1e-5);
    EXPECT_GT(v, seco);
    seco = v;
    if (saturado.t > 60.0) continue; // a más temperatura el píxel de humedad deja de ser fino
    const double aireSeco =
        GetParam() - static_cast<double>(presionSaturacion(static_cast<float>(saturado.t)));
    EXPECT_NEAR((saturado.t + 273.15) * 287.0 / aireSeco, v, 1e-5) << saturado.t;
  }
}

TEST_P(IdentidadesCarta, CadaPuntoDeUnaCurvaDeHumedadRelativaTieneEsaHumedad) {
  double hr = -10.0;
  for (const Estado &e : Puntos(Familia::HR, GetParam())) {
    if (!e.traza) hr += 10.0;
    CorrienteAire aire;
    const float t = e.traza ? static_cast<float>(e.t) : 0.0F;
    aire.pont_w(t, static_cast<float>(std::fabs(e.w)), GetParam());
    EXPECT_NEAR(static_cast<double>(aire.humedadRelativa()), hr, 0.01) << e.t;
  }
  EXPECT_EQ(hr, 100.0);
}

TEST_P(IdentidadesCarta, LasLineasDeTemperaturaYDeHumedadSonRectasDeLaCarta) {
  double fijo = 0.0;
  for (const Estado &e : Puntos(Familia::T, GetParam())) {
    if (!e.traza) fijo = e.t;
    EXPECT_NEAR(e.t, fijo, 1e-4);
    EXPECT_NEAR(e.t, 5.0 * std::round(e.t / 5.0), 1e-4);
  }
  for (const Estado &e : Puntos(Familia::W, GetParam())) {
    if (!e.traza) {
      fijo = e.w;
      CorrienteAire aire;
      aire.pont_hr(static_cast<float>(e.t), 100.0F, GetParam());
      EXPECT_NEAR(e.w, aire.humedadAbsoluta(), 2e-7); // nacen en la saturación
    }
    EXPECT_NEAR(e.w, fijo, 1e-9);
    EXPECT_NEAR(e.w, 0.001 * std::round(e.w * 1000.0), 1e-7);
  }
}

INSTANTIATE_TEST_SUITE_P(Presiones, IdentidadesCarta, ::testing::Values(80000.0F, 95000.0F, 101325.0F));
