#include "cli/Argumentos.h"

#include "cli/Contexto.h"

#include <gtest/gtest.h>

namespace tesmo::cli {
namespace {

using Textos = std::vector<std::string>;

Textos DeVuelta(const Textos &argumentos) {
  Textos textos;
  for (const std::string &texto : Proteger(argumentos)) textos.push_back(Desproteger(texto));
  return textos;
}

TEST(ArgumentosDeOrden, NumerosNegativosReconocidos) {
  for (const char *texto : {"-36.84", "-.5", "-1e-05", "-5", "-0", "-36,84", "-1E+3", "-5."})
    EXPECT_TRUE(EsNumeroNegativo(texto)) << texto;
  for (const char *texto :
       {"-", "--5", "-o", "-h", "-e5", "-.", "5", "", "-nan", "-inf", "-5x", "-+5", "-1-2"})
    EXPECT_FALSE(EsNumeroNegativo(texto)) << texto;
}

TEST(ArgumentosDeOrden, LoProtegidoNoPareceUnaOpcionYVuelveIgual) {
  const Textos argumentos{"aire", "pont_w", "-36.84", "-.5", "-1e-05", "--json", "-o", "x", ""};
  const Textos protegidos = Proteger(argumentos);
  for (std::size_t i = 2; i < 5; ++i) EXPECT_NE(protegidos[i].front(), '-') << argumentos[i];
  EXPECT_EQ(protegidos[5], "--json");
  EXPECT_FALSE(protegidos[8].empty());
  EXPECT_EQ(DeVuelta(argumentos), argumentos);
}

TEST(ArgumentosDeOrden, OpcionLargaConIgualPartidaEnDos) {
  EXPECT_EQ(DeVuelta({"--altitud=-5", "--inclinacion=", "a=b"}),
            (Textos{"--altitud", "-5", "--inclinacion", "", "a=b"}));
}

TEST(ArgumentosDeOrden, TrasDosGuionesTodoSonValores) {
  const Textos protegidos = Proteger({"serie", "--", "--json"});
  ASSERT_EQ(protegidos.size(), 2U);
  EXPECT_NE(protegidos[1].front(), '-');
  EXPECT_EQ(Desproteger(protegidos[1]), "--json");
}

/// El texto del fallo que lanza @p accion, que ha de ser @p estado; vacío si no lanza.
template <class Accion>
std::string FalloDe(Accion accion, Estado estado = Estado::UsoIncorrecto) {
  try {
    accion();
  } catch (const Fallo &fallo) {
    EXPECT_EQ(fallo.DameEstado(), estado);
    return fallo.what();
  }
  return {};
}

TEST(ArgumentosDeOrden, NumerosConPuntoOComa) {
  EXPECT_EQ(LeerNumero("-36.84", "A"), -36.84);
  EXPECT_EQ(LeerNumero("-36,84", "A"), -36.84);
  EXPECT_EQ(LeerNumero("-.5", "A"), -0.5);
  EXPECT_EQ(LeerNumero("-1e-05", "A"), -1e-05);
  EXPECT_EQ(LeerNumero("+7", "A"), 7.0);
}

TEST(ArgumentosDeOrden, LoQueNoEsNumeroFinitoFallaNombrandolo) {
  for (const char *texto : {"", "abc", "nan", "inf", "-inf", "1e999", "1.2.3", "0x10", "5 6"})
    EXPECT_EQ(FalloDe([&] { static_cast<void>(LeerNumero(texto, "A")); }),
              std::string("A: «") + texto + "» no es un número");
  EXPECT_EQ(FalloDe([] { static_cast<void>(LeerNumero("91", "LAT", -90.0, 90.0)); }),
            "LAT: «91» no está entre -90 y 90");
}

TEST(ArgumentosDeOrden, EnterosExactos) {
  EXPECT_EQ(LeerEntero("12", "MES", 1, 12), 12);
  for (const char *texto : {"0", "13", "1.0", " 1", "", "1x", "99999999999"})
    EXPECT_NE(FalloDe([&] { static_cast<void>(LeerEntero(texto, "MES", 1, 12)); }), "") << texto;
}

TEST(ArgumentosDeOrden, FechasDeUnAnioDe365Dias) {
  EXPECT_EQ(LeerFecha("1/1/1", "--desde"), (FechaHora{1, 1, 1}));
  EXPECT_EQ(LeerFecha("12/31/24", "--hasta"), (FechaHora{12, 31, 24}));
  EXPECT_EQ(LeerFecha("02/28/05", "--desde"), (FechaHora{2, 28, 5}));
  for (const char *texto : {"2/30/1", "2/29/1", "13/1/1", "0/1/1", "1/0/1", "1/32/1", "4/31/1", "1/1/25",
                            "1/1/0", "1/1", "1/1/1/1", "", "a/b/c", "-1/1/1", "1//1", "1/1/1 "})
    EXPECT_NE(FalloDe([&] { static_cast<void>(LeerFecha(texto, "--desde")); }), "") << texto;
}

TEST(ArgumentosDeOrden, HorasDelDia) {
  EXPECT_EQ(LeerHoras("1-24", "--horas"), std::pair(1, 24));
  EXPECT_EQ(LeerHoras("9-9", "--horas"), std::pair(9, 9));
  for (const char *texto : {"0-5", "5-25", "20-6", "5", "", "1-2-3", "-"})
    EXPECT_NE(FalloDe([&] { static_cast<void>(LeerHoras(texto, "--horas")); }), "") << texto;
}

TEST(ArgumentosDeOrden, UnaRutaVaciaFallaSegunSeLeaOSeEscriba) {
  EXPECT_EQ(FalloDe([] { static_cast<void>(RutaDeEntrada("", "--mapa")); }, Estado::FaltaEntrada),
            "--mapa: la ruta está vacía");
  EXPECT_EQ(FalloDe([] { static_cast<void>(RutaDeSalida("", "-o")); }, Estado::FaltaSalida),
            "-o: la ruta está vacía");
  EXPECT_EQ(RutaDeSalida(std::nullopt, "-o"), "");
  EXPECT_EQ(RutaDeEntrada("a.met", "--fichero"), RutaAbsoluta("a.met"));
  EXPECT_NE(RutaDeSalida("a.met", "-o"), "a.met");
}

} // namespace
} // namespace tesmo::cli
