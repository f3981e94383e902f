#include "core/Varios.h"
#include "tests/comun/Apoyos.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace tesmo;
using namespace tesmo::prueba;

TEST(Varios, AjustarSeparadorNoTocaElUltimoCaracter) {
  const ConSeparador coma(',');
  std::string texto = "1.2.3.";
  AjustarSeparador(texto);
  EXPECT_EQ(texto, "1,2,3.");
  std::string vacio;
  AjustarSeparador(vacio);
  EXPECT_EQ(vacio, "");
}

TEST(Varios, AjustarSeparadorConPuntoConvierteLasComas) {
  const ConSeparador punto('.');
  std::string texto = "1,5,";
  AjustarSeparador(texto);
  EXPECT_EQ(texto, "1.5,");
}

TEST(Varios, TextoARealAdmiteBlancosSignoYExponente) {
  const ConSeparador punto('.');
  EXPECT_EQ(TextoAReal("  +1.5e+2\t"), 150.0);
  EXPECT_EQ(TextoAReal("-.5"), -0.5);
  EXPECT_EQ(TextoAReal("5."), 5.0);
  EXPECT_EQ(TextoAReal("1E-3"), 0.001);
  EXPECT_EQ(TextoAReal("-1e-05"), -1e-05);
}

TEST(Varios, TextoARealRechazaLoDemas) {
  const ConSeparador punto('.');
  for (const char *texto :
       {"", "+", ".", "e5", "1e", "1e+", "1,5", "--1", "1 2", "nan", "inf", "infinity", "0x1p3", "1'000"}) {
    EXPECT_FALSE(TextoAReal(texto).has_value()) << texto;
  }
  EXPECT_FALSE(TextoAReal(std::string_view("1\0", 2)).has_value());
}

TEST(Varios, LoQueNoCabeEsInfinitoOCero) {
  const ConSeparador punto('.');
  EXPECT_EQ(TextoAReal("1e999"), HUGE_VAL);
  EXPECT_EQ(TextoAReal("-1e999"), -HUGE_VAL);
  EXPECT_EQ(TextoAReal("1e-999"), 0.0);
  EXPECT_EQ(TextoAReal("0." + std::string(400, '0') + "1"), 0.0);
  EXPECT_EQ(TextoAReal("1" + std::string(400, '0') + "e-5"), HUGE_VAL);
}

TEST(Varios, PrefijoEnteroTomaLasCifrasDelPrincipio) {
  EXPECT_EQ(PrefijoEntero("12abc"), 12);
  EXPECT_EQ(PrefijoEntero("  -7"), -7);
  EXPECT_EQ(PrefijoEntero("abc"), 0);
  EXPECT_EQ(PrefijoEntero(""), 0);
  EXPECT_EQ(PrefijoEntero("99999999999999999999"), 2147483647);
  EXPECT_EQ(PrefijoEntero("-99999999999999999999"), -2147483647 - 1);
}

TEST(Varios, LoTecleadoAdmiteLosDosSeparadores) {
  for (const char separador : {'.', ','}) {
    const ConSeparador este(separador);
    EXPECT_EQ(RealTecleado("13.25"), 13.25);
    EXPECT_EQ(RealTecleado("13,25"), 13.25);
    EXPECT_FALSE(RealTecleado("1,2,3").has_value());
    EXPECT_FALSE(RealTecleado("").has_value());
  }
}

TEST(Varios, TextoARealOCeroDiceSiPudo) {
  const ConSeparador coma(',');
  bool correcto = false;
  EXPECT_EQ(TextoARealOCero("37.5", correcto), 37.5F);
  EXPECT_TRUE(correcto);
  EXPECT_EQ(TextoARealOCero("norte", correcto), 0.0F);
  EXPECT_FALSE(correcto);
}
