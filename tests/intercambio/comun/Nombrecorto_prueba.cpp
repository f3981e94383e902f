#include "intercambio/comun/Nombrecorto.h"

#include "tests/intercambio/sintesis/Apoyosintesis.h"

#include <gtest/gtest.h>

#include <set>

namespace tesmo {
namespace {

TEST(NombreCorto, QuitaAcentosYBlancos) {
  EXPECT_EQ(NombreCorto("Almería"), "Almeria");
  EXPECT_EQ(NombreCorto("Morón de la Frontera"), "MoronDeLaFrontera");
  EXPECT_EQ(NombreCorto("Écija"), "Ecija");
  EXPECT_EQ(NombreCorto("Peñíscola"), "Peniscola");
  EXPECT_EQ(NombreCorto("Vitoria-Gasteiz"), "Vitoria-Gasteiz");
}

TEST(NombreCorto, NoDejaSalirDelDirectorio) {
  EXPECT_EQ(NombreCorto("../../x"), "....X");
  EXPECT_EQ(NombreCorto("a\\b:c*d"), "ABCD");
  EXPECT_EQ(NombreCorto(".."), "");
  EXPECT_EQ(NombreCorto("/"), "");
}

TEST(NombreCorto, LoQueNoEsLatinoSeAparta) {
  EXPECT_EQ(NombreCorto("日本"), "");
  EXPECT_EQ(NombreCorto("Łódź 2"), "Od2"); // fuera de U+00C0..U+00FF sólo quedan las letras que son ASCII
  EXPECT_EQ(NombreCorto("a×b"), "AB");
  EXPECT_EQ(NombreCorto("a\xC3"), "A");
}

TEST(NombreCorto, LasLocalidadesDelProgramaTienenCadaUnaElSuyo) {
  std::set<std::string> cortos;
  for (const NormalesLocalidad &localidad : prueba::NormalesDelPrograma())
    cortos.insert(NombreCorto(localidad.nombre));
  EXPECT_EQ(cortos.size(), 19U);
  EXPECT_TRUE(cortos.contains("GranadaAeropuerto"));
}

} // namespace
} // namespace tesmo
