#include "extremos/Probabilidad.h"

#include <gtest/gtest.h>

namespace tesmo::extremos {
namespace {

double Acumulada(double x) { return static_cast<double>(AcumuladaNormal(x)); }

// M. Abramowitz e I. Stegun, Handbook of Mathematical Functions (1964), tabla 26.1.
TEST(AcumuladaNormal, ValoresPublicados) {
  EXPECT_NEAR(Acumulada(0.0), 0.5, 1e-15);
  EXPECT_NEAR(Acumulada(0.5), 0.6914624613, 1e-7);
  EXPECT_NEAR(Acumulada(1.0), 0.8413447461, 1e-7);
  EXPECT_NEAR(Acumulada(1.96), 0.9750021049, 1e-7);
  EXPECT_NEAR(Acumulada(3.0), 0.9986501020, 1e-7);
}

TEST(AcumuladaNormal, EnUnNegativoBajaDeUnMedio) {
  EXPECT_NEAR(Acumulada(-2.0), 0.0227501319, 1e-7);
  EXPECT_NEAR(Acumulada(-1.3) + Acumulada(1.3), 1.0, 1e-15);
}

// Los cuantiles son los publicados salvo la recta que une dos puntos separados 0,1: la curvatura deja el
// error por debajo de 0,1² / 8 · x.
TEST(TablaNormal, CuantilesPublicados) {
  const TablaNormal tabla(0.05L);
  constexpr double CUANTILES[][2] = {{0.1, 1.281552},  {0.05, 1.644854},  {0.025, 1.959964},
                                     {0.01, 2.326348}, {0.005, 2.575829}, {0.001, 3.090232}};
  for (const auto &[q, x] : CUANTILES) {
    const double obtenido = static_cast<double>(tabla.Punto(q));
    EXPECT_NEAR(obtenido, x, 0.01 / 8.0 * x) << q;
    EXPECT_GE(obtenido, x - 1e-6) << q; // Φ es cóncava: la cuerda siempre se pasa
  }
}

TEST(TablaNormal, FueraDeLaTabla) {
  const TablaNormal tabla(0.05L);
  EXPECT_EQ(tabla.Punto(0.5L), 0.0L);
  EXPECT_EQ(tabla.Punto(0.9L), 0.0L);
  EXPECT_NEAR(static_cast<double>(tabla.Punto(1e-9L)), 4.0, 1e-12);
  EXPECT_NEAR(static_cast<double>(tabla.AlFinal()), 0.9999683288, 1e-7);
}

TEST(DensidadNormal, EnElCentro) { EXPECT_NEAR(static_cast<double>(DensidadNormal(0.0L)), 0.3989423, 1e-7); }

} // namespace
} // namespace tesmo::extremos
