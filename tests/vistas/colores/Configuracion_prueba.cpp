#include "vistas/colores/Configuracion.h"

#include "core/Ficheros.h"
#include "core/Rutas.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>
#include <set>

using namespace tesmo;

TEST(Configuracion, EmpiezaConLosColoresDeFabrica) {
  const Configuracion tabla;
  EXPECT_EQ(tabla.dameColor(0, 0), 0x8080FFU);  // temperatura seca
  EXPECT_EQ(tabla.dameColor(7, 0), 0xFF0080U);  // altura
  EXPECT_EQ(tabla.dameColor(20, 0), 0xDB9BDAU); // global
  std::set<std::uint32_t> distintos;
  for (int i = 0; i < 21; ++i) distintos.insert(tabla.dameColor(i, 0));
  EXPECT_EQ(distintos.size(), 21U);
}

TEST(Configuracion, UnIndiceMayorDaElColorPorDefectoYNoGuardaNada) {
  Configuracion tabla;
  EXPECT_EQ(tabla.dameColor(21, 0x123456U), 0x123456U);
  EXPECT_EQ(tabla.dameColor(-1, 0x123456U), 0x123456U);
  tabla.ponColor(21, 1U);
  tabla.ponColor(-1, 1U);
  for (int i = 0; i < 21; ++i) EXPECT_NE(tabla.dameColor(i, 0), 1U);
}

TEST(Configuracion, PonColorGuardaYLiberarVuelveALosDeFabrica) {
  DameTablaDeColores().ponColor(3, 0x010203U);
  EXPECT_EQ(DameTablaDeColores().dameColor(3, 0), 0x010203U);
  LiberarTablaDeColores();
  EXPECT_EQ(DameTablaDeColores().dameColor(3, 0), 0x80FF80U);
  LiberarTablaDeColores();
}

namespace {

/// Los bytes del fichero con los colores de fábrica.
constexpr const char *DE_FABRICA = "Configuraci\xF3n para el programa Tesmo-A\n"
                                   "COLOR-TS   = 8421631.000000\n"
                                   "COLOR-RSDr = 33023.000000\n"
                                   "COLOR-RSDf = 255.000000\n"
                                   "COLOR-HA   = 8454016.000000\n"
                                   "COLOR-VV   = 32768.000000\n"
                                   "COLOR-DV   = 65535.000000\n"
                                   "COLOR-C    = 16744703.000000\n"
                                   "COLOR-AL   = 16711808.000000\n"
                                   "COLOR-HA   = 8454016.000000\n"
                                   "COLOR-Az   = 16777088.000000\n"
                                   "COLOR-TC   = 3317722.000000\n"
                                   "COLOR-TR   = 8404992.000000\n"
                                   "COLOR-TH   = 7842453.000000\n"
                                   "COLOR-HR   = 4194432.000000\n"
                                   "COLOR-E    = 16711680.000000\n"
                                   "COLOR-VE   = 128.000000\n"
                                   "COLOR-CE   = 32896.000000\n"
                                   "COLOR-DN   = 8388736.000000\n"
                                   "COLOR-Dr   = 12632256.000000\n"
                                   "COLOR-Df   = 16744448.000000\n"
                                   "COLOR-R    = 12615808.000000\n"
                                   "COLOR-G    = 14392282.000000\n";
constexpr int ALTURA = 7;
constexpr int CENIT = 6;

} // namespace

TEST(FicheroDeColores, SeEscribeByteAByte) { EXPECT_EQ(Configuracion().Bytes(), DE_FABRICA); }

TEST(FicheroDeColores, ConComaDecimalSeEscribeIgual) {
  const prueba::ConSeparador coma(',');
  EXPECT_EQ(Configuracion().Bytes(), DE_FABRICA);
}

TEST(FicheroDeColores, LaSegundaHumedadAbsolutaRepiteElColorDeLaPrimera) {
  Configuracion tabla;
  tabla.ponColor(3, 5U);
  const std::string bytes = tabla.Bytes();
  const std::string linea = "COLOR-HA   = 5.000000\n";
  const std::size_t primera = bytes.find(linea);
  ASSERT_NE(primera, std::string::npos);
  EXPECT_NE(bytes.find(linea, primera + 1), std::string::npos);
}

