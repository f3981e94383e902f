// Lo que un horizonte le hace a la irradiancia de un año: un sol inventado, el del propio modelo, con la
// misma radiación todas las horas de día.

#include "core/Calendario.h"
#include "meteo/Derivacionessolares.h"
#include "solar/Edicionhorizonte.h"
#include "solar/Posicionsolar.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace tesmo {
namespace {

constexpr float LATITUD = 36.84F;
constexpr TramoHoras ANIO{0, HORAS_DEL_ANIO - 1};

class HorizonteIrradiancia : public ::testing::Test {
protected:
  void SetUp() override {
    PosicionSolar sol(LATITUD, 1, 1, 12.0F);
    std::size_t i = 0;
    for (int mes = 1; mes <= 12; ++mes) {
      for (int dia = 1; dia <= DiasDelMes(mes); ++dia) {
        for (int h = 1; h <= HORAS_DEL_DIA; ++h, ++i) PonHora(sol, mes, dia, h, i);
      }
    }
  }

  void PonHora(PosicionSolar &sol, int mes, int dia, int h, std::size_t i) {
    const AngulosSolares a = sol.CalcularPosicion(LATITUD, mes, dia, static_cast<float>(h) - 0.5F);
    leidas_[SerieAlmacenada::Acimut][i] = a.acimut;
    leidas_[SerieAlmacenada::Cenit][i] = a.cenit;
    leidas_[SerieAlmacenada::RadiacionDirecta][i] = sol.EsDeDia() ? 300.0F : 0.0F;
    leidas_[SerieAlmacenada::RadiacionDifusa][i] = sol.EsDeDia() ? 100.0F : 0.0F;
  }

  /// Deriva el año con @p horizonte y devuelve las cuatro series de la superficie.
  std::unique_ptr<SeriesDerivadas> Derivar(const PosicionSolar &horizonte) {
    auto derivadas = std::make_unique<SeriesDerivadas>();
    derivadas->Reservar(HORAS_DEL_ANIO);
    for (std::size_t i = 0; i < HORAS_DEL_ANIO; ++i) {
      (*derivadas)[SerieDerivada::Altura][i] = 90.0F - leidas_[SerieAlmacenada::Cenit][i];
    }
    DerivarSolares(leidas_, *derivadas, ANIO, {1, 1, 1}, {}, LATITUD, horizonte);
    return derivadas;
  }

  static PosicionSolar Muro(float altura) {
    PosicionSolar horizonte(LATITUD, 1, 1, 12.0F);
    horizonte.PonTamanoHorizonte(2.0F);
    horizonte.PonPuntoHorizonte(0, -180.0F, altura);
    horizonte.PonPuntoHorizonte(1, 180.0F, altura);
    return horizonte;
  }

  SeriesLeidas leidas_;
};

constexpr std::array<SerieDerivada, 4> EN_LA_SUPERFICIE{SerieDerivada::Directa, SerieDerivada::Difusa,
                                                        SerieDerivada::Reflejada, SerieDerivada::Global};

TEST_F(HorizonteIrradiancia, UnHorizonteLlanoDeCerosNoCambiaNada) {
  // Una hora con el sol bajo el horizonte, que pierde la directa con ceros y sin ellos.
  leidas_[SerieAlmacenada::Cenit][10] = 91.0F;
  const auto sin = Derivar(PosicionSolar(LATITUD, 1, 1, 12.0F));
  const auto con = Derivar(Muro(0.0F));
  double directa = 0.0;
  for (std::size_t i = 0; i < HORAS_DEL_ANIO; ++i) {
    for (const SerieDerivada serie : EN_LA_SUPERFICIE) ASSERT_EQ((*sin)[serie][i], (*con)[serie][i]) << i;
    directa += (*sin)[SerieDerivada::Directa][i];
  }
  EXPECT_GT(directa, 1e5);
  EXPECT_EQ((*con)[SerieDerivada::Directa][10], 0.0F);
}

TEST_F(HorizonteIrradiancia, TrasUnMuroDeNoventaGradosNoQuedaDirecta) {
  const auto derivadas = Derivar(Muro(90.0F));
  for (std::size_t i = 0; i < HORAS_DEL_ANIO; ++i) {
    ASSERT_EQ((*derivadas)[SerieDerivada::Directa][i], 0.0F) << i;
    ASSERT_NEAR((*derivadas)[SerieDerivada::Difusa][i], 0.0F, 1e-4);
  }
}

TEST_F(HorizonteIrradiancia, ElHorizonteEditadoEsElQueSeUsa) {
  PosicionSolar horizonte(LATITUD, 1, 1, 12.0F);
  EdicionHorizonte edicion;
  edicion.Tomar(horizonte.Horizonte());
  for (const float acimut : {-180.0F, 0.0F, 180.0F}) edicion.SoltarIzquierdo(acimut, 30.0F, false);
  const auto antes = Derivar(horizonte);
  ASSERT_TRUE(edicion.CopiarEn(horizonte));
  const auto despues = Derivar(horizonte);
  int quitadas = 0;
  for (std::size_t i = 0; i < HORAS_DEL_ANIO; ++i) {
    const float altura = 90.0F - leidas_[SerieAlmacenada::Cenit][i];
    const float esperada = altura < 30.0F ? 0.0F : (*antes)[SerieDerivada::Directa][i];
    ASSERT_EQ((*despues)[SerieDerivada::Directa][i], esperada) << i;
    quitadas += esperada != (*antes)[SerieDerivada::Directa][i] ? 1 : 0;
  }
  EXPECT_GT(quitadas, 500);
}

} // namespace
} // namespace tesmo
