#include "tests/cli/Jsonleido.h"
#include "tests/cli/Proceso.h"

namespace tesmo::prueba {
namespace {

class OrdenLocalidades : public LineaDeOrdenes {};

TEST_F(OrdenLocalidades, SieteCamposSinCabeceraPorOrdenDeFichero) {
  const Ejecucion e = ConBase({"localidades"});
  EXPECT_EQ(e.estado, 0);
  EXPECT_EQ(e.error, "");
  EXPECT_EQ(e.salida, "Jaén\tJaén\tJaen\tjaen.met\t37.5\t-3.75\t580\n"
                      "Jaén\tPerdida\tPerdida\tnohay.met\t37\t-3\t0\n"
                      "Cádiz\tRota\tRota\trota.met\t36.5\t-6.25\t21\n");
}

TEST_F(OrdenLocalidades, SoloLasDeUnaProvincia) {
  EXPECT_EQ(ConBase({"localidades", "--provincia", "Cádiz"}).salida,
            "Cádiz\tRota\tRota\trota.met\t36.5\t-6.25\t21\n");
}

TEST_F(OrdenLocalidades, ProvinciaDesconocidaEstado3) {
  const Ejecucion e = ConBase({"localidades", "--provincia", "Cadiz"});
  EXPECT_EQ(e.estado, 3);
  EXPECT_EQ(e.salida, "");
  EXPECT_EQ(e.error, "Error: no se conoce la provincia: Cadiz\n");
}

TEST_F(OrdenLocalidades, Json) {
  const JsonLeido json(ConBase({"localidades", "--json"}).salida);
  ASSERT_EQ(json.Tamano(), 3U);
  EXPECT_EQ(json[2]["localidad"].Texto(), "Rota");
  EXPECT_EQ(json[0]["longitud"].Numero(), -3.75);
}

TEST_F(OrdenLocalidades, FicheroAusenteMensajeYEstado3) {
  std::filesystem::remove(base_ + "/Meteo/LocalidadesCC");
  const Ejecucion e = ConBase({"localidades"});
  EXPECT_EQ(e.estado, 3);
  EXPECT_EQ(e.error, "Información: No se puede abrir el fichero: Meteorológico.\n");
}

TEST_F(OrdenLocalidades, DirectorioEnLugarDelFicheroEstado3) {
  std::filesystem::remove(base_ + "/Meteo/LocalidadesCC");
  std::filesystem::create_directory(base_ + "/Meteo/LocalidadesCC");
  EXPECT_EQ(ConBase({"localidades"}).estado, 3);
}

TEST_F(OrdenLocalidades, BloqueCortoNoRepiteLocalidades) {
  raiz_.Escribir("base/Meteo/LocalidadesCC", "5\nRota,R,Cádiz,c,d,rota.met,36,-6,-15,21,0\n");
  const Ejecucion e = ConBase({"localidades"});
  EXPECT_EQ(e.Lineas().size(), 1U);
  EXPECT_EQ(e.error, "Aviso: LocalidadesCC: línea 2: al bloque le faltan 4 líneas; se repite la última\n");
}

TEST_F(OrdenLocalidades, LineasDefectuosasAvisadasPorFicheroLineaYCampo) {
  raiz_.Escribir("base/Meteo/LocalidadesCC",
                 "2\nRota,R,Cádiz,c,d,rota.met,sur,-6,-15,21,0\nTarifa,T,Cádiz\n");
  const Ejecucion e = ConBase({"localidades"});
  EXPECT_EQ(e.estado, 0);
  EXPECT_EQ(e.Lineas()[0], "Cádiz\tRota\tR\trota.met\t0\t-6\t21");
  EXPECT_EQ(e.Lineas()[1], "Cádiz\tTarifa\tT\t\t0\t0\t0");
  EXPECT_TRUE(
      e.error.starts_with("Aviso: LocalidadesCC: línea 2: campo 7: \"sur\" no es un número; se toma 0\n"
                          "Aviso: LocalidadesCC: línea 3: campo 4: falta; queda vacío\n"))
      << e.error;
}

TEST_F(OrdenLocalidades, BaseSinConfiguracionBuscaEnLaPropiaBase) {
  raiz_.Escribir("pelada/LocalidadesCC", "1\nRota,R,Cádiz,c,d,rota.met,36,-6,-15,21,0\n");
  const Ejecucion e = Orden({"localidades", "--base", (raiz_ / "pelada").string()});
  EXPECT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.Lineas().size(), 1U);
}

TEST_F(OrdenLocalidades, BaseQueNoEsUnDirectorioEstado3) {
  EXPECT_EQ(Orden({"localidades", "--base", (raiz_ / "nohay").string()}).estado, 3);
  EXPECT_EQ(Orden({"localidades", "--base", base_ + "/config.ini"}).estado, 3);
}

} // namespace
} // namespace tesmo::prueba
