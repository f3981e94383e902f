// Perfiles de horizonte reales: sólo donde está la carpeta de datos de referencia.

#include "core/Ficheros.h"
#include "solar/Formatoshorizonte.h"
#include "tests/comun/Datosreales.h"
#include "tests/solar/Perfilprueba.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

using prueba::Numeros;

HorizonteLeido Abrir(const std::string &ruta) {
  FalloLectura fallo;
  auto leido = LeerHorizonteDeFichero(ruta, fallo);
  EXPECT_TRUE(leido.has_value()) << DescribirFallo("horizonte real", fallo);
  return leido.value_or(HorizonteLeido{});
}

TEST(HorizontesReales, ListadoDePvgisDeSandia) {
  TESMO_DATO_REAL(ruta, "horizontes/pvgis_35.171_-106.465_sandia.csv");
  const HorizonteLeido leido = Abrir(ruta);
  ASSERT_EQ(leido.perfil.Tamano(), 48);
  EXPECT_FALSE(leido.origenSupuesto);
  EXPECT_EQ(leido.perfil.X().front(), -180.0F);
  EXPECT_EQ(leido.perfil.Y().front(), 9.9F);
  EXPECT_EQ(leido.perfil.X()[24], 0.0F);
  EXPECT_EQ(leido.perfil.Y()[24], 4.6F); // el del acimut 180 del fichero
  // La sierra está al este: 90 desde el norte es −90 desde el sur.
  EXPECT_EQ(leido.perfil.X()[12], -90.0F);
  EXPECT_EQ(leido.perfil.Y()[12], 10.3F);
  const PerfilHorizonte usado = PerfilParaUsar(leido);
  ASSERT_EQ(usado.Tamano(), 49);
  EXPECT_EQ(usado.Y().back(), 9.9F);
}

TEST(HorizontesReales, OchoAlturasDesdeElNorte) {
  TESMO_DATO_REAL(ruta, "horizontes/ejemplo_userhorizon_8.csv");
  const HorizonteLeido leido = Abrir(ruta);
  EXPECT_EQ(leido.perfil.X(), (Numeros{-180, -135, -90, -45, 0, 45, 90, 135}));
  EXPECT_EQ(leido.perfil.Y(), (Numeros{0, 10, 20, 30, 40, 15, 25, 5}));
  EXPECT_FALSE(leido.origenSupuesto);
}

} // namespace
} // namespace tesmo
