#include "cli/Guioncorrientes.h"

#include "core/Error.h"
#include "psicro/Registrocorrientes.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tesmo::cli {
namespace {

using Palabras = std::vector<std::string>;

TEST(PartirLinea, PorBlancosSeguidosYTabuladores) {
  EXPECT_EQ(PartirLinea("  aire\t pont_hr  25 50 \r").palabras, (Palabras{"aire", "pont_hr", "25", "50"}));
  EXPECT_TRUE(PartirLinea("").palabras.empty());
  EXPECT_TRUE(PartirLinea(" \t\r").palabras.empty());
}

TEST(PartirLinea, LasComillasJuntanYValenVacias) {
  EXPECT_EQ(PartirLinea("\"aire de fuera\" mostrar").palabras, (Palabras{"aire de fuera", "mostrar"}));
  EXPECT_EQ(PartirLinea("a ponNombre \"\"").palabras, (Palabras{"a", "ponNombre", ""}));
  EXPECT_EQ(PartirLinea("a escribir mi\" fich\"ero").palabras, (Palabras{"a", "escribir", "mi fichero"}));
}

TEST(PartirLinea, LaAlmohadillaEmpiezaUnComentarioFueraDeComillas) {
  EXPECT_EQ(PartirLinea("a dame t # la seca").palabras, (Palabras{"a", "dame", "t"}));
  EXPECT_EQ(PartirLinea("a dame t#seca").palabras, (Palabras{"a", "dame", "t"}));
  EXPECT_TRUE(PartirLinea("# nada").palabras.empty());
  EXPECT_EQ(PartirLinea("\"a#1\" dame").palabras, (Palabras{"a#1", "dame"}));
}

TEST(PartirLinea, LasComillasSinCerrarLleganAlFinalYSeDicen) {
  const LineaPartida partida = PartirLinea("a ponNombre \"uno # dos\r");
  EXPECT_EQ(partida.palabras, (Palabras{"a", "ponNombre", "uno # dos"}));
  EXPECT_TRUE(partida.comillasSinCerrar);
  EXPECT_FALSE(PartirLinea("a ponNombre \"uno\"").comillasSinCerrar);
}

class Guion : public ::testing::Test {
protected:
  Palabras textos_;
  GuionCorrientes guion_{[this](std::string_view texto) { textos_.emplace_back(texto); }};
};

TEST_F(Guion, ElNombreNuevoCreaUnaCorrienteYElConocidoLaEncuentra) {
  EXPECT_TRUE(guion_.Ejecutar({"a", "pont_w", "30", "0.01"}));
  EXPECT_TRUE(guion_.Ejecutar({"a", "dame", "t"}));
  EXPECT_EQ(textos_, (Palabras{"30.000000"}));
}

TEST_F(Guion, TrasCambiarDeNombreElViejoEsOtraCorriente) {
  guion_.Ejecutar({"a", "pont_w", "30", "0.01"});
  guion_.Ejecutar({"a", "ponNombre", "b"});
  guion_.Ejecutar({"b", "dame", "t"});
  guion_.Ejecutar({"a", "dame", "t"});
  EXPECT_EQ(textos_, (Palabras{"30.000000", "25.000000"}));
}

TEST_F(Guion, SinOrdenSeEscribeLaFuncionDesconocidaVacia) {
  guion_.Ejecutar({"a"});
  EXPECT_EQ(textos_, (Palabras{"** La función  no peretenece a la clase CorrrienteAire"}));
}

TEST_F(Guion, SinPalabrasNoHaceNada) {
  EXPECT_TRUE(guion_.Ejecutar({}));
  EXPECT_TRUE(textos_.empty());
  EXPECT_EQ(InscripcionCorriente::Primera(), nullptr);
}

TEST_F(Guion, CandidatosPorLugarEnLaLinea) {
  guion_.Ejecutar({"fuera", "pont_w", "30", "0.01"});
  EXPECT_EQ(GuionCorrientes::Candidatos({}), (Palabras{"fuera", "ayuda", "salir"}));
  const Palabras ordenes = GuionCorrientes::Candidatos({"fuera"});
  EXPECT_EQ(ordenes.size(), 12U);
  EXPECT_EQ(std::count(ordenes.begin(), ordenes.end(), "mezclar"), 1);
  EXPECT_EQ(GuionCorrientes::Candidatos({"fuera", "mezclar", "fuera"}), (Palabras{"fuera"}));
  EXPECT_EQ(GuionCorrientes::Candidatos({"fuera", "dame"}).size(), 10U);
  EXPECT_EQ(GuionCorrientes::Candidatos({"fuera", "ponm", "3"}).front(), "kg/s");
  EXPECT_TRUE(GuionCorrientes::Candidatos({"fuera", "escribir"}).empty());
}

TEST(GuionAlMorir, CierraElRegistroYSusCorrientes) {
  {
    GuionCorrientes guion([](std::string_view) {});
    guion.Ejecutar({"a", "mostrar"});
    EXPECT_TRUE(RegistroAbierto());
  }
  EXPECT_FALSE(RegistroAbierto());
  EXPECT_EQ(BuscarCorriente("a"), nullptr);
}

} // namespace
} // namespace tesmo::cli
