#include "meteo/Leermet.h"
#include "tests/comun/Apoyos.h"
#include "tests/meteo/Textomet.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

/// Un año con los valores dados en sus primeras horas: temperatura, humedad absoluta, relativa y difusa.
struct Hora {
  const char *ts, *w, *hr, *rdif;
};

/// Un LeerMet cargado con @p horas y con su propio directorio para lo que escriba.
class Exportador {
public:
  explicit Exportador(const std::vector<Hora> &horas) {
    std::string texto = "x\n36.84 -2.39 21.0 15.0\n";
    for (const Hora &h : horas) {
      texto +=
          std::string("1 1 1 ") + h.ts + " 0 0 " + h.rdif + " " + h.w + " " + h.hr + " 3.25 270 0 90 0 0\n";
    }
    EXPECT_TRUE(met.LeerFichero(directorio.Escribir("a.met", texto)));
    met.PonPeriodo(1, 1, 1, 1, 1, static_cast<int>(horas.size()));
  }
  std::string Escribir(const std::vector<std::string> &rotulos) {
    EXPECT_TRUE(met.EscribirFichero(TextoDeRuta(directorio / "salida.met"), rotulos));
    return Contenido(directorio / "salida.met");
  }
  DirectorioTemporal directorio;
  LeerMet met;
};

const std::vector<Hora> DOS_HORAS{{"12.3", "0.0063", "71", "0"}, {"11.9", "0.00631", "73.04", "0"}};
const std::vector<std::string> TS_Y_HR{"Temperatura seca (ºC)", "Humedad relativa (%)"};

} // namespace

TEST(Exportacion, ElEjemploConTabuladores) {
  Exportador exportador(DOS_HORAS);
  EXPECT_EQ(exportador.Escribir(TS_Y_HR), "Almería\n"
                                          "36.840000 -2.390000 21.000000\n"
                                          "Orientación: 0.000000  Inclinación: 90.000000 Albedo: 0.200000\n"
                                          "mes\tdia\thora\tts\thr\t\n"
                                          "1\t1\t1\t12.3\t71.0\t\n"
                                          "1\t1\t2\t11.9\t73.0\t\n");
}

TEST(Exportacion, SinCabeceraEmpiezaPorLaOrientacion) {
  Exportador exportador(DOS_HORAS);
  exportador.met.PonCabecera("Cabecera", false);
  const std::string texto = exportador.Escribir(TS_Y_HR);
  EXPECT_EQ(texto.find("Orientación: 0.000000  Inclinación: 90.000000 Albedo: 0.200000\nmes"), 0U);
}

TEST(Exportacion, SinLocalidadSuLineaQuedaVacia) {
  Exportador exportador(DOS_HORAS);
  exportador.met.PonTexto("Localidad", "");
  EXPECT_EQ(exportador.Escribir({}).find("\n36.840000 "), 0U);
}

TEST(Exportacion, UnPeriodoDeUnaHoraEscribeUnaSolaLinea) {
  Exportador exportador(DOS_HORAS);
  exportador.met.PonPeriodo(1, 1, 2, 1, 1, 2);
  const std::string texto = exportador.Escribir(TS_Y_HR);
  EXPECT_EQ(std::count(texto.begin(), texto.end(), '\n'), 5);
  EXPECT_TRUE(texto.ends_with("hr\t\n1\t1\t2\t11.9\t73.0\t\n"));
}

TEST(Exportacion, UnPeriodoAlRevesNoEscribeHoras) {
  Exportador exportador(DOS_HORAS);
  exportador.met.PonPeriodo(2, 1, 1, 1, 1, 1);
  EXPECT_TRUE(exportador.Escribir(TS_Y_HR).ends_with("mes\tdia\thora\tts\thr\t\n"));
}

TEST(Exportacion, SinVariablesSoloSalenLasFechas) {
  Exportador exportador(DOS_HORAS);
  EXPECT_TRUE(exportador.Escribir({}).ends_with("mes\tdia\thora\t\n1\t1\t1\t\n1\t1\t2\t\n"));
}

TEST(Exportacion, SeSaltanLosRotulosQueNoTienenColumna) {
  Exportador exportador(DOS_HORAS);
  exportador.met.PrepararColumnas(
      {"Humedad absoluta (g/kg)", "otra", "Humedad absoluta (kg/kg)", "", "Humedad relativa (%)"});
  ASSERT_EQ(exportador.met.Columnas().size(), 2U);
  EXPECT_EQ(exportador.met.Columnas()[0].Nombre(), "w");
  EXPECT_EQ(exportador.met.Columnas()[1].Nombre(), "hr");
}

