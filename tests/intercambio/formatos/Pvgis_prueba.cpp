#include "tests/intercambio/formatos/Generadorclima.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tesmo {
namespace {

using namespace prueba;

TEST(PvgisCsv, LosValoresElSitioYElReloj) {
  const ResultadoLectura resultado = LeerTextoClima(Unir(LineasPvgisCsv()));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_TRUE(resultado.avisos.empty()) << Textos(resultado.avisos);
  EXPECT_EQ(resultado.anio->reloj.husoHoras, 0.0); // el de 3,78° O
  const AnioCanonico &anio = *resultado.anio;
  EXPECT_EQ(anio.sitio.latitud, 37.18);
  EXPECT_EQ(anio.sitio.longitud, -3.78);
  EXPECT_EQ(anio.sitio.altitud, 567.0);
  EXPECT_EQ(anio.reloj.tiempo, TiempoEtiqueta::Utc);
  // La hora 00:00 más 0,2 h es la etiqueta 1 menos 48 minutos.
  EXPECT_DOUBLE_EQ(anio.reloj.desfaseMin, -48.0);
  EXPECT_EQ(Valor(anio, Campo::TemperaturaSeca, 36), -6.4);
  EXPECT_EQ(Valor(anio, Campo::HumedadRelativa, 36), 66.0);
  EXPECT_EQ(Valor(anio, Campo::GlobalHorizontal, 36), 720.0);
  EXPECT_EQ(Valor(anio, Campo::DirectaNormal, 36), 660.0);
  EXPECT_EQ(Valor(anio, Campo::DifusaHorizontal, 36), 240.0);
  EXPECT_EQ(Valor(anio, Campo::InfrarrojaHorizontal, 36), 286.0);
  EXPECT_EQ(Valor(anio, Campo::VelocidadViento, 36), 3.6);
  EXPECT_EQ(Valor(anio, Campo::DireccionViento, 36), 252.0);
  EXPECT_EQ(Valor(anio, Campo::Presion, 36), 95600.0);
  EXPECT_EQ(anio.anios[36], 2006);
  EXPECT_EQ(anio.lineas[0], 19);
}

TEST(PvgisCsv, DaElMismoAnioYElMismoRelojQueSuEpw) {
  const ResultadoLectura csv = LeerTextoClima(Unir(LineasPvgisCsv()));
  const ResultadoLectura epw = LeerTextoClima(Unir(LineasPvgisEpw()));
  ASSERT_TRUE(csv.SinErrores() && epw.SinErrores());
  EXPECT_DOUBLE_EQ(csv.anio->reloj.desfaseMin, epw.anio->reloj.desfaseMin);
  for (const Campo campo :
       {Campo::TemperaturaSeca, Campo::GlobalHorizontal, Campo::DirectaNormal, Campo::Presion})
    EXPECT_EQ((*csv.anio)[campo].valores, (*epw.anio)[campo].valores) << NombreCampo(campo);
}

TEST(PvgisCsv, SinDesfaseEscritoSePropone50MinutosAntes) {
  LineasFichero lineas = LineasPvgisCsv();
  lineas.erase(lineas.begin() + 3);
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_EQ(resultado.anio->reloj.desfaseMin, -50.0);
}

TEST(PvgisCsv, LaLeyendaDelFinalNoSonDatos) {
  const ResultadoLectura resultado = LeerTextoClima(Unir(LineasPvgisCsv(), "\r\n"));
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_EQ(resultado.registros, 8760);
}

TEST(PvgisCsv, LasColumnasSeBuscanPorSuRotulo) {
  LineasFichero lineas = LineasPvgisCsv();
  lineas[17] = "time(UTC),T2m,RH,Gd(h),Gb(n),G(h),IR(h),WS10m,WD10m,SP";
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_EQ(Valor(*resultado.anio, Campo::DifusaHorizontal, 36), 720.0);
  EXPECT_EQ(Valor(*resultado.anio, Campo::GlobalHorizontal, 36), 240.0);
}

TEST(PvgisCsv, UnaColumnaQueFaltaSeDice) {
  LineasFichero lineas = LineasPvgisCsv();
  lineas[17] = "time(UTC),T2m,RH,G(h),Gb(n),Gd(h),otra,WS10m,WD10m,SP";
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  const NotaLectura nota = NotaDe(resultado.avisos, ClaseNota::Cabecera);
  EXPECT_EQ(nota.linea, 18);
  EXPECT_EQ(nota.campo, Campo::InfrarrojaHorizontal);
}

TEST(PvgisCsv, SinSitioNoHayAnio) {
  LineasFichero lineas = LineasPvgisCsv();
  lineas[1] = "Longitude (decimal degrees): ?";
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  EXPECT_FALSE(resultado.anio);
  EXPECT_NE(NotaDe(resultado.errores, ClaseNota::Cabecera).texto.find("longitud"), std::string::npos);
}

TEST(PvgisCsv, LaSerieHorariaNoEsUnAnioTipico) {
  LineasFichero lineas{"Latitude (decimal degrees):\t37.180",
                       "Longitude (decimal degrees):\t-3.780",
                       "Elevation (m):\t567",
                       "Radiation database:\tPVGIS-SARAH3",
                       "",
                       "",
                       "time,G(i),H_sun,T2m,WS10m,Int"};
  for (int i = 0; i < 20'000; ++i) lineas.emplace_back("20050101:0010,0.0,0.0,4.39,1.52,0.0");
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  EXPECT_EQ(resultado.formato, FormatoClima::PvgisCsv);
  ASSERT_EQ(resultado.errores.size(), 1U) << Textos(resultado.errores);
  EXPECT_NE(resultado.errores[0].texto.find("«TMY»"), std::string::npos) << resultado.errores[0].texto;
  EXPECT_TRUE(resultado.avisos.empty()) << Textos(resultado.avisos);
}

TEST(PvgisCsv, SinLasLineasDelSitioSeDiceCualesSon) {
  LineasFichero lineas = LineasPvgisCsv();
  lineas.erase(lineas.begin(), lineas.begin() + 17);
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  EXPECT_EQ(resultado.formato, FormatoClima::PvgisCsv);
  ASSERT_EQ(resultado.errores.size(), 1U) << Textos(resultado.errores);
  EXPECT_NE(resultado.errores[0].texto.find("«Elevation (m): 600»"), std::string::npos);
}

TEST(PvgisCsv, LasComillasYLosBlancosNoEstorban) {
  LineasFichero lineas = LineasPvgisCsv();
  lineas[17].insert(0, "  ");
  for (std::size_t i = CABECERA_PVGIS; i < CABECERA_PVGIS + HORAS_DEL_ANIO; ++i) {
    lineas[i].insert(lineas[i].find(','), "\"");
    lineas[i].insert(0, "\"");
  }
  lineas[0] = "\"Latitude (decimal degrees): 37.180\"";
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(resultado.registros, HORAS_DEL_ANIO);
  EXPECT_EQ(resultado.anio->sitio.latitud, 37.18);
}

TEST(PvgisCsv, SeparadoPorPuntoYComaSeDiceQuienLoGuardo) {
  LineasFichero lineas = LineasPvgisCsv();
  for (std::string &linea : lineas) std::replace(linea.begin(), linea.end(), ',', ';');
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  EXPECT_FALSE(resultado.anio);
  ASSERT_EQ(resultado.errores.size(), 1U) << Textos(resultado.errores);
  EXPECT_NE(resultado.errores[0].texto.find("hoja de cálculo"), std::string::npos);
}

TEST(PvgisCsv, UnaLatitudConComaDecimalNoSeCorta) {
  LineasFichero lineas = LineasPvgisCsv();
  lineas[0] = "Latitude (decimal degrees): 37,095";
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  EXPECT_FALSE(resultado.anio);
  EXPECT_NE(NotaDe(resultado.errores, ClaseNota::Cabecera).texto.find("punto decimal"), std::string::npos);
  lineas[0] = "Latitude (decimal degrees): 37.095,,,";
  EXPECT_EQ(LeerTextoClima(Unir(lineas)).anio->sitio.latitud, 37.095);
}

TEST(PvgisCsv, ElDesfaseEscritoPuedeSerCeroMediaHoraONegativo) {
  for (const double horas : {0.0, 0.1761, 0.5, -0.2}) {
    LineasFichero lineas = LineasPvgisCsv();
    lineas[3] = "Irradiance Time Offset (h): " + std::to_string(horas);
    const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
    ASSERT_TRUE(resultado.SinErrores());
    EXPECT_NEAR(resultado.anio->reloj.desfaseMin, (horas - 1.0) * 60.0, 1e-9);
  }
}

TEST(PvgisCsv, LaLeyendaEmpiezaEnLaPrimeraLineaSinCifra) {
  LineasFichero lineas = LineasPvgisCsv();
  lineas.resize(CABECERA_PVGIS + HORAS_DEL_ANIO);
  lineas.insert(lineas.end(), {"Legend", "T2m - temperature", "2005-2023, period", "(c) European Union"});
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(resultado.registros, HORAS_DEL_ANIO);
}

} // namespace
} // namespace tesmo
