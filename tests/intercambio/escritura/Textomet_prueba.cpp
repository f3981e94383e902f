#include "intercambio/escritura/Textomet.h"
#include "meteo/Lectormet.h"
#include "tests/intercambio/escritura/Apoyosescritura.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace tesmo {
namespace {

std::string Texto(const std::string &primera, const AnioSolar &anio) {
  return TextoMet({primera, 37.25, -3.5, 680.0, 15.0}, ColumnasDe(anio));
}

TEST(EscrituraDeUnMet, QuinceColumnasYCuatroNumerosEnLaSegundaLinea) {
  std::istringstream texto(Texto("cabecera", prueba::AnioAMano()));
  std::string linea;
  std::getline(texto, linea);
  EXPECT_EQ(linea, "cabecera");
  std::getline(texto, linea);
  EXPECT_EQ(linea, "37.25 -3.5 680 15.0");
  std::getline(texto, linea);
  EXPECT_EQ(linea, "1 1 1 -3.00 -12.00 0.0 0.0 0.0010000 50.00 2.5 270 -30.25 45.5 0 0");
  int lineas = 1;
  for (std::string otra; std::getline(texto, otra); ++lineas) linea = otra;
  EXPECT_EQ(lineas, 8760);
  EXPECT_TRUE(linea.starts_with("12 31 24 ")) << linea;
}

TEST(EscrituraDeUnMet, ElLectorLeeLoEscrito) {
  const AnioSolar anio = prueba::AnioAMano();
  SitioMet sitio;
  SeriesLeidas series;
  const ResumenLectura resumen = LeerTextoMet(Texto("cabecera", anio), sitio, series);
  EXPECT_TRUE(resumen.Completa());
  EXPECT_EQ(sitio.tercerDato, 680.0F);
  for (std::size_t i = 0; i < COLUMNAS_MET; ++i) {
    const auto &valores = anio.series[i].valores;
    EXPECT_TRUE(std::equal(valores.begin(), valores.end(), series[static_cast<SerieAlmacenada>(i)].begin(),
                           [](double a, float b) { return static_cast<float>(a) == b; }))
        << i;
  }
}

TEST(EscrituraDeUnMet, UnaPrimeraLineaLargaOPartidaNoDesplazaLosNumeros) {
  for (const std::string &primera : {std::string(1000, '7'), std::string("1 2 3\n4 5 6\r\n7")}) {
    SitioMet sitio;
    SeriesLeidas series;
    EXPECT_TRUE(LeerTextoMet(Texto(primera, prueba::AnioAMano()), sitio, series).Completa());
    EXPECT_EQ(sitio.latitud, 37.25F);
    EXPECT_EQ(series[SerieAlmacenada::TemperaturaSeca][0], -3.0F);
  }
}

} // namespace
} // namespace tesmo