TEST(Exportacion, PrepararVaciaLasColumnasAnteriores) {
  Exportador exportador(DOS_HORAS);
  exportador.met.PrepararColumnas(TS_Y_HR);
  exportador.met.PrepararColumnas({"Humedad relativa (%)"});
  ASSERT_EQ(exportador.met.Columnas().size(), 1U);
  EXPECT_EQ(exportador.met.Columnas()[0].Horas(), 2U);
  EXPECT_EQ(exportador.met.Columnas()[0].Valor(1), "73.0");
  EXPECT_EQ(exportador.met.Columnas()[0].Valor(2), "");
}

TEST(Exportacion, ElOrdenDeLasColumnasEsElPedido) {
  Exportador exportador(DOS_HORAS);
  exportador.met.PonTexto("Separador", ";");
  EXPECT_NE(exportador.Escribir({TS_Y_HR[1], TS_Y_HR[0]}).find("mes;dia;hora;hr;ts;\n1;1;1;71.0;12.3;\n"),
            std::string::npos);
}

TEST(Exportacion, PatronesDeCifras) {
  // -0.04 redondea a un cero sin signo; 2.5 y -3.25 se alejan de cero; 0.00005 en 32 bits queda por debajo de
  // la mitad (4,99999987e-5).
  Exportador exportador({{"-0.04", "0.00005", "nan", "2.5"}, {"-3.25", "0.0123456", "inf", "1234567"}});
  exportador.met.PonTexto("Separador", " ");
  const std::string texto = exportador.Escribir({"Temperatura seca (ºC)", "Humedad absoluta (kg/kg)",
                                                 "Humedad relativa (%)", "Radiación solar difusa (W/m²)"});
  EXPECT_NE(texto.find("\n1 1 1 0.0 0.0000 NAN 3 \n1 1 2 -3.3 0.0123 INF 1234567 \n"), std::string::npos)
      << texto;
}

TEST(Exportacion, ComaDecimalConSeparadorComaSeEscribeComoVenga) {
  const ConSeparador coma(',');
  Exportador exportador(DOS_HORAS);
  exportador.met.PonTexto("Separador", ",");
  const std::string texto = exportador.Escribir(TS_Y_HR);
  EXPECT_NE(texto.find("36.840000 -2.390000 21.000000\n"), std::string::npos)
      << "el punto de la cabecera es fijo";
  EXPECT_NE(texto.find("mes,dia,hora,ts,hr,\n1,1,1,12,3,71,0,\n"), std::string::npos);
}

TEST(Exportacion, SinSeparadorLosCamposVanPegados) {
  Exportador exportador(DOS_HORAS);
  exportador.met.PonTexto("Separador", "");
  EXPECT_NE(exportador.Escribir(TS_Y_HR).find("mesdiahoratshr\n11112.371.0\n"), std::string::npos);
}

TEST(Exportacion, LaFechaAvanzaHoraAHoraPorElAnio) {
  Exportador exportador(DOS_HORAS);
  exportador.met.PonPeriodo(1, 1, 1, 12, 31, 24);
  exportador.met.PonTexto("Separador", " ");
  const std::string texto = exportador.Escribir({});
  EXPECT_EQ(std::count(texto.begin(), texto.end(), '\n'), 8760 + 4);
  EXPECT_NE(texto.find("\n2 28 24 \n3 1 1 \n"), std::string::npos);
  EXPECT_TRUE(texto.ends_with("\n12 31 24 \n"));
}

TEST(Exportacion, LasDerivadasSinDerivarSalenACero) {
  Exportador exportador(DOS_HORAS);
  EXPECT_TRUE(
      exportador.Escribir({"Altura (º)", "Volumen específico (m³/kg)"}).ends_with("\t0.0\t0.000\t\n"));
}

TEST(Exportacion, UnFicheroQueNoSePuedeCrearMuestraElMensaje60) {
  MensajesApuntados mensajes;
  Exportador exportador(DOS_HORAS);
  const std::string ruta = TextoDeRuta(exportador.directorio / "no/existe/salida.met");
  EXPECT_FALSE(exportador.met.EscribirFichero(ruta, TS_Y_HR));
  EXPECT_FALSE(exportador.met.EscribirFichero(TextoDeRuta(exportador.directorio.Ruta()), TS_Y_HR));
  ASSERT_EQ(mensajes.apuntes.size(), 2U);
  EXPECT_EQ(mensajes.apuntes[0].texto, "El fichero de resultado " + ruta + " no se ha podido abrir.\n ");
  EXPECT_EQ(mensajes.apuntes[0].titulo, "Información");
  EXPECT_EQ(mensajes.apuntes[0].icono, Icono::Informacion);
}

TEST(Exportacion, SustituyeElFicheroQueHubiera) {
  Exportador exportador(DOS_HORAS);
  exportador.directorio.Escribir("salida.met", std::string(100000, 'z'));
  EXPECT_EQ(exportador.Escribir(TS_Y_HR).find('z'), std::string::npos);
}
