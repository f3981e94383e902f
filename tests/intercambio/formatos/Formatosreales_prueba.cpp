#include "tests/comun/Datosreales.h"
#include "tests/intercambio/formatos/Generadorclima.h"

#include "core/Ficheros.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

using namespace prueba;

double Media(const AnioCanonico &anio, Campo campo) {
  double suma = 0.0;
  for (const double valor : anio[campo].valores) suma += valor;
  return suma / HORAS_DEL_ANIO;
}

double MayorDiferencia(const AnioCanonico &a, const AnioCanonico &b, Campo campo) {
  double mayor = 0.0;
  for (int i = 0; i < HORAS_DEL_ANIO; ++i)
    mayor = std::max(mayor, std::fabs(Valor(a, campo, i) - Valor(b, campo, i)));
  return mayor;
}

TEST(FormatosReales, ElCsvYElEpwDePvgisDanElMismoAnio) {
  TESMO_DATO_REAL(rutaCsv, "PVGIS_tmy_45.000_8.000_2005_2023.csv");
  TESMO_DATO_REAL(rutaEpw, "PVGIS_tmy_45.000_8.000_2005_2023.epw");
  const ResultadoLectura csv = LeerFicheroClima(rutaCsv);
  const ResultadoLectura epw = LeerFicheroClima(rutaEpw);
  ASSERT_TRUE(csv.SinErrores()) << Textos(csv.errores);
  ASSERT_TRUE(epw.SinErrores()) << Textos(epw.errores);
  EXPECT_EQ(csv.formato, FormatoClima::PvgisCsv);
  EXPECT_EQ(epw.formato, FormatoClima::PvgisEpw);
  EXPECT_EQ(csv.anio->reloj.tiempo, epw.anio->reloj.tiempo);
  EXPECT_NEAR(csv.anio->reloj.desfaseMin, epw.anio->reloj.desfaseMin, 0.01);
  EXPECT_NEAR(csv.anio->reloj.desfaseMin, -49.434, 0.001); // (0,1761 − 1) · 60
  for (const Campo campo : {Campo::GlobalHorizontal, Campo::DirectaNormal, Campo::DifusaHorizontal})
    EXPECT_LT(MayorDiferencia(*csv.anio, *epw.anio, campo), 1.0) << NombreCampo(campo);
  EXPECT_LT(MayorDiferencia(*csv.anio, *epw.anio, Campo::TemperaturaSeca), 0.05);
}

TEST(FormatosReales, TabernasTieneTresHorasDeVientoSinDato) {
  TESMO_DATO_REAL(ruta, "PVGIS_TMY_37.095_-2.3585_PSA_Tabernas.epw");
  const ResultadoLectura resultado = LeerFicheroClima(ruta);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(resultado.formato, FormatoClima::PvgisEpw);
  EXPECT_EQ(resultado.anio->reloj.desfaseMin, -50.0);
  EXPECT_EQ(resultado.ausentes[static_cast<std::size_t>(Campo::VelocidadViento)].veces, 3);
  EXPECT_EQ(CuantasDe(resultado.avisos, ClaseNota::ValorImposible), 3);
  EXPECT_EQ((*resultado.anio)[Campo::VelocidadViento].procedencias[2175 - 9], Procedencia::Calculada);
}

TEST(FormatosReales, ElTmy3DeSandPoint) {
  TESMO_DATO_REAL(ruta, "TMY3_703165TY_SandPoint_Alaska.csv");
  const ResultadoLectura resultado = LeerFicheroClima(ruta);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(resultado.formato, FormatoClima::Tmy3);
  EXPECT_EQ(resultado.anio->sitio.nombre, "SAND POINT");
  EXPECT_EQ(resultado.anio->reloj.husoHoras, -9.0);
  EXPECT_EQ(Valor(*resultado.anio, Campo::Presion, 0), 101200.0);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 8759), -6.0);
  EXPECT_EQ(resultado.anio->anios[0], 1997);
  EXPECT_NEAR(Media(*resultado.anio, Campo::TemperaturaSeca), 4.4, 0.1);
}

} // namespace
} // namespace tesmo
