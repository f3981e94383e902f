#include "psicro/Marcacarta.h"

#include "psicro/Psicrometrico.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace tesmo {
namespace {

class LienzoApuntado : public Lienzo {
public:
  void PonColor(ColorBgr color) override { texto += "c" + std::to_string(color) + " "; }
  void PonGrueso(int grueso) override { texto += "g" + std::to_string(grueso) + " "; }
  void MoverA(int x, int y) override { texto += "m" + std::to_string(x) + "," + std::to_string(y) + " "; }
  void LineaA(int x, int y) override { texto += "l" + std::to_string(x) + "," + std::to_string(y) + " "; }
  std::string texto;
};

std::string Marca(Psicro &carta, float t, float w) {
  LienzoApuntado lienzo;
  MarcarPunto(lienzo, carta, t, w, 7);
  return lienzo.texto;
}

class MarcaCarta : public ::testing::Test {
protected:
  MarcaCarta() { carta_.ponTamano(900.0F, 600.0F); }
  Psicro carta_;
};

TEST_F(MarcaCarta, CruzDeTresPixelesConGrueso2YVueltaAl1) {
  // 25 ºC y 0,015 kg/kg caen en el centro de la carta.
  EXPECT_EQ(Marca(carta_, 25.0F, 0.015F), "c7 g2 m447,300 l453,300 m450,297 l450,303 g1 ");
}

TEST_F(MarcaCarta, NoMiraElDesplazamientoNiElAumento) {
  const std::string sinVista = Marca(carta_, 10.0F, 0.01F);
  carta_.ponVista(30, -20, 5, 6, 3);
  EXPECT_EQ(Marca(carta_, 10.0F, 0.01F), sinVista);
}

TEST_F(MarcaCarta, LoQueNoCaeEnUnPixelNoSeMarca) {
  constexpr float NAN_ = std::numeric_limits<float>::quiet_NaN();
  constexpr float INF = std::numeric_limits<float>::infinity();
  for (const auto &[t, w] :
       {std::pair{NAN_, 0.01F}, {10.0F, NAN_}, {INF, 0.01F}, {10.0F, -INF}, {3e38F, 0.01F}})
    EXPECT_EQ(Marca(carta_, t, w), "") << t << " " << w;
  EXPECT_NE(Marca(carta_, -40.0F, -1.0F), ""); // fuera de la imagen, sí: la recorta el lienzo
}

} // namespace
} // namespace tesmo
