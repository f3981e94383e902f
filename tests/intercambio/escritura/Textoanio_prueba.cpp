#include "intercambio/escritura/Textoanio.h"
#include "tests/intercambio/escritura/Apoyosescritura.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

TEST(SalidaDeUnAnio, LaExtensionDiceElFormato) {
  EXPECT_EQ(FormatoDeSalida("a.met"), FormatoSalida::Met);
  EXPECT_EQ(FormatoDeSalida("a.b.EPW"), FormatoSalida::Epw);
  EXPECT_EQ(FormatoDeSalida("/x.epw/a.Csv"), FormatoSalida::Csv);
  for (const char *otro : {"a.txt", "epw", "", "a.epw.gz"}) EXPECT_FALSE(FormatoDeSalida(otro)) << otro;
}

TEST(SalidaDeUnAnio, CadaFormatoEmpiezaComoDebe) {
  const AnioSolar anio = prueba::AnioAMano();
  EXPECT_TRUE(
      TextoDeAnio(anio, FormatoSalida::Met).starts_with("Escrito por Tesmo: Prueba\n37.25 -3.5 680 15.0\n"));
  EXPECT_TRUE(TextoDeAnio(anio, FormatoSalida::Epw).starts_with("LOCATION,Prueba,"));
  EXPECT_TRUE(TextoDeAnio(anio, FormatoSalida::Csv).starts_with("mes,día,hora,Temperatura seca (ºC),"));
}

TEST(SalidaDeUnAnio, ElHusoEsElDelMeridianoSiEsDeUnHusoYNoEstaLejos) {
  EXPECT_EQ(HusoDeSitio(15.0, -3.7), 1.0);
  EXPECT_EQ(HusoDeSitio(82.5, 77.2), 5.5); // India
  EXPECT_EQ(HusoDeSitio(-3.7, -3.7), 0.0); // su propio meridiano no es el de un huso
  EXPECT_EQ(HusoDeSitio(0.0, -100.0), -7.0);
  EXPECT_EQ(HusoDeSitio(AUSENTE, 139.7), 9.0);
  EXPECT_EQ(HusoDeSitio(86.25, 85.3), 5.75);     // Nepal
  EXPECT_EQ(HusoDeSitio(120.0, 75.99), 8.0);     // Kasgar, con la hora de Pekín
  EXPECT_EQ(HusoDeSitio(191.25, -176.5), 12.75); // Chatham, al otro lado del cambio de fecha
  EXPECT_EQ(HusoDeSitio(-3.75, -3.75), 0.0);
  EXPECT_EQ(HusoDeSitio(15.0, AUSENTE), 1.0);
}

} // namespace
} // namespace tesmo
