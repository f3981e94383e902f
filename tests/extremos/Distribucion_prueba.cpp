#include "extremos/Distribucion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tesmo::extremos {
namespace {

/// Diez por ciento a 4 °C, 30 % a 5, nada a 6 y 60 % a 7.
Distribucion DeMuestra() {
  Distribucion d;
  d.Anadir(7, 0.6L);
  d.Anadir(4, 0.1L);
  d.Anadir(5, 0.25L);
  d.Anadir(5, 0.05L);
  return d;
}

Distribucion Acumulada() {
  Distribucion d = DeMuestra();
  d.Acumular();
  return d;
}

double Buscar(const Distribucion &d, long double p) { return static_cast<double>(d.Buscar(p)); }

TEST(Distribucion, VaciaNoTieneAlcance) {
  const Distribucion d;
  EXPECT_EQ(d.Menor(), 50);
  EXPECT_EQ(d.Mayor(), -49);
  EXPECT_EQ(d.Buscar(0.5L), 0.0L);
  EXPECT_EQ(d.Guardada().menor, 50);
}

TEST(Distribucion, ElAlcanceVaDelMenorAlMayor) {
  const Distribucion d = DeMuestra();
  EXPECT_EQ(d.Menor(), 4);
  EXPECT_EQ(d.Mayor(), 7);
  EXPECT_NEAR(static_cast<double>(d[5]), 0.3, 1e-15);
  EXPECT_EQ(d[6], 0.0L);
}

TEST(Distribucion, FueraDeSuAlcanceValeCero) {
  Distribucion d = Acumulada();
  EXPECT_EQ(d[3], 0.0L);
  EXPECT_EQ(d[8], 0.0L); // tampoco vale 1 por encima
  EXPECT_EQ(d[-50], 0.0L);
  EXPECT_EQ(d[51], 0.0L);
  EXPECT_EQ(d.Valor(1e30L), 0.0L);
  EXPECT_EQ(d.Valor(-1e30L), 0.0L);
  EXPECT_EQ(d.Valor(std::nanl("")), 0.0L);
}

TEST(Distribucion, LosExtremosDeLaTabla) {
  Distribucion d;
  d.Anadir(-49, 1.0L);
  d.Anadir(50, 3.0L);
  d.Acumular();
  EXPECT_EQ(d[-49], 1.0L);
  EXPECT_EQ(d[50], 4.0L);
  EXPECT_EQ(d.Buscar(0.5L), -48.5L);
  EXPECT_EQ(d.Buscar(2.5L), 50.5L);
}

TEST(Distribucion, AcumularYNormalizar) {
  Distribucion d = DeMuestra();
  d.DividirPor(2.0L);
  d.Acumular();
  EXPECT_NEAR(static_cast<double>(d[6]), 0.2, 1e-15);
  EXPECT_NEAR(static_cast<double>(d[7]), 0.5, 1e-15);
  d.Normalizar();
  EXPECT_EQ(d[7], 1.0L);
  EXPECT_NEAR(static_cast<double>(d[4]), 0.1, 1e-15);
}

TEST(Distribucion, NormalizarUnaVaciaNoDivideEntreCero) {
  Distribucion d;
  d.Normalizar();
  EXPECT_EQ(d[0], 0.0L);
}

// Con p = 0,25: pasa en 5, a la mitad entre 0,1 y 0,4; 4,5 por la recta y un grado más.
TEST(Buscar, QuedaUnGradoPorEncimaDeLaRecta) { EXPECT_NEAR(Buscar(Acumulada(), 0.25L), 5.5, 1e-12); }

TEST(Buscar, AntesDelMenorCuentaComoCero) { EXPECT_NEAR(Buscar(Acumulada(), 0.05L), 4.5, 1e-12); }

TEST(Buscar, HaDePasarEstrictamente) {
  Distribucion d;
  d.Anadir(4, 0.25L);
  d.Anadir(5, 0.25L);
  d.Anadir(7, 0.5L);
  d.Acumular();
  EXPECT_NEAR(Buscar(d, 0.5L), 7.0, 1e-12); // 5 y 6 valen justo 0,5 y no pasan
  EXPECT_NEAR(Buscar(d, 0.0L), 4.0, 1e-12);
}

TEST(Buscar, SiNingunGradoPasaDaElValorEnElGradoTruncado) {
  Distribucion d;
  d.Anadir(1, 0.4L);
  d.Anadir(3, 0.6L);
  d.Acumular();
  EXPECT_NEAR(Buscar(d, 1.0L), 0.4, 1e-12); // el valor en 1 °C
  EXPECT_EQ(d.Buscar(-0.0L + 2.9L), d[2]);
}

TEST(Valor, SeTruncaHaciaCero) {
  Distribucion d;
  d.Anadir(-3, 0.2L);
  d.Anadir(-2, 0.3L);
  d.Anadir(0, 0.5L);
  EXPECT_EQ(d.Valor(-2.9L), 0.3L);
  EXPECT_EQ(d.Valor(-0.9L), 0.5L);
  EXPECT_EQ(d.Valor(0.9L), 0.5L);
}

TEST(Guardada, GradoAGradoEnTreintaYDosBits) {
  const DistribucionGuardada g = Acumulada().Guardada();
  EXPECT_EQ(g.menor, 4);
  EXPECT_EQ(g.mayor, 7);
  EXPECT_FLOAT_EQ(g.valores[4 + 49], 0.1F);
  EXPECT_FLOAT_EQ(g.valores[6 + 49], 0.4F);
  EXPECT_EQ(g.valores[8 + 49], 0.0F);
}

} // namespace
} // namespace tesmo::extremos
