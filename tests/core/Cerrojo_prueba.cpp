#include "core/Cerrojo.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

#include <memory>

namespace tesmo {
namespace {

TEST(Cerrojo, SoloUnoLoTieneHastaQueLoSuelta) {
  const prueba::DirectorioTemporal directorio;
  auto primero = std::make_unique<CerrojoDirectorio>(directorio.Ruta());
  EXPECT_TRUE(primero->Tomado());
  EXPECT_FALSE(CerrojoDirectorio(directorio.Ruta()).Tomado());
  primero.reset();
  EXPECT_TRUE(CerrojoDirectorio(directorio.Ruta()).Tomado());
}

TEST(Cerrojo, NoDejaNadaEnElDirectorio) {
  const prueba::DirectorioTemporal directorio;
  { const CerrojoDirectorio cerrojo(directorio.Ruta()); }
  EXPECT_TRUE(std::filesystem::is_empty(directorio.Ruta()));
}

TEST(Cerrojo, SinDirectorioNoDetieneANadie) {
  const prueba::DirectorioTemporal directorio;
  EXPECT_TRUE(CerrojoDirectorio(directorio / "nohay").Tomado());
}

} // namespace
} // namespace tesmo
