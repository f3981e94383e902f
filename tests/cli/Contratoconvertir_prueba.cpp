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

TEST_F(OrdenConvertir, UnTextoConSuMapaYElHusoQueSeDiga) {
  const std::string csv = raiz_.Escribir("x.csv", Unir(LineasDelimitado()));
  const std::string mapa = raiz_.Escribir("x.mapa", MapaDePrueba());
  const std::string salida = (raiz_ / "y.epw").string();
  EXPECT_EQ(Orden({"convertir", csv, "-o", salida}).estado, 3);
  const Ejecucion e = Orden({"convertir", csv, "--mapa", mapa, "--huso", "0", "-o", salida});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_TRUE(Contenido(salida).starts_with("LOCATION,Almena,-,-,Tesmo,-,37.18,-3.78,0,567\n"))
      << Contenido(salida).substr(0, 80);
  const Ejecucion sin = Orden({"convertir", csv, "--mapa", (raiz_ / "nohay").string(), "-o", salida});
  EXPECT_EQ(sin.estado, 3);
  const std::string malo = raiz_.Escribir("malo.mapa", "sabor = 3\n");
  const Ejecucion mal = Orden({"convertir", csv, "--mapa", malo, "-o", salida});
  EXPECT_EQ(mal.estado, 3);
  EXPECT_NE(mal.error.find("línea 1: no se conoce la clave «sabor»"), std::string::npos) << mal.error;
  EXPECT_EQ(Orden({"convertir", csv, "--mapa", mapa, "--huso", "15", "-o", salida}).estado, 2);
  EXPECT_EQ(Orden({"auditar", csv, "--mapa", mapa}).estado, 0);
}

TEST_F(OrdenConvertir, LaAltitudQueSeDaMandaSobreLaDelFichero) {
  const std::string epw = raiz_.Escribir("x.epw", Unir(LineasEpw()));
  const std::string salida = (raiz_ / "y.epw").string();
  ASSERT_EQ(Orden({"convertir", epw, "--altitud", "-120.5", "-o", salida}).estado, 0);
  EXPECT_NE(Contenido(salida).find(",-120.5\n"), std::string::npos) << Contenido(salida).substr(0, 80);
  EXPECT_EQ(Orden({"convertir", epw, "--altitud", "9001", "-o", salida}).estado, 2);
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
