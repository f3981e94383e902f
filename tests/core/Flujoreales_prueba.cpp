#include "core/Flujoreales.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using tesmo::FlujoReales;

namespace {

std::uint32_t Bits(float valor) { return std::bit_cast<std::uint32_t>(valor); }

/// Lo que hace la biblioteca de C con el mismo texto: lo leído (o no) y la posición en que queda.
struct Paso {
  bool leido = false;
  float valor = -77.0F;
  std::size_t posicion = 0;
};

class FlujoDeC {
public:
  explicit FlujoDeC(std::string texto)
      : texto_(std::move(texto)), f_(::fmemopen(texto_.data(), texto_.size(), "r")) {}
  ~FlujoDeC() { std::fclose(f_); }
  FlujoDeC(const FlujoDeC &) = delete;
  FlujoDeC &operator=(const FlujoDeC &) = delete;

  Paso Leer() {
    Paso paso;
    paso.leido = std::fscanf(f_, "%f", &paso.valor) == 1;
    paso.posicion = static_cast<std::size_t>(std::ftell(f_));
    return paso;
  }
  void Saltar() { (void)std::fgetc(f_); }

private:
  std::string texto_;
  std::FILE *f_;
};

/// Lee todo @p texto por los dos caminos, saltando un byte donde ninguno avanza.
::testing::AssertionResult LeenLoMismo(const std::string &texto) {
  FlujoDeC deC(texto);
  FlujoReales flujo(texto);
  while (!flujo.AlFinal()) {
    const std::size_t antes = flujo.Posicion();
    const Paso esperado = deC.Leer();
    Paso paso;
    paso.leido = flujo.LeerReal(paso.valor);
    paso.posicion = flujo.Posicion();
    if (paso.leido != esperado.leido || Bits(paso.valor) != Bits(esperado.valor) ||
        paso.posicion != esperado.posicion) {
      return ::testing::AssertionFailure()
             << "\"" << texto << "\" desde " << antes << ": " << paso.leido << " " << paso.valor << " en "
             << paso.posicion << "; C: " << esperado.leido << " " << esperado.valor << " en "
             << esperado.posicion;
    }
    if (paso.posicion == antes) {
      deC.Saltar();
      flujo.DescartarLinea(1);
    }
  }
  return ::testing::AssertionSuccess();
}

float Leer(const std::string &texto) {
  FlujoReales flujo(texto);
  float valor = -77.0F;
  EXPECT_TRUE(flujo.LeerReal(valor)) << texto;
  return valor;
}

} // namespace

TEST(FlujoReales, DecimalesCorrientes) {
  EXPECT_EQ(Leer("36.84"), 36.84F);
  EXPECT_EQ(Leer("  \r\n\t\v\f-2.39"), -2.39F);
  EXPECT_EQ(Leer("+7"), 7.0F);
  EXPECT_EQ(Leer(".5"), 0.5F);
  EXPECT_EQ(Leer("5."), 5.0F);
  EXPECT_TRUE(std::signbit(Leer("-0")));
}

TEST(FlujoReales, ExponenteHexadecimalInfinitoYNan) {
  EXPECT_EQ(Leer("1.5E+2"), 150.0F);
  EXPECT_EQ(Leer("0x1.8p3"), 12.0F);
  EXPECT_EQ(Leer("0X.8"), 0.5F);
  EXPECT_EQ(Leer("-INFinity"), -std::numeric_limits<float>::infinity());
  EXPECT_TRUE(std::isnan(Leer("NaN")));
}

TEST(FlujoReales, DesbordarDaInfinitoYQuedarseCortoDaCero) {
  const float infinito = std::numeric_limits<float>::infinity();
  EXPECT_EQ(Leer("1e39"), infinito);
  EXPECT_EQ(Leer("-1e99999999999999999999"), -infinito);
  EXPECT_EQ(Leer("0x1p128"), infinito);
  EXPECT_EQ(Leer(std::string(60, '9')), infinito);
  EXPECT_EQ(Bits(Leer("-1e-46")), 0x80000000U);
  EXPECT_EQ(Bits(Leer("0x1p-150")), 0U);
  EXPECT_EQ(Leer("0e99999999999"), 0.0F);
  EXPECT_EQ(Leer("1e-45"), std::numeric_limits<float>::denorm_min());
  EXPECT_EQ(Leer("0." + std::string(60, '0') + "1e61"), 1.0F);
}

TEST(FlujoReales, ElSegundoRedondeoNuncaCambiaDeLado) {
  // Decimales de quince cifras tan cerca de un punto medio de 32 bits que el doble más próximo es ese punto
  // medio: redondearlo otra vez caería en el par vecino. Valores hallados con fracciones exactas.
  EXPECT_EQ(Leer("0.220301054418087"), 0x1.c32d32p-3F);
  EXPECT_EQ(Leer("0.419441893696785"), 0x1.ad822ep-2F);
  EXPECT_EQ(Leer("0.802809327840805"), 0x1.9b09d2p-1F);
  EXPECT_EQ(Leer("2.09847891330719"), 0x1.0c9af6p+1F);
}

