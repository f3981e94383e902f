#include "tests/cli/Jsonleido.h"
#include "tests/cli/Proceso.h"

namespace tesmo::prueba {
namespace {

using Argumentos = std::vector<std::string>;
class OrdenSerie : public LineaDeOrdenes {
protected:
  [[nodiscard]] Ejecucion Serie(Argumentos resto) const {
    resto.insert(resto.begin(), {"serie", "--localidad", "Rota"});
    return ConBase(resto);
  }
};
class OrdenEstadisticas : public LineaDeOrdenes {
protected:
  [[nodiscard]] Ejecucion Estadisticas(Argumentos resto) const {
    resto.insert(resto.begin(), {"estadisticas", "--localidad", "Rota"});
    return ConBase(resto);
  }
};

TEST_F(OrdenSerie, CabeceraConRotulosYUnaLineaPorHora) {
  const Ejecucion e =
      Serie({"--desde", "1/1/24", "--hasta", "1/2/2", "TS", "Radiación solar directa (W/m²)", "HA"});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.salida,
            "mes\tdia\thora\tTemperatura seca (ºC)\tRadiación solar directa (W/m²)\tHumedad absoluta (g/kg)\n"
            "1\t1\t24\t5.75\t123\t5\n"
            "1\t2\t1\t6\t124\t5\n"
            "1\t2\t2\t6.25\t125\t5\n");
}

TEST_F(OrdenSerie, SinPeriodoElAnioEntero) {
  const Ejecucion e = Serie({"TS"});
  EXPECT_EQ(e.Lineas().size(), 8761U);
  EXPECT_TRUE(e.Lineas().back().starts_with("12\t31\t24\t"));
}

TEST_F(OrdenSerie, ElCodigoHAkgDaLaHumedadSinEscalar) {
  EXPECT_EQ(Serie({"--hasta", "1/1/1", "HAkg"}).salida,
            "mes\tdia\thora\tHumedad absoluta (kg/kg)\n1\t1\t1\t0.00499999989\n");
}

TEST_F(OrdenSerie, FicheroCortoEstado0CerosYAviso) {
  const Ejecucion e = Serie({"--desde", "1/3/1", "--hasta", "1/3/1", "TS"});
  EXPECT_EQ(e.estado, 0);
  EXPECT_EQ(e.Lineas()[1], "1\t3\t1\t0");
  EXPECT_TRUE(e.error.starts_with("Aviso: Rota: se han leído 48 registros de 8760;")) << e.error;
}

/// Dos días de un .met de trece columnas.
std::string MetTrece() {
  std::string texto = "trece\n36.5 -6.3 20 15\n";
  for (int i = 0; i < 48; ++i)
    texto += "1 " + std::to_string(1 + i / 24) + " " + std::to_string(1 + i % 24) +
             " 10 0 0 0 0.005 60 2 90 0 90\n";
  return texto;
}

TEST_F(OrdenSerie, UnMetDeTreceColumnasSeLeePeroSeAvisa) {
  raiz_.Escribir("trece.met", MetTrece());
  const Ejecucion e =
      ConBase({"serie", "--fichero", (raiz_ / "trece.met").string(), "--hasta", "1/1/1", "TS"});
  EXPECT_EQ(e.estado, 0);
  EXPECT_NE(e.error.find("trece columnas"), std::string::npos) << e.error;
  EXPECT_NE(e.error.find("importar"), std::string::npos) << e.error;
}

TEST_F(OrdenSerie, UnaLocalidadConMetDeTreceColumnasTambienAvisa) {
  raiz_.Escribir("base/Meteo/rota.met", MetTrece());
  EXPECT_NE(Serie({"--hasta", "1/1/1", "TS"}).error.find("trece columnas"), std::string::npos);
}

TEST_F(OrdenSerie, UnMetCortoDeQuinceColumnasNoSeConfundeConUnoDeTrece) {
  const Ejecucion e = Serie({"--hasta", "1/1/1", "TS"});
  EXPECT_NE(e.error.find("se han leído 48 registros"), std::string::npos) << e.error;
  EXPECT_EQ(e.error.find("trece columnas"), std::string::npos) << e.error;
}

TEST_F(OrdenSerie, NoFinitosEnTextoYNuloEnJson) {
  raiz_.Escribir("raro.met", "x\n36 -6 0 15\n1 1 1 nan 0 inf -inf 0.005 0 0 0 0 60 0 0\n");
  const Argumentos argumentos{"serie", "--fichero", (raiz_ / "raro.met").string(), "--hasta", "1/1/1", "TS",
                              "RSDr",  "RSDf"};
  EXPECT_EQ(ConBase(argumentos).Lineas()[1], "1\t1\t1\tnan\tinf\t-inf");
  Argumentos enJson = argumentos;
  enJson.emplace_back("--json");
  const JsonLeido json(ConBase(enJson).salida);
  EXPECT_TRUE(json[0]["Temperatura seca (ºC)"].EsNulo());
  EXPECT_TRUE(json[0]["Radiación solar directa (W/m²)"].EsNulo());
}

TEST_F(OrdenSerie, JsonConLosMismosValores) {
  const JsonLeido json(Serie({"--hasta", "1/1/3", "--json", "TS", "TH"}).salida);
  ASSERT_EQ(json.Tamano(), 3U);
  EXPECT_EQ(json[2]["mes"].Numero(), 1);
  EXPECT_EQ(json[2]["hora"].Numero(), 3);
  EXPECT_EQ(json[2]["Temperatura seca (ºC)"].Numero(), 0.5);
  const std::vector<std::string> linea = Campos(Serie({"--hasta", "1/1/3", "TS", "TH"}).Lineas()[3]);
  EXPECT_EQ(json[2]["Temperatura húmeda (ºC)"].Numero(), std::stod(linea[4]));
}

TEST_F(OrdenSerie, LaSuperficieCambiaLaDirecta) {
  const auto directa = [&](const Argumentos &superficie) {
    Argumentos argumentos = superficie;
    argumentos.insert(argumentos.end(), {"--desde", "1/1/10", "--hasta", "1/1/10", "Dr"});
    return std::stod(Campos(Serie(argumentos).Lineas().at(1))[3]);
  };
  EXPECT_GT(directa({"--orientacion", "-36.84"}), directa({"--orientacion", "36.84"}));
  EXPECT_EQ(directa({"--inclinacion", "0"}), 109.0); // horizontal: la del fichero
}

TEST_F(OrdenSerie, ElAlbedoYLaPresionLlegan) {
  const auto valor = [&](const Argumentos &opciones, const char *variable) {
    Argumentos argumentos = opciones;
    argumentos.insert(argumentos.end(), {"--desde", "1/2/24", "--hasta", "1/2/24", variable});
    return std::stod(Campos(Serie(argumentos).Lineas().at(1))[3]);
  };
  EXPECT_NEAR(valor({"--albedo", ".5"}, "R"), (147.0 + 50.0) * 0.5 * 0.5, 1e-4);
  // A 11.75 ºC los 5 g/kg no saturan. El volumen específico crece en la misma proporción en que baja la
  // presión.
  EXPECT_NEAR(valor({"--presion", "50662.5"}, "VE") / valor({"--presion", "101325"}, "VE"), 2.0, 1e-6);
  EXPECT_GT(valor({"--altitud", "2000"}, "VE"), valor({}, "VE"));
  EXPECT_LT(valor({"--altitud", "-400"}, "VE"), valor({}, "VE"));
}

TEST_F(OrdenSerie, HorizonteQuitaLaDirecta) {
  const std::string pared = raiz_.Escribir("pared.txt", "2\n-180.0, 80.0\n180.0, 80.0\n");
  const Ejecucion e = Serie({"--horizonte", pared, "--desde", "1/1/12", "--hasta", "1/1/12", "Dr", "RSDr"});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.Lineas()[1], "1\t1\t12\t0\t111");
}

