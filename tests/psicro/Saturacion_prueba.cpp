#include "psicro/Buscaraiz.h"
#include "psicro/Constantes.h"
#include "psicro/Saturacion.h"
#include "tests/comun/Apoyos.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace tesmo;

namespace {

struct Fila {
  float t;      // [°C]
  double valor; // publicado
};

double Relativo(double obtenido, double publicado) {
  return std::fabs(obtenido - publicado) / std::fabs(publicado);
}

} // namespace

// ASHRAE Handbook of Fundamentals (2017), capítulo 1, tabla 3: presión de saturación [Pa]. El manual da sus
// ecuaciones por buenas hasta 300 partes por millón de la tabla; los coeficientes en precisión simple añaden
// menos de 5 (se comprueba más abajo).
TEST(PresionSaturacion, CoincideConLaTablaDelManual) {
  const Fila filas[] = {{-20, 103.24}, {-5, 401.74},  {5, 872.6},
                        {25, 3169.7},  {50, 12351.3}, {100, 101418.0}};
  for (const Fila &f : filas) EXPECT_LT(Relativo(presionSaturacion(f.t), f.valor), 3e-4) << f.t;
  // A -60 °C la tabla sólo da tres cifras: 1.08 Pa.
  EXPECT_NEAR(presionSaturacion(-60), 1.08, 0.005);
}

// IAPWS-IF97 (edición de 2007), tabla 35: p_s(300 K) = 3536.58941 Pa. IAPWS R14-08 (2011): sublimación a
// 230 K, 8.94735 Pa. Son otras formulaciones: Hyland y Wexler distan de ellas hasta un 0.1 %.
TEST(PresionSaturacion, CoincideConLosPuntosDeControlDeLaIapws) {
  EXPECT_LT(Relativo(presionSaturacion(26.85F), 3536.58941), 1e-3);
  EXPECT_LT(Relativo(presionSaturacion(-43.15F), 8.94735), 1e-3);
}

// El mismo polinomio en doble precisión, con los coeficientes publicados.
TEST(PresionSaturacion, LaPrecisionSimpleDeLosCoeficientesApenasSeNota) {
  for (int grados = -60; grados <= 99; ++grados) {
    const double T = grados + 273.15;
    const double agua = -5800.2206 / T + 1.3914993 - 0.048640239 * T + 4.1764768e-5 * T * T -
                        1.4452093e-8 * T * T * T + 6.5459673 * std::log(T);
    const double hielo = -5674.5359 / T + 6.3925247 - 0.009677843 * T + 6.2215701e-7 * T * T +
                         2.0747825e-9 * T * T * T - 9.484024e-13 * T * T * T * T + 4.1635019 * std::log(T);
    const double esperado = std::exp(grados >= 0 ? agua : hielo);
    EXPECT_LT(Relativo(presionSaturacion(static_cast<float>(grados)), esperado), 5e-6) << grados;
  }
}

TEST(PresionSaturacion, ACeroGradosEsAguaLiquidaYUnaCentesimaPorDebajoHielo) {
  // Agua y hielo se separan en 0 °C: 611.213 Pa y 611.154 Pa (Hyland y Wexler, 1983).
  EXPECT_NEAR(presionSaturacion(0.0F), 611.213, 0.003);
  EXPECT_NEAR(presionSaturacion(-1e-5F), 611.213, 0.003); // la suma en float da otra vez 273.15
  EXPECT_NEAR(presionSaturacion(-0.01F), 611.154 * (1.0 - 0.01 * 0.08238), 0.003);
}

TEST(PresionSaturacion, CreceConLaTemperaturaEnTodoElDominio) {
  float anterior = presionSaturacion(-100.0F);
  EXPECT_GT(anterior, 0.0F);
  for (int i = -999; i <= 990; ++i) {
    const float actual = presionSaturacion(static_cast<float>(i) / 10.0F);
    ASSERT_GT(actual, anterior) << i;
    anterior = actual;
  }
}

// ASHRAE Handbook of Fundamentals (2017), capítulo 1, tabla 2, a 101325 Pa: aire saturado [kg/kg]. La tabla
// es de gas real; el gas ideal queda hasta un 0.7 % por debajo entre -50 y 50 °C (Kuehn y otros, 1998).
TEST(HumedadSaturacion, CoincideConLaTablaDelManual) {
  const Fila filas[] = {{-20, 0.0006373}, {-5, 0.0024863}, {5, 0.005425}, {25, 0.020173}, {50, 0.086863}};
  for (const Fila &f : filas) {
    const double w = humedadSaturacion(f.t, aire::PRESION_NORMAL);
    EXPECT_LT(Relativo(w, f.valor), 7e-3) << f.t;
    EXPECT_LT(w, f.valor) << f.t;
  }
}

