#include "tests/intercambio/formatos/Generadorclima.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

using namespace prueba;

/// Columnas del EPW y sus códigos.
struct ColumnaEpw {
  std::size_t campo;
  const char *codigo;
};
constexpr ColumnaEpw TEMPERATURA{6, "99.9"};
constexpr ColumnaEpw ROCIO{7, "99.9"};
constexpr ColumnaEpw HUMEDAD{8, "999"};
constexpr ColumnaEpw PRESION{9, "999999"};
constexpr ColumnaEpw GLOBAL{13, "9999"};
constexpr ColumnaEpw NORMAL{14, "9999"};
constexpr ColumnaEpw DIFUSA{15, "9999"};
constexpr ColumnaEpw DIRECCION{20, "999"};
constexpr ColumnaEpw VIENTO{21, "999"};

void Quitar(LineasFichero &lineas, ColumnaEpw columna, int primera, int horas) {
  for (int k = 0; k < horas; ++k) {
    const auto i = static_cast<std::size_t>((primera + k) % HORAS_DEL_ANIO);
    CambiarCampo(lineas[CABECERA_EPW + i], columna.campo, columna.codigo);
  }
}

ResultadoLectura Leer(const LineasFichero &lineas, HuecosLargos largos = HuecosLargos::Rechazar) {
  return LeerTextoClima(Unir(lineas), {.huecosLargos = largos});
}

Procedencia De(const ResultadoLectura &resultado, Campo campo, std::size_t i) {
  return (*resultado.anio)[campo].procedencias[i];
}

TEST(Huecos, TresHorasSeInterpolanYSeCuentan) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[CABECERA_EPW + 49], 6, "10.0");
  Quitar(lineas, TEMPERATURA, 50, 3);
  CambiarCampo(lineas[CABECERA_EPW + 53], 6, "12.0");
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 50), 10.5);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 51), 11.0);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 52), 11.5);
  EXPECT_EQ(De(resultado, Campo::TemperaturaSeca, 51), Procedencia::Calculada);
  const NotaLectura nota = NotaDe(resultado.avisos, ClaseNota::HuecoInterpolado);
  EXPECT_EQ(nota.veces, 3);
  EXPECT_EQ(nota.linea, 59);
  EXPECT_EQ(nota.ultimaLinea, 61);
}

TEST(Huecos, CuatroHorasSeRechazanConLaPrimeraYLaUltimaLinea) {
  LineasFichero lineas = LineasEpw();
  Quitar(lineas, TEMPERATURA, 50, 4);
  const ResultadoLectura resultado = Leer(lineas);
  EXPECT_FALSE(resultado.anio);
  ASSERT_EQ(resultado.errores.size(), 1U);
  EXPECT_EQ(resultado.errores[0].clase, ClaseNota::HuecoLargo);
  EXPECT_EQ(resultado.errores[0].campo, Campo::TemperaturaSeca);
  EXPECT_EQ(resultado.errores[0].linea, 59);
  EXPECT_EQ(resultado.errores[0].ultimaLinea, 62);
  EXPECT_NE(resultado.errores[0].texto.find("líneas 59 a 62"), std::string::npos)
      << resultado.errores[0].texto;
}

TEST(Huecos, SinDireccionDondeNoHayViento) {
  LineasFichero lineas = LineasEpw();
  Quitar(lineas, DIRECCION, 50, 10);
  CambiarCampo(lineas[CABECERA_EPW + 49], DIRECCION.campo, "77");
  for (std::size_t i = 50; i < 60; ++i) CambiarCampo(lineas[CABECERA_EPW + i], VIENTO.campo, "0.0");
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(Valor(*resultado.anio, Campo::DireccionViento, 55), 77.0);
  EXPECT_EQ(De(resultado, Campo::DireccionViento, 55), Procedencia::Calculada);
  EXPECT_NE(Textos(resultado.avisos).find("10 horas sin dato y en calma"), std::string::npos);

  for (std::size_t i = 52; i < 57; ++i) CambiarCampo(lineas[CABECERA_EPW + i], VIENTO.campo, "2.0");
  EXPECT_EQ(CuantasDe(Leer(lineas).errores, ClaseNota::HuecoLargo), 1);
}

