#include "intercambio/sintesis/Csv.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

using Campos = std::vector<std::string>;

TEST(Csv, ParteEnCamposQuitandoBlancosDeAlrededor) {
  const auto registros = PartirCsv("a, b c ,\td\n1,,\n");
  ASSERT_EQ(registros.size(), 2U);
  EXPECT_EQ(registros[0].campos, (Campos{"a", "b c", "d"}));
  EXPECT_EQ(registros[1].campos, (Campos{"1", "", ""}));
  EXPECT_EQ(registros[1].linea, 2U);
}

TEST(Csv, LasComillasGuardanComasComillasYFinesDeLinea) {
  const auto registros = PartirCsv("\"a,b\",\"dice \"\"hola\"\"\", \" x \"\n\"dos\nlíneas\",z\nfin\n");
  ASSERT_EQ(registros.size(), 3U);
  EXPECT_EQ(registros[0].campos, (Campos{"a,b", "dice \"hola\"", " x "}));
  EXPECT_EQ(registros[1].campos, (Campos{"dos\nlíneas", "z"}));
  EXPECT_EQ(registros[2].linea, 4U);
}

TEST(Csv, SaltaComentariosLineasEnBlancoYLaMarcaDeBytes) {
  const auto registros = PartirCsv("\xEF\xBB\xBF# nota\n\n  \t\na,b\n#fin\n");
  ASSERT_EQ(registros.size(), 1U);
  EXPECT_EQ(registros[0].campos, (Campos{"a", "b"}));
  EXPECT_EQ(registros[0].linea, 4U);
}

TEST(Csv, AdmiteFinesDeLineaDeWindowsYUltimaLineaSinFin) {
  const auto registros = PartirCsv("a,b\r\n\r\n\"c\",d\r");
  ASSERT_EQ(registros.size(), 2U);
  EXPECT_EQ(registros[0].campos, (Campos{"a", "b"}));
  EXPECT_EQ(registros[1].campos, (Campos{"c", "d"}));
  EXPECT_EQ(registros[1].linea, 3U);
}

TEST(Csv, UnasComillasSinCerrarLleganAlFinal) {
  const auto registros = PartirCsv("a,\"b\nc,d\n");
  ASSERT_EQ(registros.size(), 1U);
  EXPECT_EQ(registros[0].campos, (Campos{"a", "b\nc,d\n"}));
}

TEST(Csv, UnTextoVacioNoTieneRegistros) {
  EXPECT_TRUE(PartirCsv("").empty());
  EXPECT_TRUE(PartirCsv("\n\n").empty());
  EXPECT_TRUE(PartirCsv("\xEF\xBB\xBF").empty());
}

TEST(Csv, UnaComaFinalAbreUnCampoVacio) {
  const auto registros = PartirCsv("a,");
  ASSERT_EQ(registros.size(), 1U);
  EXPECT_EQ(registros[0].campos, (Campos{"a", ""}));
}

} // namespace
} // namespace tesmo
