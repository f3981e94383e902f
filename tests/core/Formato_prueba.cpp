#include "core/Formato.h"
#include "tests/comun/Apoyos.h"

#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

constexpr double NO_NUMERO = std::numeric_limits<double>::quiet_NaN();
constexpr double INFINITO = std::numeric_limits<double>::infinity();

} // namespace

TEST(Formato, FormatoFEsElDePrintfEnLaRegionC) {
  std::mt19937_64 azar(1);
  for (int i = 0; i < 2000; ++i) {
    const double valor = std::ldexp(static_cast<double>(azar() >> 11), static_cast<int>(azar() % 120) - 90);
    char esperado[400];
    std::snprintf(esperado, sizeof esperado, "%f", valor);
    EXPECT_EQ(FormatoF(valor), esperado);
    std::snprintf(esperado, sizeof esperado, "%.9g", -valor);
    EXPECT_EQ(FormatoG9(-valor), esperado);
  }
  EXPECT_EQ(FormatoF(-0.0), "-0.000000");
  EXPECT_EQ(FormatoF(INFINITO), "inf");
}

TEST(Formato, FormatoG9EscribeLosNoFinitosEnMinusculas) {
  EXPECT_EQ(FormatoG9(NO_NUMERO), "nan");
  EXPECT_EQ(FormatoG9(-NO_NUMERO), "nan");
  EXPECT_EQ(FormatoG9(INFINITO), "inf");
  EXPECT_EQ(FormatoG9(-INFINITO), "-inf");
  EXPECT_EQ(FormatoG9(0.1F), "0.100000001");
  EXPECT_EQ(FormatoG9(1e-5), "1e-05");
}

TEST(Formato, FormatoGeneralLlevaQuinceCifrasSinCerosFinales) {
  EXPECT_EQ(FormatoGeneral15(-2.4630000591278076, ','), "-2,46300005912781");
  EXPECT_EQ(FormatoGeneral15(15.0, ','), "15");
  EXPECT_EQ(FormatoGeneral15(0.5, '.'), "0.5");
  EXPECT_EQ(FormatoGeneral15(-0.0, '.'), "0");
}

TEST(PatronNumero, RedondeaLaMitadAlejandoseDeCero) {
  EXPECT_EQ(FormatearPatron(0.25F, "0.0"), "0.3");
  EXPECT_EQ(FormatearPatron(-0.25F, "0.0"), "-0.3");
  EXPECT_EQ(FormatearPatron(2.5F, "0"), "3");
  EXPECT_EQ(FormatearPatron(-2.5F, "0"), "-3");
  EXPECT_EQ(FormatearPatron(0.5F, "0"), "1");
  EXPECT_EQ(FormatearPatron(0.125F, "0.00"), "0.13");
}

TEST(PatronNumero, ElRedondeoEsSobreElValorExactoDelReal) {
  EXPECT_EQ(FormatearPatron(0.35F, "0.0"), "0.3") << "0,35 en 32 bits es 0,3499999940…";
  EXPECT_EQ(FormatearPatron(0.15F, "0.0"), "0.2") << "0,15 en 32 bits es 0,1500000060…";
  EXPECT_EQ(FormatearPatron(0.0045F, "0.000"), "0.004") << "0,0045 en 32 bits es 0,00449999980…";
  EXPECT_EQ(FormatearPatron(0.45, "0.0"), "0.5") << "0,45 en 64 bits es 0,45000000000000001110…";
  EXPECT_EQ(FormatearPatron(0.35, "0.0"), "0.3") << "0,35 en 64 bits es 0,34999999999999997780…";
}

TEST(PatronNumero, ElCeroNuncaLlevaSigno) {
  EXPECT_EQ(FormatearPatron(-0.04F, "0.0"), "0.0");
  EXPECT_EQ(FormatearPatron(-0.0F, "0"), "0");
  EXPECT_EQ(FormatearPatron(-0.004F, "#0.##"), "0");
  EXPECT_EQ(FormatearPatron(-0.05F, "0.0"), "-0.1");
}

TEST(PatronNumero, LasAlmohadillasQuitanCerosFinales) {
  EXPECT_EQ(FormatearPatron(12.5F, "#0.##"), "12.5");
  EXPECT_EQ(FormatearPatron(12.0F, "#0.##"), "12");
  EXPECT_EQ(FormatearPatron(0.0078F, "#0.####"), "0.0078");
  EXPECT_EQ(FormatearPatron(99.0F, "0.0##"), "99.0");
  EXPECT_EQ(FormatearPatron(99.6F, "0.0##"), "99.6");
  EXPECT_EQ(FormatearPatron(97.25F, "0.0##"), "97.25");
  EXPECT_EQ(FormatearPatron(101325.0F, "#0"), "101325");
}

TEST(PatronNumero, LosNoFinitosVanEnMayusculas) {
  EXPECT_EQ(FormatearPatron(NO_NUMERO, "0.0"), "NAN");
  EXPECT_EQ(FormatearPatron(-NO_NUMERO, "0.0"), "NAN");
  EXPECT_EQ(FormatearPatron(INFINITO, "0"), "INF");
  EXPECT_EQ(FormatearPatron(-INFINITO, "0"), "-INF");
}

TEST(PatronNumero, UsaElSeparadorRegional) {
  const ConSeparador coma(',');
  EXPECT_EQ(FormatearPatron(1234.56F, "0.0"), "1234,6");
}

TEST(PatronNumero, LosValoresEnormesSalenEnteros) {
  EXPECT_EQ(FormatearPatron(std::numeric_limits<float>::max(), "0.0"),
            "340282346638528859811704183484516925440.0");
  EXPECT_EQ(FormatearPatron(16777216.0F, "0.0000"), "16777216.0000");
  EXPECT_EQ(FormatearPatron(std::numeric_limits<float>::denorm_min(), "0.0"), "0.0");
}

TEST(PatronNumero, CoincideConElRedondeoExactoHechoConEnteros) {
  // Un real de 32 bits múltiplo de 1/1024 se redondea a mano con enteros.
  for (int n = -5000; n <= 5000; ++n) {
    const long long milesimas = std::llabs(n) * 1000LL;
    const long long redondeado = (2 * milesimas + 1024) / 2048;
    std::string esperado = std::to_string(redondeado / 1000) + ".";
    const std::string decimales = std::to_string(redondeado % 1000 + 1000).substr(1);
    esperado = (n < 0 && redondeado != 0 ? "-" : "") + esperado + decimales;
    EXPECT_EQ(FormatearPatron(static_cast<float>(n) / 1024.0F, "0.000"), esperado) << n;
  }
}
