#include "tests/cli/Jsonleido.h"
#include "tests/cli/Proceso.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace tesmo::prueba {
namespace {

/// Registro con esa cabecera y unas cifras verosímiles, hechas para la prueba.
std::string Registro(const std::string &cabecera) {
  return cabecera + "\n"
                    "12.2 14.1 17.7 19.5 24 30 33.9 33.4 28.7 22.1 16.2 12.7\n"
                    "5.1 6 8.3 9.7 13.1 17.9 21.3 21.3 18.1 13.7 8.9 6.3\n"
                    "2.9 3 3.4 3.7 4 3.6 2.7 2.7 3.5 3.7 3 2.8\n"
                    "2.5 2.4 2.6 2.6 2.9 3 2.6 2.4 2.7 2.8 2.6 2.5\n"
                    "9000 12000 16500 19800 23700 27300 27900 24600 19200 13800 9600 7800\n"
                    "74 70 63 60 53 43 37 39 49 61 72 76\n";
}

class OrdenDiasExtremos : public LineaDeOrdenes {
protected:
  void SetUp() override {
    LineaDeOrdenes::SetUp();
    raiz_.Escribir("base/Meteo/GDR.TXT", Registro("Jaen INTERIOR 37.5 -3.75 15 10 ALT=580") +
                                             Registro("Rota COSTA 36.5 -6.25 15 10"));
  }
  [[nodiscard]] Ejecucion Jaen(std::vector<std::string> opciones = {}) const {
    opciones.insert(opciones.begin(), {"dias-extremos", "--localidad", "Jaén"});
    return ConBase(opciones);
  }
  [[nodiscard]] static std::map<std::string, std::vector<double>> Traza(const Ejecucion &e) {
    std::map<std::string, std::vector<double>> traza;
    for (const std::string &linea : e.Lineas()) {
      const std::vector<std::string> campos = Campos(linea);
      for (std::size_t i = 1; i < campos.size(); ++i) traza[campos[0]].push_back(std::stod(campos[i]));
    }
    return traza;
  }
};

TEST_F(OrdenDiasExtremos, EncabezamientoYCuarentaYOchoFilas) {
  const Ejecucion e = Jaen();
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.error, "");
  const auto lineas = e.Lineas();
  ASSERT_EQ(lineas.size(), 49U);
  EXPECT_EQ(lineas[0], "estacion\thora\ttext\ttrocio\ttcielo\trdir\trdif\thabs\threl");
  for (std::size_t i = 0; i < 48; ++i) {
    const auto campos = Campos(lineas[i + 1]);
    ASSERT_EQ(campos.size(), 9U);
    EXPECT_EQ(campos[0], i < 24 ? "cal" : "ref");
    EXPECT_EQ(campos[1], std::to_string(i % 24));
  }
}

TEST_F(OrdenDiasExtremos, SinMasDatosVaDeEneroAJulioConLosPercentilesDeFabrica) {
  EXPECT_EQ(Jaen().salida, Jaen({"--per-cal", "99", "--per-ref", "1", "--mes-cal", "1", "--mes-ref", "7",
                                 "--temporada-cal", "1,2,12", "--temporada-ref", "6,7,8,9"})
                               .salida);
  EXPECT_NE(Jaen().salida, Jaen({"--per-cal", "97.5"}).salida);
  EXPECT_EQ(Jaen({"--per-cal", "97,5"}).salida, Jaen({"--per-cal", "97.5"}).salida);
}

TEST_F(OrdenDiasExtremos, CadaOpcionLlegaAlCalculo) {
  for (const std::vector<std::string> &opcion :
       std::vector<std::vector<std::string>>{{"--per-ref", "2.5"},
                                             {"--mes-cal", "12"},
                                             {"--mes-ref", "8"},
                                             {"--temporada-cal", "1"},
                                             {"--temporada-ref", "7"}})
    EXPECT_NE(Jaen().salida, Jaen(opcion).salida) << opcion[0];
}

TEST_F(OrdenDiasExtremos, ElFicheroYLaClaveSustituyenALaLocalidad) {
  const Ejecucion e = Orden({"dias-extremos", "--gdr", base_ + "/Meteo/GDR.TXT", "--clave", "Jaen"});
  EXPECT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.salida, Jaen().salida);
}

TEST_F(OrdenDiasExtremos, LaTrazaNombraCadaPasoPorSuOrden) {
  const Ejecucion e = Jaen({"--traza"});
  ASSERT_EQ(e.estado, 0) << e.error;
  const std::vector<std::string> nombres{
      "latitude", "tail",   "sunrise_cal", "sunrise_ref", "T1",    "T2",    "T1_mes", "T2_mes",
      "F1",       "F2",     "FJ",          "FL",          "K_cal", "K_ref", "k_cal",  "k_ref",
      "H0_cal",   "H0_ref", "Hdia_cal",    "Hdia_ref",    "alt",   "wcal",  "wref"};
  const auto lineas = e.Lineas();
  ASSERT_EQ(lineas.size(), nombres.size() + 6);
  for (std::size_t i = 0; i < nombres.size(); ++i) EXPECT_EQ(Campos(lineas[i])[0], nombres[i]);
  for (std::size_t i = nombres.size(); i < lineas.size(); ++i) EXPECT_EQ(Campos(lineas[i]).size(), 101U);
  auto traza = Traza(e);
  EXPECT_EQ(traza["latitude"][0], 37.5);
  EXPECT_EQ(traza["tail"][0], 10.0);
  EXPECT_EQ(traza["alt"][0], 580.0);
  EXPECT_EQ(traza["T1"], traza["T1_mes"]); // enero y julio no se llevan a otro mes
  EXPECT_EQ(traza["F1"], traza["FJ"]);
}

