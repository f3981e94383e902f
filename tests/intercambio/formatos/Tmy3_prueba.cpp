#include "tests/intercambio/formatos/Generadorclima.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tesmo {
namespace {

using namespace prueba;

TEST(Tmy3, LosValoresElSitioYElReloj) {
  const ResultadoLectura resultado = LeerTextoClima(Unir(LineasTmy3()));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_TRUE(resultado.avisos.empty()) << Textos(resultado.avisos);
  const AnioCanonico &anio = *resultado.anio;
  EXPECT_EQ(anio.sitio.identificador, "723456");
  EXPECT_EQ(anio.sitio.nombre, "ALMENA, EAST");
  EXPECT_EQ(anio.sitio.region, "GR");
  EXPECT_EQ(anio.sitio.latitud, 37.18);
  EXPECT_EQ(anio.sitio.longitud, -93.78);
  EXPECT_EQ(anio.sitio.altitud, 567.0);
  EXPECT_EQ(anio.reloj.tiempo, TiempoEtiqueta::OficialEstandar);
  EXPECT_EQ(anio.reloj.husoHoras, -6.0);
  EXPECT_EQ(anio.reloj.desfaseMin, -30.0);
  EXPECT_EQ(Valor(anio, Campo::GlobalHorizontal, 36), 720.0);
  EXPECT_EQ(Valor(anio, Campo::DirectaNormal, 36), 660.0);
  EXPECT_EQ(Valor(anio, Campo::DifusaHorizontal, 36), 240.0);
  EXPECT_EQ(Valor(anio, Campo::TemperaturaSeca, 36), -6.4);
  EXPECT_EQ(Valor(anio, Campo::TemperaturaRocio, 36), -11.4);
  EXPECT_EQ(Valor(anio, Campo::HumedadRelativa, 36), 66.0);
  EXPECT_EQ(Valor(anio, Campo::NubosidadTotal, 36), 7.0);
  EXPECT_EQ(Valor(anio, Campo::NubosidadOpaca, 36), 5.0);
  EXPECT_EQ(Valor(anio, Campo::DireccionViento, 36), 252.0);
  EXPECT_EQ(Valor(anio, Campo::VelocidadViento, 36), 3.6);
  EXPECT_EQ(anio.anios[36], 2006);
}

TEST(Tmy3, LasLineasEnBlancoDelPrincipioSeSaltan) {
  const ResultadoLectura resultado = LeerTextoClima("\n \n" + Unir(LineasTmy3()));
  EXPECT_EQ(resultado.formato, FormatoClima::Tmy3);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(resultado.anio->sitio.latitud, 37.18);
  EXPECT_EQ(resultado.anio->lineas[0], 5);
}

TEST(Tmy3, UnHusoImposibleSeCambiaPorElDeLaLongitud) {
  LineasFichero lineas = LineasTmy3();
  lineas[0] = "723456,\"ALMENA, EAST\",GR,-60.0,37.180,-93.780,567";
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(resultado.anio->reloj.husoHoras, -6.0);
  EXPECT_NE(Textos(resultado.avisos).find("línea 1: no da un huso"), std::string::npos);
}

TEST(Tmy3, LaPresionVieneEnMilibares) {
  const ResultadoLectura resultado = LeerTextoClima(Unir(LineasTmy3()));
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_EQ(Valor(*resultado.anio, Campo::Presion, 36), 95600.0);
}

TEST(Tmy3, Menos9900EsSinDato) {
  LineasFichero lineas = LineasTmy3();
  CambiarCampo(lineas[CABECERA_TMY3 + 3], 12, "-9900");
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_EQ(resultado.ausentes[static_cast<std::size_t>(Campo::Presion)].veces, 1);
  EXPECT_EQ(resultado.ausentes[static_cast<std::size_t>(Campo::Presion)].primeraLinea, 6);
  EXPECT_DOUBLE_EQ(Valor(*resultado.anio, Campo::Presion, 3), 94300.0); // entre 94200 y 94400
}

TEST(Tmy3, SeparadoPorPuntoYComaSeDiceQuienLoGuardo) {
  LineasFichero lineas = LineasTmy3();
  for (std::string &linea : lineas) std::replace(linea.begin(), linea.end(), ',', ';');
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  EXPECT_EQ(resultado.formato, FormatoClima::Tmy3);
  ASSERT_EQ(resultado.errores.size(), 1U) << Textos(resultado.errores);
  EXPECT_NE(resultado.errores[0].texto.find("hoja de cálculo"), std::string::npos);
}

TEST(Tmy3, LaMedianocheEscritaComoCeroDelDiaSiguienteCierraElDia) {
  LineasFichero lineas = LineasTmy3();
  for (std::size_t dia = 0; dia < 365; ++dia) {
    std::string &linea = lineas[CABECERA_TMY3 + dia * 24 + 23];
    const HoraDePrueba manana = HoraPrueba(static_cast<int>((dia + 1) % 365) * 24);
    CambiarCampo(linea, 0, std::to_string(manana.mes) + "/" + std::to_string(manana.dia) + "/2001");
    CambiarCampo(linea, 1, "0:00");
  }
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  for (const int i : {0, 22, 23, 24, 1415, 1416, 8759})
    EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, i), HoraPrueba(i).temperatura / 10.0) << i;
}

} // namespace
} // namespace tesmo
