#include "tests/intercambio/formatos/Generadorclima.h"

#include "meteo/Lectormet.h"

#include <gtest/gtest.h>

#include <array>

namespace tesmo {
namespace {

using namespace prueba;

TEST(MetTrece, LosValoresElSitioYElRelojSolar) {
  const ResultadoLectura resultado = LeerTextoClima(Unir(LineasMetTrece()));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_TRUE(resultado.avisos.empty()) << Textos(resultado.avisos);
  const AnioCanonico &anio = *resultado.anio;
  EXPECT_EQ(anio.formato, FormatoClima::MetTrece);
  EXPECT_EQ(anio.sitio.nombre, ""); // la primera línea no es un nombre
  EXPECT_EQ(anio.sitio.latitud, 37.18);
  EXPECT_EQ(anio.sitio.longitud, -3.78);
  EXPECT_EQ(anio.sitio.altitud, 567.0);
  EXPECT_EQ(anio.reloj.tiempo, TiempoEtiqueta::SolarVerdadero);
  EXPECT_EQ(anio.reloj.husoHoras, 1.0);
  EXPECT_EQ(anio.reloj.desfaseMin, -30.0);
  EXPECT_EQ(Valor(anio, Campo::TemperaturaSeca, 36), -6.4);
  EXPECT_EQ(Valor(anio, Campo::TemperaturaCielo, 36), -18.4);
  EXPECT_EQ(Valor(anio, Campo::DirectaHorizontal, 36), 480.0);
  EXPECT_EQ(Valor(anio, Campo::DifusaHorizontal, 36), 240.0);
  EXPECT_EQ(Valor(anio, Campo::HumedadAbsoluta, 36), 0.00536);
  EXPECT_EQ(Valor(anio, Campo::HumedadRelativa, 36), 66.0);
  EXPECT_EQ(Valor(anio, Campo::VelocidadViento, 36), 3.6);
  EXPECT_EQ(Valor(anio, Campo::DireccionViento, 36), 252.0);
  EXPECT_EQ(Valor(anio, Campo::AcimutSolar, 36), -12.5);
  EXPECT_EQ(Valor(anio, Campo::CenitSolar, 36), 67.25);
}

TEST(MetTrece, LasLineasEmpiezanEnLaTerceraAunqueLaSegundaLleveTresNumeros) {
  LineasFichero lineas = LineasMetTrece();
  lineas[1] = "37.18 -3.78 567";
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 0), -10.0);
}

TEST(MetTrece, LosCodigosDeOtroFormatoNoPasanPorDatos) {
  struct Caso {
    std::size_t columna;
    const char *codigo;
    Campo campo;
  };
  const std::vector<Caso> casos{{4, "-999", Campo::TemperaturaCielo}, {4, "999", Campo::TemperaturaCielo},
                                {7, "5.3", Campo::HumedadAbsoluta}, // en g/kg
                                {8, "999", Campo::HumedadRelativa},   {9, "999", Campo::VelocidadViento},
                                {11, "-999", Campo::AcimutSolar},     {12, "999", Campo::CenitSolar}};
  for (const Caso &caso : casos) {
    LineasFichero lineas = LineasMetTrece();
    CambiarCampo(lineas[CABECERA_MET + 100], caso.columna, caso.codigo, ' ');
    const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
    ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
    EXPECT_EQ(NotaDe(resultado.avisos, ClaseNota::ValorImposible).campo, caso.campo) << caso.codigo;
    EXPECT_NE((*resultado.anio)[caso.campo].procedencias[100], Procedencia::Copiada) << caso.codigo;
  }
}

TEST(MetTrece, UnaHumedadQueNoPasaDeUnoSeDice) {
  LineasFichero lineas = LineasMetTrece();
  for (std::size_t i = CABECERA_MET; i < lineas.size(); ++i) CambiarCampo(lineas[i], 8, "0.64", ' ');
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_NE(Textos(resultado.avisos).find("parece en tanto por uno"), std::string::npos);
  CambiarCampo(lineas[CABECERA_MET + 7], 8, "64", ' ');
  EXPECT_EQ(Textos(LeerTextoClima(Unir(lineas)).avisos).find("tanto por uno"), std::string::npos);
}