TEST_F(OrdenDiasExtremos, LaTablaSigueALaTraza) {
  auto traza = Traza(Jaen({"--traza", "--mes-cal", "2"}));
  EXPECT_NE(traza["T1"], traza["T1_mes"]);
  const auto lineas = Jaen({"--mes-cal", "2"}).Lineas();
  double minima = 100.0;
  double difusa = 0.0;
  for (std::size_t h = 1; h <= 24; ++h) {
    const auto campos = Campos(lineas[h]);
    minima = std::min(minima, std::stod(campos[2]));
    difusa += std::stod(campos[6]);
  }
  // La hora más fría está a menos de media hora de la salida del sol, donde la curva es plana.
  EXPECT_NEAR(minima, traza["T1_mes"][0], 0.1);
  // Un día de k tan baja es casi todo difuso; sus catorce partes suman el total con menos de un 5 % de error.
  EXPECT_LT(traza["k_cal"][0], 0.17);
  EXPECT_NEAR(difusa, 0.99 * traza["Hdia_cal"][0], 0.05 * traza["Hdia_cal"][0]);
}

TEST_F(OrdenDiasExtremos, EnJsonSonLosMismosNumeros) {
  const JsonLeido tabla(Jaen({"--json"}).salida);
  ASSERT_EQ(tabla.Tamano(), 48U);
  EXPECT_EQ(tabla[24]["estacion"].Texto(), "ref");
  EXPECT_EQ(tabla[24]["hora"].Numero(), 0);
  EXPECT_EQ(tabla[30]["text"].Numero(), std::stod(Campos(Jaen().Lineas()[31])[2]));
  const JsonLeido traza(Jaen({"--traza", "--json"}).salida);
  auto enTexto = Traza(Jaen({"--traza"}));
  EXPECT_EQ(traza["T2"].Numero(), enTexto["T2"][0]);
  EXPECT_EQ(traza.Tamano(), 29U);
  const auto esLista = [&](const auto &linea) { return traza[linea.first].EsLista(); };
  EXPECT_EQ(std::ranges::count_if(enTexto, esLista), 6); // las distribuciones
}

TEST_F(OrdenDiasExtremos, ConDirectorioEscribeLosDosFicherosYNadaMas) {
  const Ejecucion e = Jaen({"-o", "."}); // relativo al directorio de quien llama
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.salida, "");
  const std::string cal = Contenido(trabajo_ + "/extreCal.met");
  const std::string ref = Contenido(trabajo_ + "/extreRef.met");
  EXPECT_TRUE(
      cal.starts_with("Jaén Jaén\nmes\tdia\thora\ttext\ttrocio\ttcielo\trdir\trdif\thabs\threl\n1\t15\t0\t"));
  EXPECT_NE(ref.find("\n7\t15\t23\t"), std::string::npos);
  EXPECT_EQ(cal.find(','), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(trabajo_ + "/salida.txt"));
  EXPECT_FALSE(std::filesystem::exists(base_ + "/salida.txt"));
}

TEST_F(OrdenDiasExtremos, LaMarcaDecimalEsLaPedidaYSoloEnLosFicheros) {
  const Ejecucion e = Jaen({"-o", trabajo_, "--decimal", "coma", "--traza"});
  ASSERT_EQ(e.estado, 0);
  EXPECT_EQ(e.salida.find(','), std::string::npos);
  const std::string coma = Contenido(trabajo_ + "/extreCal.met");
  EXPECT_EQ(coma.find('.'), std::string::npos);
  ASSERT_EQ(Jaen({"-o", trabajo_}).estado, 0);
  std::string punto = Contenido(trabajo_ + "/extreCal.met");
  std::ranges::replace(punto, '.', ',');
  EXPECT_EQ(punto, coma);
}

TEST_F(OrdenDiasExtremos, ElInformeSeAnadeAlFicheroPedido) {
  ASSERT_EQ(Jaen({"--salida", "informe.txt"}).estado, 0);
  const std::string uno = Contenido(trabajo_ + "/informe.txt");
  EXPECT_TRUE(uno.starts_with("Jaen\n0.010000 0.990000\n"));
  EXPECT_EQ(std::ranges::count(uno, '\n'), 106);
  ASSERT_EQ(Jaen({"--salida", "informe.txt"}).estado, 0);
  EXPECT_EQ(Contenido(trabajo_ + "/informe.txt"), uno + uno);
}