TEST(Huecos, CuatroHorasSeRellenanDeLosDiasVecinosSiSeAcepta) {
  LineasFichero lineas = LineasEpw();
  Quitar(lineas, TEMPERATURA, 50, 4);
  CambiarCampo(lineas[CABECERA_EPW + 50 - 24], 6, "4.0");
  CambiarCampo(lineas[CABECERA_EPW + 50 + 24], 6, "7.0");
  const ResultadoLectura resultado = Leer(lineas, HuecosLargos::RellenarVecinos);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 50), 5.5);
  EXPECT_EQ(De(resultado, Campo::TemperaturaSeca, 50), Procedencia::Inventada);
  EXPECT_EQ(NotaDe(resultado.avisos, ClaseNota::HuecoRellenado).veces, 4);
}

TEST(Huecos, DosDiasEnterosSeRellenanSegunLaCercania) {
  LineasFichero lineas = LineasEpw();
  Quitar(lineas, TEMPERATURA, 240, 48); // los días 11 y 12
  CambiarCampo(lineas[CABECERA_EPW + 240 - 24], 6, "0.0");
  CambiarCampo(lineas[CABECERA_EPW + 240 + 48], 6, "9.0");
  const ResultadoLectura resultado = Leer(lineas, HuecosLargos::RellenarVecinos);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_DOUBLE_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 240), 3.0);
  EXPECT_DOUBLE_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 264), 6.0);
}

TEST(Huecos, CuarentaDiasNoLosSabenLosVecinos) {
  LineasFichero lineas = LineasEpw();
  Quitar(lineas, TEMPERATURA, 2400, 960);
  const ResultadoLectura resultado = Leer(lineas, HuecosLargos::RellenarVecinos);
  EXPECT_FALSE(resultado.anio);
  EXPECT_GE(CuantasDe(resultado.errores, ClaseNota::HuecoLargo), 1);
}

TEST(Huecos, ElAnioEstaCerradoSobreSiMismo) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[CABECERA_EPW + 8757], 6, "1.0");
  Quitar(lineas, TEMPERATURA, 8758, 3);
  CambiarCampo(lineas[CABECERA_EPW + 1], 6, "5.0");
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 8758), 2.0);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 8759), 3.0);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 0), 4.0);
}

TEST(Huecos, ElRumboSeInterpolaPorElArcoMenor) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[CABECERA_EPW + 9], 20, "350");
  Quitar(lineas, DIRECCION, 10, 3);
  CambiarCampo(lineas[CABECERA_EPW + 13], 20, "30");
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_DOUBLE_EQ(Valor(*resultado.anio, Campo::DireccionViento, 10), 0.0);
  EXPECT_DOUBLE_EQ(Valor(*resultado.anio, Campo::DireccionViento, 11), 10.0);
  EXPECT_DOUBLE_EQ(Valor(*resultado.anio, Campo::DireccionViento, 12), 20.0);
}

TEST(Huecos, LaRadiacionInterpoladaNoApareceDeNoche) {
  LineasFichero lineas = LineasEpw();
  for (const ColumnaEpw columna : {GLOBAL, NORMAL, DIFUSA}) Quitar(lineas, columna, 48 + 5, 3); // horas 6 a 8
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(Valor(*resultado.anio, Campo::GlobalHorizontal, 53), 0.0);
  EXPECT_EQ(Valor(*resultado.anio, Campo::GlobalHorizontal, 54), 0.0);
  EXPECT_EQ(Valor(*resultado.anio, Campo::GlobalHorizontal, 55),
            180.0); // tres cuartos de los 240 de la hora 9
  EXPECT_EQ(Valor(*resultado.anio, Campo::DifusaHorizontal, 55), 60.0);
}

