#include "core/Ficheros.h"
#include "psicro/Corrienteaire.h"
#include "tests/comun/Apoyos.h"

#include <filesystem>
#include <gtest/gtest.h>

using namespace tesmo;
using Textos = std::vector<std::string>;

namespace {

constexpr const char *MAL = "** ARGUMENTOS NO VÁLIDOS PARA CorrienteAire::ProcesarOrden";
constexpr const char *FALTA = "Alguno de los objetos no existe:CorrienteAire::ProcesarOrden";

/// Ejecuta la orden y devuelve lo que deja en el registro.
Textos Ordenar(CorrienteAire &corriente, const std::vector<const char *> &palabras) {
  prueba::RegistroApuntado registro;
  std::vector<const char *> argv{"nombre"};
  argv.insert(argv.end(), palabras.begin(), palabras.end());
  corriente.ProcesarOrden(static_cast<int>(argv.size()), argv.data());
  return registro.textos;
}

std::string Dame(CorrienteAire &corriente, const char *cod) {
  const Textos textos = Ordenar(corriente, {"dame", cod});
  return textos.size() == 1 ? textos[0] : "";
}

} // namespace

TEST(OrdenesAire, PontHrTomaLaPresionNormalSiNoSeDaOtra) {
  CorrienteAire c;
  EXPECT_TRUE(Ordenar(c, {"pont_hr", "30", "40"}).empty());
  EXPECT_EQ(Dame(c, "t"), "30.000000");
  EXPECT_NEAR(static_cast<double>(c.dame("hr")), 40.0, 5e-6);
  EXPECT_EQ(Dame(c, "p"), "101325.000000");
  EXPECT_TRUE(Ordenar(c, {"pont_hr", "25", "50", "90000"}).empty());
  EXPECT_EQ(Dame(c, "p"), "90000.000000");
}

TEST(OrdenesAire, LosSeisEstadosExigenDosOTresNumeros) {
  for (const char *orden : {"pont_w", "pont_th", "pont_tr", "pont_hr", "pont_h", "ponw_h"}) {
    CorrienteAire c;
    EXPECT_EQ(Ordenar(c, {orden}), Textos{MAL}) << orden;
    EXPECT_EQ(Ordenar(c, {orden, "25"}), Textos{MAL}) << orden;
    EXPECT_EQ(Ordenar(c, {orden, "25", "50", "90000", "1"}), Textos{MAL}) << orden;
    EXPECT_EQ(c.temperatura(), 25.0F);
    EXPECT_EQ(c.presion(), 101325.0F);
  }
}

TEST(OrdenesAire, CadaEstadoLlegaASuOperacion) {
  struct Caso {
    const char *orden;
    void (CorrienteAire::*operacion)(float, float, float);
    const char *a, *b;
  };
  for (const Caso &k : {Caso{"pont_w", &CorrienteAire::pont_w, "20", "0.005"},
                        Caso{"pont_th", &CorrienteAire::pont_th, "20", "15"},
                        Caso{"pont_tr", &CorrienteAire::pont_tr, "20", "11"},
                        Caso{"pont_hr", &CorrienteAire::pont_hr, "20", "35"},
                        Caso{"pont_h", &CorrienteAire::pont_h, "20", "41000"},
                        Caso{"ponw_h", &CorrienteAire::ponw_h, "0.0062", "50000"}}) {
    CorrienteAire ordenada;
    CorrienteAire directa;
    EXPECT_TRUE(Ordenar(ordenada, {k.orden, k.a, k.b, "99000"}).empty()) << k.orden;
    (directa.*k.operacion)(std::stof(k.a), std::stof(k.b), 99000.0F);
    EXPECT_EQ(ordenada.temperatura(), directa.temperatura()) << k.orden;
    EXPECT_EQ(ordenada.humedadAbsoluta(), directa.humedadAbsoluta()) << k.orden;
    EXPECT_EQ(ordenada.presion(), 99000.0F) << k.orden;
  }
}

