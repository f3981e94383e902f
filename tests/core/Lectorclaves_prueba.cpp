#include "core/Lectorclaves.h"

#include <gtest/gtest.h>

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
}
