#include "tests/cli/Proceso.h"
#include "tests/comun/Lugares.h"

namespace tesmo::prueba {
namespace {

class OrdenSintetizar : public LineaDeOrdenes {};

const std::string NORMALES = tesmo::prueba::Raiz() + "/datos/normales.csv";

TEST_F(OrdenSintetizar, LosDatosQueHaceSonLosQueLeenLasDemasOrdenes) {
  const std::string destino = (raiz_ / "hecho").string();
  const Ejecucion e = Orden({"sintetizar", "--normales", NORMALES, "-o", destino});
  ASSERT_EQ(e.estado, 0) << e.error;
  raiz_.Escribir("hecho/config.ini", "Directorios\nMET = Meteo/\n");
  const Ejecucion lista = Orden({"localidades", "--base", destino});
  EXPECT_EQ(lista.Lineas().size(), 19U);
  EXPECT_EQ(lista.error, "");
  const Ejecucion serie = Orden({"serie", "--localidad", "Almería", "--base", destino, "TS", "G"});
  EXPECT_EQ(serie.estado, 0);
  EXPECT_EQ(serie.error, "");
  EXPECT_EQ(serie.Lineas().size(), 8761U);
  EXPECT_TRUE(std::filesystem::is_regular_file(raiz_ / "hecho/Meteo/GDR.TXT"));
}

TEST_F(OrdenSintetizar, NormalesQueFaltanONoSeEntiendenEstado3) {
  const std::string basura = raiz_.Escribir("basura.csv", "esto,no,vale\n1,2,3\n");
  for (const std::string &normales : {(raiz_ / "nohay.csv").string(), base_, basura, std::string()}) {
    const Ejecucion e = Orden({"sintetizar", "--normales", normales, "-o", (raiz_ / "x").string()});
    EXPECT_EQ(e.estado, 3) << normales << ": " << e.error;
    EXPECT_TRUE(e.error.starts_with("Error: ")) << e.error;
  }
}

TEST_F(OrdenSintetizar, DestinoQueNoSePuedeEscribirEstado4) {
  const std::string fichero = raiz_.Escribir("fichero", "x");
  const Ejecucion e = Orden({"sintetizar", "--normales", NORMALES, "-o", fichero});
  EXPECT_EQ(e.estado, 4) << e.error;
  EXPECT_EQ(Orden({"sintetizar", "--normales", NORMALES, "-o", ""}).estado, 4);
}

} // namespace
} // namespace tesmo::prueba
