#include "intercambio/formatos/Filas.h"
#include "intercambio/formatos/Lineas.h"
#include "intercambio/formatos/Numeros.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tesmo {
namespace {

std::vector<std::string> Partidas(std::string_view texto) {
  std::vector<std::string> partidas;
  Lineas lineas(texto);
  for (std::string_view linea; lineas.Siguiente(linea);) partidas.emplace_back(linea);
  EXPECT_EQ(lineas.Numero(), static_cast<int>(partidas.size()));
  return partidas;
}

using Textos = std::vector<std::string>;

TEST(Lineas, AcabanEnLfCrlfOCr) {
  EXPECT_EQ(Partidas("a\nb\n"), (Textos{"a", "b"}));
  EXPECT_EQ(Partidas("a\r\nb\r\n"), (Textos{"a", "b"}));
  EXPECT_EQ(Partidas("a\rb\r"), (Textos{"a", "b"}));
  EXPECT_EQ(Partidas("a\rb\r\nc\nd"), (Textos{"a", "b", "c", "d"}));
}

TEST(Lineas, ElCrlfEscritoDosVecesEsUnSoloFin) {
  EXPECT_EQ(Partidas("a\r\r\nb\r\r\n"), (Textos{"a", "b"}));
  EXPECT_EQ(Partidas("\r\r\na"), (Textos{"", "a"}));
  EXPECT_EQ(Partidas("a\r\rb"), (Textos{"a", "", "b"})); // con CR solo, la de en medio está vacía
}

TEST(Lineas, LasVaciasCuentanYLaMarcaDeOrdenDeBytesNo) {
  EXPECT_EQ(Partidas("\xEF\xBB\xBF"
                     "a\n\nb"),
            (Textos{"a", "", "b"}));
  EXPECT_EQ(Partidas(""), Textos{});
  EXPECT_EQ(Partidas("\n"), Textos{""});
  EXPECT_EQ(Partidas("\n\r"), (Textos{"", ""}));
}

TEST(Lineas, UnRetornoSueltoEnCadaLineaNoLasHaceCuadraticas) {
  // Buscar el LF final desde cada una de estas líneas serían diez mil millones de bytes.
  std::string texto;
  for (int i = 0; i < 200'000; ++i) texto += "x\r";
  texto += "\n";
  EXPECT_EQ(Partidas(texto).size(), 200'000U);
}

TEST(Lineas, BlancosNulosYFinDeTextoNoSonNada) {
  EXPECT_TRUE(EsLineaVacia(std::string_view(" \t\0\x1A", 4)));
  EXPECT_TRUE(EsLineaVacia(""));
  EXPECT_FALSE(EsLineaVacia(" . "));
}

TEST(Numeros, SeLeenEnterosDecimalesYExponentes) {
  EXPECT_EQ(LeerNumero("12"), 12.0);
  EXPECT_EQ(LeerNumero(" -0.5 "), -0.5);
  EXPECT_EQ(LeerNumero("+7."), 7.0);
  EXPECT_EQ(LeerNumero(".25"), 0.25);
  EXPECT_EQ(LeerNumero("1.5e3"), 1500.0);
  EXPECT_EQ(LeerNumero("123456789012345678901234567890"), 1.2345678901234568e29);
  EXPECT_EQ(LeerNumero("0.1000000000000000055511151231257827"), 0.1);
}

TEST(Numeros, LoQueNoEsExactamenteUnNumeroFinitoNoSeLee) {
  for (const std::string_view texto :
       {"", " ", "-", ".", "1,5", "1 2", "nan", "inf", "1e999", "0x10", "12a", "--1"})
    EXPECT_FALSE(LeerNumero(texto)) << texto;
  EXPECT_FALSE(LeerNumero(std::string_view("1\0", 2)));
}

TEST(Numeros, UnEnteroAdmiteDecimalesNulos) {
  EXPECT_EQ(LeerEntero("12"), 12);
  EXPECT_EQ(LeerEntero("12.0"), 12);
  EXPECT_FALSE(LeerEntero("12.5"));
  EXPECT_FALSE(LeerEntero("1234567890"));
}

Textos Campos(std::string_view linea, char separador, std::size_t maximo = 99) {
  CamposLinea campos;
  PartirLinea(linea, separador, maximo, campos);
  return {campos.begin(), campos.end()};
}

TEST(Campos, SeQuitanBlancosYComillas) {
  EXPECT_EQ(Campos("a, \"b, c\" ,,d", ','), (Textos{"a", "b, c", "", "d"}));
  EXPECT_EQ(Campos("a,b,", ','), (Textos{"a", "b", ""}));
  EXPECT_EQ(Campos("", ','), Textos{""});
  EXPECT_EQ(Campos("a,\"sin cerrar, b", ','), (Textos{"a", "\"sin cerrar, b"}));
  EXPECT_EQ(Campos("1;2,5;3", ';'), (Textos{"1", "2,5", "3"}));
  EXPECT_EQ(Campos("1\t\t 3 \t", '\t'), (Textos{"1", "", "3", ""}));
  EXPECT_EQ(Campos("a,b,c", ',', 2), (Textos{"a", "b"}));
}

TEST(Campos, LosBlancosSeguidosSonUnSeparador) {
  EXPECT_EQ(Campos("  1 \t 2   3 ", SEPARADOR_BLANCOS), (Textos{"1", "2", "3"}));
  EXPECT_EQ(Campos("1 2 3", SEPARADOR_BLANCOS, 2), (Textos{"1", "2"}));
  EXPECT_EQ(Campos("", SEPARADOR_BLANCOS), Textos{});
}

} // namespace
} // namespace tesmo
