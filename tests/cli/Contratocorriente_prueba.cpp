#include "tests/cli/Proceso.h"

namespace tesmo::prueba {
namespace {

class OrdenCorriente : public LineaDeOrdenes {
protected:
  [[nodiscard]] Ejecucion Guion(const std::string &lineas) const {
    return Orden({"corriente", raiz_.Escribir("guion.txt", lineas)});
  }
};

TEST_F(OrdenCorriente, CadaTextoEnSuLineaYNadaMas) {
  const Ejecucion e = Guion("# dos estados\n"
                            "\n"
                            "aire pont_w 30 0.01\r\n"
                            "aire dame t\n"
                            "aire dame xx # no existe\n"
                            "aire borrar todo\n"
                            "aire pont_hr 25\n"
                            "aire pont_w -150 0\n"
                            "aire mezclar aire nadie aire\n");
  EXPECT_EQ(e.estado, 0);
  EXPECT_EQ(e.error, "");
  EXPECT_EQ(e.salida,
            "30.000000\n"
            "0.000000\n"
            "** La función todo no peretenece a la clase CorrrienteAire\n"
            "** ARGUMENTOS NO VÁLIDOS PARA CorrienteAire::ProcesarOrden\n"
            "**Minimo revasado -150.000000 < -100.000000, se toma -100.000000: CorrienteAire::pont_w\n"
            "Alguno de los objetos no existe:CorrienteAire::ProcesarOrden\n");
}

TEST_F(OrdenCorriente, MezclaPorNombresConBlancos) {
  const Ejecucion e = Guion("\"de fuera\" pont_w 10 0.004\n\"de fuera\" ponm 1 kg/s\n"
                            "dentro pont_w 30 0.004\ndentro ponm 1 kg/s\n"
                            "mezcla pont_w 0 0\n"
                            "mezcla mezclar \"de fuera\" dentro mezcla\n"
                            "mezcla dame m\nmezcla dame w\n");
  ASSERT_EQ(e.Lineas().size(), 2U) << e.salida;
  EXPECT_EQ(e.Lineas()[0], "2.000000");
  EXPECT_EQ(e.Lineas()[1], "0.004000");
}

TEST_F(OrdenCorriente, DeLaEntradaConGuionOSinNada) {
  const std::string guion = raiz_.Escribir("g.txt", "a pont_w 12 0\na dame t\n");
  EXPECT_EQ(Orden({"corriente"}, {}, guion).salida, "12.000000\n");
  EXPECT_EQ(Orden({"corriente", "-"}, {}, guion).salida, "12.000000\n");
  const Ejecucion vacia = Orden({"corriente"});
  EXPECT_EQ(vacia.estado, 0);
  EXPECT_EQ(vacia.salida, "");
}

TEST_F(OrdenCorriente, ElGuionPuedeLlevarMarcaUtf8OEstarEnWindows1252) {
  const std::string conMarca = "\xEF\xBB\xBF"
                               "aire pont_w 12 0\naire ponNombre año\naño dame t\n";
  const std::string enWindows = "aire pont_w 12 0\naire ponNombre a\xF1o\na\xF1o dame t\naño dame t\n";
  EXPECT_EQ(Guion(conMarca).salida, "12.000000\n");
  EXPECT_EQ(Orden({"corriente"}, {}, raiz_.Escribir("entrada.txt", conMarca)).salida, "12.000000\n");
  EXPECT_EQ(Guion(enWindows).salida, "12.000000\n12.000000\n");
}

TEST_F(OrdenCorriente, LaAyudaNoEnsuciaLaSalida) {
  const Ejecucion e = Guion("ayuda\n");
  EXPECT_EQ(e.salida, "");
  for (const char *orden : {"ponNombre", "mostrar", "ponm", "pont_w", "pont_th", "pont_tr", "pont_hr",
                            "pont_h", "ponw_h", "escribir", "dame", "mezclar"})
    EXPECT_NE(e.error.find(std::string("\n  ") + orden + " "), std::string::npos) << orden;
}

TEST_F(OrdenCorriente, ElRegistroNoPuedeSerElPropioGuion) {
  const std::string lineas = "a pont_w 12 0\na dame t\n";
  const std::string guion = raiz_.Escribir("g.txt", lineas);
  const std::string otroNombre = raiz_.Escribir("otro.txt", "");
  std::filesystem::remove(otroNombre);
  std::filesystem::create_hard_link(guion, otroNombre);
  for (const std::string &registro : {guion, otroNombre}) {
    const Ejecucion e = Orden({"corriente", guion, "--registro", registro});
    EXPECT_EQ(e.estado, 2);
    EXPECT_NE(e.error.find("--registro"), std::string::npos) << e.error;
    EXPECT_NE(e.error.find(registro), std::string::npos) << e.error;
    EXPECT_EQ(e.salida, "");
    EXPECT_EQ(Contenido(guion), lineas);
  }
}

TEST_F(OrdenCorriente, ElRegistroNoPuedeSerElFicheroQueEntraPorLaEntrada) {
  const std::string lineas = "a pont_w 12 0\na dame t\n";
  const std::string guion = raiz_.Escribir("g.txt", lineas);
  const Ejecucion e = Orden({"corriente", "-", "--registro", guion}, {}, guion);
  EXPECT_EQ(e.estado, 2);
  EXPECT_NE(e.error.find(guion), std::string::npos) << e.error;
  EXPECT_EQ(Contenido(guion), lineas);
}

TEST_F(OrdenCorriente, EscribirEnElPropioRegistroLoVaciaYLoSiguienteVaDetras) {
  const std::string aparte = (raiz_ / "aparte.txt").string();
  const std::string registro = (raiz_ / "registro.txt").string();
  const std::string guion =
      raiz_.Escribir("g.txt", "a pont_w 12 0\na dame t\na escribir \"" + aparte + "\"\na escribir \"" +
                                  registro + "\"\na dame p\na dame t\n");
  const Ejecucion e = Orden({"corriente", guion, "--registro", registro});
  EXPECT_EQ(e.estado, 0) << e.error;
  ASSERT_NE(Contenido(aparte), "");
  EXPECT_EQ(Contenido(registro), Contenido(aparte) + "101325.000000\n12.000000\n");
}

TEST_F(OrdenCorriente, ElRegistroRecibeLosTextosYSigueTrasEscribir) {
  const std::string registro = raiz_.Escribir("registro.txt", "lo de antes\n");
  const std::string guion =
      raiz_.Escribir("g.txt", "a pont_w 12 0\na dame t\na escribir \"un fichero.txt\"\na dame p\n");
  const Ejecucion e = Orden({"corriente", guion, "--registro", registro});
  EXPECT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.salida, "");
  EXPECT_EQ(Contenido(registro), "12.000000\n101325.000000\n");
  // Los textos de la corriente no llevan fin de línea: sólo lo añade el registro de la orden.
  const std::string escrito = Contenido(trabajo_ + "/un fichero.txt");
  EXPECT_TRUE(escrito.starts_with(
      "Caudal masico (kg/s): 15.000000Temperatura (C): 12.000000 Presion (Pa): 101325.000000"))
      << escrito;
}

TEST_F(OrdenCorriente, TrasEscribirLaSalidaSigue) {
  EXPECT_EQ(Guion("a escribir x.txt\na dame t\n").salida, "25.000000\n");
}

TEST_F(OrdenCorriente, EscribirDondeNoSePuedeEstado4YSeSigue) {
  const Ejecucion e = Guion("a escribir nohay/x.txt\na escribir\na dame t\n");
  EXPECT_EQ(e.estado, 4);
  EXPECT_EQ(e.salida, "25.000000\n");
  EXPECT_NE(e.error.find("línea 1: no se pudo escribir"), std::string::npos) << e.error;
  EXPECT_NE(e.error.find("línea 2: no se pudo escribir"), std::string::npos) << e.error;
}

TEST_F(OrdenCorriente, EntradaQueFaltaEstado3YRegistroIntacto) {
  const std::string registro = raiz_.Escribir("registro.txt", "lo de antes\n");
  for (const std::string &malo : {std::string("nohay.txt"), base_, std::string()})
    EXPECT_EQ(Orden({"corriente", malo, "--registro", registro}).estado, 3) << malo;
  EXPECT_EQ(Contenido(registro), "lo de antes\n");
}

TEST_F(OrdenCorriente, RegistroQueNoSePuedeEscribirEstado4) {
  const std::string guion = raiz_.Escribir("g.txt", "a dame t\n");
  for (const std::string &malo : {base_, (raiz_ / "nohay/x.txt").string(), std::string()}) {
    const Ejecucion e = Orden({"corriente", guion, "--registro", malo});
    EXPECT_EQ(e.estado, 4) << malo;
    EXPECT_EQ(e.salida, "");
  }
}

TEST_F(OrdenCorriente, ComillasSinCerrarSeAvisanConSuLinea) {
  const Ejecucion e = Guion("a dame t\n\"a dame t\n");
  EXPECT_EQ(e.estado, 0);
  EXPECT_NE(e.error.find("línea 2: comillas sin cerrar"), std::string::npos) << e.error;
}

} // namespace
} // namespace tesmo::prueba