TEST(OrdenesAire, CuentaSoloElComienzoDeLaPalabra) {
  CorrienteAire c;
  EXPECT_TRUE(Ordenar(c, {"pont_hrx", "30", "40"}).empty());
  EXPECT_EQ(c.temperatura(), 30.0F);
  // "pont_hr" gana a "pont_h", y "ponmucho" es "ponm".
  EXPECT_EQ(Ordenar(c, {"ponmucho", "7", "kg/s"}), Textos{});
  EXPECT_EQ(c.caudal(), 7.0F);
  EXPECT_EQ(Ordenar(c, {"pont_hola", "25", "60000"}), Textos{});
  EXPECT_NEAR(static_cast<double>(c.dame("h")), 60000.0, 0.1);
}

TEST(OrdenesAire, DameTapaALosCaloresQueNoSeAlcanzanNunca) {
  CorrienteAire a("a");
  CorrienteAire b("b");
  b.pont_hr(35.0F, 50.0F, 101325.0F);
  EXPECT_EQ(Ordenar(a, {"dameQSen", "a", "b"}), Textos{"0.000000"});
  EXPECT_EQ(Ordenar(a, {"dameQLat", "t", "b"}), Textos{"25.000000"});
}

TEST(OrdenesAire, DameEscribeSeisDecimalesYCeroParaLoDesconocido) {
  CorrienteAire c;
  EXPECT_EQ(Dame(c, "hr"), "50.000001"); // w es un float y 50 no vuelve exacto
  EXPECT_EQ(Dame(c, "xx"), "0.000000");
  EXPECT_EQ(Ordenar(c, {"dame"}), Textos{"0.000000"});
}

TEST(OrdenesAire, UnaOrdenDesconocidaNombraSuPrimerArgumento) {
  CorrienteAire c;
  EXPECT_EQ(Ordenar(c, {"borrar", "algo"}),
            Textos{"** La función algo no peretenece a la clase CorrrienteAire"});
  EXPECT_EQ(Ordenar(c, {"borrar"}), Textos{"** La función  no peretenece a la clase CorrrienteAire"});
  EXPECT_EQ(Ordenar(c, {}), Textos{"** La función  no peretenece a la clase CorrrienteAire"});
  EXPECT_EQ(Ordenar(c, {"Dame", "t"}), Textos{"** La función t no peretenece a la clase CorrrienteAire"});
  EXPECT_EQ(Ordenar(c, {"pon", "t"}), Textos{"** La función t no peretenece a la clase CorrrienteAire"});
}

TEST(OrdenesAire, SinVectorDeArgumentosNoSeLeeNada) {
  prueba::RegistroApuntado registro;
  CorrienteAire c;
  c.ProcesarOrden(0, nullptr);
  c.ProcesarOrden(5, nullptr);
  const char *conHuecos[] = {"c", "dame", nullptr};
  c.ProcesarOrden(3, conHuecos);
  EXPECT_EQ(registro.textos, (Textos{"** La función  no peretenece a la clase CorrrienteAire",
                                     "** La función  no peretenece a la clase CorrrienteAire", "0.000000"}));
}

TEST(OrdenesAire, PonNombreCambiaElNombrePorElQueSeEncuentra) {
  CorrienteAire c("antes");
  EXPECT_TRUE(Ordenar(c, {"ponNombre", "después"}).empty());
  EXPECT_EQ(c.Nombre(), "después");
  EXPECT_EQ(BuscarCorriente("después"), &c);
  EXPECT_EQ(BuscarCorriente("antes"), nullptr);
  EXPECT_TRUE(Ordenar(c, {"ponNombre"}).empty());
  EXPECT_EQ(c.Nombre(), "");
}

TEST(OrdenesAire, PonmNoMiraCuantosArgumentosHay) {
  CorrienteAire c;
  EXPECT_TRUE(Ordenar(c, {"ponm", "7200", "kg/h", "sobra", "y", "sobra"}).empty());
  EXPECT_EQ(c.caudal(), 2.0F);
  const char *noValido = "** cod no valido: Void CorrienteAire::ponm(char* cod, float m_)";
  EXPECT_EQ(Ordenar(c, {"ponm", "3"}), Textos{noValido});
  EXPECT_EQ(Ordenar(c, {"ponm"}), Textos{noValido});
  EXPECT_EQ(c.caudal(), 2.0F);
}