TEST(MetQuince, LeeLoMismoQueElLectorDeLasLocalidades) {
  const std::string texto = Unir(LineasMetQuince());
  const ResultadoLectura resultado = LeerTextoClima(texto);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_TRUE(resultado.avisos.empty()) << Textos(resultado.avisos);
  SitioMet sitio;
  SeriesLeidas series;
  ASSERT_TRUE(LeerTextoMet(texto, sitio, series).Completa());
  constexpr std::array<Campo, NUMERO_SERIES_LEIDAS> CAMPOS{
      Campo::TemperaturaSeca, Campo::TemperaturaCielo, Campo::DirectaHorizontal, Campo::DifusaHorizontal,
      Campo::HumedadAbsoluta, Campo::HumedadRelativa,  Campo::VelocidadViento,   Campo::DireccionViento,
      Campo::AcimutSolar,     Campo::CenitSolar};
  for (std::size_t c = 0; c < CAMPOS.size(); ++c) {
    for (int i = 0; i < HORAS_DEL_ANIO; ++i) {
      ASSERT_EQ(static_cast<float>(Valor(*resultado.anio, CAMPOS[c], i)),
                series[static_cast<SerieAlmacenada>(c)][static_cast<std::size_t>(i)])
          << NombreCampo(CAMPOS[c]) << " " << i;
    }
  }
  EXPECT_EQ(static_cast<float>(resultado.anio->sitio.altitud), sitio.tercerDato);
}

TEST(MetQuince, ConTresNumerosEnLaSegundaLineaSePierdeLaTercera) {
  LineasFichero lineas = LineasMetQuince();
  lineas[1] = "37.18 -3.78 567";
  lineas.insert(lineas.begin() + 2, "mes dia hora");
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 0), -10.0);
  EXPECT_EQ(NotaDe(resultado.avisos, ClaseNota::Cabecera).linea, 2);
}

TEST(MetQuince, UnRegistroPartidoEnDosLineasEsElMismo) {
  LineasFichero lineas = LineasMetQuince();
  lineas[100].replace(lineas[100].find(' '), 1, "\n");
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 98), HoraPrueba(98).temperatura / 10.0);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 99), HoraPrueba(99).temperatura / 10.0);
}

TEST(MetQuince, UnTextoEntreLosNumerosDetieneConSuLinea) {
  LineasFichero lineas = LineasMetQuince();
  CambiarCampo(lineas[200], 6, "x", ' ');
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  EXPECT_FALSE(resultado.anio);
  EXPECT_EQ(NotaDe(resultado.errores, ClaseNota::Campo).linea, 201);
  EXPECT_EQ(NotaDe(resultado.errores, ClaseNota::Campo).veces, 8760 - 198);
}

TEST(MetQuince, LasFechasNoMandanPeroSeDice) {
  LineasFichero lineas = LineasMetQuince();
  CambiarCampo(lineas[300], 2, "7", ' ');
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores());
  const NotaLectura nota = NotaDe(resultado.avisos, ClaseNota::FechaDistinta);
  EXPECT_EQ(nota.linea, 301);
  EXPECT_EQ(nota.veces, 1);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 298), HoraPrueba(298).temperatura / 10.0);
}

TEST(MetQuince, LoQueSobraTrasElAnioSeDice) {
  LineasFichero lineas = LineasMetQuince();
  lineas.push_back(lineas.back());
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_EQ(NotaDe(resultado.avisos, ClaseNota::SobranRegistros).linea, 8763);
}

TEST(MetQuince, ParaAuditarSeDaLoQueSePudoLeer) {
  LineasFichero lineas = LineasMetQuince();
  lineas.resize(1000);
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas), {.paraAuditar = true});
  EXPECT_FALSE(resultado.SinErrores());
  ASSERT_TRUE(resultado.anio);
  EXPECT_EQ(resultado.registros, 998);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 997), HoraPrueba(997).temperatura / 10.0);
  EXPECT_TRUE(std::isnan(Valor(*resultado.anio, Campo::TemperaturaSeca, 998)));
}

} // namespace
} // namespace tesmo