TEST_F(OrdenSerie, EntradasQueFaltanEstado3) {
  raiz_.Escribir("malo.txt", "no es un perfil\n");
  const std::string met = raiz_.Escribir("bueno.met", Met());
  for (const Argumentos &argumentos : std::vector<Argumentos>{
           {"serie", "--localidad", "Atlántida", "TS"},
           {"serie", "--localidad", "rota", "TS"},
           {"serie", "--localidad", "Localidad", "TS"},
           {"serie", "--localidad", "", "TS"},
           {"serie", "--localidad", "Perdida", "TS"},
           {"serie", "--fichero", "nohay.met", "TS"},
           {"serie", "--fichero", base_, "TS"},
           {"serie", "--fichero", "", "TS"},
           {"serie", "--fichero", met, "--horizonte", "nohay.txt", "TS"},
           {"serie", "--fichero", met, "--horizonte", base_, "TS"},
           {"serie", "--fichero", met, "--horizonte", (raiz_ / "malo.txt").string(), "TS"}}) {
    const Ejecucion e = ConBase(argumentos);
    EXPECT_EQ(e.estado, 3) << argumentos[2] << ": " << e.error;
    EXPECT_EQ(e.salida, "");
    EXPECT_NE(e.error, "");
  }
}

TEST_F(OrdenSerie, UnFicheroQueEstaYNoSePuedeLeerTambien) {
  const std::string memoria = "/proc/self/mem"; // se abre y no se puede leer
  if (!std::filesystem::is_regular_file(memoria)) GTEST_SKIP() << "no es Linux";
  const Ejecucion e = ConBase({"serie", "--fichero", memoria, "TS"});
  EXPECT_EQ(e.estado, 3);
  EXPECT_EQ(e.salida, "");
  EXPECT_NE(e.error.find(memoria), std::string::npos) << e.error;
}

