#include "tests/cli/Jsonleido.h"
#include "tests/cli/Proceso.h"

namespace tesmo::prueba {
namespace {

const char *const CINCO = "5\n-120, 4\n-60.5, 8\n0, 12\n60, 16.25\n120, 20\n";
const char *const PUNTOS_DE_CINCO = "n\t5\n-120\t4\n-60.5\t8\n0\t12\n60\t16.25\n120\t20\n";

class OrdenHorizonte : public LineaDeOrdenes {
protected:
  [[nodiscard]] std::string EnTrabajo(const std::string &nombre) const {
    return Contenido(std::filesystem::path(trabajo_) / nombre);
  }
  void Hacer(const std::vector<std::string> &argumentos) const {
    const Ejecucion e = Orden(argumentos);
    ASSERT_EQ(e.estado, 0) << e.error;
    EXPECT_EQ(e.salida, "");
  }
  std::string cinco_ = raiz_.Escribir("cinco.txt", CINCO);
};

TEST_F(OrdenHorizonte, LeerEscribeElNumeroYLosPuntos) {
  const Ejecucion e = Orden({"horizonte", "leer", cinco_});
  EXPECT_EQ(e.estado, 0);
  EXPECT_EQ(e.error, "");
  EXPECT_EQ(e.salida, PUNTOS_DE_CINCO);
  EXPECT_EQ(Orden({"horizonte", "leer", raiz_.Escribir("vacio.txt", "0\n")}).salida, "n\t0\n");
  EXPECT_EQ(Orden({"horizonte", "leer", raiz_.Escribir("corto.txt", "2\n7, 3\n")}).salida,
            "n\t2\n7\t3\n0\t0\n");
}

TEST_F(OrdenHorizonte, LeerListadosDeOtrosProgramas) {
  const std::string pvgis =
      raiz_.Escribir("pvgis.csv", "horizon_azimuth,horizon_elevation\n0,9.9\n90,13\n180,4.6\n");
  const Ejecucion e = Orden({"horizonte", "leer", pvgis});
  EXPECT_EQ(e.salida, "n\t3\n-180\t9.89999962\n-90\t13\n0\t4.5999999\n"); // reales de 32 bits
  EXPECT_EQ(e.error, "");
  const std::string alturas = raiz_.Escribir("alturas.csv", "0,10,20,30\n");
  EXPECT_EQ(Orden({"horizonte", "leer", alturas}).salida, "n\t4\n-180\t0\n-90\t10\n0\t20\n90\t30\n");
}

TEST_F(OrdenHorizonte, SiNoSeSabeDesdeDondeCuentaSeAvisa) {
  const Ejecucion e = Orden({"horizonte", "leer", raiz_.Escribir("dudosa.csv", "0;5\n270;7\n")});
  EXPECT_EQ(e.estado, 0);
  EXPECT_EQ(e.salida, "n\t2\n-180\t5\n90\t7\n");
  EXPECT_TRUE(e.error.starts_with("Aviso: ")) << e.error;
}

TEST_F(OrdenHorizonte, LeerJson) {
  const JsonLeido json(Orden({"horizonte", "leer", cinco_, "--json"}).salida);
  EXPECT_EQ(json["n"].Numero(), 5);
  EXPECT_EQ(json["formato"].Texto(), "nativo");
  ASSERT_EQ(json["puntos"].Tamano(), 5U);
  EXPECT_EQ(json["puntos"][1]["acimut"].Numero(), -60.5);
  EXPECT_EQ(json["puntos"][1]["altura"].Numero(), 8.0);
}

TEST_F(OrdenHorizonte, GuardarEscribeUnPuntoDeCadaDos) {
  const Ejecucion e = Orden({"horizonte", "guardar", cinco_, "-o", "mitad.txt"});
  EXPECT_EQ(e.estado, 0) << e.error;
  EXPECT_TRUE(e.error.starts_with("Aviso: ")) << e.error;
  EXPECT_EQ(EnTrabajo("mitad.txt"), "5\n-120.000000, 4.000000\n0.000000, 12.000000\n120.000000, 20.000000\n");
  EXPECT_EQ(Orden({"horizonte", "leer", "mitad.txt"}).salida, "n\t5\n-120\t4\n0\t12\n120\t20\n0\t0\n0\t0\n");
}

TEST_F(OrdenHorizonte, ConvertirAlCompletoYVueltaLoDejaIgual) {
  Hacer({"horizonte", "convertir", cinco_, "-o", "cinco.csv"});
  EXPECT_EQ(Orden({"horizonte", "leer", "cinco.csv"}).salida, PUNTOS_DE_CINCO);
  EXPECT_EQ(EnTrabajo("cinco.csv").substr(0, 20), "Perfil de horizonte:");
  Hacer({"horizonte", "convertir", "cinco.csv", "-o", "vuelta.txt"});
  EXPECT_EQ(EnTrabajo("vuelta.txt"), "5\n-120.000000, 4.000000\n-60.500000, 8.000000\n0.000000, 12.000000\n"
                                     "60.000000, 16.250000\n120.000000, 20.000000\n");
}

TEST_F(OrdenHorizonte, ConvertirACadaFormatoPorNombre) {
  for (const char *formato : {"nativo", "completo", "pvgis", "tabla"}) {
    Hacer({"horizonte", "convertir", cinco_, "-o", "otro.txt", "--a", formato});
    const Ejecucion e = Orden({"horizonte", "leer", "otro.txt", "--json"});
    EXPECT_EQ(JsonLeido(e.salida)["formato"].Texto(), formato);
    EXPECT_EQ(Orden({"horizonte", "leer", "otro.txt"}).salida, PUNTOS_DE_CINCO);
    EXPECT_EQ(e.error, "");
  }
  Hacer({"horizonte", "convertir", cinco_, "-o", "a.txt", "--a", "ALTURAS"});
  EXPECT_TRUE(Orden({"horizonte", "leer", "a.txt"}).salida.starts_with("n\t36\n-180\t0\n"));
}

TEST_F(OrdenHorizonte, ConvertirAUnFormatoEnQueNoCabeEstado4YNadaEscrito) {
  for (const char *perfil : {"1\n200, 5\n", "1\n0, 101\n", "0\n"}) {
    const std::string entrada = raiz_.Escribir("perfil.txt", perfil);
    for (const char *formato : {"pvgis", "tabla"}) {
      const Ejecucion e = Orden({"horizonte", "convertir", entrada, "-o", "x", "--a", formato});
      EXPECT_EQ(e.estado, 4) << perfil;
      EXPECT_NE(e.error.find(formato), std::string::npos) << e.error;
      EXPECT_FALSE(std::filesystem::exists(std::filesystem::path(trabajo_) / "x"));
    }
  }
}

TEST_F(OrdenHorizonte, LasAlturasSueltasAvisanDeLoQueSeSupone) {
  const Ejecucion e = Orden({"horizonte", "leer", raiz_.Escribir("alturas.csv", "0,10,20,30\n")});
  EXPECT_EQ(e.estado, 0);
  EXPECT_NE(e.error.find("empiezan en el norte"), std::string::npos) << e.error;
}

TEST_F(OrdenHorizonte, ElFormatoPorLaExtension) {
  Hacer({"horizonte", "convertir", cinco_, "-o", "x.pvgis"});
  EXPECT_TRUE(EnTrabajo("x.pvgis").starts_with("A\tH_hor\n"));
  Hacer({"horizonte", "convertir", cinco_, "-o", "x.tsv"});
  EXPECT_TRUE(EnTrabajo("x.tsv").starts_with("acimut_desde_norte_grados"));
}

TEST_F(OrdenHorizonte, GirarReflejarYCerrar) {
  const std::string entrada = raiz_.Escribir("t.csv", "acimut desde el sur;altura\n-100;1\n0;2\n100;3\n");
  Hacer({"horizonte", "convertir", entrada, "-o", "g.csv", "--girar", "-1"});
  EXPECT_EQ(Orden({"horizonte", "leer", "g.csv"}).salida, "n\t3\n-90\t2\n10\t3\n170\t1\n");
  Hacer({"horizonte", "convertir", entrada, "-o", "r.csv", "--reflejar"});
  EXPECT_EQ(Orden({"horizonte", "leer", "r.csv"}).salida, "n\t3\n-100\t3\n0\t2\n100\t1\n");
  Hacer({"horizonte", "convertir", entrada, "-o", "c.csv", "--cerrar"});
  EXPECT_EQ(Orden({"horizonte", "leer", "c.csv"}).salida, "n\t5\n-180\t2\n-100\t1\n0\t2\n100\t3\n180\t2\n");
}

TEST_F(OrdenHorizonte, EfectoDeUnMuroDeTreintaGrados) {
  const std::string muro = raiz_.Escribir("muro.txt", "2\n-180, 30\n180, 30\n");
  const Ejecucion e = Orden({"horizonte", "efecto", muro, "36.84"});
  ASSERT_EQ(e.estado, 0) << e.error;
  const std::vector<std::string> lineas = e.Lineas();
  ASSERT_EQ(lineas.size(), 3U);
  EXPECT_EQ(lineas[0], "cielo\t0.5"); // sen 30° = 1/2
  EXPECT_TRUE(lineas[1].starts_with("horas_de_sol\t4"));
  EXPECT_TRUE(lineas[2].starts_with("horas_perdidas\t"));
  const JsonLeido json(Orden({"horizonte", "efecto", muro, "-36.84", "--json"}).salida);
  EXPECT_GT(json["horas_perdidas"].Numero(), 1000);
  EXPECT_LT(json["horas_perdidas"].Numero(), json["horas_de_sol"].Numero());
}

TEST_F(OrdenHorizonte, EntradasQueFaltanONoSonPerfilesEstado3) {
  const std::string mala = raiz_.Escribir("mala.csv", "0;5\n90;alta\n");
  const std::string negativa = raiz_.Escribir("negativa.txt", "-1\n0, 5\n");
  for (const std::string &entrada : {std::string("nohay.txt"), base_, std::string(), mala, negativa}) {
    for (const std::vector<std::string> &resto : std::vector<std::vector<std::string>>{
             {"leer", entrada}, {"guardar", entrada, "-o", "x"}, {"convertir", entrada, "-o", "x"}}) {
      std::vector<std::string> argumentos{"horizonte"};
      argumentos.insert(argumentos.end(), resto.begin(), resto.end());
      const Ejecucion e = Orden(argumentos);
      EXPECT_EQ(e.estado, 3) << entrada << ' ' << resto[0];
      EXPECT_EQ(e.salida, "");
      EXPECT_FALSE(std::filesystem::exists(std::filesystem::path(trabajo_) / "x"));
    }
  }
  EXPECT_EQ(Orden({"horizonte", "leer", mala}).error, "Error: no se puede leer el perfil de horizonte: " +
                                                          mala + ", línea 2: «alta» no es un número\n");
}

TEST_F(OrdenHorizonte, SalidasQueNoSePuedenEscribirEstado4) {
  for (const std::string &salida : {base_, (raiz_ / "no" / "x.csv").string(), std::string()}) {
    EXPECT_EQ(Orden({"horizonte", "guardar", cinco_, "-o", salida}).estado, 4) << salida;
    EXPECT_EQ(Orden({"horizonte", "convertir", cinco_, "-o", salida}).estado, 4) << salida;
  }
}

TEST_F(OrdenHorizonte, UsoIncorrectoEstado2) {
  for (const std::vector<std::string> &argumentos :
       std::vector<std::vector<std::string>>{{"horizonte"},
                                             {"horizonte", "volar"},
                                             {"horizonte", "leer"},
                                             {"horizonte", "guardar", cinco_},
                                             {"horizonte", "convertir", cinco_},
                                             {"horizonte", "convertir", cinco_, "-o", "x", "--a", "pdf"},
                                             {"horizonte", "convertir", cinco_, "-o", "x", "--girar", "4"},
                                             {"horizonte", "efecto", cinco_},
                                             {"horizonte", "efecto", cinco_, "95"}}) {
    const Ejecucion e = Orden(argumentos);
    EXPECT_EQ(e.estado, 2) << e.error;
    EXPECT_EQ(e.salida, "");
  }
}

// Un listado de otro programa vale como horizonte de una serie, con la vuelta cerrada al norte.
TEST_F(OrdenHorizonte, LaSeleccionAdmiteCualquierFormato) {
  const std::string alturas = raiz_.Escribir("pared.csv", "80,80,80,80\n");
  const Ejecucion e = ConBase({"serie", "--localidad", "Rota", "--horizonte", alturas, "--desde", "1/1/12",
                               "--hasta", "1/1/12", "Dr", "RSDr"});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.Lineas()[1], "1\t1\t12\t0\t111");
}

} // namespace
} // namespace tesmo::prueba
