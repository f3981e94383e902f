#include "meteo/Estadoshorarios.h"

#include "meteo/Leermet.h"
#include "tests/comun/Apoyos.h"
#include "tests/meteo/Textomet.h"

#include <gtest/gtest.h>

namespace tesmo::prueba {
namespace {

constexpr int COLUMNA_T = 4;
constexpr int COLUMNA_W = 8;

class EstadosHorarios : public testing::Test {
protected:
  void SetUp() override { ASSERT_TRUE(met_.LeerFichero(directorio_.Escribir("a.met", TextoMet(8760)))); }

  DirectorioTemporal directorio_;
  LeerMet met_;
};

TEST_F(EstadosHorarios, DeDoceADoceHayUnoPorDia) {
  met_.PonPeriodo(1, 1, 1, 12, 31, 24);
  const auto estados = EstadosDelPeriodo(met_, 12, 12);
  ASSERT_EQ(estados.size(), 365U);
  for (std::size_t dia = 0; dia < estados.size(); ++dia) {
    const int i = static_cast<int>(dia) * 24 + 11;
    EXPECT_EQ(estados[dia].t, ValorMet(COLUMNA_T, i));
    EXPECT_EQ(estados[dia].w, ValorMet(COLUMNA_W, i));
    EXPECT_EQ(estados[dia].fecha.hora, 12);
  }
  EXPECT_EQ(estados[59].fecha.mes, 3); // el año típico no tiene 29 de febrero
  EXPECT_EQ(estados[59].fecha.dia, 1);
}

TEST_F(EstadosHorarios, ElPeriodoEmpiezaYAcabaEnSuHora) {
  met_.PonPeriodo(1, 31, 23, 2, 1, 2);
  const auto estados = EstadosDelPeriodo(met_, 1, 24);
  ASSERT_EQ(estados.size(), 4U);
  EXPECT_EQ(estados[0].fecha, (FechaHora{1, 31, 23}));
  EXPECT_EQ(estados[3].fecha, (FechaHora{2, 1, 2}));
  EXPECT_EQ(estados[3].t, ValorMet(COLUMNA_T, 31 * 24 + 1));
}

TEST_F(EstadosHorarios, ConLasHorasDelDiaOElPeriodoAlRevesNoHayNinguno) {
  met_.PonPeriodo(1, 1, 1, 1, 2, 24);
  EXPECT_TRUE(EstadosDelPeriodo(met_, 13, 12).empty());
  met_.PonPeriodo(2, 1, 1, 1, 1, 24);
  EXPECT_TRUE(EstadosDelPeriodo(met_, 1, 24).empty());
}

} // namespace
} // namespace tesmo::prueba