TEST(FlujoReales, LosPuntosMediosExactosRedondeanAlPar) {
  for (std::uint32_t i = 1U << 24; i < (1U << 24) + 400; ++i) {
    const std::string entero = std::to_string(i);
    EXPECT_EQ(Leer(entero), std::strtof(entero.c_str(), nullptr)) << entero;
    const std::string medio = std::to_string(i / 2) + ".5";
    EXPECT_EQ(Leer(medio), std::strtof(medio.c_str(), nullptr)) << medio;
    EXPECT_EQ(Leer(medio + "0000001"), std::strtof((medio + "0000001").c_str(), nullptr)) << medio;
  }
}

TEST(FlujoReales, ReconocimientoParcialComoLaBibliotecaDeC) {
  for (const char *texto : {"1e 5",      "1e+ 5",     "1ex",
                            "0x 5",      "0x. 5",     "0xg",
                            "0x.p5",     "0x..5",     "-0x. 1",
                            "0x1p 2",    "0x1p+ 2",   "0x1.p",
                            "nan(1) 5",  "-nan",      "nax 5",
                            "nxn",       "na",        "n",
                            "inx5",      "inf 5",     "infi",
                            "infix 5",   "infinit",   "infinitx 5",
                            "infiniTY5", "in",        "i",
                            "-",         "+",         "--5 3",
                            "+-5",       "- 5",       ".",
                            ". 5",       ".e5",       "-.",
                            "..5",       "1.5.2",     "0",
                            "00",        "1e5.",      "1e5e5",
                            "1,5",       "1d5",       "12abc",
                            "1_000",     "0x1e5",     "0x1p5p5",
                            "1e++5",     "1e--5",     "\357\273\2771",
                            "\2401",     "5\xC2\xBA", "1'000",
                            "+0x1",      "-+0x1",     "0x-1",
                            "0e",        "-0e-"}) {
    EXPECT_TRUE(LeenLoMismo(texto));
  }
  EXPECT_TRUE(LeenLoMismo(std::string("1\0002 3", 5)));
  EXPECT_TRUE(LeenLoMismo(std::string("\0", 1)));
}

TEST(FlujoReales, TextosAlAzarComoLaBibliotecaDeC) {
  const std::string letras = "00112233445566778899..--++eEeExXpPnNaAiIfFtTyY(), \n\t\r\xF3";
  std::mt19937 azar(20240601);
  for (int vuelta = 0; vuelta < 60000; ++vuelta) {
    std::string texto;
    for (auto n = azar() % 24; n > 0; --n) texto += letras[azar() % letras.size()];
    ASSERT_TRUE(LeenLoMismo(texto));
  }
}

TEST(FlujoReales, NumerosAlAzarBienRedondeados) {
  std::mt19937_64 azar(7);
  for (int vuelta = 0; vuelta < 60000; ++vuelta) {
    std::string texto = std::to_string(azar() >> (azar() % 64));
    if (azar() % 4 != 0) texto.insert(azar() % (texto.size() + 1), 1, '.');
    if (azar() % 8 == 0) texto += "e" + std::to_string(static_cast<int>(azar() % 100) - 60);
    if (azar() % 2 == 0) texto.insert(0, 1, '-');
    ASSERT_TRUE(LeenLoMismo(texto));
  }
}

TEST(FlujoReales, HexadecimalesAlAzarBienRedondeados) {
  const std::string cifras = "0123456789abcdefABCDEF";
  std::mt19937_64 azar(11);
  for (int vuelta = 0; vuelta < 30000; ++vuelta) {
    std::string texto = "0x";
    for (auto n = 1 + azar() % 22; n > 0; --n) texto += cifras[azar() % cifras.size()];
    texto.insert(2 + azar() % (texto.size() - 1), 1, '.');
    if (azar() % 2 == 0) texto += "p" + std::to_string(static_cast<int>(azar() % 400) - 230);
    ASSERT_TRUE(LeenLoMismo(texto));
  }
}

TEST(FlujoReales, CampoDeUnMillonDeCifras) {
  const std::string unos(1000000, '1');
  EXPECT_TRUE(LeenLoMismo(unos + " 5"));
  EXPECT_TRUE(LeenLoMismo("0." + std::string(1000000, '0') + "1e1000000 5"));
  EXPECT_TRUE(LeenLoMismo("0x" + std::string(1000000, '0') + ".8p1 5"));
}

TEST(FlujoReales, DescartarLineaParaEnElFinDeLineaOEnElMaximo) {
  const std::string texto = "abc\ndefghi";
  FlujoReales flujo(texto);
  flujo.DescartarLinea(10);
  EXPECT_EQ(flujo.Posicion(), 4U);
  flujo.DescartarLinea(3);
  EXPECT_EQ(flujo.Posicion(), 7U);
  flujo.DescartarLinea(100);
  EXPECT_TRUE(flujo.AlFinal());
  flujo.DescartarLinea(100);
  EXPECT_TRUE(flujo.AlFinal());
}

TEST(FlujoReales, VariosNumerosHastaElPrimeroQueFalla) {
  const std::string texto = "1 2 tres 4";
  FlujoReales flujo(texto);
  float a = 0, b = 0, c = -1, d = -1;
  EXPECT_EQ(flujo.LeerReales(a, b, c, d), 2);
  EXPECT_EQ(a, 1.0F);
  EXPECT_EQ(b, 2.0F);
  EXPECT_EQ(c, -1.0F);
  EXPECT_EQ(d, -1.0F);
  EXPECT_EQ(flujo.Posicion(), 4U);
}
