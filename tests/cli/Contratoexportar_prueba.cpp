#include "tests/cli/Proceso.h"

namespace tesmo::prueba {
namespace {

using Argumentos = std::vector<std::string>;
class OrdenExportar : public LineaDeOrdenes {
protected:
  [[nodiscard]] Ejecucion Exportar(Argumentos resto) const {
    resto.insert(resto.begin(), {"exportar", "--localidad", "Rota", "--hasta", "1/1/2"});
    return ConBase(resto);
  }
  std::string destino_ = (raiz_ / "salida.met").string();
};

TEST_F(OrdenExportar, TabuladorPuntoYCabeceraSiNoSeDiceOtraCosa) {
  const Ejecucion e = Exportar({"-o", destino_, "TS", "HR"});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.salida, "");
  EXPECT_EQ(Contenido(destino_), "Rota\n36.500000 -6.250000 21.000000\n"
                                 "Orientación: 0.000000  Inclinación: 90.000000 Albedo: 0.200000\n"
                                 "mes\tdia\thora\tts\thr\t\n"
                                 "1\t1\t1\t0.0\t60.0\t\n"
                                 "1\t1\t2\t0.3\t60.0\t\n");
}

TEST_F(OrdenExportar, SeparadoresYDecimales) {
  const std::vector<std::pair<Argumentos, std::string>> casos{
      {{"--separador", "espacio"}, "1 1 2 0.3 "},
      {{"--separador", "coma", "--decimal", "coma"}, "1,1,2,0,3,"}, // ambiguo, pero se escribe como se pide
      {{"--separador", "puntoycoma", "--decimal", "coma"}, "1;1;2;0,3;"},
      {{"--separador", "tab", "--decimal", "punto"}, "1\t1\t2\t0.3\t"}};
  for (const auto &[opciones, linea] : casos) {
    Argumentos argumentos = opciones;
    argumentos.insert(argumentos.end(), {"-o", destino_, "TS"});
    ASSERT_EQ(Exportar(argumentos).estado, 0);
    EXPECT_TRUE(Contenido(destino_).ends_with("\n" + linea + "\n")) << Contenido(destino_);
    EXPECT_NE(Contenido(destino_).find("36.500000 -6.250000 21.000000"), std::string::npos);
  }
}

TEST_F(OrdenExportar, SinCabeceraEmpiezaPorLaSuperficie) {
  ASSERT_EQ(Exportar({"--sin-cabecera", "-o", destino_, "TS"}).estado, 0);
  EXPECT_TRUE(Contenido(destino_).starts_with("Orientación: "));
}

TEST_F(OrdenExportar, ElNombreDelFicheroHaceDeLocalidad) {
  const std::string met = raiz_.Escribir("mi sitio.met", Met());
  ASSERT_EQ(ConBase({"exportar", "--fichero", met, "--hasta", "1/1/1", "-o", destino_, "TS"}).estado, 0);
  EXPECT_TRUE(Contenido(destino_).starts_with("mi sitio\n"));
}

TEST_F(OrdenExportar, LaHumedadEnGramosSeSaltaConAviso) {
  const Ejecucion e = Exportar({"-o", destino_, "HA", "HAkg", "TS"});
  EXPECT_EQ(e.estado, 0);
  EXPECT_NE(e.error.find("Aviso: «Humedad absoluta (g/kg)» no se exporta"), std::string::npos) << e.error;
  EXPECT_NE(Contenido(destino_).find("mes\tdia\thora\tw\tts\t\n"), std::string::npos);
}

TEST_F(OrdenExportar, CadaVariableUnaVez) {
  ASSERT_EQ(Exportar({"-o", destino_, "TS", "HR", "Temperatura seca (ºC)"}).estado, 0);
  EXPECT_NE(Contenido(destino_).find("mes\tdia\thora\tts\thr\t\n"), std::string::npos);
}

TEST_F(OrdenExportar, SinVariablesSoloLasFechas) {
  ASSERT_EQ(Exportar({"-o", destino_}).estado, 0);
  EXPECT_TRUE(Contenido(destino_).ends_with("mes\tdia\thora\t\n1\t1\t1\t\n1\t1\t2\t\n"));
}

TEST_F(OrdenExportar, SalidaQueNoSePuedeEscribirMensaje60YEstado4) {
  const Ejecucion directorio = Exportar({"-o", base_, "TS"});
  EXPECT_EQ(directorio.estado, 4);
  EXPECT_NE(
      directorio.error.find("Información: El fichero de resultado " + base_ + " no se ha podido abrir.\n"),
      std::string::npos)
      << directorio.error;
  EXPECT_EQ(Exportar({"-o", (raiz_ / "nohay/x.met").string(), "TS"}).estado, 4);
  EXPECT_EQ(Exportar({"-o", "", "TS"}).estado, 4);
}

TEST_F(OrdenExportar, UsoIncorrectoEstado2YNadaEscrito) {
  for (const Argumentos &argumentos :
       std::vector<Argumentos>{{"-o", destino_, "XX"},
                               {"-o", destino_, "--separador", "barra", "TS"},
                               {"-o", destino_, "--decimal", "apóstrofo", "TS"},
                               {"TS"}}) {
    EXPECT_EQ(Exportar(argumentos).estado, 2);
    EXPECT_FALSE(std::filesystem::exists(destino_));
  }
}

TEST_F(OrdenExportar, EntradaQueFaltaEstado3YNadaEscrito) {
  EXPECT_EQ(ConBase({"exportar", "--localidad", "Perdida", "-o", destino_, "TS"}).estado, 3);
  EXPECT_FALSE(std::filesystem::exists(destino_));
}

} // namespace
} // namespace tesmo::prueba
