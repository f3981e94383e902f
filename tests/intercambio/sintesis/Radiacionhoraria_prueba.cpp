#include "intercambio/sintesis/Radiacionhoraria.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace tesmo {
namespace {

using std::numbers::pi;
constexpr double GRADO = pi / 180.0;

TEST(RadiacionHoraria, LaFraccionDifusaEsLaDelEjemploPublicado) {
  // Duffie y Beckman (1991), ejemplo 2.11.1: San Luis, 3 de septiembre, K = 0,69: Hd/H = 0,26.
  EXPECT_NEAR(FraccionDifusaDiaria(0.69, 96.0 * GRADO), 0.26, 0.005);
}

TEST(RadiacionHoraria, LaFraccionDifusaEmpalmaSinEscalonesYDecrece) {
  for (double puesta : {70.0 * GRADO, 100.0 * GRADO}) {
    EXPECT_NEAR(FraccionDifusaDiaria(0.0, puesta), 1.0, 1e-12);
    for (int milesima = 150; milesima < 900; ++milesima) {
      const double k = milesima / 1000.0;
      const double paso = FraccionDifusaDiaria(k + 0.001, puesta) - FraccionDifusaDiaria(k, puesta);
      // La de verano cae 0,0175 al llegar a 0,722, como la publicaron.
      EXPECT_LT(std::fabs(paso), 0.018) << k;
      EXPECT_LT(paso, 0.002) << k;
    }
  }
  EXPECT_DOUBLE_EQ(FraccionDifusaDiaria(0.8, 70.0 * GRADO), 0.143);
  EXPECT_DOUBLE_EQ(FraccionDifusaDiaria(0.8, 100.0 * GRADO), 0.175);
}

TEST(RadiacionHoraria, LaParteGlobalEsLaDelEjemploPublicado) {
  // Duffie y Beckman (1991), ejemplo 2.13.1: Melbourne, enero, de 8 a 9, puesta a 107°: 0,076 del día.
  EXPECT_NEAR(ParteGlobal(-52.5 * GRADO, 107.0 * GRADO), 0.076, 0.001);
}

TEST(RadiacionHoraria, LasPartesDeUnDiaSumanUno) {
  // La difusa lo cumple exactamente al integrar sobre el día; la global, según sus autores, dentro del 1 %.
  for (double puesta : {70.0 * GRADO, 90.0 * GRADO, 110.0 * GRADO}) {
    const int n = 20000;
    double difusa = 0.0;
    double global = 0.0;
    for (int i = 0; i < n; ++i) {
      const double hora = puesta * (2.0 * (i + 0.5) / n - 1.0);
      difusa += ParteDifusaHoraria(hora, puesta);
      global += ParteGlobal(hora, puesta);
    }
    const double horas = 2.0 * puesta * 12.0 / pi / n;
    EXPECT_NEAR(difusa * horas, 1.0, 1e-6) << puesta;
    EXPECT_NEAR(global * horas, 1.0, 0.01) << puesta;
  }
}

TEST(RadiacionHoraria, LaCotaDelHazUsaLaMasaDeAirePublicada) {
  // Kasten y Young (1989): masa 1,994 a 60°, 5,6 a 80°, 38 en el horizonte. Meinel: 0,7 por unidad de masa.
  const auto masa = [](double cenit) {
    return std::pow(std::log(CotaDelHaz(1.0, cenit)) / std::log(0.7), 1.0 / 0.678);
  };
  EXPECT_NEAR(masa(0.0), 1.0, 0.001);
  EXPECT_NEAR(masa(60.0), 1.994, 0.002);
  EXPECT_NEAR(masa(80.0), 5.60, 0.02);
  EXPECT_NEAR(masa(90.0), 38.0, 0.2);
  EXPECT_NEAR(CotaDelHaz(1367.0, 0.0), 1367.0 * 0.7, 1.0);
}

class RadiacionDeUnAnio : public ::testing::TestWithParam<double> {
protected:
  SolDelAnio sol_ = CalcularSolDelAnio(37.0);
  SerieDias claridad_ = SerieDias(DIAS, GetParam());
  RadiacionSintetica radiacion_ = GenerarRadiacion(claridad_, sol_);
};

TEST_P(RadiacionDeUnAnio, LasHorasSumanElDia) {
  for (std::size_t dia = 0; dia < DIAS; ++dia) {
    double suma = 0.0;
    for (std::size_t i = dia * 24; i < dia * 24 + 24; ++i)
      suma += radiacion_.directa[i] + radiacion_.difusa[i];
    EXPECT_NEAR(suma, GetParam() * sol_.extraterrestre[dia] * 1000.0, 1.0) << dia;
  }
}

TEST_P(RadiacionDeUnAnio, EsSimetricaRespectoAlMediodiaYNuncaNegativa) {
  for (std::size_t i = 0; i < HORAS; ++i) {
    const std::size_t espejo = i / 24 * 24 + 23 - i % 24;
    EXPECT_NEAR(radiacion_.directa[i], radiacion_.directa[espejo], 0.11) << i;
    EXPECT_NEAR(radiacion_.difusa[i], radiacion_.difusa[espejo], 0.11) << i;
    EXPECT_GE(radiacion_.directa[i], 0.0) << i;
    EXPECT_GE(radiacion_.difusa[i], 0.0) << i;
  }
}

TEST_P(RadiacionDeUnAnio, NoHayNadaDeNocheNiDirectaConElSolRasante) {
  for (std::size_t i = 0; i < HORAS; ++i) {
    if (!sol_.diurna[i]) {
      EXPECT_EQ(radiacion_.directa[i] + radiacion_.difusa[i], 0.0) << i;
    }
    if (sol_.cenit[i] >= 89.0) {
      EXPECT_EQ(radiacion_.directa[i], 0.0) << i;
    }
  }
}

TEST_P(RadiacionDeUnAnio, LaDirectaNormalNoPasaDeLaDelCieloDespejado) {
  for (std::size_t i = 0; i < HORAS; ++i) {
    if (sol_.cenit[i] >= 89.0) continue;
    const double normal = (radiacion_.directa[i] - 0.05) / std::cos(sol_.cenit[i] * GRADO);
    EXPECT_LE(normal, CotaDelHaz(IrradianciaExtraterrestre(i / 24), sol_.cenit[i])) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Claridades, RadiacionDeUnAnio, ::testing::Values(0.06, 0.35, 0.6, 0.82));

TEST(RadiacionHoraria, UnDiaCubiertoCasiNoTieneDirectaYUnoDespejadoCasiTodaLoEs) {
  const SolDelAnio sol = CalcularSolDelAnio(37.0);
  const auto parte = [&](double k) {
    const RadiacionSintetica radiacion = GenerarRadiacion(SerieDias(DIAS, k), sol);
    const std::size_t mediodia = 171 * 24 + 12;
    return radiacion.directa[mediodia] / (radiacion.directa[mediodia] + radiacion.difusa[mediodia]);
  };
  EXPECT_LT(parte(0.1), 0.1);
  EXPECT_GT(parte(0.75), 0.8);
}

} // namespace
} // namespace tesmo
