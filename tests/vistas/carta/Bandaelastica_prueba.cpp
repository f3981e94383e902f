#include "vistas/carta/Bandaelastica.h"

#include "psicro/Psicrometrico.h"
#include "tests/psicro/Lienzodeprueba.h"

#include <gtest/gtest.h>

using namespace tesmo;

namespace {

/// Apunta en el mismo papel los modos, los rectángulos y los trazos.
class SuperficieApuntada : public SuperficieBanda {
public:
  void PonModo(ModoPluma modo) override {
    Apuntar(modo == ModoPluma::Copia ? "modo copia" : "modo inversion");
  }
  void Rectangulo(ColorBgr color, const Pixel &a, const Pixel &b) override {
    Apuntar("rectangulo " + std::to_string(color) + ": " + std::to_string(a.x) + ' ' + std::to_string(a.y) +
            " a " + std::to_string(b.x) + ' ' + std::to_string(b.y));
  }
  Lienzo &Trazos() override { return lienzo; }

  LienzoDePrueba lienzo;

private:
  void Apuntar(const std::string &texto) { lienzo.llamadas.push_back(texto); }
};

} // namespace

TEST(BandaElastica, AlSoltarlaSeTrazaYLaCartaSeDibujaDosVecesA600Por400) {
  Psicro carta;
  carta.ponVista(7, 8, 9, 10, 3);
  BandaElastica banda{true, {Pixel{20, 30}, Pixel{200, 90}}};
  SuperficieApuntada superficie;
  SoltarBanda(banda, ModoPluma::Inversion, superficie, carta);

  LienzoDePrueba unaVez;
  Psicro deFabrica;
  deFabrica.ponVista(0, 0, 0, 0, 1);
  deFabrica.dibujar(unaVez, 600, 400);
  ASSERT_FALSE(unaVez.llamadas.empty());
  std::vector<std::string> esperadas{"modo inversion", "rectangulo 0: 20 30 a 200 90"};
  esperadas.insert(esperadas.end(), unaVez.llamadas.begin(), unaVez.llamadas.end());
  esperadas.emplace_back("modo copia");
  esperadas.insert(esperadas.end(), unaVez.llamadas.begin(), unaVez.llamadas.end());
  EXPECT_EQ(superficie.lienzo.llamadas, esperadas);
}

TEST(BandaElastica, AlSoltarlaSeApagaYLaVistaQuedaDesdeElPrincipio) {
  Psicro carta;
  carta.ponVista(7, 8, 9, 10, 3);
  BandaElastica banda{true, {Pixel{1, 2}, Pixel{3, 4}}};
  SuperficieApuntada superficie;
  SoltarBanda(banda, ModoPluma::Copia, superficie, carta);
  EXPECT_FALSE(banda.activa);
  EXPECT_EQ(banda.esquinas, (std::array<Pixel, 2>{Pixel{1, 2}, Pixel{3, 4}}));
  EXPECT_EQ(carta.dameVista().desplazamientoX, 0);
  EXPECT_EQ(carta.dameVista().vista4, 0);
  EXPECT_EQ(carta.dameVista().zoom, 1);
  EXPECT_EQ(carta.dameAncho(), 600.0F);
  EXPECT_EQ(carta.dameAlto(), 400.0F);
  EXPECT_EQ(superficie.lienzo.llamadas.front(), "modo copia");
}
