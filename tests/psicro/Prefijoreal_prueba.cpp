#include "psicro/Prefijoreal.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <string>

using namespace tesmo;

namespace {

void ComoLaBiblioteca(const std::string &texto) {
  const double esperado = std::atof(texto.c_str()); // las pruebas corren en la región C
  const double obtenido = PrefijoReal(texto);
  if (std::isnan(esperado)) {
    EXPECT_TRUE(std::isnan(obtenido)) << texto;
  } else {
    EXPECT_EQ(std::bit_cast<std::uint64_t>(obtenido), std::bit_cast<std::uint64_t>(esperado))
        << '\'' << texto << '\'';
  }
}

} // namespace

TEST(PrefijoReal, LeeComoLaBibliotecaDeC) {
  for (const char *texto : {"",         "0",          "-0",
                            "25",       "37.5",       "37,5",
                            ".5",       "5.",         "-.5",
                            "+.5",      "+-5",        "-+5",
                            "--5",      "1e3",        "1e",
                            "1e+",      "1E-2x",      "12abc",
                            "abc",      "  \t\n 7 8", "0x10",
                            "0x1.8p1",  "0xg",        "0x-1",
                            "-0xz",     "0x",         "-0x1p-2",
                            "inf",      "-inf",       "INFINITY",
                            "infinito", "nan",        "-nan",
                            "1e400",    "-1e400",     "1e-400",
                            "1e-320",   "0.1e",       "1.7976931348623157e308",
                            "1.8e308",  "e5",         ".",
                            "-",        "+",          "..5",
                            "1_000"})
    ComoLaBiblioteca(texto);
  ComoLaBiblioteca(std::string(400, '9'));
  ComoLaBiblioteca("0." + std::string(400, '0') + "1");
}

TEST(PrefijoReal, LoQueNoCabeLoDecideElOrdenDeSuPrimeraCifra) {
  const std::string nueves(400, '9');
  const std::string ceros(400, '0');
  ComoLaBiblioteca("0." + ceros + "1e5");   // cero, aunque el exponente sea positivo
  ComoLaBiblioteca(nueves + "e-5");         // infinito, aunque sea negativo
  ComoLaBiblioteca(nueves + "e-395");       // cabe
  ComoLaBiblioteca("0." + ceros + "1e401"); // cabe
  ComoLaBiblioteca("0." + ceros + "1e90");
  ComoLaBiblioteca("000" + nueves + ".5E+0x");
  ComoLaBiblioteca("0x1p5000");
  ComoLaBiblioteca("0x1P-5000");
  ComoLaBiblioteca("0x" + nueves + "p-100");
  ComoLaBiblioteca("0x0." + ceros + "1p100");
  ComoLaBiblioteca("0x0." + ceros + "1p+1604"); // cabe
  ComoLaBiblioteca("1e" + nueves);
  ComoLaBiblioteca("-1e-" + nueves);
}

TEST(PrefijoReal, LeeComoLaBibliotecaDeCTextosAlAzar) {
  std::mt19937 azar(99);
  const std::string letras = "0123456789....eE+-- x";
  for (int i = 0; i < 100000; ++i) {
    std::string texto;
    for (auto n = azar() % 10; n > 0; --n) texto += letras[azar() % letras.size()];
    ComoLaBiblioteca(texto);
  }
}
