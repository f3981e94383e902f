#include "core/Lectorclaves.h"
#include "tests/comun/Apoyos.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <new>
#include <random>
#include <stdexcept>

using namespace tesmo;

namespace {

std::string Leida(std::string_view contenido, std::string_view clave) {
  std::string valor = "(intacto)";
  LectorClaves(contenido).LeerClave(clave, valor);
  return valor;
}

} // namespace

TEST(LectorClaves, LaClaveLlevaSuBlanco) {
  EXPECT_EQ(Leida("; nota\nMET=Meteo\\ \n", "MET "), "(intacto)");
  EXPECT_EQ(Leida("; nota\nMET =Meteo\\ \n", "MET "), "Meteo\\");
}

TEST(LectorClaves, UnValorSinComillasAcabaEnElPrimerBlanco) {
  EXPECT_EQ(Leida("; x\nRES = Mis resultados\\\n", "RES "), "Mis");
  EXPECT_EQ(Leida("; x\nRES = \"Mis resultados\\\"\n", "RES "), "Mis resultados\\");
}

TEST(LectorClaves, UnaClaveEnElPrimerCaracterCuentaComoAusente) {
  std::string valor = "antes";
  EXPECT_EQ(LectorClaves("MET = a\\ MET = b\\ ").LeerClave("MET ", valor), -1);
  EXPECT_EQ(valor, "antes");
}

TEST(LectorClaves, GanaLaPrimeraAparicion) {
  EXPECT_EQ(Leida("; MET = uno\\\nMET = dos\\\n", "MET "), "uno\\");
}

TEST(LectorClaves, LosFinesDeLineaSonBlancosYSeJuntan) {
  EXPECT_EQ(Leida(";\r\nMET\r\n  =\n\n  Meteo/\r\nRES = R/", "MET "), "Meteo/");
  EXPECT_EQ(Leida(";\r\nMET\r\n  =\n\n  Meteo/\r\nRES = R/", "RES "), "R/");
}

TEST(LectorClaves, UnValorAlFinalDelTextoEstaCompleto) { EXPECT_EQ(Leida("; MET = M/", "MET "), "M/"); }

TEST(LectorClaves, FaltarLaClaveOElIgualDaMenosUno) {
  std::string valor = "x";
  EXPECT_EQ(LectorClaves("; nada").LeerClave("MET ", valor), -1);
  EXPECT_EQ(LectorClaves("; MET y nada").LeerClave("MET ", valor), -1);
  EXPECT_EQ(LectorClaves().LeerClave("MET ", valor), -1);
  EXPECT_EQ(valor, "x");
}

TEST(LectorClaves, UnaComillaSinCerrarLlegaHastaElFinal) {
  EXPECT_EQ(Leida("; MET = \"Mis datos/", "MET "), "Mis datos/");
}

TEST(LectorClaves, EntiendeWindows1252) {
  EXPECT_EQ(Leida("; MET = Almer\xED"
                  "a/ ",
                  "MET "),
            "Almería/");
}

TEST(LectorClaves, UnRealSeLeeConPuntoYSuFaltaNoTocaNada) {
  const LectorClaves lector("; COLOR-TS = 8421631.000000 COLOR-C = rojo COLOR-X = +12.5e1,7");
  float valor = 3.0F;
  EXPECT_EQ(lector.LeerClaveReal("COLOR-TS ", valor), 0);
  EXPECT_EQ(valor, 8421631.0F);
  EXPECT_EQ(lector.LeerClaveReal("COLOR-C ", valor), -1);
  EXPECT_EQ(lector.LeerClaveReal("COLOR-Z ", valor), -1);
  EXPECT_EQ(valor, 8421631.0F);
  EXPECT_EQ(lector.LeerClaveReal("COLOR-X ", valor), 0);
  EXPECT_EQ(valor, 125.0F);
  EXPECT_EQ(LectorClaves("; A = +-5").LeerClaveReal("A ", valor), -1);
  EXPECT_EQ(valor, 125.0F);
  EXPECT_EQ(LectorClaves("; A = 1e-50").LeerClaveReal("A ", valor), 0);
  EXPECT_EQ(valor, 0.0F);
}

