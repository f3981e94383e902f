#include "solar/Alturashorizonte.h"
#include "tests/comun/Rejilla.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tesmo {
namespace {

constexpr float INFINITO = std::numeric_limits<float>::infinity();

TEST(AlturasDeHorizonte, SinPerfilTodoEstaACero) {
  const AlturasDeHorizonte horizonte;
  for (int a = -180; a <= 180; ++a) EXPECT_EQ(horizonte.EnGrado(a), 0.0F);
}

TEST(AlturasDeHorizonte, LineaRectaEntrePuntos) {
  const AlturasDeHorizonte horizonte({-10.0F, 10.0F, 30.0F}, {0.0F, 20.0F, 10.0F});
  EXPECT_EQ(horizonte.EnGrado(-11), 0.0F);
  EXPECT_EQ(horizonte.EnGrado(-10), 0.0F);
  EXPECT_FLOAT_EQ(horizonte.EnGrado(0), 10.0F);
  EXPECT_FLOAT_EQ(horizonte.EnGrado(10), 20.0F);
  EXPECT_FLOAT_EQ(horizonte.EnGrado(20), 15.0F);
  EXPECT_FLOAT_EQ(horizonte.EnGrado(30), 10.0F);
  EXPECT_EQ(horizonte.EnGrado(31), 0.0F);
}

TEST(AlturasDeHorizonte, PuntosEntreGrados) {
  const AlturasDeHorizonte horizonte({0.5F, 2.5F}, {10.0F, 30.0F});
  EXPECT_EQ(horizonte.EnGrado(0), 0.0F);
  EXPECT_FLOAT_EQ(horizonte.EnGrado(1), 15.0F);
  EXPECT_FLOAT_EQ(horizonte.EnGrado(2), 25.0F);
  EXPECT_EQ(horizonte.EnGrado(3), 0.0F);
}

// En un escalón vertical, el grado que comparten los dos tramos es del primero.
TEST(AlturasDeHorizonte, ElPrimerTramoGanaElGradoCompartido) {
  const AlturasDeHorizonte horizonte({-20.0F, 0.0F, 0.0F, 20.0F}, {5.0F, 5.0F, 40.0F, 40.0F});
  EXPECT_FLOAT_EQ(horizonte.EnGrado(0), 5.0F);
  EXPECT_FLOAT_EQ(horizonte.EnGrado(1), 40.0F);
  const AlturasDeHorizonte doblado({0.0F, 10.0F, 5.0F, 15.0F}, {1.0F, 1.0F, 2.0F, 2.0F});
  EXPECT_FLOAT_EQ(doblado.EnGrado(7), 1.0F);
  EXPECT_FLOAT_EQ(doblado.EnGrado(12), 2.0F);
}

TEST(AlturasDeHorizonte, UnTramoQueRetrocedeNoSeTiendeYSusPuntosDanSuAltura) {
  const AlturasDeHorizonte horizonte({40.0F, 20.0F, 10.5F}, {7.0F, 8.0F, 9.0F});
  EXPECT_EQ(horizonte.EnGrado(40), 7.0F);
  EXPECT_EQ(horizonte.EnGrado(30), 0.0F);
  EXPECT_EQ(horizonte.EnGrado(20), 8.0F);
  EXPECT_EQ(horizonte.EnGrado(10), 0.0F); // un punto entre grados no da nada
  EXPECT_EQ(AlturasDeHorizonte({-180.0F}, {3.0F}).EnGrado(-180), 3.0F);
}

TEST(AlturasDeHorizonte, LoQueCaeFueraDeLaVueltaSeRecorta) {
  const AlturasDeHorizonte horizonte({-1e30F, 200.0F, 1e30F}, {12.0F, 12.0F, 12.0F});
  EXPECT_FLOAT_EQ(horizonte.EnGrado(-180), 12.0F);
  EXPECT_FLOAT_EQ(horizonte.EnGrado(180), 12.0F);
  const AlturasDeHorizonte fuera({190.0F, 250.0F}, {12.0F, 12.0F});
  EXPECT_EQ(fuera.EnGrado(180), 0.0F);
}

TEST(AlturasDeHorizonte, UnPuntoQueNoEsNumeroNoCuenta) {
  const float nulo = std::nanf("");
  const AlturasDeHorizonte horizonte({-20.0F, nulo, 0.0F, 10.0F, 20.0F}, {5.0F, 5.0F, 5.0F, INFINITO, 9.0F});
  EXPECT_EQ(horizonte.EnGrado(-20), 5.0F);
  EXPECT_EQ(horizonte.EnGrado(-10), 0.0F);
  EXPECT_EQ(horizonte.EnGrado(0), 5.0F);
  EXPECT_EQ(horizonte.EnGrado(10), 0.0F);
  EXPECT_EQ(horizonte.EnGrado(20), 9.0F);
  EXPECT_EQ(horizonte.FactorDeCielo(0.0F) < 0.5F, true);
}

TEST(AlturasDeHorizonte, ListasDesiguales) {
  EXPECT_EQ(AlturasDeHorizonte({0.0F, 10.0F}, {4.0F}).EnGrado(0), 4.0F);
}

TEST(Tapa, ElAcimutSeTruncaHaciaCero) {
  const AlturasDeHorizonte horizonte({-10.0F, -9.0F}, {30.0F, 10.0F});
  EXPECT_TRUE(horizonte.Tapa(-10.9F, 29.0F));
  EXPECT_FALSE(horizonte.Tapa(-9.9F, 29.0F));
  EXPECT_FALSE(horizonte.Tapa(-10.0F, 30.0F)); // justo en el horizonte se ve
  EXPECT_TRUE(AlturasDeHorizonte({0.0F}, {5.0F}).Tapa(-0.9F, 4.0F));
}

TEST(Tapa, FueraDeLaVueltaNoTapaNada) {
  const AlturasDeHorizonte horizonte({-180.0F, 180.0F}, {90.0F, 90.0F});
  EXPECT_TRUE(horizonte.Tapa(180.9F, 1.0F));
  for (const float acimut : {181.0F, -181.0F, 1e20F, INFINITO, std::nanf("")}) {
    EXPECT_FALSE(horizonte.Tapa(acimut, 1.0F)) << acimut;
  }
}

TEST(FactorDeCielo, SinHorizonteEsUnMedioConCualquierOrientacion) {
  const AlturasDeHorizonte horizonte;
  for (const float orientacion : prueba::Rejilla(-180.0F, 180.0F, 0.125F)) {
    ASSERT_EQ(horizonte.FactorDeCielo(orientacion), 0.5F) << orientacion;
  }
}

TEST(FactorDeCielo, UnaOrientacionSinSentidoSeAcota) {
  const AlturasDeHorizonte horizonte;
  for (const float orientacion : {-1e9F, 1e9F, INFINITO, std::nanf("")}) {
    EXPECT_EQ(horizonte.FactorDeCielo(orientacion), 0.5F);
  }
}

TEST(FactorDeCielo, UnHorizonteDeTreintaGradosQuitaLaMitad) {
  const AlturasDeHorizonte horizonte({-180.0F, 180.0F}, {30.0F, 30.0F});
  EXPECT_NEAR(horizonte.FactorDeCielo(0.0F), 0.25F, 1e-6F);
}

// Once grados tapados del todo, de 10 a 20 al oeste del sur: quedan (180 − 11) / 360.
constexpr float CON_ONCE_TAPADOS = 169.0F / 360.0F;

// Más allá de ±90 la suma recorre la mitad de atrás: una superficie al norte pierde el horizonte del sur.
TEST(FactorDeCielo, LaSuperficieDeEspaldasPierdeElHorizonteDeAtras) {
  const AlturasDeHorizonte horizonte({10.0F, 20.0F}, {90.0F, 90.0F});
  for (const float orientacion : {0.0F, 90.0F, 135.0F, 180.0F}) {
    EXPECT_NEAR(horizonte.FactorDeCielo(orientacion), CON_ONCE_TAPADOS, 1e-6F) << orientacion;
  }
  EXPECT_EQ(horizonte.FactorDeCielo(-90.0F), 0.5F); // de −180 a −1: el muro no entra
}

// A un grado negativo la suma le toma la altura de su valor absoluto contado desde −180.
TEST(FactorDeCielo, LosGradosNegativosTomanOtraPosicion) {
  const AlturasDeHorizonte horizonte({-100.0F, -90.0F}, {90.0F, 90.0F}); // posiciones 80 a 90
  EXPECT_NEAR(horizonte.FactorDeCielo(0.0F), CON_ONCE_TAPADOS, 1e-6F);   // los grados −90 a −80
  const AlturasDeHorizonte este({-30.0F, -20.0F}, {90.0F, 90.0F});       // posiciones 150 a 160
  EXPECT_EQ(este.FactorDeCielo(0.0F), 0.5F);
  EXPECT_NEAR(este.FactorDeCielo(-90.0F), CON_ONCE_TAPADOS, 1e-6F); // los grados −160 a −150
}

// El límite inferior se trunca a grado entero y el superior no se alcanza: con 0,5 son los grados −89 a 90.
TEST(FactorDeCielo, LosLimitesConFraccionSeTruncan) {
  const AlturasDeHorizonte horizonte({90.0F}, {90.0F});
  EXPECT_EQ(horizonte.FactorDeCielo(0.0F), 0.5F);
  EXPECT_NEAR(horizonte.FactorDeCielo(0.5F), 179.0F / 360.0F, 1e-6F);
}

} // namespace
} // namespace tesmo