TEST(Huecos, UnaDeLasTresRadiacionesLaSuplenLasOtrasDos) {
  LineasFichero lineas = LineasEpw();
  Quitar(lineas, GLOBAL, 1000, 2);
  Quitar(lineas, GLOBAL, 2000, 500);
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_TRUE(std::isnan(Valor(*resultado.anio, Campo::GlobalHorizontal, 1000)));
  const NotaLectura nota = NotaDe(resultado.avisos, ClaseNota::HuecoSinImportancia);
  EXPECT_EQ(nota.campo, Campo::GlobalHorizontal);
  EXPECT_EQ(nota.veces, 502);
}

TEST(Huecos, SinDosRadiacionesNoHayHora) {
  LineasFichero lineas = LineasEpw();
  Quitar(lineas, GLOBAL, 2000, 6);
  Quitar(lineas, NORMAL, 2000, 6);
  const ResultadoLectura resultado = Leer(lineas);
  EXPECT_FALSE(resultado.anio);
  EXPECT_EQ(NotaDe(resultado.errores, ClaseNota::HuecoLargo).linea, 2009);
}

TEST(Huecos, LaPresionQueFaltaMuchasHorasNoImpideLeer) {
  LineasFichero lineas = LineasEpw();
  Quitar(lineas, PRESION, 100, 200);
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_TRUE(std::isnan(Valor(*resultado.anio, Campo::Presion, 150)));
  EXPECT_EQ(NotaDe(resultado.avisos, ClaseNota::HuecoSinImportancia).veces, 200);
}

TEST(Huecos, LaHumedadRelativaLaSupleElRocio) {
  LineasFichero lineas = LineasEpw();
  Quitar(lineas, HUMEDAD, 100, 24);
  EXPECT_TRUE(Leer(lineas).SinErrores());
  Quitar(lineas, ROCIO, 110, 4);
  const ResultadoLectura resultado = Leer(lineas);
  EXPECT_FALSE(resultado.anio);
  EXPECT_EQ(NotaDe(resultado.errores, ClaseNota::HuecoLargo).linea, 119);
  EXPECT_EQ(NotaDe(resultado.errores, ClaseNota::HuecoLargo).ultimaLinea, 122);
}

TEST(Huecos, TresRegistrosQueFaltanSeInterpolanYCuatroNo) {
  const LineasFichero entero = LineasEpw();
  LineasFichero lineas = entero;
  const auto desde = lineas.begin() + static_cast<std::ptrdiff_t>(CABECERA_EPW) + 300;
  lineas.erase(desde, desde + 3);
  const ResultadoLectura tres = Leer(lineas);
  ASSERT_TRUE(tres.SinErrores()) << Textos(tres.errores);
  EXPECT_EQ(De(tres, Campo::TemperaturaSeca, 301), Procedencia::Calculada);
  lineas.erase(lineas.begin() + static_cast<std::ptrdiff_t>(CABECERA_EPW) + 300);
  const ResultadoLectura cuatro = Leer(lineas);
  EXPECT_FALSE(cuatro.anio);
  // Un solo error, no uno por magnitud.
  ASSERT_EQ(cuatro.errores.size(), 1U) << Textos(cuatro.errores);
  EXPECT_EQ(cuatro.errores[0].linea, 308);
  EXPECT_EQ(cuatro.errores[0].ultimaLinea, 309);
  // Ni se promete calcular lo que no hay.
  EXPECT_EQ(CuantasDe(cuatro.avisos, ClaseNota::HuecoSinImportancia), 0) << Textos(cuatro.avisos);
}

TEST(Huecos, UnFicheroSinTemperaturasNoTieneAnio) {
  LineasFichero lineas = LineasEpw();
  Quitar(lineas, TEMPERATURA, 0, HORAS_DEL_ANIO);
  for (const HuecosLargos largos : {HuecosLargos::Rechazar, HuecosLargos::RellenarVecinos}) {
    const ResultadoLectura resultado = Leer(lineas, largos);
    EXPECT_FALSE(resultado.anio);
    EXPECT_EQ(NotaDe(resultado.errores, ClaseNota::CampoAusente).campo, Campo::TemperaturaSeca);
  }
}

