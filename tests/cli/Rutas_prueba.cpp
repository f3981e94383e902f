#include "tests/cli/Proceso.h"
#include "tests/comun/Lugares.h"

namespace tesmo::prueba {
namespace {

/// La configuración cambia de directorio de trabajo: nada de lo tecleado puede buscarse desde allí.
class RutasTecleadas : public LineaDeOrdenes {};

TEST_F(RutasTecleadas, RelativasAlDirectorioDondeSeTecleo) {
  raiz_.Escribir("trabajo/datos/mio.met", Met());
  raiz_.Escribir("trabajo/pared.txt", "2\n-180.0, 80.0\n180.0, 80.0\n");
  const Ejecucion e =
      Orden({"exportar", "--fichero", "datos/mio.met", "--horizonte", "pared.txt", "--base", "../base",
             "--hasta", "1/1/1", "--registro", "registro.txt", "-o", "hecho.met", "TS"});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_TRUE(Contenido(raiz_ / "trabajo/hecho.met").starts_with("mio\n"));
  EXPECT_TRUE(std::filesystem::exists(raiz_ / "trabajo/registro.txt"));
  EXPECT_FALSE(std::filesystem::exists(raiz_ / "base/hecho.met"));
}

TEST_F(RutasTecleadas, BaseRelativa) {
  EXPECT_EQ(Orden({"localidades", "--base", "../base"}).Lineas().size(), 3U);
}

TEST_F(RutasTecleadas, SintetizarEnDirectorioRelativo) {
  const Ejecucion e =
      Orden({"sintetizar", "--normales", tesmo::prueba::Raiz() + "/datos/normales.csv", "-o", "hecho"});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_TRUE(std::filesystem::exists(raiz_ / "trabajo/hecho/Meteo/LocalidadesCC"));
}

TEST_F(RutasTecleadas, NombresConAcentosYBlancos) {
  raiz_.Escribir("trabajo/año típico.met", Met());
  const Ejecucion e =
      ConBase({"exportar", "--fichero", "año típico.met", "--hasta", "1/1/1", "-o", "mí salida.met"});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_TRUE(Contenido(raiz_ / "trabajo/mí salida.met").starts_with("año típico\n"));
}

} // namespace
} // namespace tesmo::prueba
