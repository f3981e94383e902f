#include "core/Ficheros.h"
#include "psicro/Corrienteaire.h"
#include "tests/comun/Apoyos.h"

#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>

using namespace tesmo;

namespace {

/// Lo que escribiría la biblioteca de C; las pruebas corren en la región C.
std::string F(long double valor) {
  char bufer[64];
  std::snprintf(bufer, sizeof bufer, "%f", static_cast<double>(valor));
  return bufer;
}

std::string Informe(const CorrienteAire &c) {
  prueba::RegistroApuntado registro;
  c.mostrar();
  std::string todo;
  for (const auto &t : registro.textos) todo += t;
  return todo;
}

} // namespace

TEST(InformeAire, MostrarEscribeNueveTextosSinFinDeLinea) {
  CorrienteAire c;
  c.pont_w(20.0F, 0.0078125F, 101325.0F);
  prueba::RegistroApuntado registro;
  c.mostrar();
  const std::vector<std::string> esperado{
      "Caudal masico (kg/s): 15.000000",
      "Temperatura (C): 20.000000 ",
      "Presion (Pa): 101325.000000",
      "Humedad Absoluta (kg agua/kg a.s.): 0.007812", // 0.0078125: empate al par
      "Humedad Relativa (%): " + F(c.dame("hr")),
      "Temperatura de Rocio (C): " + F(c.dame("tr")),
      "Temperatura humeda (C): " + F(c.dame("th")),
      "Entalpia (J/kg): 39941.093750", // (1805·20 + 2501000)·0.0078125 + 20120
      "Densidad (kg/m^3): " + F(c.dame("ro")),
  };
  EXPECT_EQ(registro.textos, esperado);
}

TEST(InformeAire, EscribirSustituyeElFicheroYDejaElRegistroCerrado) {
  const prueba::DirectorioTemporal directorio;
  const std::string ruta = (directorio / "aire.txt").string();
  ASSERT_TRUE(EscribirFicheroEntero(ruta, "lo que había"));
  const CorrienteAire c;
  const std::string esperado = Informe(c);
  prueba::RegistroApuntado registro;
  c.escribir(ruta);
  EXPECT_FALSE(RegistroAbierto());
  EscribirRegistro("perdido");
  EXPECT_TRUE(registro.textos.empty());
  EXPECT_EQ(LeerFicheroEntero(ruta), esperado);
}

TEST(InformeAire, EscribirDondeNoSePuedeNoDejaNada) {
  const prueba::DirectorioTemporal directorio;
  const CorrienteAire c;
  c.escribir(directorio.Ruta().string()); // un directorio en lugar de un fichero
  EXPECT_FALSE(RegistroAbierto());
  EXPECT_TRUE(std::filesystem::is_empty(directorio.Ruta()));
}
