#include "extremos/Cursotemperatura.h"
#include "extremos/Radiaciondiaria.h"
#include "extremos/Radiacionhoraria.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tesmo::extremos {
namespace {

double D(long double valor) { return static_cast<double>(valor); }

// J. A. Duffie y W. A. Beckman, Solar Engineering of Thermal Processes (4.ª ed., 2013), tabla 1.10.1: H0 a
// 35° N en enero 17,5, abril 35,5, junio 41,5 y octubre 25,8 MJ/m², con 1367 W/m² y el día medio de cada mes.
// La constante de aquí es un 1 % menor, el factor de excentricidad puede apartarse un 3,3 % y el día es
// siempre el 15.
TEST(SolDeProyecto, RadiacionExtraterrestrePublicada) {
  constexpr double TABLA[][2] = {{1, 17.5}, {4, 35.5}, {6, 41.5}, {10, 25.8}};
  for (const auto &[mes, mj] : TABLA) {
    const double h0 = D(CalcularSolDeProyecto(35.0F, static_cast<int>(mes)).extraterrestre) * 3600.0 / 1e6;
    EXPECT_NEAR(h0, mj, 0.065 * mj) << mes;
  }
}

TEST(RepartirRadiacion, LaNochePolarNoDaRadiacionYEsFinita) {
  const SolDeProyecto sol = CalcularSolDeProyecto(80.0F, 1);
  ASSERT_LE(sol.extraterrestre, 0.0L);
  const RadiacionDelDia radiacion = RepartirRadiacion(0.0L, sol);
  EXPECT_EQ(radiacion.claridad, 0.0L);
  for (std::size_t h = 0; h < radiacion.directa.size(); ++h) {
    EXPECT_EQ(radiacion.directa[h], 0.0F) << h;
    EXPECT_EQ(radiacion.difusa[h], 0.0F) << h;
  }
}

// Enero, 36,84° N, a mano: n = 15, δ = −21,2695°, E0 = 1 + 0,033 cos(14,7945) = 0,97983.
TEST(SolDeProyecto, EneroAMano) {
  const SolDeProyecto sol = CalcularSolDeProyecto(36.84F, 1);
  const double delta = -21.2695 * std::numbers::pi / 180.0;
  const double phi = 36.84 * std::numbers::pi / 180.0;
  EXPECT_NEAR(D(sol.ocaso), std::acos(-std::tan(phi) * std::tan(delta)), 1e-5);
  const double geometria = std::cos(phi) * std::cos(delta) * std::sin(D(sol.ocaso)) +
                           D(sol.ocaso) * std::sin(phi) * std::sin(delta);
  EXPECT_NEAR(D(sol.extraterrestre), 24.0 / std::numbers::pi * 0.97983 * 1353.0 * geometria, 0.5);
}

// El coseno de la excentricidad toma los grados por radianes: en julio da cos(194,86) = 0,9959 en vez de
// −0,97.
TEST(SolDeProyecto, LaExcentricidadTomaGradosPorRadianes) {
  const SolDeProyecto sol = CalcularSolDeProyecto(0.0F, 7);
  const double n = 6 * 30.4 + 15;
  const double delta = 23.45 * std::sin(2 * std::numbers::pi * (284 + n) / 365) * std::numbers::pi / 180;
  const double esperado =
      24 / std::numbers::pi * (1 + 0.033 * std::cos(360 * n / 365)) * 1353 * std::cos(delta);
  EXPECT_NEAR(D(sol.extraterrestre), esperado, 1e-6);
}

TEST(SolDeProyecto, ElOcasoEnTodaLatitud) {
  EXPECT_NEAR(D(CalcularSolDeProyecto(0.0F, 3).ocaso), std::numbers::pi / 2, 1e-12);
  EXPECT_GT(D(CalcularSolDeProyecto(60.0F, 6).ocaso), std::numbers::pi / 2);
  EXPECT_LT(D(CalcularSolDeProyecto(60.0F, 12).ocaso), std::numbers::pi / 2);
  EXPECT_NEAR(D(CalcularSolDeProyecto(80.0F, 6).ocaso), std::numbers::pi, 1e-12); // no se pone
  EXPECT_NEAR(D(CalcularSolDeProyecto(80.0F, 12).ocaso), 0.0, 1e-12);             // no sale
}

TEST(ClaridadDiaria, LosExtremosDeCadaCurva) {
  constexpr double CURVAS[][2] = {{0.3, 0.69}, {0.4, 0.74}, {0.5, 0.76}, {0.6, 0.79}, {0.7, 0.82}};
  for (const auto &[media, maxima] : CURVAS) {
    EXPECT_NEAR(D(ClaridadDiaria(media, 0.0L)), 0.05, 1e-12) << media;
    EXPECT_NEAR(D(ClaridadDiaria(media, 1.0L)), maxima, 1e-12) << media;
  }
}

// Curva 2 (0,4), F = 0,5, a mano: e^0,0063 = 1,006320; e^0,09324 = 1,097725; ln 1,0520225 / 0,126 = 0,402496.
TEST(ClaridadDiaria, UnaCurvaAMano) { EXPECT_NEAR(D(ClaridadDiaria(0.4L, 0.5L)), 0.402496, 1e-5); }

TEST(ClaridadDiaria, EntreDosCurvasEsLaRecta) {
  const double medio = D(ClaridadDiaria(0.45L, 0.3L));
  EXPECT_NEAR(medio, (D(ClaridadDiaria(0.4L, 0.3L)) + D(ClaridadDiaria(0.5L, 0.3L))) / 2, 1e-12);
}

TEST(ClaridadDiaria, FueraDeLasCurvasValeLaPrimeraOLaUltima) {
  EXPECT_EQ(ClaridadDiaria(0.1L, 0.4L), ClaridadDiaria(0.3L, 0.4L));
  EXPECT_EQ(ClaridadDiaria(0.95L, 0.4L), ClaridadDiaria(0.7000001L, 0.4L));
}

// La media de la distribución de cada curva es su índice medio: así están hechas las curvas.
TEST(ClaridadDiaria, LaMediaDeCadaCurvaEsSuIndice) {
  for (const double media : {0.3, 0.4, 0.5, 0.6, 0.7}) {
    double suma = 0.0;
    for (int i = 0; i < 1000; ++i) suma += D(ClaridadDiaria(media, (i + 0.5L) / 1000.0L));
    EXPECT_NEAR(suma / 1000.0, media, 0.02) << media;
  }
}

TEST(FraccionDifusa, ValoresAMano) {
  EXPECT_EQ(FraccionDifusa(0.0L), 0.99L);
  EXPECT_EQ(FraccionDifusa(0.17L), 0.99L);
  EXPECT_NEAR(D(FraccionDifusa(0.5L)), 1.188 - 1.136 + 2.36825 - 2.732 + 0.9155, 1e-12);
  EXPECT_NEAR(D(FraccionDifusa(0.75L)), 0.632 - 0.54 * 0.75, 1e-12);
  EXPECT_NEAR(D(FraccionDifusa(0.79L)), 0.632 - 0.54 * 0.79, 1e-12);
  EXPECT_EQ(FraccionDifusa(0.8L), 0.2L);
  EXPECT_EQ(FraccionDifusa(1.2L), 0.2L);
}

// En un equinoccio (ocaso a 90°) Liu y Jordan dan π/24 cos ω: 0,12978 a las 11:30 y 0,01709 a las 5:30,
// negativo.
TEST(Reparto, EquinoccioAMano) {
  const RepartoHorario r = RepartirDia(std::numbers::pi_v<long double> / 2);
  EXPECT_NEAR(D(r.difusa[6]), 0.1308997 * std::cos(7.5 * std::numbers::pi / 180), 1e-7);
  EXPECT_EQ(r.difusa[0], 0.0L); // antes del orto
  const double a = 0.409 + 0.5016 * std::sin(std::numbers::pi / 2 - 1.047);
  const double b = 0.6609 - 0.4767 * std::sin(std::numbers::pi / 2 - 1.047);
  const double coseno = std::cos(7.5 * std::numbers::pi / 180);
  EXPECT_NEAR(D(r.global[6]), (a + b * coseno) * 0.1308997 * coseno, 1e-7);
}

TEST(Reparto, EsSimetricoYSumaCasiUno) {
  for (int mes = 1; mes <= 12; ++mes) {
    const RepartoHorario r = RepartirDia(CalcularSolDeProyecto(37.0F, mes).ocaso);
    double global = 0.0;
    double difusa = 0.0;
    for (std::size_t i = 0; i < HORAS_DE_REPARTO; ++i) {
      EXPECT_EQ(r.global[i], r.global[HORAS_DE_REPARTO - 1 - i]);
      EXPECT_EQ(r.difusa[i], r.difusa[HORAS_DE_REPARTO - 1 - i]);
      EXPECT_GE(r.global[i], 0.0L);
      EXPECT_GE(r.difusa[i], 0.0L);
      global += D(r.global[i]);
      difusa += D(r.difusa[i]);
    }
    EXPECT_NEAR(global, D(r.sumaGlobal), 1e-15);
    EXPECT_NEAR(difusa, D(r.sumaDifusa), 1e-15);
    EXPECT_NEAR(global, 1.0, 0.02) << mes;
    EXPECT_NEAR(difusa, 1.0, 0.02) << mes;
  }
}

TEST(RepartirRadiacion, DeNocheEsCeroYNuncaNegativa) {
  for (int mes = 1; mes <= 12; ++mes) {
    const SolDeProyecto sol = CalcularSolDeProyecto(37.0F, mes);
    for (const long double k : {0.05L, 0.3L, 0.6L, 0.82L}) {
      const RadiacionDelDia r = RepartirRadiacion(k * sol.extraterrestre, sol);
      EXPECT_NEAR(D(r.claridad), D(k), 1e-12);
      for (std::size_t h = 0; h < 24; ++h) {
        EXPECT_GE(r.directa[h], 0.0F);
        EXPECT_GE(r.difusa[h], 0.0F);
        EXPECT_EQ(r.directa[h], r.directa[23 - h]);
        EXPECT_EQ(r.difusa[h], r.difusa[23 - h]);
        if (h < 5) {
          EXPECT_EQ(r.difusa[h] + r.directa[h], 0.0F);
        }
      }
      EXPECT_GT(r.difusa[11], 0.0F);
    }
  }
}

TEST(CursoDeTemperatura, PasaPorLaMinimaAlOrtoYPorLaMaximaASuHora) {
  const ValoresHorarios t = CursoDeTemperatura(4.0L, 14.0L, 7.5F, 14); // 7,5 es el centro de la hora 8
  EXPECT_FLOAT_EQ(t[7], 4.0F);
  EXPECT_EQ(*std::min_element(t.begin(), t.end()), t[7]);
  EXPECT_LE(*std::max_element(t.begin(), t.end()), 14.0F);
  EXPECT_GT(std::min(t[13], t[14]), 13.5F);
}

// A mano, mínima 4, máxima 14, orto 7,5 y máximo a las 14: a las 18,5, 9 + 5 cos(4,5 π / 17,5) = 12,454.
TEST(CursoDeTemperatura, LosTresTramosAMano) {
  const ValoresHorarios t = CursoDeTemperatura(4.0L, 14.0L, 7.5F, 14);
  EXPECT_NEAR(t[18], 9.0 + 5.0 * std::cos(4.5 * 3.1415926 / 17.5), 1e-5);
  EXPECT_NEAR(t[10], 9.0 - 5.0 * std::cos(3.0 * 3.1415926 / 6.5), 1e-5);
  EXPECT_NEAR(t[2], 9.0 + 5.0 * std::cos((2.5 - 14 + 24) * 3.1415926 / 17.5), 1e-5);
}

TEST(CursoDeTemperatura, EsContinuoDeUnDiaAOtro) {
  const ValoresHorarios t = CursoDeTemperatura(18.0L, 33.0L, 4.9F, 15);
  for (std::size_t h = 0; h < 24; ++h) EXPECT_LT(std::fabs(t[h] - t[(h + 1) % 24]), 3.0F) << h;
}

TEST(CursoDeTemperatura, SinSalidaDeSolSigueSiendoFinito) {
  for (const float t : CursoDeTemperatura(-20.0L, -10.0L, -1.0F, 14)) EXPECT_TRUE(std::isfinite(t));
}

} // namespace
} // namespace tesmo::extremos
