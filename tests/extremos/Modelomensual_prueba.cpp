#include "extremos/Modelomensual.h"
#include "extremos/Probabilidad.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tesmo::extremos {
namespace {

double SumaDe(const Distribucion &d) {
  long double suma = 0.0L;
  for (int k = d.Menor(); k <= d.Mayor(); ++k) suma += d[k];
  return static_cast<double>(suma);
}

TEST(Zona, SoloLaPalabraExactaEsCosta) {
  EXPECT_EQ(CoeficientesDe("COSTA").horaMaximaRef, 13);
  EXPECT_EQ(CoeficientesDe("COSTA").amplitud1, 0.9141667F);
  for (const char *zona : {"costa", "Costa", "INTERIOR", "", "COSTAS"}) {
    EXPECT_EQ(CoeficientesDe(zona).horaMaximaRef, 15) << zona;
    EXPECT_EQ(CoeficientesDe(zona).fase2, 62.370834F) << zona;
  }
}

TEST(FactorDeCola, HaDeDejarMenosDeMedioMesEnLaClaseExtrema) {
  for (const float factor : {0.1F, 1.0F, 10.0F, 1e9F}) EXPECT_TRUE(FactorDeColaAdmitido(factor)) << factor;
  for (const float factor : {0.0F, -1.0F, 0.05F, std::nanf(""), std::numeric_limits<float>::infinity()}) {
    EXPECT_FALSE(FactorDeColaAdmitido(factor)) << factor;
  }
}

TEST(Clases, SonSimetricasYSumanUno) {
  for (const int dias : {28, 30, 31}) {
    const auto clases = ClasesDelMes(dias, 10.0F);
    double suma = 0.0;
    for (std::size_t i = 0; i < clases.size(); ++i) {
      suma += static_cast<double>(clases[i].p);
      EXPECT_EQ(clases[i].z, -clases[clases.size() - 1 - i].z);
      if (i != 7) {
        EXPECT_EQ(clases[i].p, clases[clases.size() - 1 - i].p);
      }
      if (i > 0) {
        EXPECT_LT(clases[i].z, clases[i - 1].z);
      }
    }
    EXPECT_NEAR(suma, 1.0, 1e-15);
    EXPECT_NEAR(static_cast<double>(clases[7].z), 0.0, 1e-15);
  }
}

// Con 31 días y factor 10 la cola es 1/310 y la cota 2,7249 (Φ de tablas: 0,99678); la primera clase va de
// ahí a 2,7249 × 13/15 = 2,3616 y su masa es Φ(2,7249) − Φ(2,3616) = 0,99678 − 0,99090.
TEST(Clases, LaPrimeraAMano) {
  const ClaseDeDias primera = ClasesDelMes(31, 10.0F)[0];
  EXPECT_NEAR(static_cast<double>(primera.p), 0.99678 - 0.99090, 5e-5);
  EXPECT_GT(primera.z, 2.3616L);
  EXPECT_LT(primera.z, (2.3616L + 2.7249L) / 2.0L); // la densidad cae dentro de la clase
}

TEST(HorasPorGrado, SumanLasDelMes) {
  const EstadisticaMes mes{16.9F, 8.3F, 2.7F, 2.6F};
  for (const int dias : {28, 30, 31}) {
    EXPECT_NEAR(SumaDe(HorasPorGrado(mes, CoeficientesDe("COSTA"), dias, 10.0F)), dias * 24.0, 1e-9);
  }
}

// Sin desviaciones ni oscilación todas las muestras caen en un grado, el del suelo de la temperatura.
TEST(HorasPorGrado, ElGradoEsElSueloDeLaTemperatura) {
  const auto unico = [](float t) {
    const Distribucion d = HorasPorGrado({t, t, 0.0F, 0.0F}, CoeficientesDe("COSTA"), 30, 10.0F);
    EXPECT_EQ(d.Menor(), d.Mayor()) << t;
    return d.Menor();
  };
  EXPECT_EQ(unico(7.9F), 7);
  EXPECT_EQ(unico(0.0F), 0);
  EXPECT_EQ(unico(-0.5F), -1);
  EXPECT_EQ(unico(-3.0F), -3);
  EXPECT_EQ(unico(-3.1F), -4);
}

TEST(HorasPorGrado, PorDebajoDeMenosCuarentaYNueveYPorEncimaDeCincuenta) {
  const Distribucion d = HorasPorGrado({90.0F, -90.0F, 5.0F, 5.0F}, CoeficientesDe("x"), 31, 10.0F);
  EXPECT_EQ(d.Menor(), -49);
  EXPECT_EQ(d.Mayor(), 50);
  EXPECT_GT(d[-49], 100.0L);
  EXPECT_GT(d[50], 100.0L);
  EXPECT_NEAR(SumaDe(d), 744.0, 1e-9);
  const Distribucion absurda = HorasPorGrado({3e38F, -3e38F, 3e38F, 3e38F}, CoeficientesDe("x"), 31, 10.0F);
  EXPECT_NEAR(SumaDe(absurda), 744.0, 1e-9);
}

// La media y la oscilación de un mes sin desviaciones se recuperan de sus horas, salvo el medio grado del
// suelo.
TEST(HorasPorGrado, LaMediaDelMesSeRecupera) {
  const Distribucion d = HorasPorGrado({20.0F, 10.0F, 2.0F, 2.0F}, CoeficientesDe("COSTA"), 31, 10.0F);
  long double suma = 0.0L;
  for (int k = d.Menor(); k <= d.Mayor(); ++k) suma += (k + 0.5L) * d[k];
  EXPECT_NEAR(static_cast<double>(suma / 744.0L), 15.0, 0.05);
}

} // namespace
} // namespace tesmo::extremos
