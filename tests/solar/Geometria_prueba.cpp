#include "core/Calendario.h"
#include "solar/Geometria.h"
#include "tests/comun/Rejilla.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tesmo {
namespace {

constexpr float ALMERIA = 36.84F;

TEST(Declinacion, SolsticiosYFormula) {
  const long double junio = 23.45L * std::sin(2.0L * PI_SOLAR * 456.0L / 365.0L);
  EXPECT_NEAR(static_cast<double>(DeclinacionSolar(6, 21)), static_cast<double>(junio), 1e-12);
  EXPECT_NEAR(static_cast<double>(DeclinacionSolar(12, 21)), -23.45, 1e-2);
}

// Duffie y Beckman, Solar Engineering of Thermal Processes (4.ª ed., 2013), tabla 1.6.1: día medio de cada
// mes y su declinación, redondeada a la décima.
TEST(Declinacion, DiasMediosDeDuffieYBeckman) {
  struct Fila {
    int mes, dia;
    double delta;
  };
  constexpr Fila TABLA[] = {{1, 17, -20.9}, {2, 16, -13.0}, {3, 16, -2.4},   {4, 15, 9.4},
                            {5, 15, 18.8},  {6, 11, 23.1},  {7, 17, 21.2},   {8, 16, 13.5},
                            {9, 15, 2.2},   {10, 15, -9.6}, {11, 14, -18.9}, {12, 10, -23.0}};
  for (const Fila &f : TABLA) {
    EXPECT_NEAR(static_cast<double>(DeclinacionSolar(f.mes, f.dia)), f.delta, 0.051) << f.mes;
  }
}

TEST(Declinacion, UnDiaFueraDelMesSigueContando) {
  EXPECT_EQ(DeclinacionSolar(2, 29), DeclinacionSolar(3, 1));
  EXPECT_EQ(DeclinacionSolar(4, 31), DeclinacionSolar(5, 1));
  EXPECT_EQ(DeclinacionSolar(13, 5), DeclinacionSolar(1, 5)); // un mes que no existe no tiene días antes
  EXPECT_TRUE(std::isfinite(DeclinacionSolar(12, std::numeric_limits<int>::max())));
}

TEST(HorasDeSol, AlmeriaEnElSolsticioDeVerano) {
  const SalidaPuesta sol = HorasDeSol(ALMERIA, DeclinacionSolar(6, 21));
  EXPECT_LT(sol.salida, 5.0F);
  EXPECT_EQ(sol.puesta, 24.0F - sol.salida);
}

TEST(HorasDeSol, EnElEcuadorElDiaDuraDoceHoras) {
  for (int mes = 1; mes <= 12; ++mes) {
    const SalidaPuesta sol = HorasDeSol(0.0F, DeclinacionSolar(mes, 21));
    EXPECT_NEAR(sol.salida, 6.0F, 1e-6F);
    EXPECT_NEAR(sol.puesta, 18.0F, 1e-6F);
  }
}

TEST(HorasDeSol, ElSolNoSePoneOnoSaleCercaDeLosPolos) {
  for (const float polo : {89.0F, 90.0F}) {
    const SalidaPuesta junio = HorasDeSol(polo, DeclinacionSolar(6, 21));
    EXPECT_EQ(junio.salida, -1.0F);
    EXPECT_EQ(junio.puesta, 25.0F);
    const SalidaPuesta diciembre = HorasDeSol(polo, DeclinacionSolar(12, 21));
    EXPECT_EQ(diciembre.salida, -1.0F);
    EXPECT_EQ(diciembre.puesta, -1.0F);
    const SalidaPuesta sur = HorasDeSol(-polo, DeclinacionSolar(12, 21));
    EXPECT_EQ(sur.puesta, 25.0F);
  }
}

TEST(HoraDeDia, LasDosToleranciasSonDistintas) {
  const SalidaPuesta sol{6.0F, 18.0F};
  EXPECT_FALSE(EsHoraDeDia(sol, 6.0F));
  EXPECT_FALSE(EsHoraDeDia(sol, 6.0005F)); // 6 × 1,0001 = 6,0006
  EXPECT_TRUE(EsHoraDeDia(sol, 6.0007F));
  EXPECT_FALSE(EsHoraDeDia(sol, 18.0F));
  EXPECT_FALSE(EsHoraDeDia(sol, 17.9999F)); // 18 × 0,99999 = 17,99982
  EXPECT_TRUE(EsHoraDeDia(sol, 17.9997F));
}

// Duffie y Beckman (4.ª ed., 2013), ejemplo 1.6.2: 43° N, 13 de febrero a las 9:30 y 1 de julio a las 18:30.
// El libro redondea la declinación (−13,95° a −14°) y el resultado: media décima cada uno y lo que arrastra.
TEST(Vector, EjemploPublicadoDeCenitYAcimut) {
  const auto manana = PosicionDesdeVector(VectorDeDia(43.0F, DeclinacionSolar(2, 13), 9.5F));
  EXPECT_NEAR(manana.angulos.cenit, 66.5F, 0.15F);
  EXPECT_NEAR(manana.angulos.acimut, -40.0F, 0.15F);
  const auto tarde = PosicionDesdeVector(VectorDeDia(43.0F, DeclinacionSolar(7, 1), 18.5F));
  EXPECT_NEAR(tarde.angulos.cenit, 79.6F, 0.15F);
  EXPECT_NEAR(tarde.angulos.acimut, 112.0F, 0.15F);
}

TEST(Vector, EsUnitario) {
  for (const float latitud : prueba::Rejilla(-89.0F, 89.0F, 8.9F)) {
    for (const float hora : prueba::Rejilla(0.0F, 24.0F, 0.37F)) {
      const VectorSolar sol = VectorDeDia(latitud, 17.3L, hora);
      EXPECT_NEAR(static_cast<double>(sol.s * sol.s + sol.w * sol.w + sol.z * sol.z), 1.0, 1e-15);
    }
  }
}

TEST(Vector, SignoDelSurEnElEcuador) {
  for (const float ecuador : {0.0F, -0.0F}) {
    EXPECT_LT(VectorDeDia(ecuador, 10.0L, 10.0F).s, 0.0L);
    EXPECT_GT(VectorDeDia(ecuador, -10.0L, 10.0F).s, 0.0L);
  }
  EXPECT_TRUE(std::signbit(VectorDeDia(0.0F, 0.0L, 10.0F).s)); // 0/0 cuenta como el sol al norte
}

// Al sur del ecuador el sol del mediodía está al norte, pero la regla del signo es una sola y da el sur.
TEST(Vector, AlSurDelEcuadorElSentidoNorteSurQuedaInvertido) {
  EXPECT_GT(VectorDeDia(-35.0F, DeclinacionSolar(6, 21), 12.0F).s, 0.0L);
}

TEST(Vector, ElRadicandoNegativoCuentaComoCero) {
  // Con el sol en el cenit, 1 − W² − Z² es cero salvo el redondeo, que no puede dar un valor que no sea
  // número.
  for (const float latitud : prueba::Rejilla(-23.0F, 23.0F, 0.25F)) {
    const VectorSolar sol = VectorDeDia(latitud, latitud, 12.0F);
    EXPECT_FALSE(std::isnan(sol.s));
    const auto posicion = PosicionDesdeVector(sol);
    EXPECT_FALSE(std::isnan(posicion.angulos.altura));
    EXPECT_FALSE(std::isnan(posicion.angulos.acimut));
  }
  const auto cenit = PosicionDesdeVector({0.0L, 0.0L, 1.0L + 1e-18L});
  EXPECT_FLOAT_EQ(cenit.angulos.altura, 90.0F);
}

TEST(Posicion, ElSolDegeneradoDaCeroYNoche) {
  const auto posicion = PosicionDesdeVector({0.0L, 1.0L, 0.0L}); // s² = 1
  EXPECT_EQ(posicion.angulos.acimut, 0.0F);
  EXPECT_EQ(posicion.angulos.altura, 0.0F);
  EXPECT_EQ(posicion.angulos.cenit, 90.0F);
  EXPECT_FALSE(posicion.esDeDia);
}

TEST(Posicion, CuadrantesDelAcimut) {
  const long double r = std::sqrt(0.5L);
  const auto acimut = [](long double s, long double w) {
    return PosicionDesdeVector({s, w, 0.0L}).angulos.acimut;
  };
  EXPECT_FLOAT_EQ(acimut(r, r), 45.0F);
  EXPECT_FLOAT_EQ(acimut(r, -r), -45.0F);
  EXPECT_FLOAT_EQ(acimut(-r, r), 135.0F);
  EXPECT_FLOAT_EQ(acimut(-r, -r), -135.0F);
  EXPECT_FLOAT_EQ(PosicionDesdeVector({-0.8L, 0.0L, 0.6L}).angulos.acimut, 180.0F);
}

TEST(AngulosDeVector, CasosDelAcimut) {
  struct Caso {
    float x, y, acimut;
  };
  constexpr float PREVIO = 7.0F;
  constexpr Caso CASOS[] = {{0.0F, 0.0F, 0.0F},   {0.00009F, -0.5F, -90.0F}, {0.0F, 0.5F, 90.0F},
                            {0.5F, 0.5F, 45.0F},  {0.5F, -0.5F, -45.0F},     {-0.5F, -0.5F, -135.0F},
                            {-0.5F, 0.5F, 135.0F}};
  for (const Caso &c : CASOS) {
    AngulosSolares angulos{PREVIO, 0.0F, 0.0F};
    AngulosDeVector(c.x, c.y, 0.5F, angulos);
    EXPECT_FLOAT_EQ(angulos.acimut, c.acimut) << c.x << ' ' << c.y;
    EXPECT_FLOAT_EQ(angulos.altura, 30.0F);
    EXPECT_FLOAT_EQ(angulos.cenit, 60.0F);
  }
}

TEST(AngulosDeVector, ElHuecoConservaElAcimutPrevioEscalado) {
  for (const float x : {0.8F, -0.8F}) {
    AngulosSolares angulos{2.0F, 0.0F, 0.0F};
    AngulosDeVector(x, 0.00005F, 0.6F, angulos);
    EXPECT_FLOAT_EQ(angulos.acimut, 2.0F * 57.29577951F);
  }
}

TEST(AngulosDeVector, ElCenitYPocoMasAllaSonNoventaGrados) {
  AngulosSolares angulos{};
  AngulosDeVector(0.0F, 0.0F, 1.0000001F, angulos);
  EXPECT_FLOAT_EQ(angulos.altura, 90.0F);
  EXPECT_FLOAT_EQ(angulos.cenit, 0.0F);
}

} // namespace
} // namespace tesmo
