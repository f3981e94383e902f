#include "extremos/Cielo.h"
#include "extremos/Humedad.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tesmo::extremos {
namespace {

constexpr double HPA_POR_PULGADA = 33.8639;

double D(long double valor) { return static_cast<double>(valor); }

// Smithsonian Meteorological Tables (6.ª ed., 1951), tablas 94 (agua) y 96 (hielo), en hPa. El cero de aquí
// va una centésima de kelvin alto (459,688 en vez de 459,67), que mueve la presión menos de un uno por mil.
TEST(PresionDeSaturacion, GoffYGratchPublicada) {
  constexpr double TABLA[][2] = {{-40, 0.1283}, {-20, 1.032}, {-10, 2.597}, {0.01, 6.1115},
                                 {10, 12.272},  {20, 23.373}, {30, 42.430}, {40, 73.777}};
  for (const auto &[t, hpa] : TABLA) {
    EXPECT_NEAR(D(PresionDeSaturacion(t)) * HPA_POR_PULGADA, hpa, 0.0015 * hpa) << t;
  }
}

TEST(PresionDeSaturacion, LasDosRamasSeUnenEnElPuntoTriple) {
  const double antes = D(PresionDeSaturacion(-0.001L));
  const double despues = D(PresionDeSaturacion(0.001L));
  EXPECT_LT(antes, despues);
  EXPECT_NEAR(antes, despues, 2e-4 * despues);
}

// La correlación del rocío deshace la saturación con el error que tiene: medio grado en el margen de uso.
TEST(Rocio, DeshaceLaSaturacion) {
  for (int t = -30; t <= 45; ++t) EXPECT_NEAR(D(RocioDePresion(PresionDeSaturacion(t))), t, 0.5) << t;
}

TEST(Rocio, LasDosRamasAMano) {
  EXPECT_NEAR(D(RocioDePresion(1.0L)), (79.05 - 32.0) * 5.0 / 9.0, 1e-12);
  EXPECT_NEAR(D(RocioDePresion(0.18063L)),
              (79.05 + 30.579 * std::log(0.18063) + 1.8893 * std::pow(std::log(0.18063), 2) - 32) * 5 / 9,
              1e-9);
  EXPECT_NEAR(D(RocioDePresion(std::exp(-2.0L))), (71.98 - 2 * 24.873 + 4 * 0.8927 - 32.0) * 5.0 / 9.0,
              1e-12);
}

TEST(Rocio, UnAireSinVaporTieneRocioFinito) {
  const double rocio = D(RocioDePresion(0.0L));
  EXPECT_TRUE(std::isfinite(rocio));
  EXPECT_LT(rocio, D(RocioDePresion(1e-4L)));
}

TEST(PresionBarometrica, BajaConLaAltitud) {
  EXPECT_EQ(PresionBarometrica(0.0L), 29.921L);
  EXPECT_NEAR(D(PresionBarometrica(1000.0L)), 26.701, 1e-12);
}

// ASHRAE Handbook Fundamentals (2017), cap. 1, tabla 2: aire saturado a 101325 Pa, 7,66 g/kg a 10 °C, 14,76 a
// 20 y 27,33 a 30; la tabla lleva el factor de aire real, de un 0,5 %.
TEST(EstadoConRelativa, HumedadDeSaturacionPublicada) {
  constexpr double TABLA[][2] = {{10, 7.661}, {20, 14.758}, {30, 27.329}};
  for (const auto &[t, gramos] : TABLA) {
    EXPECT_NEAR(1000.0 * D(EstadoConRelativa(t, 100.0L, PresionBarometrica(0.0L)).absoluta), gramos,
                0.008 * gramos);
  }
}

TEST(EstadoConHumedad, DeshaceElDeLaRelativa) {
  const long double p = PresionBarometrica(600.0L);
  for (const long double hr : {20.0L, 55.0L, 90.0L}) {
    const EstadoDeAire a = EstadoConRelativa(25.0L, hr, p);
    const EstadoDeAire b = EstadoConHumedad(25.0L, a.absoluta, p);
    EXPECT_NEAR(D(b.relativa), D(hr) / 100.0, 1e-12);
    EXPECT_NEAR(D(b.rocio), D(a.rocio), 1e-10);
  }
}

TEST(HumedadSupuesta, EnLaCostaSaturadaALaMinimaYEnElInteriorDosGradosMenos) {
  const double costa = HumedadSupuesta(8.0F, "COSTA", 0.0F);
  EXPECT_NEAR(costa, 1000.0 * D(EstadoConRelativa(8.0L, 100.0L, 29.921L).absoluta), 1e-6);
  EXPECT_FLOAT_EQ(HumedadSupuesta(10.0F, "INTERIOR", 0.0F), static_cast<float>(costa));
  EXPECT_LT(HumedadSupuesta(8.0F, "costa", 0.0F), costa);
  EXPECT_GT(HumedadSupuesta(8.0F, "COSTA", 700.0F), costa);
}

ValoresHorarios Temperaturas(float noche, float dia) {
  ValoresHorarios t{};
  for (std::size_t h = 0; h < t.size(); ++h) t[h] = h >= 8 && h < 20 ? dia : noche;
  return t;
}

TEST(HumedadHoraria, LejosDelRocioSeConservaLaAbsoluta) {
  const HumedadDelDia d = HumedadHoraria(Temperaturas(20.0F, 30.0F), 10.0F, 0.0F);
  for (std::size_t h = 0; h < 24; ++h) {
    EXPECT_NEAR(d.absoluta[h], 10.0F, 1e-5F);
    EXPECT_EQ(d.rocio[h], d.rocio[12]);
  }
  EXPECT_LT(d.relativa[12], d.relativa[0]);
  EXPECT_NEAR(d.rocio[12], 14.0F, 0.3F); // 10 g/kg a nivel del mar: rocío de 14 °C
}

TEST(HumedadHoraria, CercaDelRocioVaAlNoventaPorCiento) {
  const HumedadDelDia d = HumedadHoraria(Temperaturas(10.0F, 25.0F), 10.0F, 0.0F);
  EXPECT_FLOAT_EQ(d.relativa[0], 90.0F);
  EXPECT_LT(d.absoluta[0], 10.0F);
  EXPECT_LT(d.rocio[0], 10.0F);
  EXPECT_NEAR(d.absoluta[12], 10.0F, 1e-5F);
}

TEST(HumedadHoraria, ElLimiteEsUnGradoSobreElRocio) {
  const float rocio = HumedadHoraria(Temperaturas(25.0F, 25.0F), 10.0F, 0.0F).rocio[0];
  EXPECT_FLOAT_EQ(HumedadHoraria(Temperaturas(rocio + 0.99F, 25.0F), 10.0F, 0.0F).relativa[0], 90.0F);
  EXPECT_GT(HumedadHoraria(Temperaturas(rocio + 1.01F, 25.0F), 10.0F, 0.0F).relativa[0], 90.5F);
}

TEST(CieloCubierto, DeDespejadoACubierto) {
  EXPECT_EQ(CieloCubierto(0.2L), 1.0L);
  EXPECT_EQ(CieloCubierto(0.25L), 1.0L);
  EXPECT_NEAR(D(CieloCubierto(0.49L)), 0.5, 1e-7);
  EXPECT_NEAR(D(CieloCubierto(0.73L)), 0.0, 1e-7);
  EXPECT_EQ(CieloCubierto(0.8L), 0.0L);
}

// Despejado, 20 °C y rocío de 10 °C, a mano: 0,815^0,25 × 293 − 273 = 5,39 °C.
TEST(TemperaturaDeCielo, AMano) {
  EXPECT_NEAR(D(TemperaturaDeCielo(20.0L, 10.0L, 0.0L)), std::pow(0.815, 0.25) * 293.0 - 273.0, 1e-10);
  EXPECT_NEAR(D(TemperaturaDeCielo(20.0L, 10.0L, 0.0L)), 5.39, 0.01);
  const double cubierto = 1 + 0.224 - 0.35 + 0.28;
  EXPECT_NEAR(D(TemperaturaDeCielo(20.0L, 10.0L, 10.0L)), std::pow(cubierto * 0.815, 0.25) * 293.0 - 273.0,
              1e-10);
}

TEST(TemperaturaDeCielo, ElCursoVaHoraAHora) {
  ValoresHorarios t{};
  t.fill(15.0F);
  ValoresHorarios rocio{};
  rocio.fill(5.0F);
  rocio[3] = 10.0F;
  const ValoresHorarios cielo = CursoDeCielo(t, rocio, 0.49L);
  EXPECT_FLOAT_EQ(cielo[0],
                  static_cast<float>(TemperaturaDeCielo(15.0L, 5.0L, 10.0L * CieloCubierto(0.49L))));
  EXPECT_GT(cielo[3], cielo[0]);
}

} // namespace
} // namespace tesmo::extremos
