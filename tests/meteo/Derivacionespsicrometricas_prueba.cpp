#include "core/Error.h"
#include "meteo/Derivacionespsicrometricas.h"
#include "psicro/Corrienteaire.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tesmo {
namespace {

constexpr float PRESION = 101325.0F;

TEST(CalorEspecifico, ACeroGradosEsCero) {
  EXPECT_EQ(CalorEspecifico(40000.0F, 0.0F), 0.0F);
  EXPECT_EQ(CalorEspecifico(40000.0F, -0.0F), 0.0F);
}

TEST(CalorEspecifico, EsLaEntalpiaEntreLosGrados) {
  EXPECT_EQ(CalorEspecifico(40000.0F, 20.0F), 2000.0F);
  EXPECT_EQ(CalorEspecifico(40000.0F, -20.0F), -2000.0F);
}

class Psicrometricas : public ::testing::Test {
protected:
  void PonHora(std::size_t i, float seca, float humedad, float cenit) {
    leidas_[SerieAlmacenada::TemperaturaSeca][i] = seca;
    leidas_[SerieAlmacenada::HumedadAbsoluta][i] = humedad;
    leidas_[SerieAlmacenada::Cenit][i] = cenit;
  }
  SeriesLeidas leidas_;
  SeriesDerivadas derivadas_;
};

TEST_F(Psicrometricas, CadaHoraEsUnaCorrienteDeAire) {
  PonHora(10, 30.0F, 0.012F, 25.5F);
  PonHora(11, 5.0F, 0.004F, 88.0F);
  DerivarPsicrometricas(leidas_, derivadas_, {10, 11}, 95000.0F);
  for (const std::size_t i : {10U, 11U}) {
    CorrienteAire aire;
    aire.pont_w(leidas_[SerieAlmacenada::TemperaturaSeca][i], leidas_[SerieAlmacenada::HumedadAbsoluta][i],
                95000.0F);
    EXPECT_EQ(derivadas_[SerieDerivada::Rocio][i], static_cast<float>(aire.dame("tr")));
    EXPECT_EQ(derivadas_[SerieDerivada::Humeda][i], static_cast<float>(aire.dame("th")));
    EXPECT_EQ(derivadas_[SerieDerivada::Entalpia][i], static_cast<float>(aire.dame("h")));
    EXPECT_FLOAT_EQ(derivadas_[SerieDerivada::VolumenEspecifico][i], static_cast<float>(aire.dame("ve")));
  }
  EXPECT_EQ(derivadas_[SerieDerivada::Altura][10], 64.5F);
  EXPECT_EQ(derivadas_[SerieDerivada::Altura][11], 2.0F);
}

// A mano, con 30 °C y 0,012 kg/kg: h = (1805 × 30 + 2501000) × 0,012 + 1006 × 30 = 60841,8 J/kg.
TEST_F(Psicrometricas, EntalpiaYCalorEspecificoAMano) {
  PonHora(0, 30.0F, 0.012F, 0.0F);
  PonHora(1, 0.0F, 0.002F, 0.0F);
  DerivarPsicrometricas(leidas_, derivadas_, {0, 1}, PRESION);
  EXPECT_NEAR(derivadas_[SerieDerivada::Entalpia][0], 60841.8F, 0.05F);
  EXPECT_NEAR(derivadas_[SerieDerivada::CalorEspecifico][0], 60841.8F / 30.0F, 0.01F);
  EXPECT_NE(derivadas_[SerieDerivada::Entalpia][1], 0.0F);
  EXPECT_EQ(derivadas_[SerieDerivada::CalorEspecifico][1], 0.0F);
}

TEST_F(Psicrometricas, LasHorasDeFueraDelTramoQuedanACero) {
  leidas_[SerieAlmacenada::TemperaturaSeca].assign(HORAS_DEL_ANIO, 20.0F);
  DerivarPsicrometricas(leidas_, derivadas_, {0, HORAS_DEL_ANIO - 1}, PRESION);
  DerivarPsicrometricas(leidas_, derivadas_, {5, 5}, PRESION); // vuelve a reservar
  EXPECT_EQ(derivadas_[SerieDerivada::Altura].size(), static_cast<std::size_t>(HORAS_DEL_ANIO));
  for (const std::size_t i : {0U, 4U, 6U, 8759U}) EXPECT_EQ(derivadas_[SerieDerivada::Entalpia][i], 0.0F);
  EXPECT_NE(derivadas_[SerieDerivada::Entalpia][5], 0.0F);
  EXPECT_EQ(derivadas_[SerieDerivada::Global][5], 0.0F);
}

TEST_F(Psicrometricas, UnTramoQueSeSaleDelAnioSeRecorta) {
  DerivarPsicrometricas(leidas_, derivadas_, {-50, 20000}, PRESION);
  EXPECT_EQ(derivadas_[SerieDerivada::Altura][0], 90.0F);
  EXPECT_EQ(derivadas_[SerieDerivada::Altura][8759], 90.0F);
  DerivarPsicrometricas(leidas_, derivadas_, {100, 50}, PRESION);
  EXPECT_EQ(derivadas_[SerieDerivada::Altura][75], 0.0F);
}

TEST_F(Psicrometricas, UnaHumedadImposibleSeAcotaYQuedaConstancia) {
  int diagnosticos = 0;
  AbrirRegistroEn([&](std::string_view) { ++diagnosticos; });
  PonHora(0, 20.0F, 1.0F, 0.0F);
  DerivarPsicrometricas(leidas_, derivadas_, {0, 0}, PRESION);
  CerrarRegistro();
  EXPECT_EQ(diagnosticos, 1);
  EXPECT_NEAR(derivadas_[SerieDerivada::Rocio][0], 20.0F, 0.01F);
}

} // namespace
} // namespace tesmo