TEST(LectorClaves, TextosVaciosBinariosYEnormesNoTienenClaves) {
  EXPECT_EQ(Leida("", "MET "), "(intacto)");
  EXPECT_EQ(Leida(std::string_view("\0\1\2\xFF=\0", 6), "MET "), "(intacto)");
  EXPECT_EQ(Leida(std::string(1'000'000, 'x'), "MET "), "(intacto)");
  EXPECT_EQ(Leida("; MET = " + std::string(100'000, 'd') + "/", "MET ").size(), 100'001U);
}

TEST(LectorClaves, MutacionesNoRompenNiInventanValores) {
  std::mt19937 azar(742);
  const std::string semilla =
      "; rutas\r\nPER = Perfiles\\\nMET = \"Mis datos\\\"\nCOLOR-TS   = 8421631.000000\n";
  int hallados = 0;
  for (int vuelta = 0; vuelta < 20'000; ++vuelta) {
    std::string texto = semilla;
    for (auto n = azar() % 6; n > 0 && !texto.empty(); --n) {
      const std::size_t donde = azar() % texto.size();
      switch (azar() % 4) {
      case 0:
        texto[donde] = static_cast<char>(azar());
        break;
      case 1:
        texto.erase(donde, 1 + azar() % 9);
        break;
      case 2:
        texto.insert(donde, azar() % 2 == 0 ? "\"" : "=");
        break;
      default:
        texto.resize(donde);
        break;
      }
    }
    const LectorClaves lector(texto);
    std::string valor = "(intacto)";
    const int estado = lector.LeerClave("MET ", valor);
    EXPECT_EQ(estado == -1, valor == "(intacto)");
    EXPECT_LE(valor.size(), 2 * texto.size() + 9);
    float real = -1.0F;
    const bool leido = lector.LeerClaveReal("COLOR-TS ", real) == 0;
    EXPECT_EQ(leido, real != -1.0F);
    hallados += estado == 0 ? 1 : 0;
  }
  EXPECT_GT(hallados, 5'000);
  EXPECT_LT(hallados, 20'000);
}

TEST(LectorClaves, UnFicheroSeLeeYUnoQueFaltaNoDaClaves) {
  const tesmo::prueba::DirectorioTemporal directorio;
  directorio.Escribir("a.ini", "; MET = M/\n");
  std::string valor;
  const auto lector = LeerFicheroDeClaves(directorio / "a.ini");
  ASSERT_TRUE(lector.has_value());
  EXPECT_EQ(lector->LeerClave("MET ", valor), 0);
  EXPECT_EQ(valor, "M/");
  EXPECT_FALSE(LeerFicheroDeClaves(directorio / "no.ini").has_value());
}

#ifdef GTEST_HAS_DEATH_TEST
namespace {

/// Lee con la salida estándar donde la mira la prueba de muerte, que es la de errores.
template <typename Fallo>
void LeerSinMemoria() {
  std::setvbuf(stdout, nullptr, _IONBF, 0);
  stdout = stderr; // en este proceso, que va a morir
  (void)LeerFicheroDeClaves("x.ini", [](const auto &) -> std::optional<std::string> { throw Fallo(); });
}

struct TextoEnorme : std::length_error {
  TextoEnorme() : std::length_error("enorme") {}
};

} // namespace

TEST(LectorClavesDeathTest, SinMemoriaLoDiceYAborta) {
  EXPECT_DEATH(LeerSinMemoria<std::bad_alloc>(), "^No hay suficiente memoria\\.\n");
  EXPECT_DEATH(LeerSinMemoria<TextoEnorme>(), "^No hay suficiente memoria\\.\n");
}
#endif