TEST(HumedadSaturacion, EsNegativaPorDebajoDeLaPresionDeSaturacionEInfinitaEnElla) {
  EXPECT_LT(humedadSaturacion(99.0F, 50000.0F), 0.0);
  EXPECT_TRUE(std::isinf(humedadSaturacion(20.0F, presionSaturacion(20.0F))));
}

TEST(TSatVap, EsLaInversaDeLaPresionDeSaturacionDentroDeLaTolerancia) {
  prueba::RegistroApuntado registro;
  for (int t = -60; t <= 99; ++t) {
    const float p = presionSaturacion(static_cast<float>(t));
    EXPECT_NEAR(tSatVap(p), t, 1e-5 * std::fabs(t) + 1e-5) << t;
  }
  EXPECT_TRUE(registro.textos.empty()) << registro.textos.front();
}

// IAPWS-IF97 (edición de 2007), tabla 36: T_s(0.1 MPa) = 372.755919 K. El punto de ebullición de Hyland y
// Wexler queda a centésimas de él.
TEST(TSatVap, DaLaEbullicionDelAgua) {
  EXPECT_NEAR(tSatVap(100000.0F), 372.755919 - 273.15, 0.02);
  EXPECT_NEAR(tSatVap(101325.0F), 99.974, 0.02); // 373.124 K, IAPWS-95
}

TEST(TSatVap, SinVaporNoConvergeYLoDice) {
  prueba::RegistroApuntado registro;
  const float t = tSatVap(0.0F);
  EXPECT_EQ(registro.textos, std::vector<std::string>{"**Error 3: El proceso iterativo no ha convergido: "
                                                      "CorrienteAire::tSatVap(float p_)"});
  EXPECT_TRUE(std::isfinite(t));
  EXPECT_LT(t, -100.0F);
}

TEST(TBulboHumedo, DelAireSaturadoEsSuTemperaturaDeCeroANoventaGrados) {
  prueba::RegistroApuntado registro;
  for (int i = 0; i <= 360; ++i) {
    const float t = static_cast<float>(i) * 0.25F;
    const auto w = static_cast<float>(humedadSaturacion(t, aire::PRESION_NORMAL));
    EXPECT_NEAR(tBulboHumedo(t, w), t, 0.001 * static_cast<double>(t) + 1e-5) << t;
  }
  EXPECT_TRUE(registro.textos.empty()) << registro.textos.front();
}

TEST(TBulboHumedo, InvierteLaRelacionDelBulboHumedo) {
  for (float t = 5.0F; t <= 50.0F; t += 5.0F) {
    for (float th = 1.0F; th <= t; th += 2.0F) {
      const double w = humedadDeBulboHumedo(t, th, aire::PRESION_NORMAL);
      if (w < 0.0) continue;
      EXPECT_NEAR(tBulboHumedo(t, static_cast<float>(w)), th, 0.001 * static_cast<double>(th) + 1e-3) << t;
    }
  }
}

TEST(TBulboHumedo, PorDebajoDeCeroLaBusquedaEmpiezaEnCero) {
  const auto buscarDesde = [](float inicio, float t, float w) {
    return BuscarRaiz(inicio, 0.0010000000474974513, 50, "", [t, w](float x) {
      return static_cast<float>(static_cast<double>(w) - humedadDeBulboHumedo(t, x, 101325.0F));
    });
  };
  int distintas = 0;
  for (float t = -40.0F; t < 0.0F; t += 1.0F) {
    const auto w = static_cast<float>(0.5 * humedadSaturacion(t, aire::PRESION_NORMAL));
    EXPECT_EQ(tBulboHumedo(t, w), buscarDesde(0.0F, t, w)) << t;
    distintas += tBulboHumedo(t, w) != buscarDesde(t, t, w) ? 1 : 0;
  }
  EXPECT_GT(distintas, 0); // empezar en otro sitio se notaría
}

TEST(TBulboHumedo, NoPasaDeLaEbullicion) {
  const double t = tBulboHumedo(99.0F, 1e6F);
  EXPECT_LE(t, static_cast<double>(tSatVap(aire::PRESION_NORMAL)));
}

TEST(TBulboHumedo, SinConvergerLoDice) {
  prueba::RegistroApuntado registro;
  (void)tBulboHumedo(20.0F, 1e30F);
  ASSERT_FALSE(registro.textos.empty());
  EXPECT_EQ(registro.textos.front(), "**Error 3: El proceso iterativo no ha convergido: "
                                     "CorrienteAire::tBulboHumedo(float t_,float w_)");
}
