#include "intercambio/conversion/Aniosolar.h"
#include "tests/intercambio/formatos/Generadorclima.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tesmo {
namespace {

using namespace prueba;

constexpr std::size_t GLOBAL = 13;
constexpr std::size_t NORMAL = 14;
constexpr std::size_t DIFUSA = 15;

LineasFichero EpwCon(const std::vector<std::size_t> &columnas, const std::string &valor) {
  LineasFichero lineas = LineasEpw();
  for (std::size_t i = CABECERA_EPW; i < lineas.size(); ++i) {
    for (const std::size_t columna : columnas) CambiarCampo(lineas[i], columna, valor);
  }
  return lineas;
}

TEST(RadiacionNula, UnaGlobalDeCeroTodoElAnioNoApagaElSol) {
  const ResultadoLectura resultado = LeerTextoClima(Unir(EpwCon({GLOBAL}, "0")));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  const NotaLectura nota = NotaDe(resultado.avisos, ClaseNota::ValorImposible);
  EXPECT_EQ(nota.campo, Campo::GlobalHorizontal);
  EXPECT_NE(nota.texto.find("0 en todo el año"), std::string::npos) << nota.texto;
  EXPECT_TRUE(std::isnan(Valor(*resultado.anio, Campo::GlobalHorizontal, 36)));

  const ResultadoConversion conversion = LlevarAHoraSolar(*resultado.anio, resultado.anio->reloj);
  ASSERT_TRUE(conversion.anio) << conversion.error;
  double difusa = 0.0;
  for (int i = 0; i < HORAS_DEL_ANIO; ++i) difusa += HoraPrueba(i).difusa / 1000.0;
  EXPECT_NEAR(conversion.informe.difusa.energia.despues, difusa, difusa * 0.01);
  EXPECT_GT(conversion.informe.directa.energia.despues, difusa);
}

TEST(RadiacionNula, UnaDifusaDeCeroSaleDeLasOtrasDos) {
  const ResultadoLectura resultado = LeerTextoClima(Unir(EpwCon({DIFUSA}, "0.0")));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_TRUE(std::isnan(Valor(*resultado.anio, Campo::DifusaHorizontal, 36)));
  EXPECT_EQ(Valor(*resultado.anio, Campo::GlobalHorizontal, 36), 720.0);
}

TEST(RadiacionNula, ConSoloLaGlobalNoHayAnio) {
  for (const std::vector<std::size_t> &columnas :
       {std::vector<std::size_t>{NORMAL, DIFUSA}, {GLOBAL, NORMAL, DIFUSA}}) {
    const ResultadoLectura resultado = LeerTextoClima(Unir(EpwCon(columnas, "0")));
    EXPECT_FALSE(resultado.anio);
    ASSERT_EQ(resultado.errores.size(), 1U) << Textos(resultado.errores);
    EXPECT_EQ(resultado.errores[0].clase, ClaseNota::CampoAusente);
    EXPECT_NE(resultado.errores[0].texto.find("hacen falta dos"), std::string::npos);
  }
}

TEST(RadiacionNula, DirectaNormalYDifusaSinDatoTampoco) {
  const ResultadoLectura resultado = LeerTextoClima(Unir(EpwCon({NORMAL, DIFUSA}, "9999")));
  EXPECT_FALSE(resultado.anio);
  ASSERT_EQ(resultado.errores.size(), 1U) << Textos(resultado.errores);
  EXPECT_EQ(resultado.errores[0].clase, ClaseNota::CampoAusente);
}

TEST(RadiacionNula, ElMetDeQuinceColumnasSeTomaComoViene) {
  LineasFichero lineas = LineasMetQuince();
  for (std::size_t i = CABECERA_MET; i < lineas.size(); ++i) CambiarCampo(lineas[i], 5, "0", ' ');
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(Valor(*resultado.anio, Campo::DirectaHorizontal, 36), 0.0);
}

} // namespace
} // namespace tesmo
