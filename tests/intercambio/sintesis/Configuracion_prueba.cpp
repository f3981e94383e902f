#include "core/Lectorclaves.h"

#include "tests/comun/Apoyos.h"
#include "tests/comun/Lugares.h"

#include <gtest/gtest.h>

#include <array>

namespace tesmo {
namespace {

constexpr std::array<std::string_view, 11> CLAVES{"PER ", "MET ", "TMP ", "RES ", "LIB ", "EXE ",
                                                  "DAT",  "IMG",  "FOT",  "DOC",  "BIN"};

std::string Configuracion() {
  return prueba::Contenido(RutaDesdeTexto(tesmo::prueba::Raiz() + "/datos/config.ini"));
}

TEST(ConfiguracionDelPrograma, ElEncabezamientoNoContieneNingunaClave) {
  const std::string texto = Configuracion();
  const std::string primera = texto.substr(0, texto.find('\n'));
  ASSERT_FALSE(primera.empty());
  for (std::string_view clave : CLAVES) EXPECT_EQ(primera.find(clave), std::string::npos) << clave;
}

TEST(ConfiguracionDelPrograma, CadaClaveTieneUnDirectorioRelativoConSeparadorFinal) {
  const LectorClaves lector(Configuracion());
  for (std::string_view clave : CLAVES) {
    std::string valor;
    ASSERT_EQ(lector.LeerClave(clave, valor), 0) << clave;
    EXPECT_FALSE(valor.starts_with('/')) << clave;
    EXPECT_TRUE(valor.ends_with('/')) << clave << valor;
  }
}

TEST(ConfiguracionDelPrograma, LosDirectoriosQueElProgramaUsaSonLosQueEscribeLaSintesis) {
  const LectorClaves lector(Configuracion());
  std::string valor;
  lector.LeerClave("MET ", valor);
  EXPECT_EQ(valor, "Meteo/");
  lector.LeerClave("PER ", valor);
  EXPECT_EQ(valor, "Perfiles/");
  lector.LeerClave("RES ", valor);
  EXPECT_EQ(valor, "Resultados/");
}

} // namespace
} // namespace tesmo