TEST_F(OrdenSerie, FicheroDeLocalidadAusenteMensaje59) {
  EXPECT_EQ(ConBase({"serie", "--localidad", "Perdida", "TS"}).error,
            "Información: El fichero meteorológico asociado a la ciudad Perdida no se ha podido abrir.\n");
}

TEST_F(OrdenSerie, FicheroNombradoSinBaseDeLocalidadesNoDiceNada) {
  std::string anio = "x\n36 -6 0 15\n";
  for (int i = 0; i < 8760; ++i) anio += "1 1 1 10 5 0 0 0.005 60 2 90 0 90 0 0\n";
  const std::string met = raiz_.Escribir("suelto.met", anio);
  std::filesystem::create_directory(raiz_ / "vacia");
  const Ejecucion e =
      Orden({"serie", "--fichero", met, "--base", (raiz_ / "vacia").string(), "--hasta", "1/1/1", "TS"});
  EXPECT_EQ(e.estado, 0);
  EXPECT_EQ(e.error, "");
}

TEST_F(OrdenSerie, UsoIncorrectoEstado2) {
  for (const Argumentos &argumentos : std::vector<Argumentos>{{"XX"},
                                                              {"ts"},
                                                              {"--desde", "2/30/1", "TS"},
                                                              {"--desde", "13/1/1", "TS"},
                                                              {"--hasta", "1/1/25", "TS"},
                                                              {"--desde", "2/1/1", "--hasta", "1/1/1", "TS"},
                                                              {"--presion", "90000", "--altitud", "5", "TS"},
                                                              {"--inclinacion", "recta", "TS"},
                                                              {"--fichero", "x.met", "TS"}}) {
    const Ejecucion e = Serie(argumentos);
    EXPECT_EQ(e.estado, 2) << e.error;
    EXPECT_EQ(e.salida, "");
  }
  EXPECT_EQ(ConBase({"serie", "TS"}).estado, 2);
}

TEST_F(OrdenSerie, CasillaVaciaMensaje58YEstado2) {
  for (const char *opcion : {"--inclinacion", "--orientacion", "--albedo"}) {
    const Ejecucion e = Serie({opcion, "", "TS"});
    EXPECT_EQ(e.estado, 2) << opcion;
    EXPECT_TRUE(e.error.starts_with("Información: La casilla de ")) << e.error;
  }
}

TEST_F(OrdenSerie, ValorFueraDeLimitesTomaElDeFabricaYLoDice) {
  const Ejecucion e = Serie({"--inclinacion", "200", "--hasta", "1/1/1", "TS"});
  EXPECT_EQ(e.estado, 0);
  EXPECT_NE(e.error.find("200.000000 > 180.000000 (máximo), valor por defecto: 90.000000"),
            std::string::npos);
}

TEST_F(OrdenSerie, SalidaQueNoSePuedeEscribirEstado4) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "sin /dev/full";
  const Ejecucion e = Orden({"serie", "--localidad", "Rota", "--base", base_, "TS"}, "/dev/full");
  EXPECT_EQ(e.estado, 4);
  EXPECT_NE(e.error.find("Error: no se pudo escribir el resultado"), std::string::npos) << e.error;
}

