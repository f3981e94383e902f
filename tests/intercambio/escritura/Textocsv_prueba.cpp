#include "intercambio/escritura/Textocsv.h"
#include "meteo/Magnitudes.h"
#include "tests/intercambio/escritura/Apoyosescritura.h"

#include <gtest/gtest.h>

#include <charconv>
#include <sstream>

namespace tesmo {
namespace {

std::vector<std::vector<std::string>> Tabla(const std::string &texto) {
  std::vector<std::vector<std::string>> tabla;
  std::istringstream flujo(texto);
  for (std::string linea; std::getline(flujo, linea);) {
    std::istringstream campos(linea);
    tabla.emplace_back();
    for (std::string campo; std::getline(campos, campo, ',');) tabla.back().push_back(campo);
  }
  return tabla;
}

TEST(EscrituraDeUnCsv, Las21MagnitudesPorSuRotuloYUnaLineaPorHora) {
  const auto tabla = Tabla(TextoCsv(prueba::AnioAMano()));
  ASSERT_EQ(tabla.size(), 8761U);
  ASSERT_EQ(tabla[0].size(), 24U);
  EXPECT_EQ(tabla[0][0] + tabla[0][1] + tabla[0][2], "mesdíahora");
  for (std::size_t m = 0; m < NUMERO_MAGNITUDES_VISOR; ++m) EXPECT_EQ(tabla[0][3 + m], MAGNITUDES[m].rotulo);
  for (const auto &fila : tabla) ASSERT_EQ(fila.size(), 24U);
  EXPECT_EQ(tabla[8760][0] + " " + tabla[8760][1] + " " + tabla[8760][2], "12 31 24");
}

TEST(EscrituraDeUnCsv, CadaRealVuelveALeerseIgual) {
  AnioSolar anio = prueba::AnioAMano();
  const double valor = 1.0 / 3.0;
  anio[SerieAlmacenada::TemperaturaSeca].valores[5] = valor;
  const std::string texto = Tabla(TextoCsv(anio))[6][3];
  float leido = 0.0F;
  std::from_chars(texto.data(), texto.data() + texto.size(), leido);
  EXPECT_EQ(leido, static_cast<float>(valor));
}

TEST(EscrituraDeUnCsv, LaSuperficieEsLaQueSePide) {
  const std::size_t global = 3 + static_cast<std::size_t>(Magnitud::G);
  const std::size_t difusa = 3 + static_cast<std::size_t>(Magnitud::Df);
  const auto horizontal =
      Tabla(TextoCsv(prueba::AnioAMano(), {.inclinacion = 0, .orientacion = 0, .albedo = 0}));
  // A las 12, sin suelo que refleje: la directa horizontal entera y la mitad de la difusa (sólo se ve medio
  // cielo, y así se conserva).
  EXPECT_EQ(horizontal[12][difusa], "50");
  EXPECT_NEAR(std::stod(horizontal[12][global]), 350.0, 0.01);
}

TEST(EscrituraDeUnCsv, LoQueNoEsFinitoQuedaEnBlanco) {
  AnioSolar anio = prueba::AnioAMano();
  anio[SerieAlmacenada::VelocidadViento].valores[0] = AUSENTE;
  EXPECT_EQ(Tabla(TextoCsv(anio))[1][3 + static_cast<std::size_t>(Magnitud::VV)], "");
}

} // namespace
} // namespace tesmo
