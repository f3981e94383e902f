#include "core/Error.h"
#include "psicro/Pluma.h"
#include "psicro/Psicrometrico.h"
#include "psicro/Recorrido.h"
#include "tests/psicro/Lienzodeprueba.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace tesmo;
using Textos = std::vector<std::string>;

namespace {

constexpr Familia TODAS[] = {Familia::T, Familia::W, Familia::H, Familia::HR, Familia::VE};
constexpr float NADA = std::numeric_limits<float>::quiet_NaN();
constexpr float INFINITO = std::numeric_limits<float>::infinity();

/// Lienzo que sólo cuenta, para los dibujos enormes.
class LienzoContador : public Lienzo {
public:
  void PonColor(ColorBgr /*color*/) override { ++llamadas; }
  void PonGrueso(int /*grueso*/) override { ++llamadas; }
  void MoverA(int /*x*/, int /*y*/) override {
    ++llamadas;
    ++movimientos;
  }
  void LineaA(int /*x*/, int /*y*/) override { ++llamadas; }
  long llamadas = 0;
  long movimientos = 0;
};

long Lineas(Familia familia, const Rango &rango) {
  Psicro carta;
  carta.ponVista(0, 0, 0, 0, 1);
  for (const Familia f : TODAS) carta.ponVisible(f, f == familia);
  carta.ponRango(familia, rango);
  LienzoDePrueba lienzo;
  carta.dibujar(lienzo, 900, 600);
  long n = 0;
  for (const auto &p : lienzo.puntos) n += p.traza ? 0 : 1;
  return n;
}

std::vector<float> Acumulados(float desde, double hasta, float paso) {
  std::vector<float> valores;
  Recorrido().Acumulando(desde, hasta, paso, Recorrido::PUNTO, [&](float v) { valores.push_back(v); });
  return valores;
}

std::vector<float> Truncados(float desde, float hasta, float paso) {
  std::vector<float> valores;
  Recorrido().Truncando(desde, hasta, paso, [&](float v) { valores.push_back(v); });
  return valores;
}

} // namespace

TEST(Pluma, TruncaHaciaCero) {
  LienzoDePrueba lienzo;
  Pluma pluma(lienzo);
  pluma.MoverA(1.99, -1.99);
  pluma.LineaA(-0.5, 2147483647.9);
  EXPECT_EQ(lienzo.llamadas, (Textos{"mover 1 -1", "linea 0 2147483647"}));
}

TEST(Pluma, UnSegmentoQueTocaLoQueNoEsUnPixelNoSeTraza) {
  for (const double malo : {static_cast<double>(NADA), static_cast<double>(INFINITO), -1e300, 2147483648.0}) {
    LienzoDePrueba lienzo;
    Pluma pluma(lienzo);
    pluma.MoverA(1, 1);
    pluma.LineaA(2, 2);
    pluma.LineaA(malo, 3);
    pluma.LineaA(4, 4);
    pluma.LineaA(5, 5);
    pluma.MoverA(6, malo);
    pluma.LineaA(7, 7);
    EXPECT_EQ(lienzo.llamadas, (Textos{"mover 1 1", "linea 2 2", "mover 4 4", "linea 5 5"})) << malo;
  }
}

TEST(Recorrido, AcumulaEnFloatYTruncaEnCadaSuma) {
  EXPECT_EQ(Acumulados(0.0F, 1.0, 0.25F), (std::vector<float>{0.0F, 0.25F, 0.5F, 0.75F, 1.0F}));
  EXPECT_EQ(Truncados(0.9F, 10.0F, 2.5F), (std::vector<float>{0, 2, 4, 6, 8, 10}));
  // Cada suma se trunca hacia cero también por debajo de él: -7, -4.5, -1.5, 1.5.
  EXPECT_EQ(Truncados(-7.5F, 5.0F, 2.5F), (std::vector<float>{-7, -4, -1, 1, 3, 5}));
}