TEST(OrdenesAire, MostrarDaLosNueveTextos) {
  CorrienteAire c;
  const Textos textos = Ordenar(c, {"mostrar"});
  ASSERT_EQ(textos.size(), 9U);
  EXPECT_EQ(textos[1], "Temperatura (C): 25.000000 ");
}

TEST(OrdenesAire, EscribirDejaElInformeEnElFicheroYElRegistroCerrado) {
  const prueba::DirectorioTemporal directorio;
  const std::string ruta = (directorio / "informe").string();
  CorrienteAire c;
  std::string esperado;
  for (const std::string &t : Ordenar(c, {"mostrar"})) esperado += t;
  EXPECT_TRUE(Ordenar(c, {"escribir", ruta.c_str()}).empty());
  EXPECT_FALSE(RegistroAbierto());
  EXPECT_EQ(LeerFicheroEntero(ruta), esperado);
  EXPECT_TRUE(Ordenar(c, {"escribir"}).empty()); // sin ruta no hay dónde
}

TEST(OrdenesAire, MezclarBuscaLasTresCorrientesPorSuNombre) {
  CorrienteAire a("a");
  CorrienteAire b("b");
  CorrienteAire r("r");
  a.pont_hr(35.0F, 40.0F, 101325.0F);
  a.ponm(2.0F, "kg/s");
  EXPECT_TRUE(Ordenar(b, {"mezclar", "a", "b", "r"}).empty());
  EXPECT_EQ(r.caudal(), 17.0F);
  CorrienteAire esperada;
  mezclar(a, b, esperada);
  EXPECT_EQ(r.temperatura(), esperada.temperatura());
  EXPECT_EQ(r.humedadAbsoluta(), esperada.humedadAbsoluta());
}

TEST(OrdenesAire, MezclarConUnaCorrienteQueFaltaTerminaTrasDecirlo) {
  CorrienteAire a("a");
  CorrienteAire b("b");
  EXPECT_EQ(Ordenar(a, {"mezclar", "x", "b", "a"}), Textos{FALTA});
  EXPECT_EQ(Ordenar(a, {"mezclar", "a", "x", "b"}), Textos{FALTA});
  EXPECT_EQ(Ordenar(a, {"mezclar", "a", "b", "x"}), Textos{FALTA});
  EXPECT_EQ(Ordenar(a, {"mezclar", "a", "b"}), Textos{FALTA});
  EXPECT_EQ(Ordenar(a, {"mezclar", "A", "b", "a"}), Textos{FALTA});
  EXPECT_EQ(a.caudal(), 15.0F);
  EXPECT_EQ(b.caudal(), 15.0F);
}

TEST(OrdenesAire, MezclarConPresionesDistintasLoDice) {
  CorrienteAire a("a");
  CorrienteAire b("b");
  b.pont_hr(20.0F, 50.0F, 90000.0F);
  EXPECT_EQ(Ordenar(a, {"mezclar", "a", "b", "a"}),
            Textos{"**Las dos corrientes deben tener la misma presión,mezclar"});
}

TEST(OrdenesAire, MezclarSobreUnaEntradaTrabajaEnElOrdenEscrito) {
  CorrienteAire a("a");
  CorrienteAire b("b");
  a.pont_hr(35.0F, 30.0F, 101325.0F);
  a.ponm(2.0F, "kg/s");
  b.ponm(5.0F, "kg/s");
  const double w = (7.0 * static_cast<double>(a.dame("w")) + 5.0 * static_cast<double>(b.dame("w"))) / 7.0;
  EXPECT_TRUE(Ordenar(a, {"mezclar", "a", "b", "a"}).empty());
  EXPECT_EQ(a.caudal(), 7.0F);
  EXPECT_EQ(a.humedadAbsoluta(), static_cast<float>(w));
}

TEST(OrdenesAire, LoQueSeAcotaLoDiceLaOperacion) {
  CorrienteAire c;
  EXPECT_EQ(Ordenar(c, {"pont_hr", "nada", "150"}),
            Textos{"**Maximo revasado 150.000000 > 100.000000, se toma 100.000000: CorrienteAire::pont_hr"});
  EXPECT_EQ(c.temperatura(), 0.0F); // un texto que no es número vale 0
}
