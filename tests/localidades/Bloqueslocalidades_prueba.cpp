#include "localidades/Bloqueslocalidades.h"

#include <gtest/gtest.h>

#include <string>

namespace tesmo {
namespace {

/// Los bytes de @p linea en @p contenido.
std::string Bytes(const std::string &contenido, const LineaDeBloque &linea) {
  return contenido.substr(linea.inicio, linea.fin - linea.inicio);
}

TEST(BloquesDeLocalidades, CadaBloqueDiceDondeEstanSuCuentaYSusLineas) {
  const std::string contenido =
      "2\r\nA,a,P,,,a.met,1,2,3,4,0\r\nB, b,P,,,b.met,1,2,3,4,0\r\n\r\n1,x\nC,c,Q\n";
  const auto bloques = BloquesDeLocalidades(contenido);
  ASSERT_EQ(bloques.size(), 2U);
  ASSERT_EQ(bloques[0].lineas.size(), 2U);
  EXPECT_EQ(Bytes(contenido, bloques[0].lineas[1]), "B, b,P,,,b.met,1,2,3,4,0\r\n");
  EXPECT_EQ(bloques[0].lineas[1].campos[1], "b");
  EXPECT_EQ(contenido.substr(bloques[0].fin, 2), "\r\n");
  EXPECT_EQ(contenido.substr(bloques[1].inicioCuenta, bloques[1].finCuenta - bloques[1].inicioCuenta), "1");
  EXPECT_EQ(bloques[1].fin, contenido.size());
}

TEST(BloquesDeLocalidades, LaMarcaDeOrdenYLosBlancosDeLaCuentaNoSeCuentan) {
  const std::string contenido = "\xEF\xBB\xBF  12 localidades\nA,a,P\n";
  const auto bloques = BloquesDeLocalidades(contenido);
  ASSERT_EQ(bloques.size(), 1U);
  EXPECT_EQ(bloques[0].inicioCuenta, 5U);
  EXPECT_EQ(bloques[0].finCuenta, 7U);
  EXPECT_EQ(bloques[0].cuenta, 12);
  EXPECT_EQ(bloques[0].lineas.size(), 1U);
}

TEST(BloquesDeLocalidades, LoQueNoEsUnaCuentaNoEmpiezaUnBloque) {
  EXPECT_TRUE(BloquesDeLocalidades("").empty());
  EXPECT_TRUE(BloquesDeLocalidades("hola\n+3\n-2\n0\n\n").empty());
}

TEST(BloquesDeLocalidades, LosCamposSonLosQueDaElLector) {
  const std::string contenido =
      "2\nJa\xE9n,Jaen,Ja\xE9n,c,d,j.met,37,-3,15,1,0\n" + std::string(60, 'x') + ",y\n";
  const auto bloques = BloquesDeLocalidades(contenido);
  const auto registros = LeerLocalidades(contenido, "f", {});
  ASSERT_EQ(bloques.size(), 1U);
  ASSERT_EQ(registros.size(), 2U);
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_EQ(bloques[0].lineas[i].campos[0], registros[i]->localidad);
    EXPECT_EQ(bloques[0].lineas[i].campos[1], registros[i]->localidadCorta);
  }
}

TEST(BloquesDeLocalidades, UnaLineaDeMasDe299BytesSonDosTambienAqui) {
  const std::string contenido = "2\n" + std::string(310, 'x') + "\nB,b,P\n";
  const auto bloques = BloquesDeLocalidades(contenido);
  ASSERT_EQ(bloques.size(), 1U);
  EXPECT_EQ(Bytes(contenido, bloques[0].lineas[0]).size(), 299U);
  EXPECT_EQ(Bytes(contenido, bloques[0].lineas[1]), std::string(11, 'x') + "\n");
}

} // namespace
} // namespace tesmo
