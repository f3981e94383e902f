#include "psicro/Buscaraiz.h"
#include "psicro/Saturacion.h"
#include "tests/comun/Apoyos.h"
#include "tests/psicro/Buscaraizllana.h"

#include <array>
#include <bit>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace tesmo;

namespace {

bool Iguales(double a, double b) {
  return (std::isnan(a) && std::isnan(b)) ||
         std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

::testing::AssertionResult MismaMemoria(const EstadoBuscaRaiz &a, const EstadoBuscaRaiz &b) {
  if (Iguales(a.x0, b.x0) && Iguales(a.x1, b.x1) && Iguales(a.f0, b.f0) && Iguales(a.f1, b.f1))
    return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "x0 " << a.x0 << ' ' << b.x0 << " x1 " << a.x1 << ' ' << b.x1
                                       << " f0 " << a.f0 << ' ' << b.f0 << " f1 " << a.f1 << ' ' << b.f1;
}

EstadoBuscaRaiz Memoria(double x0, double f0, double x1, double f1, double tolerancia = 1e-5) {
  return {.x0 = x0, .x1 = x1, .f0 = f0, .f1 = f1, .tolerancia = tolerancia};
}

struct Paso {
  double siguiente;
  bool convergido;
};

Paso Dar(EstadoBuscaRaiz &e, float x, float f, int k) {
  Paso p{};
  p.siguiente = BuscaRaiz(e, x, f, k, p.convergido);
  return p;
}

} // namespace

TEST(BuscaRaiz, ElPrimerPasoAumentaUnDiezPorCiento) {
  EstadoBuscaRaiz e = Memoria(0, 0, 0, 0);
  const Paso p = Dar(e, 100.0F, -3.0F, 0);
  EXPECT_FALSE(p.convergido);
  EXPECT_DOUBLE_EQ(p.siguiente, 110.0);
  EXPECT_TRUE(MismaMemoria(e, Memoria(100, -3, 0, 0)));
}

TEST(BuscaRaiz, DesdeCercaDeCeroElPrimerPasoVaAUnDecimo) {
  for (const float x : {0.0F, 0.009F, -0.009F}) {
    EstadoBuscaRaiz e = Memoria(0, 0, 0, 0);
    EXPECT_EQ(Dar(e, x, 1.0F, 0).siguiente, 0.1) << x;
  }
  // El float 0.01 queda por debajo del 0.01 de doble precisión; el siguiente, por encima.
  const float mayor = std::nextafter(0.01F, 1.0F);
  EstadoBuscaRaiz e = Memoria(0, 0, 0, 0);
  EXPECT_EQ(Dar(e, mayor, 1.0F, 0).siguiente, 1.1 * static_cast<double>(mayor));
}

TEST(BuscaRaiz, ResiduoNuloConvergeSinTocarLaMemoria) {
  EstadoBuscaRaiz e = Memoria(1, 2, 3, 4);
  const Paso p = Dar(e, 7.0F, 0.0F, 0);
  EXPECT_TRUE(p.convergido);
  EXPECT_EQ(p.siguiente, 7.0);
  EXPECT_TRUE(MismaMemoria(e, Memoria(1, 2, 3, 4)));
}

TEST(BuscaRaiz, ConvergePorCercaniaSoloDespuesDelPrimerPaso) {
  EstadoBuscaRaiz e = Memoria(10.00001, 2, 3, 4);
  EXPECT_TRUE(Dar(e, 10.0F, 1.0F, 1).convergido);
  EXPECT_TRUE(MismaMemoria(e, Memoria(10.00001, 2, 3, 4)));
  EXPECT_FALSE(Dar(e, 10.0F, 1.0F, 0).convergido);
}

TEST(BuscaRaiz, LaToleranciaEsAbsolutaPorDebajoDeUnaCentesima) {
  EstadoBuscaRaiz e = Memoria(0.001 + 0.9e-7, 1, 0, 0);
  EXPECT_TRUE(Dar(e, 0.001F, 1.0F, 1).convergido);
  e = Memoria(0.001 + 1.1e-7, 1, 0, 0);
  EXPECT_FALSE(Dar(e, 0.001F, 1.0F, 1).convergido);
}

TEST(BuscaRaiz, ElSegundoPasoEsLaSecante) {
  EstadoBuscaRaiz e = Memoria(1, 3, 0, 0);
  EXPECT_EQ(Dar(e, 2.0F, 1.0F, 1).siguiente, 2.5);
  EXPECT_TRUE(MismaMemoria(e, Memoria(2, 1, 1, 3)));
}

TEST(BuscaRaiz, SecanteHorizontalVuelveAlIncremento) {
  EstadoBuscaRaiz e = Memoria(1, 3, 0, 0);
  EXPECT_EQ(Dar(e, 2.0F, 3.0F, 1).siguiente, 2.2);
}

TEST(BuscaRaiz, EnElTercerPasoUnaEstimacionRepetidaUsaElPuntoMasViejo) {
  EstadoBuscaRaiz e = Memoria(2, 9, 1, 3, 0.0);
  EXPECT_EQ(Dar(e, 2.0F, 1.0F, 2).siguiente, 2.5); // secante por (2, 1) y (1, 3)
  EXPECT_TRUE(MismaMemoria(e, Memoria(2, 1, 1, 3)));
}

TEST(BuscaRaiz, EnElTercerPasoLaEstimacionMasViejaRepetidaUsaLaSecante) {
  EstadoBuscaRaiz e = Memoria(1, 3, 2, 9);
  EXPECT_EQ(Dar(e, 2.0F, 1.0F, 2).siguiente, 2.5);
}

TEST(BuscaRaiz, LaParabolaSoloSirveSiEsCasiUnaRecta) {
  // f = x² − 2 por 3, 2 y 1: la curvatura 1 es demasiada y manda la secante por (3, 7) y (2, 2)…
  EstadoBuscaRaiz curva = Memoria(2, 2, 3, 7);
  EXPECT_EQ(Dar(curva, 1.0F, -1.0F, 2).siguiente, 1.0 + 1.0 / 3.0);
  // …y con f = 2^-34·x² + x − 3 (curvatura 5.8e-11) es la parábola quien da el paso.
  const double a = std::ldexp(1.0, -34);
  const auto f = [a](double x) { return a * x * x + x - 3.0; };
  EstadoBuscaRaiz recta = Memoria(1024, f(1024), 2048, f(2048));
  const double siguiente = Dar(recta, 512.0F, static_cast<float>(f(512)), 5).siguiente;
  EXPECT_TRUE(std::isfinite(siguiente));
  EXPECT_NE(siguiente, 512.0 - f(512) / ((f(1024) - f(512)) / 512.0));
}

TEST(BuscaRaiz, UnaRectaExactaDaUnPasoQueNoEsNumero) {
  // Curvatura 0: las dos raíces de la parábola son 0/0. Se conserva.
  EstadoBuscaRaiz e = Memoria(2, 4, 3, 6);
  EXPECT_TRUE(std::isnan(Dar(e, 1.0F, 2.0F, 2).siguiente));
}

TEST(BuscaRaiz, TrasUnaParabolaElPuntoViejoSeGuardaSiCercaLaRaiz) {
  struct Caso {
    double f0, f1;
    float f;
    bool releva;
  };
  // Puntos x1 = 3, x0 = 2, x = 1 sobre rectas: curvatura 0, de modo que la parábola vale.
  for (const Caso &c : {Caso{4, 6, 2.0F, true}, Caso{-4, -2, -6.0F, false}, Caso{-1, 2, -4.0F, false},
                        Caso{1, 3, -1.0F, false}, Caso{1, -1, 3.0F, false}}) {
    EstadoBuscaRaiz e = Memoria(2, c.f0, 3, c.f1);
    (void)Dar(e, 1.0F, c.f, 2);
    EXPECT_EQ(e.x1, c.releva ? 2.0 : 3.0) << c.f0 << ' ' << c.f1 << ' ' << c.f;
    EXPECT_EQ(e.x0, 1.0);
    EXPECT_EQ(e.f0, static_cast<double>(c.f));
  }
}

TEST(BuscaRaiz, TrasUnaParabolaElPuntoViejoSeCambiaSiNoCercaLaRaiz) {
  // f0 cambia de signo y f1 no: hace falta una curvatura admitida con el extremo de en medio al otro lado.
  const double u = 1e-11;
  EstadoBuscaRaiz e = Memoria(1, -u / 2, 2, u);
  (void)Dar(e, 0.0F, static_cast<float>(u), 2);
  EXPECT_EQ(e.x1, 1.0);
}

TEST(BuscaRaiz, CoincideBitABitConLaEscrituraLlanaEnMemoriasAlAzar) {
  std::mt19937 azar(20240221);
  const std::array<double, 9> redondos{0.0, 1.0, -1.0, 2.0, 0.5, 1e-11, -1e-11, 0.01, 100.0};
  const auto sacar = [&] {
    const auto n = azar() % 16;
    if (n < redondos.size()) return redondos[n];
    return std::ldexp(std::uniform_real_distribution<double>(-1, 1)(azar),
                      static_cast<int>(azar() % 40) - 25);
  };
  int parabolas = 0;
  for (int i = 0; i < 300000; ++i) {
    EstadoBuscaRaiz a = Memoria(static_cast<float>(sacar()), static_cast<float>(sacar()),
                                static_cast<float>(sacar()), static_cast<float>(sacar()));
    EstadoBuscaRaiz b = a;
    const EstadoBuscaRaiz antes = a;
    const auto x = static_cast<float>(sacar());
    const auto f = static_cast<float>(sacar());
    const int k = static_cast<int>(azar() % 5);
    bool ca = false;
    bool cb = true;
    const double sa = BuscaRaiz(a, x, f, k, ca);
    const double sb = BuscaRaizLlana(b, x, f, k, cb);
    ASSERT_EQ(ca, cb) << i;
    ASSERT_TRUE(Iguales(sa, sb)) << i << ": " << sa << ' ' << sb;
    ASSERT_TRUE(MismaMemoria(a, b)) << i;
    // Sólo una parábola deja el punto más viejo en su sitio.
    parabolas += !ca && antes.x0 != antes.x1 && a.x1 == antes.x1 ? 1 : 0;
  }
  EXPECT_GT(parabolas, 100);
}

TEST(BuscaRaiz, CoincidePasoAPasoConLaEscrituraLlanaEnMuchasFunciones) {
  using Funcion = std::function<double(double)>;
  const std::vector<Funcion> funciones{
      [](double x) { return x * x - 2.0; },
      [](double x) { return std::exp(x / 30.0) - 5.0; },
      [](double x) { return std::log(std::fabs(x) + 1.0) - 2.0; },
      [](double x) { return std::sin(x); },
      [](double x) { return x * x * x - 30.0 * x + 7.0; },
      [](double x) { return 3.0 * x - 11.0; },
      [](double x) { return 1e-12 * x * x + x - 3.3; },
      [](double x) { return 4.5e-11 * x * x - 1e-9 * x - 1e-7; },
      [](double) { return 1.0; },
      [](double x) { return 1.0 / x; },
      [](double x) { return std::sqrt(x - 3.0); },
      [](double x) { return std::atan(x - 7.0) * 1e-10; },
      [](double x) { return 2000.0 - presionSaturacion(static_cast<float>(x)); },
  };
  for (std::size_t n = 0; n < funciones.size(); ++n) {
    for (const float inicio : {0.0F, 1.0F, -2.5F, 0.005F, 37.0F, 100.0F, 1e6F}) {
      EstadoBuscaRaiz a = Memoria(0, 0, 0, 0);
      EstadoBuscaRaiz b = a;
      float x = inicio;
      bool ca = false;
      for (int k = 0; k < 60 && !ca; ++k) {
        const auto f = static_cast<float>(funciones[n](x));
        bool cb = false;
        const double sa = BuscaRaiz(a, x, f, k, ca);
        const double sb = BuscaRaizLlana(b, x, f, k, cb);
        ASSERT_EQ(ca, cb) << n << ' ' << inicio << ' ' << k;
        ASSERT_TRUE(Iguales(sa, sb)) << n << ' ' << inicio << ' ' << k << ": " << sa << ' ' << sb;
        ASSERT_TRUE(MismaMemoria(a, b)) << n << ' ' << inicio << ' ' << k;
        x = static_cast<float>(sa);
      }
    }
  }
}

TEST(BuscarRaiz, EncuentraLaRaizYNoDejaNadaEnElRegistro) {
  prueba::RegistroApuntado registro;
  int evaluaciones = 0;
  const float x = BuscarRaiz(1.0F, 1e-5, 50, "nadie", [&](float v) {
    ++evaluaciones;
    return v * v - 2.0F;
  });
  EXPECT_NEAR(x, std::sqrt(2.0), 1.5e-5);
  EXPECT_LT(evaluaciones, 12);
  EXPECT_TRUE(registro.textos.empty());
}

TEST(BuscarRaiz, SinConvergerDaElError3UnaVezTrasTodasLasVueltas) {
  prueba::RegistroApuntado registro;
  int evaluaciones = 0;
  const float x = BuscarRaiz(1.0F, 1e-5, 30, "Alguien::busca", [&](float) {
    ++evaluaciones;
    return 1.0F;
  });
  EXPECT_EQ(evaluaciones, 30);
  EXPECT_EQ(registro.textos,
            std::vector<std::string>{"**Error 3: El proceso iterativo no ha convergido: Alguien::busca"});
  // Sin pendiente, el tercer paso toma por parábola una recta exacta y deja de ser un número: se conserva.
  EXPECT_TRUE(std::isnan(x));
}

TEST(BuscarRaiz, ConvergerEnLaUltimaVueltaCuentaComoConverger) {
  prueba::RegistroApuntado registro;
  int evaluaciones = 0;
  (void)BuscarRaiz(1.0F, 1e-5, 5, "nadie", [&](float) { return ++evaluaciones == 5 ? 0.0F : 1.0F; });
  EXPECT_EQ(evaluaciones, 5);
  EXPECT_TRUE(registro.textos.empty());
}

TEST(BuscarRaiz, ElResiduoPuedeCorregirLaEstimacionAntesDeEvaluar) {
  const float x = BuscarRaiz(50.0F, 1e-5, 50, "nadie", [](float &v) {
    if (v > 3.0F) v = 3.0F;
    return v - 3.0F;
  });
  EXPECT_EQ(x, 3.0F);
}
