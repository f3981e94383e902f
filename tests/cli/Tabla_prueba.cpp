#include "cli/Tabla.h"

#include "tests/cli/Jsonleido.h"

#include <gtest/gtest.h>

#include <limits>

namespace tesmo::cli {
namespace {

const double NAN_DOBLE = std::numeric_limits<double>::quiet_NaN();
const double INFINITO = std::numeric_limits<double>::infinity();

Tabla Ejemplo(Tabla::Forma forma) {
  Tabla tabla(forma, {"nombre", "mes", "valor"});
  tabla.Anadir({std::string("uno"), 1, static_cast<double>(36.84F)});
  return tabla;
}

TEST(TablaDeResultados, TextoConNueveCifrasYTabuladores) {
  EXPECT_EQ(Ejemplo(Tabla::Forma::ConCabecera).ATexto(), "nombre\tmes\tvalor\nuno\t1\t36.8400002\n");
  EXPECT_EQ(Ejemplo(Tabla::Forma::SinCabecera).ATexto(), "uno\t1\t36.8400002\n");
  EXPECT_EQ(Ejemplo(Tabla::Forma::Registro).ATexto(), "uno\t1\t36.8400002\n");
  EXPECT_EQ(Ejemplo(Tabla::Forma::Propiedades).ATexto(), "nombre\tuno\nmes\t1\nvalor\t36.8400002\n");
}

TEST(TablaDeResultados, NoFinitosEnTextoYNuloEnJson) {
  Tabla tabla(Tabla::Forma::Registro, {"a", "b", "c"});
  tabla.Anadir({NAN_DOBLE, INFINITO, -INFINITO});
  EXPECT_EQ(tabla.ATexto(), "nan\tinf\t-inf\n");
  EXPECT_EQ(tabla.AJson(), "{\"a\":null,\"b\":null,\"c\":null}\n");
}

TEST(TablaDeResultados, JsonConLasMismasCifrasQueElTexto) {
  EXPECT_EQ(Ejemplo(Tabla::Forma::Registro).AJson(), "{\"nombre\":\"uno\",\"mes\":1,\"valor\":36.8400002}\n");
  const prueba::JsonLeido json(Ejemplo(Tabla::Forma::ConCabecera).AJson());
  ASSERT_TRUE(json.EsLista());
  EXPECT_EQ(json[0]["valor"].Numero(), 36.8400002);
  EXPECT_TRUE(prueba::JsonLeido(Ejemplo(Tabla::Forma::Propiedades).AJson()).EsObjeto());
}

TEST(TablaDeResultados, SinFilas) {
  const Tabla tabla(Tabla::Forma::ConCabecera, {"a", "b"});
  EXPECT_EQ(tabla.ATexto(), "a\tb\n");
  EXPECT_EQ(tabla.AJson(), "[]\n");
}

TEST(TablaDeResultados, TextoQueNoEsUtf8NoRompeElJson) {
  Tabla tabla(Tabla::Forma::Registro, {"a"});
  tabla.Anadir({std::string("Ja\xE9n \"x\"\n")});
  EXPECT_EQ(prueba::JsonLeido(tabla.AJson())["a"].Texto(), "Ja\xEF\xBF\xBDn \"x\"\n");
}

} // namespace
} // namespace tesmo::cli