TEST_F(OrdenDiasExtremos, LoQueNoValeEsUsoIncorrecto) {
  for (const std::vector<std::string> &opciones :
       std::vector<std::vector<std::string>>{{"--per-cal", "100.5"},
                                             {"--per-ref", "-1"},
                                             {"--per-cal", "mucho"},
                                             {"--mes-cal", "13"},
                                             {"--mes-ref", "0"},
                                             {"--temporada-cal", ""},
                                             {"--temporada-cal", "1,,2"},
                                             {"--temporada-ref", "13"},
                                             {"--decimal", "raya"},
                                             {"--gdr", "x"},
                                             {"--clave", "Jaen"}}) {
    const Ejecucion e = Jaen(opciones);
    EXPECT_EQ(e.estado, 2) << opciones[0] << " " << opciones[1];
    EXPECT_NE(e.error, "");
    EXPECT_EQ(e.salida, "");
  }
  EXPECT_EQ(ConBase({"dias-extremos"}).estado, 2);
  EXPECT_EQ(ConBase({"dias-extremos", "--gdr", base_ + "/Meteo/GDR.TXT"}).estado, 2);
}

TEST_F(OrdenDiasExtremos, LosExtremosDelPercentilSeAceptan) {
  for (const char *percentil : {"0", "100"}) {
    const Ejecucion e = Jaen({"--per-cal", percentil, "--per-ref", percentil});
    ASSERT_EQ(e.estado, 0) << percentil << e.error;
    EXPECT_EQ(e.salida.find("nan"), std::string::npos) << percentil;
    EXPECT_EQ(e.salida.find("inf"), std::string::npos) << percentil;
  }
}

TEST_F(OrdenDiasExtremos, LoQueFaltaEsEstado3) {
  EXPECT_EQ(ConBase({"dias-extremos", "--localidad", "Nadie"}).estado, 3);
  const Ejecucion sinRegistro = ConBase({"dias-extremos", "--localidad", "Perdida"});
  EXPECT_EQ(sinRegistro.estado, 3);
  EXPECT_NE(sinRegistro.error.find("asociado a la ciudad Perdida"), std::string::npos);
  const std::string gdr = base_ + "/Meteo/GDR.TXT";
  const Ejecucion sinClave = Orden({"dias-extremos", "--gdr", gdr, "--clave", "jaen"});
  EXPECT_EQ(sinClave.estado, 3);
  EXPECT_NE(sinClave.error.find("jaen"), std::string::npos);
  EXPECT_EQ(Orden({"dias-extremos", "--gdr", gdr + "x", "--clave", "Jaen"}).estado, 3);
  EXPECT_EQ(Orden({"dias-extremos", "--gdr", base_, "--clave", "Jaen"}).estado, 3);
  EXPECT_EQ(Orden({"dias-extremos", "--gdr", "", "--clave", "Jaen"}).estado, 3);
  std::filesystem::remove(gdr);
  EXPECT_EQ(Jaen().estado, 3);
}

TEST_F(OrdenDiasExtremos, UnRegistroEstropeadoNombraFicheroLineaYCampo) {
  std::string texto = Registro("Jaen INTERIOR 37.5 -3.75 15 10");
  texto.replace(texto.find("17.7"), 4, "roto");
  raiz_.Escribir("base/Meteo/GDR.TXT", texto);
  for (const Ejecucion &e : {Jaen({"-o", trabajo_}), Orden({"dias-extremos", "--gdr",
                                                            base_ + "/Meteo/GDR.TXT", "--clave", "Jaen"})}) {
    EXPECT_EQ(e.estado, 3);
    EXPECT_EQ(e.salida, "");
    EXPECT_NE(e.error.find("GDR.TXT, línea 2, temperatura máxima del mes 3"), std::string::npos) << e.error;
  }
  EXPECT_FALSE(std::filesystem::exists(trabajo_ + "/extreCal.met"));
}

TEST_F(OrdenDiasExtremos, LosDiagnosticosVanTambienAlRegistro) {
  raiz_.Escribir("base/Meteo/GDR.TXT", Registro("Jaen INTERIOR 37.5 -3.75 15 10 ALT=99999"));
  const Ejecucion e = Jaen({"--registro", "diagnosticos.txt"});
  EXPECT_EQ(e.estado, 0);
  const std::string registro = Contenido(trabajo_ + "/diagnosticos.txt");
  EXPECT_NE(registro, "");
  EXPECT_EQ(e.error, registro + "\n");
}

TEST_F(OrdenDiasExtremos, LoQueNoSePuedeEscribirEsEstado4) {
  EXPECT_EQ(Jaen({"-o", trabajo_ + "/nohay"}).estado, 4);
  EXPECT_EQ(Jaen({"-o", ""}).estado, 4);
  EXPECT_EQ(Jaen({"--salida", trabajo_}).estado, 4);
  EXPECT_EQ(Jaen({"--registro", trabajo_}).estado, 4);
  std::filesystem::create_directories(trabajo_ + "/extreRef.met");
  EXPECT_EQ(Jaen({"-o", trabajo_}).estado, 4);
}

} // namespace
} // namespace tesmo::prueba
