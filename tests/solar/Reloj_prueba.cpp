#include "solar/Posicionsolar.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

class RelojParado : public Reloj {
public:
  explicit RelojParado(const InstanteLocal &instante) : instante_(instante) {}
  [[nodiscard]] InstanteLocal Ahora() const override { return instante_; }

private:
  InstanteLocal instante_;
};

constexpr float DESFASE = -1.4006667F;

// La ecuación del tiempo del 1 de enero: B = 0 deja 229,2 × (0,000075 + 0,001868 − 0,014615) = −2,9044 min.
TEST(Reloj, UnoDeEneroConLaCuentaAMano) {
  EXPECT_NEAR(HoraSolarDeReloj({2021, 1, 1, 12, 0}), 12.0F + DESFASE - 2.9044F / 60.0F, 1e-4F);
}

// Valores de almanaque de la ecuación del tiempo (min): máximos y mínimos del año.
TEST(Reloj, EcuacionDelTiempoEnSusExtremos) {
  struct Fila {
    int mes, dia;
    float minutos;
    int verano;
  };
  constexpr Fila TABLA[] = {{2, 11, -14.2F, 0}, {5, 14, 3.7F, 1}, {7, 26, -6.5F, 1}, {11, 3, 16.4F, 0}};
  for (const Fila &f : TABLA) {
    const float esperada = static_cast<float>(12 - f.verano) + DESFASE + f.minutos / 60.0F;
    EXPECT_NEAR(HoraSolarDeReloj({2021, f.mes, f.dia, 12, 0}), esperada, 0.01F) << f.mes;
  }
}

TEST(Reloj, HorarioDeVeranoDeAbrilAOctubre) {
  const auto salto = [](int mes1, int dia1, int mes2, int dia2) {
    return HoraSolarDeReloj({2021, mes2, dia2, 12, 0}) - HoraSolarDeReloj({2021, mes1, dia1, 12, 0});
  };
  EXPECT_NEAR(salto(3, 31, 4, 1), -1.0F, 0.01F);
  EXPECT_NEAR(salto(10, 31, 11, 1), 1.0F, 0.01F);
}

TEST(Reloj, LosMinutosCuentanYLaMadrugadaNoSeCorrige) {
  const float enPunto = HoraSolarDeReloj({2021, 1, 1, 9, 0});
  EXPECT_NEAR(HoraSolarDeReloj({2021, 1, 1, 9, 45}), enPunto + 0.75F, 1e-5F);
  EXPECT_LT(HoraSolarDeReloj({2021, 1, 1, 0, 10}), 0.0F);
}

TEST(ConstructorDeReloj, TomaLaFechaYNoCalcula) {
  const PosicionSolar sol(RelojParado({2021, 7, 26, 13, 30}));
  EXPECT_EQ(sol.Nombre(), "PosicionSolar");
  std::int32_t entero = 0;
  sol.DameEntero("Mes", entero);
  EXPECT_EQ(entero, 7);
  sol.DameEntero("Día", entero);
  EXPECT_EQ(entero, 26);
  float real = 0.0F;
  sol.DameReal("Hora", real);
  EXPECT_EQ(real, HoraSolarDeReloj({2021, 7, 26, 13, 30}));
  EXPECT_EQ(sol.DameTexto("Latitud"), "36.82");
  EXPECT_EQ(sol.DameTexto("Acimut"), "0.00");
  EXPECT_EQ(sol.DameTexto("Altura"), "0.00");
  EXPECT_FALSE(sol.EsDeDia());
  EXPECT_EQ(sol.Declinacion(), 0.0L);
  EXPECT_EQ(sol.VectorGuardado()[2], 0.0F);
  std::int32_t estado = 0;
  sol.DameEstado("Latitud", estado);
  EXPECT_EQ(estado, ENTRADA_BLANCO);
}

TEST(ConstructorDeReloj, ElRelojDelSistemaDaUnaFechaPosible) {
  const InstanteLocal ahora = RelojDelSistema().Ahora();
  EXPECT_GE(ahora.anio, 2020);
  EXPECT_TRUE(ahora.mes >= 1 && ahora.mes <= 12);
  EXPECT_TRUE(ahora.dia >= 1 && ahora.dia <= 31);
  EXPECT_TRUE(ahora.hora >= 0 && ahora.hora <= 23);
  EXPECT_TRUE(ahora.minuto >= 0 && ahora.minuto <= 59);
  const PosicionSolar sol;
  EXPECT_EQ(sol.DameTexto("Mes"), std::to_string(ahora.mes));
}

} // namespace
} // namespace tesmo
