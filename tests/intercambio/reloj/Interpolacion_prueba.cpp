#include "intercambio/reloj/Interpolacion.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

SerieCanonica Serie(double primero, double segundo) {
  SerieCanonica serie;
  serie.Poner(0, primero, Procedencia::Copiada);
  serie.Poner(1, segundo, Procedencia::Copiada);
  return serie;
}

const std::vector<Entre> MITAD{{0, 1, 0.5}};

double Direccion(double d0, double v0, double d1, double v1, double parte = 0.5) {
  return InterpolarDireccion(Serie(d0, d1), Serie(v0, v1), {{0, 1, parte}}).valores[0];
}

TEST(InterpolacionSolar, VaEnRecta) {
  EXPECT_DOUBLE_EQ(Interpolar(Serie(10.0, 14.0), {{0, 1, 0.25}}).valores[0], 11.0);
}

TEST(InterpolacionSolar, LoQueCoincideConservaSuProcedencia) {
  EXPECT_EQ(Interpolar(Serie(1.0, 2.0), {{0, 0, 0.0}}).procedencias[0], Procedencia::Copiada);
  EXPECT_EQ(Interpolar(Serie(1.0, 2.0), MITAD).procedencias[0], Procedencia::Calculada);
  SerieCanonica inventada = Serie(1.0, 2.0);
  inventada.procedencias[1] = Procedencia::Inventada;
  EXPECT_EQ(Interpolar(inventada, MITAD).procedencias[0], Procedencia::Inventada);
}

TEST(InterpolacionSolar, ElVientoDelNorteNoPasaPorElSur) {
  EXPECT_NEAR(Direccion(350.0, 3.0, 20.0, 3.0), 5.0, 1e-9);
  EXPECT_NEAR(Direccion(0.0, 1.0, 90.0, 1.0), 45.0, 1e-9);
}

TEST(InterpolacionSolar, ElVientoFuertePesaMas) {
  EXPECT_NEAR(Direccion(0.0, 3.0, 90.0, 1.0), 18.434948822922, 1e-9); // arco tangente de un tercio
  EXPECT_NEAR(Direccion(0.0, 0.0, 90.0, 2.0), 90.0, 1e-9);
}

TEST(InterpolacionSolar, VientosQueSeAnulanDanLaDelMasCercano) {
  EXPECT_EQ(Direccion(0.0, 0.0, 200.0, 0.0, 0.6), 200.0);
  EXPECT_EQ(Direccion(30.0, 0.0, 200.0, 0.0, 0.4), 30.0);
}

} // namespace
} // namespace tesmo