TEST(Huecos, SinVientoSoloSiSeAceptaInventar) {
  LineasFichero lineas = LineasEpw();
  Quitar(lineas, VIENTO, 0, HORAS_DEL_ANIO);
  EXPECT_FALSE(Leer(lineas).anio);
  const ResultadoLectura resultado = Leer(lineas, HuecosLargos::RellenarVecinos);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(Valor(*resultado.anio, Campo::VelocidadViento, 4000), 0.0);
  EXPECT_EQ(De(resultado, Campo::VelocidadViento, 4000), Procedencia::Inventada);
}

TEST(Huecos, SinDireccionYConCalmasSeSigueSiSeAceptaInventar) {
  LineasFichero lineas = LineasEpw(); // con calma una hora de cada ochenta
  Quitar(lineas, DIRECCION, 0, HORAS_DEL_ANIO);
  const ResultadoLectura rechazado = Leer(lineas);
  EXPECT_FALSE(rechazado.anio);
  ASSERT_EQ(rechazado.errores.size(), 1U) << Textos(rechazado.errores);
  EXPECT_EQ(rechazado.errores[0].clase, ClaseNota::CampoAusente);
  EXPECT_EQ(rechazado.errores[0].campo, Campo::DireccionViento);

  const ResultadoLectura resultado = Leer(lineas, HuecosLargos::RellenarVecinos);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  for (const int i : {0, 1, 80, 8759}) EXPECT_EQ(Valor(*resultado.anio, Campo::DireccionViento, i), 0.0);
  EXPECT_EQ(De(resultado, Campo::DireccionViento, 1), Procedencia::Inventada);
}

TEST(Huecos, ElErrorConcuerdaConLoQueFalta) {
  LineasFichero lineas = LineasEpw();
  Quitar(lineas, TEMPERATURA, 50, 4);
  Quitar(lineas, GLOBAL, 3000, 6);
  Quitar(lineas, NORMAL, 3000, 6);
  const std::string errores = Textos(Leer(lineas).errores);
  EXPECT_NE(errores.find(": falta la temperatura seca de 4 horas"), std::string::npos) << errores;
  EXPECT_NE(errores.find(": faltan dos de las radiaciones"), std::string::npos) << errores;
}

TEST(Huecos, UnHuecoQueCruzaElFinDelAnioDiceQueDaLaVuelta) {
  LineasFichero lineas = LineasEpw();
  Quitar(lineas, TEMPERATURA, 8757, 6);
  EXPECT_NE(Leer(lineas).errores.at(0).texto.find("líneas 8766 a 11, dando la vuelta al año"),
            std::string::npos)
      << Textos(Leer(lineas).errores);
}

TEST(Huecos, LaNubosidadQueFaltaNoSeCalculaDeNada) {
  LineasFichero lineas = LineasEpw();
  Quitar(lineas, {22, "99"}, 100, 20);
  const NotaLectura nota = NotaDe(Leer(lineas).avisos, ClaseNota::HuecoSinImportancia);
  EXPECT_NE(nota.texto.find("20 horas; sólo se usa donde falta la infrarroja"), std::string::npos)
      << nota.texto;
}

TEST(Huecos, ParaAuditarSeDaElAnioTalComoVieneYSusErrores) {
  LineasFichero lineas = LineasEpw();
  Quitar(lineas, TEMPERATURA, 50, 4);
  Quitar(lineas, VIENTO, 60, 1);
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas), {.paraAuditar = true});
  ASSERT_TRUE(resultado.anio);
  EXPECT_EQ(CuantasDe(resultado.errores, ClaseNota::HuecoLargo), 1);
  EXPECT_TRUE(std::isnan(Valor(*resultado.anio, Campo::TemperaturaSeca, 51)));
  EXPECT_TRUE(std::isnan(Valor(*resultado.anio, Campo::VelocidadViento, 60)));
}

} // namespace
} // namespace tesmo