TEST(FicheroDeColores, AlLeerLoEscritoLaAlturaQuedaComoElCenit) {
  Configuracion escrita;
  for (int i = 0; i < 21; ++i) escrita.ponColor(i, 1000U * static_cast<std::uint32_t>(i + 1));
  Configuracion leida;
  leida.leerTexto(escrita.Bytes());
  for (int i = 0; i < 21; ++i) {
    const int esperado = i == ALTURA ? CENIT : i;
    EXPECT_EQ(leida.dameColor(i, 0), escrita.dameColor(esperado, 0)) << i;
  }
}

TEST(FicheroDeColores, UnaClaveDeLaAlturaEscritaAManoSiSeLee) {
  Configuracion tabla;
  tabla.leerTexto("a mano\nCOLOR-Al = 255.000000\n");
  EXPECT_EQ(tabla.dameColor(ALTURA, 0), 255U);
}

TEST(FicheroDeColores, SinLaPrimeraClaveEmpiezaPorCeroYLasQueFaltanRepitenLaAnterior) {
  Configuracion tabla;
  tabla.leerTexto("x COLOR-RSDf = 7.000000");
  EXPECT_EQ(tabla.dameColor(0, 1), 0U);
  EXPECT_EQ(tabla.dameColor(1, 1), 0U);
  for (int i = 2; i < 21; ++i) EXPECT_EQ(tabla.dameColor(i, 1), 7U) << i;
}

TEST(FicheroDeColores, UnaClaveEnElPrimerByteCuentaComoAusente) {
  Configuracion tabla;
  tabla.leerTexto("COLOR-TS = 7.000000\n");
  EXPECT_EQ(tabla.dameColor(0, 1), 0U);
}

TEST(FicheroDeColores, ElCalorEspecificoNoSeConfundeConElCenit) {
  Configuracion tabla;
  tabla.leerTexto("x COLOR-CE = 9.0 COLOR-C = 4.0");
  EXPECT_EQ(tabla.dameColor(CENIT, 1), 4U);
  EXPECT_EQ(tabla.dameColor(15, 1), 9U);
}

TEST(FicheroDeColores, LoQueNoEsNumeroDejaElAnteriorYLoQueSeSaleSeAcota) {
  Configuracion tabla;
  tabla.leerTexto("x COLOR-TS = 5.0\nCOLOR-RSDr = rojo\nCOLOR-RSDf = -3\nCOLOR-HA = 1e30\nCOLOR-VV = nan\n");
  EXPECT_EQ(tabla.dameColor(0, 1), 5U);
  EXPECT_EQ(tabla.dameColor(1, 1), 5U);
  EXPECT_EQ(tabla.dameColor(2, 1), 0U);
  EXPECT_EQ(tabla.dameColor(3, 1), 0xFFFFFFU);
  EXPECT_EQ(tabla.dameColor(4, 1), 0xFFFFFFU);
}

class FicheroDeColoresEnDisco : public ::testing::Test {
protected:
  FicheroDeColoresEnDisco() {
    directorio_.Escribir("config.ini", "x EXE = Programa/\n");
    std::filesystem::create_directory(directorio_ / "Programa");
    IniciarConfiguracion(TextoDeRuta(directorio_.Ruta()));
  }
  ~FicheroDeColoresEnDisco() override { LiberarConfiguracion(); }
  prueba::DirectorioTemporal directorio_;
};

TEST_F(FicheroDeColoresEnDisco, SinFicheroLaTablaQuedaComoEstaba) {
  Configuracion tabla;
  tabla.ponColor(2, 9U);
  tabla.leer();
  EXPECT_EQ(tabla.dameColor(2, 0), 9U);
  EXPECT_EQ(tabla.dameColor(0, 0), 0x8080FFU);
}

TEST_F(FicheroDeColoresEnDisco, EstaEnElDirectorioDelPrograma) {
  Configuracion tabla;
  tabla.ponColor(20, 77U);
  EXPECT_TRUE(tabla.escribirConfiguracion());
  EXPECT_EQ(prueba::Contenido(directorio_ / "Programa/tesmo.inp"), tabla.Bytes());
  Configuracion otra;
  otra.leer();
  EXPECT_EQ(otra.dameColor(20, 0), 77U);
}

TEST_F(FicheroDeColoresEnDisco, SiNoSePuedeEscribirNoSeDiceNada) {
  const prueba::MensajesApuntados mensajes;
  std::filesystem::create_directory(directorio_ / "Programa/tesmo.inp");
  EXPECT_FALSE(Configuracion().escribirConfiguracion());
  EXPECT_TRUE(mensajes.apuntes.empty());
}