TEST(Recorrido, UnPasoQueNoAvanzaDejaSoloElPrimerValor) {
  for (const float paso : {0.0F, -1.0F, NADA, -INFINITO, 1e-12F})
    EXPECT_EQ(Acumulados(1.0F, 5.0, paso), std::vector<float>{1.0F}) << paso;
  for (const float paso : {0.0F, 0.99F, -1.0F, NADA, -INFINITO, 1e-12F})
    EXPECT_EQ(Truncados(1.0F, 5.0F, paso), std::vector<float>{1.0F}) << paso;
  EXPECT_EQ(Acumulados(1.0F, 5.0, INFINITO), std::vector<float>{1.0F});
}

TEST(Recorrido, SinSitioNoDaNingunValor) {
  EXPECT_TRUE(Acumulados(2.0F, 1.0, 0.1F).empty());
  EXPECT_TRUE(Acumulados(NADA, 1.0, 0.1F).empty());
  EXPECT_TRUE(Acumulados(0.0F, static_cast<double>(NADA), 0.1F).empty());
  EXPECT_TRUE(Truncados(NADA, 1.0F, 1.0F).empty());
}

TEST(Recorrido, NuncaGastaMasDeSuTopeYAlAgotarseLoDiceUnaVez) {
  constexpr int TOPE = 1000;
  Textos registro;
  AbrirRegistroEn([&](std::string_view texto) { registro.emplace_back(texto); });
  int puntos = 0;
  int lineas = 0;
  Recorrido recorrido(TOPE);
  recorrido.Acumulando(0.0F, 1e30, 1.0F, Recorrido::PUNTO, [&](float) {
    ++puntos;
    if (puntos == TOPE / 2) recorrido.Truncando(0.0F, 1e30F, 1.0F, [&](float) { ++lineas; });
  });
  CerrarRegistro();
  EXPECT_EQ(puntos, TOPE / 2);
  EXPECT_EQ(lineas, TOPE / 2 / Recorrido::LINEA);
  EXPECT_EQ(registro.size(), 1U);
}

TEST(Recorrido, UnaFamiliaSinFinSeQuedaEnSuTopeDeLineas) {
  EXPECT_EQ(Truncados(0.0F, 1e30F, 1.0F).size(),
            static_cast<std::size_t>(Recorrido::MAXIMO / Recorrido::LINEA));
}

TEST(RobustezCarta, LosPasosFinosNoPierdenLineas) {
  constexpr float PASO_FINO = 1e-5F;
  Psicro carta;
  carta.ponVista(0, 0, 0, 0, 1);
  for (const Familia f : TODAS) carta.ponVisible(f, f == Familia::W);
  Rango rango = carta.dameRango(Familia::W);
  rango.paso = PASO_FINO;
  carta.ponRango(Familia::W, rango);
  carta.ponRango(Familia::T, {0.0F, 50.0F, 0.1F});
  LienzoContador lienzo;
  carta.dibujar(lienzo, 900, 600);
  long lineas = 0;
  for (float w = rango.minimo; w <= rango.maximo; w += PASO_FINO) ++lineas;
  EXPECT_EQ(lienzo.movimientos, lineas);
}

TEST(RobustezCarta, UnPasoQueNoAvanzaDibujaSoloLaPrimeraLinea) {
  for (const float paso : {0.0F, -5.0F, NADA}) {
    EXPECT_EQ(Lineas(Familia::T, {0, 50, paso}), 1) << paso;
    EXPECT_EQ(Lineas(Familia::W, {0.001F, 0.03F, paso}), 1) << paso;
    EXPECT_EQ(Lineas(Familia::H, {10000, 120000, paso}), 1) << paso;
    EXPECT_EQ(Lineas(Familia::HR, {0, 100, paso}), 1) << paso;
    EXPECT_EQ(Lineas(Familia::VE, {0.8F, 0.9F, paso}), 1) << paso;
  }
  EXPECT_EQ(Lineas(Familia::HR, {0, 100, 0.9F}), 1); // se trunca a 0
  EXPECT_EQ(Lineas(Familia::T, {0, 50, 0.5F}), 1);
}