TEST_F(OrdenSerie, RegistroDeDiagnosticosEnSuFichero) {
  raiz_.Escribir("humedo.met", "x\n36 -6 0 15\n1 1 1 10 0 0 0 0.5 0 0 0 0 60 0 0\n");
  const std::string registro = (raiz_ / "registro.txt").string();
  const Ejecucion e = ConBase({"serie", "--fichero", (raiz_ / "humedo.met").string(), "--hasta", "1/1/1",
                               "--registro", registro, "TR"});
  EXPECT_EQ(e.estado, 0) << e.error;
  EXPECT_TRUE(Contenido(registro).starts_with("**Maximo revasado 0.500000 > ")) << Contenido(registro);
  EXPECT_EQ(e.error.find("**"), std::string::npos);
  EXPECT_EQ(Serie({"--registro", base_, "TS"}).estado, 4);
}

TEST_F(OrdenEstadisticas, CabeceraYUnaLineaPorVariable) {
  const Ejecucion e = Estadisticas({"--hasta", "1/2/24", "TS", "RSDr"});
  ASSERT_EQ(e.estado, 0) << e.error;
  ASSERT_EQ(e.Lineas().size(), 3U);
  EXPECT_EQ(Campos(e.Lineas()[0]).size(), 8U);
  const std::vector<std::string> seca = Campos(e.Lineas()[1]);
  // i/4 de 0 a 47: de 0 a 11.75, media 5.875; faltan (15 − 5.875)·48/24 grados-día.
  EXPECT_EQ(seca, (std::vector<std::string>{"Temperatura seca (ºC)", "ºC", "11.75", "0", "5.875", "18.25",
                                            "0", "0"}));
  const std::vector<std::string> directa = Campos(e.Lineas()[2]);
  EXPECT_EQ(directa[1], "W/m²");
  EXPECT_EQ(directa[2], "147");
  EXPECT_EQ(directa[4], "123.5");
}

TEST_F(OrdenEstadisticas, BasesYHorasDelDia) {
  const Ejecucion e =
      Estadisticas({"--hasta", "1/1/24", "--horas", "1-2", "--base-cal", "1", "--base-ref", "-.5", "TS"});
  // Sólo 0 y 0.25 ºC: (1 + 0.75)/24 y (0.5 + 0.75)/24 grados-día.
  const std::vector<std::string> seca = Campos(e.Lineas().at(1));
  EXPECT_EQ(seca[2], "0.25");
  EXPECT_EQ(seca[4], "0.125");
  EXPECT_NEAR(std::stod(seca[5]), 1.75 / 24.0, 1e-8);
  EXPECT_NEAR(std::stod(seca[6]), 1.25 / 24.0, 1e-8);
}

// El fichero sólo trae los dos primeros días: i/4 de 0 a 47; lo demás son ceros.
TEST_F(OrdenEstadisticas, MensualDaUnaLineaPorMesConLasFechasDeLosExtremos) {
  const Ejecucion e = Estadisticas({"--desde", "1/1/2", "--hasta", "2/3/24", "--mensual", "TS", "HR"});
  ASSERT_EQ(e.estado, 0) << e.error;
  ASSERT_EQ(e.Lineas().size(), 5U);
  EXPECT_EQ(e.Lineas()[0], "variable\tunidad\tmes\tmaximo\tminimo\tmedia\tgrados_dia_calefaccion\t"
                           "grados_dia_refrigeracion\tdepresion\tfecha_maximo\tfecha_minimo");
  const std::vector<std::string> enero = Campos(e.Lineas()[1]);
  EXPECT_EQ(enero[2], "1");
  EXPECT_EQ(enero[3], "11.75");
  EXPECT_EQ(enero[9], "1/2/24");
  EXPECT_EQ(enero[10], "1/3/1"); // el primer cero
  const std::vector<std::string> febrero = Campos(e.Lineas()[2]);
  EXPECT_EQ(febrero[2], "2");
  EXPECT_EQ(febrero[6], "45"); // tres días a 15 grados de la base
  EXPECT_EQ(febrero[9], "2/1/1");
  EXPECT_EQ(Campos(e.Lineas()[3])[1], "%");
}

TEST_F(OrdenEstadisticas, HorasQueNoValenEstado2) {
  for (const char *horas : {"0-24", "1-25", "20-6", "12"})
    EXPECT_EQ(Estadisticas({"--horas", horas, "TS"}).estado, 2) << horas;
}

TEST_F(OrdenEstadisticas, Json) {
  const JsonLeido json(Estadisticas({"--hasta", "1/2/24", "--json", "TS", "HR"}).salida);
  ASSERT_EQ(json.Tamano(), 2U);
  EXPECT_EQ(json[0]["maximo"].Numero(), 11.75);
  EXPECT_EQ(json[1]["unidad"].Texto(), "%");
}

} // namespace
} // namespace tesmo::prueba
