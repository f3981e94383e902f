#include "core/Lectornumeros.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace tesmo;

TEST(LectorNumeros, RealesQueLaLecturaConFormatoAdmite) {
  const auto real = [](std::string_view texto) { return LectorNumeros(texto).Real(); };
  EXPECT_EQ(real("+1.5"), 1.5F);
  EXPECT_EQ(real(" \n\t-.5"), -0.5F);
  EXPECT_EQ(real("5."), 5.0F);
  EXPECT_EQ(real("1E+2"), 100.0F);
  EXPECT_EQ(real("0x1.8p3"), 12.0F);
  EXPECT_EQ(real("-0X10"), -16.0F);
  EXPECT_EQ(real("0e999999999999999999999"), 0.0F);
  EXPECT_EQ(real("1e999999999999999999999"), std::numeric_limits<float>::infinity());
  EXPECT_EQ(real("-1e39"), -std::numeric_limits<float>::infinity());
  EXPECT_EQ(real("1e-999"), 0.0F);
  EXPECT_EQ(real("0x1p500"), std::numeric_limits<float>::infinity());
  EXPECT_EQ(real("0x1p-500"), 0.0F);
  EXPECT_EQ(real(std::string(60, '9')), std::numeric_limits<float>::infinity());
  EXPECT_EQ(real("0." + std::string(60, '0') + "1"), 0.0F);
  EXPECT_EQ(real("INF"), std::numeric_limits<float>::infinity());
  EXPECT_EQ(real("-infinity"), -std::numeric_limits<float>::infinity());
  EXPECT_TRUE(std::isnan(real("NaN").value_or(0.0F)));
  for (const char *texto : {"", "-", ".", "e5", "0x", "infi", "na", "+-1", "hola"}) {
    EXPECT_FALSE(real(texto).has_value()) << texto;
  }
}

TEST(LectorNumeros, EnterosDeTreintaYDosBits) {
  const auto entero = [](std::string_view texto) { return LectorNumeros(texto).Entero(); };
  EXPECT_EQ(entero(" +12abc"), 12);
  EXPECT_EQ(entero("-7"), -7);
  EXPECT_EQ(entero("2147483647"), 2147483647);
  for (const char *texto : {"", "-", "x", "99999999999"}) EXPECT_FALSE(entero(texto).has_value()) << texto;
}

TEST(LectorNumeros, PalabrasYLineas) {
  LectorNumeros lector(" uno\tdos resto\r\n\nfin");
  EXPECT_EQ(lector.Palabra(), "uno");
  EXPECT_EQ(lector.Palabra(), "dos");
  EXPECT_EQ(lector.Linea(), 1);
  EXPECT_EQ(lector.RestoDeLinea(), " resto");
  EXPECT_EQ(lector.Linea(), 2);
  EXPECT_EQ(lector.RestoDeLinea(), "");
  EXPECT_EQ(lector.RestoDeLinea(), "fin");
  EXPECT_EQ(lector.RestoDeLinea(), "");
  EXPECT_TRUE(lector.Final());
  EXPECT_EQ(lector.Palabra(), "");
}

TEST(LectorNumeros, UnRestoMasLargoQueElMaximoQuedaPorLeer) {
  LectorNumeros justo("abcd\nx");
  EXPECT_EQ(justo.RestoDeLinea(4), "abcd");
  EXPECT_EQ(justo.Palabra(), "x");
  LectorNumeros largo("abcde\nx");
  EXPECT_EQ(largo.RestoDeLinea(4), "abcd");
  EXPECT_EQ(largo.RestoDeLinea(4), "e");
  EXPECT_EQ(largo.Palabra(), "x");
}
