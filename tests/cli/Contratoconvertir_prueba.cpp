#include "tests/cli/Proceso.h"
#include "tests/intercambio/formatos/Generadorclima.h"

namespace tesmo::prueba {
namespace {

class OrdenConvertir : public LineaDeOrdenes {};

TEST_F(OrdenConvertir, DeEpwACadaFormato) {
  const std::string epw = raiz_.Escribir("x.epw", Unir(LineasEpw()));
  for (const auto &[fichero, comienzo] : std::vector<std::pair<std::string, std::string>>{
           {"y.met", "Escrito por Tesmo: "}, {"y.epw", "LOCATION,"}, {"y.CSV", "mes,día,hora,"}}) {
    const Ejecucion e = Orden({"convertir", epw, "-o", (raiz_ / fichero).string()});
    EXPECT_EQ(e.estado, 0) << e.error;
    EXPECT_TRUE(Contenido(raiz_ / fichero).starts_with(comienzo)) << fichero;
    EXPECT_NE(e.salida.find("Reloj: "), std::string::npos);
  }
  const Ejecucion serie = Orden({"serie", "--fichero", (raiz_ / "y.met").string(), "TS"});
  EXPECT_EQ(serie.Lineas().size(), 8761U);
  EXPECT_EQ(serie.error, "");
}

TEST_F(OrdenConvertir, UnaLocalidadDeLaBaseEnSuHoraOficial) {
  raiz_.Escribir("base/Meteo/jaen.met", Unir(LineasMetQuince()));
  const Ejecucion e = ConBase({"convertir", "--localidad", "Jaén", "-o", (raiz_ / "j.epw").string()});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_TRUE(Contenido(raiz_ / "j.epw").starts_with("LOCATION,Jaén,Jaén,-,Tesmo,-,"))
      << Contenido(raiz_ / "j.epw").substr(0, 80);
  EXPECT_EQ(ConBase({"convertir", "--localidad", "Nadie", "-o", "x.epw"}).estado, 3);
}

TEST_F(OrdenConvertir, UsoIncorrectoEstado2YEntradaOSalidaQueFaltan) {
  const std::string epw = raiz_.Escribir("x.epw", Unir(LineasEpw()));
  EXPECT_EQ(Orden({"convertir", epw, "-o", "y.txt"}).estado, 2);
  EXPECT_EQ(Orden({"convertir", "-o", "y.met"}).estado, 2);
  EXPECT_EQ(Orden({"convertir", epw, "--localidad", "L", "-o", "y.met"}).estado, 2);
  EXPECT_EQ(Orden({"convertir", "nohay.epw", "-o", "y.met"}).estado, 3);
  EXPECT_EQ(Orden({"convertir", epw, "-o", (raiz_ / "no/hay/y.met").string()}).estado, 4);
}

} // namespace
} // namespace tesmo::prueba
