#include "intercambio/escritura/Estadisticasgdr.h"
#include "tests/intercambio/escritura/Apoyosescritura.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

TEST(EstadisticasDelAnio, MediasYDesviacionesDeMaximasYMinimasDiarias) {
  const FichaGdr ficha = EstadisticasDelAnio(prueba::AnioAMano());
  // Abril, 30 días: máxima 4 ± 1 + 5; la mitad de los días a cada lado; raíz de 30/29.
  EXPECT_EQ(ficha.maxima[3], 9.0);
  EXPECT_EQ(ficha.minima[3], -1.0);
  EXPECT_EQ(ficha.desviacionMaxima[3], 1.02);
  EXPECT_EQ(ficha.desviacionMinima[3], 1.02);
  // Enero, 31 días: un día impar de más; media 1 + 1/31 + 5.
  EXPECT_EQ(ficha.maxima[0], 6.03);
  EXPECT_EQ(ficha.minima[0], -3.97);
}

TEST(EstadisticasDelAnio, RadiacionEnKilojuliosPorDiaYHumedadRelativa) {
  const FichaGdr ficha = EstadisticasDelAnio(prueba::AnioAMano());
  for (const double radiacion : ficha.radiacion) EXPECT_EQ(radiacion, 5040.0); // (600 + 800) Wh · 3,6
  for (const double humedad : ficha.sexta) EXPECT_EQ(humedad, 50.0);
}

TEST(EstadisticasDelAnio, HumedadDeLaVeinteavaParteMasFriaYMasCalida) {
  const FichaGdr ficha = EstadisticasDelAnio(prueba::AnioAMano());
  // Los 5 días más fríos de los 90 de invierno son pares de enero; los 6 más cálidos de 122, impares de
  // septiembre.
  EXPECT_EQ(ficha.humedadCal, 1.0);
  EXPECT_EQ(ficha.humedadRef, 9.0);
}

TEST(EstadisticasDelAnio, SoloCuentanLosDiasExtremosYNoSuMes) {
  AnioSolar anio = prueba::AnioAMano();
  // El 2 de febrero pasa a ser, con mucho, el día más frío: su humedad pesa 1/5.
  for (std::size_t i = 0; i < 24; ++i) {
    const std::size_t hora = (31 + 1) * 24 + i;
    anio[SerieAlmacenada::TemperaturaSeca].valores[hora] = -20.0;
    anio[SerieAlmacenada::HumedadAbsoluta].valores[hora] = 0.006;
  }
  EXPECT_EQ(EstadisticasDelAnio(anio).humedadCal, 2.0);
}

} // namespace
} // namespace tesmo