TEST(RobustezCarta, UnPasoDePuntosQueNoAvanzaDejaElPrimerPuntoDeCadaLinea) {
  Psicro carta;
  carta.ponVista(0, 0, 0, 0, 1);
  for (const Familia f : TODAS) carta.ponVisible(f, f == Familia::W);
  carta.ponRango(Familia::T, {0, 50, 0});
  LienzoDePrueba lienzo;
  carta.dibujar(lienzo, 900, 600);
  ASSERT_EQ(lienzo.puntos.size(), 2U * 29U);
  for (std::size_t i = 0; i < lienzo.puntos.size(); i += 2) {
    EXPECT_FALSE(lienzo.puntos[i].traza);
    EXPECT_TRUE(lienzo.puntos[i + 1].traza);
    EXPECT_EQ(lienzo.puntos[i].x, lienzo.puntos[i + 1].x);
  }
}

TEST(RobustezCarta, UnaPresionQueNoEsNumeroNoLlegaAlLienzo) {
  // Sin presión no hay humedad de saturación ni temperatura de aire seco: ningún trazo de éstas tiene fin.
  for (const Familia familia : {Familia::T, Familia::VE}) {
    Psicro carta;
    carta.ponVista(0, 0, 0, 0, 1);
    carta.ponPresion(NADA);
    for (const Familia f : TODAS) carta.ponVisible(f, f == familia);
    LienzoDePrueba lienzo;
    carta.dibujar(lienzo, 900, 600);
    EXPECT_FALSE(lienzo.puntos.empty());
    for (const auto &punto : lienzo.puntos) EXPECT_FALSE(punto.traza) << punto.x << ' ' << punto.y;
  }
}

TEST(RobustezCarta, UnaCartaSinAnchoDeTemperaturasNoTrazaMasAllaDeLosColores) {
  Psicro carta;
  carta.ponVista(0, 0, 0, 0, 2);
  for (const Familia f : TODAS) carta.ponVisible(f, f == Familia::W);
  carta.ponRango(Familia::T, {0, NADA, 5});
  LienzoDePrueba lienzo;
  carta.dibujar(lienzo, 900, 600);
  EXPECT_EQ(lienzo.llamadas, Textos{"color 0x0000FF"});
}

TEST(RobustezCarta, MilCartasAlAzarTerminan) {
  std::mt19937 azar(1234);
  const float raros[] = {0.0F, -1.0F, 1.0F, NADA, INFINITO, -INFINITO, 1e30F, -1e30F, 0.5F, 100.0F};
  const auto real = [&](float centro) {
    if (azar() % 8 == 0) return raros[azar() % std::size(raros)];
    return centro * std::uniform_real_distribution<float>(-0.5F, 2.5F)(azar);
  };
  for (int i = 0; i < 1000; ++i) {
    Psicro carta;
    const auto entero = [&] { return static_cast<std::int32_t>(azar()); };
    const bool extrema = azar() % 4 == 0;
    carta.ponVista(extrema ? entero() : entero() % 1000, extrema ? entero() : entero() % 1000, entero(),
                   entero(), static_cast<std::int8_t>(azar() % 256));
    // Con la presión de saturación cerca de la de la carta las líneas de temperatura agotan el tope de pasos.
    carta.ponPresion(azar() % 16 == 0 ? real(101325)
                                      : std::uniform_real_distribution<float>(1e5F, 2e5F)(azar));
    // Los pasos que avanzan no son minúsculos: el tope de pasos ya se prueba aparte y aquí cuesta.
    const auto paso = [&](float centro) {
      const float p = real(centro);
      return p > 0.0F && p < centro / 4.0F ? centro / 4.0F : p;
    };
    carta.ponRango(Familia::T, {real(10), std::min(real(50), 200.0F), paso(5)});
    carta.ponRango(Familia::W, {real(0.001F), std::min(real(0.03F), 0.1F), paso(0.004F)});
    carta.ponRango(Familia::H, {real(1000), std::min(real(120000), 1e6F), paso(10000)});
    carta.ponRango(Familia::HR, {real(10), std::min(real(100), 200.0F), paso(10)});
    carta.ponRango(Familia::VE, {real(0.74F), std::min(real(0.93F), 2.0F), paso(0.05F)});
    LienzoContador lienzo;
    carta.dibujar(lienzo, static_cast<int>(azar() % 3000), static_cast<int>(azar() % 3000));
    ASSERT_LE(lienzo.llamadas, 10L * Recorrido::MAXIMO);
  }
}
