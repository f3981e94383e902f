#include "meteo/Derivacionessolares.h"
#include "meteo/Fecha.h"
#include "solar/Posicionsolar.h"
#include "tests/comun/Rejilla.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tesmo {
namespace {

constexpr float LATITUD = 36.84F;
constexpr std::size_t MEDIODIA_DE_JUNIO = 171U * 24U + 11U; // 21 de junio, hora 12

class Solares : public ::testing::Test {
protected:
  Solares() { derivadas_.Reservar(HORAS_DEL_ANIO); }

  void PonHora(std::size_t i, float directa, float difusa, float acimut, float cenit) {
    leidas_[SerieAlmacenada::RadiacionDirecta][i] = directa;
    leidas_[SerieAlmacenada::RadiacionDifusa][i] = difusa;
    leidas_[SerieAlmacenada::Acimut][i] = acimut;
    leidas_[SerieAlmacenada::Cenit][i] = cenit;
    derivadas_[SerieDerivada::Altura][i] = 90.0F - cenit;
  }
  /// Deriva el día entero de la hora @p i.
  float Derivar(std::size_t i, const SuperficieReceptora &superficie) {
    const int primera = static_cast<int>(i) / HORAS_DEL_DIA * HORAS_DEL_DIA;
    return DerivarSolares(leidas_, derivadas_, {primera, primera + HORAS_DEL_DIA - 1}, FechaDeIndice(primera),
                          superficie, LATITUD, horizonte_);
  }
  [[nodiscard]] float Valor(SerieDerivada serie, std::size_t i = MEDIODIA_DE_JUNIO) const {
    return derivadas_[serie][i];
  }
  void PonMuro(float altura) {
    horizonte_.PonTamanoHorizonte(2.0F);
    horizonte_.PonPuntoHorizonte(0, -180.0F, altura);
    horizonte_.PonPuntoHorizonte(1, 180.0F, altura);
  }

  SeriesLeidas leidas_;
  SeriesDerivadas derivadas_;
  PosicionSolar horizonte_{LATITUD, 1, 1, 12.0F};
};

TEST_F(Solares, SinHorizonteLaDifusaEsLaMitadYLaReflejadaLaMitadDelAlbedo) {
  PonHora(MEDIODIA_DE_JUNIO, 700.0F, 120.0F, -10.0F, 15.0F);
  for (const float inclinacion : prueba::Rejilla(0.0F, 180.0F, 30.0F)) {
    for (const float orientacion : prueba::Rejilla(-180.0F, 180.0F, 22.5F)) {
      EXPECT_EQ(Derivar(MEDIODIA_DE_JUNIO, {inclinacion, orientacion, 0.25F}), 0.5F);
      EXPECT_FLOAT_EQ(Valor(SerieDerivada::Difusa), 60.0F);
      EXPECT_FLOAT_EQ(Valor(SerieDerivada::Reflejada), 0.5F * 820.0F * 0.25F);
      EXPECT_FLOAT_EQ(Valor(SerieDerivada::Global), Valor(SerieDerivada::Directa) +
                                                        Valor(SerieDerivada::Difusa) +
                                                        Valor(SerieDerivada::Reflejada));
    }
  }
}

TEST_F(Solares, LaSuperficieHorizontalUsaElCenitDelFichero) {
  PonHora(MEDIODIA_DE_JUNIO, 700.0F, 120.0F, -10.0F, 60.0F); // un cenit que no es el del modelo
  (void)Derivar(MEDIODIA_DE_JUNIO, {0.0F, 0.0F, 0.2F});
  EXPECT_FLOAT_EQ(Valor(SerieDerivada::Directa), 700.0F);
  EXPECT_NEAR(Valor(SerieDerivada::DirectaNormal), 1400.0F, 1e-3F);
}

TEST_F(Solares, UnaFachadaAlNorteNoRecibeDirectaAMediodia) {
  PonHora(MEDIODIA_DE_JUNIO, 700.0F, 120.0F, -10.0F, 15.0F);
  (void)Derivar(MEDIODIA_DE_JUNIO, {90.0F, 180.0F, 0.2F});
  EXPECT_EQ(Valor(SerieDerivada::Directa), 0.0F);
}

// La normal mira a (sur, oeste, cenit): por la mañana da a la fachada este y por la tarde a la oeste.
TEST_F(Solares, LaOrientacionPositivaMiraAlOeste) {
  const std::size_t manana = MEDIODIA_DE_JUNIO - 3;
  const std::size_t tarde = MEDIODIA_DE_JUNIO + 4;
  PonHora(manana, 500.0F, 100.0F, -80.0F, 45.0F);
  PonHora(tarde, 500.0F, 100.0F, 80.0F, 45.0F);
  (void)Derivar(MEDIODIA_DE_JUNIO, {90.0F, 90.0F, 0.2F});
  EXPECT_EQ(Valor(SerieDerivada::Directa, manana), 0.0F);
  EXPECT_GT(Valor(SerieDerivada::Directa, tarde), 100.0F);
  (void)Derivar(MEDIODIA_DE_JUNIO, {90.0F, -90.0F, 0.2F});
  EXPECT_GT(Valor(SerieDerivada::Directa, manana), 100.0F);
  EXPECT_EQ(Valor(SerieDerivada::Directa, tarde), 0.0F);
}

// Las horas 12 y 13 van centradas en 11,5 y 12,5: simétricas para una fachada al sur.
TEST_F(Solares, CadaHoraTomaElSolDeSuCentro) {
  PonHora(MEDIODIA_DE_JUNIO, 700.0F, 120.0F, -10.0F, 15.0F);
  PonHora(MEDIODIA_DE_JUNIO + 1, 700.0F, 120.0F, 10.0F, 15.0F);
  (void)Derivar(MEDIODIA_DE_JUNIO, {90.0F, 0.0F, 0.2F});
  EXPECT_GT(Valor(SerieDerivada::Directa), 0.0F);
  EXPECT_FLOAT_EQ(Valor(SerieDerivada::Directa), Valor(SerieDerivada::Directa, MEDIODIA_DE_JUNIO + 1));
}

TEST_F(Solares, UnMuroDeNoventaGradosNoDejaDirecta) {
  PonMuro(90.0F);
  for (std::size_t i = 0; i < 24; ++i) PonHora(MEDIODIA_DE_JUNIO - 11 + i, 400.0F, 100.0F, 0.0F, 20.0F);
  const float f = Derivar(MEDIODIA_DE_JUNIO, {30.0F, 0.0F, 0.2F});
  EXPECT_NEAR(f, 0.0F, 1e-6F);
  for (std::size_t i = 0; i < 24; ++i) {
    EXPECT_EQ(Valor(SerieDerivada::Directa, MEDIODIA_DE_JUNIO - 11 + i), 0.0F);
    EXPECT_NEAR(Valor(SerieDerivada::Difusa, MEDIODIA_DE_JUNIO - 11 + i), 0.0F, 1e-3F);
  }
}

TEST_F(Solares, UnHorizonteBajoNoQuitaElSolAlto) {
  PonHora(MEDIODIA_DE_JUNIO, 700.0F, 120.0F, -10.0F, 15.0F);
  (void)Derivar(MEDIODIA_DE_JUNIO, {30.0F, 0.0F, 0.2F});
  const float libre = Valor(SerieDerivada::Directa);
  PonMuro(20.0F);
  (void)Derivar(MEDIODIA_DE_JUNIO, {30.0F, 0.0F, 0.2F});
  EXPECT_EQ(Valor(SerieDerivada::Directa), libre);
}

// Sin horizonte la altura se compara con 0: un sol que el fichero pone por debajo pierde la directa.
TEST_F(Solares, ConElSolBajoElHorizonteLaDirectaEsCero) {
  PonHora(MEDIODIA_DE_JUNIO, -50.0F, 120.0F, -10.0F, 95.0F);
  (void)Derivar(MEDIODIA_DE_JUNIO, {0.0F, 0.0F, 0.2F});
  EXPECT_EQ(Valor(SerieDerivada::Directa), 0.0F);
  PonHora(MEDIODIA_DE_JUNIO, -50.0F, 120.0F, 200.0F, 95.0F); // un acimut fuera de la vuelta no se busca
  (void)Derivar(MEDIODIA_DE_JUNIO, {0.0F, 0.0F, 0.2F});
  EXPECT_EQ(Valor(SerieDerivada::Directa), -50.0F);
}

TEST_F(Solares, UnCenitDeNoventaNoTieneGuarda) {
  PonHora(MEDIODIA_DE_JUNIO, 10.0F, 120.0F, -10.0F, 90.0F);
  (void)Derivar(MEDIODIA_DE_JUNIO, {90.0F, 0.0F, 0.2F});
  EXPECT_GT(std::fabs(Valor(SerieDerivada::DirectaNormal)), 1e8F);
}

TEST_F(Solares, DeNocheTodoEsCero) {
  PonHora(MEDIODIA_DE_JUNIO - 11, 0.0F, 0.0F, 0.0F, 90.0F);
  (void)Derivar(MEDIODIA_DE_JUNIO, {35.0F, 20.0F, 0.2F});
  for (const auto serie : {SerieDerivada::DirectaNormal, SerieDerivada::Directa, SerieDerivada::Difusa,
                           SerieDerivada::Reflejada, SerieDerivada::Global}) {
    EXPECT_EQ(Valor(serie, MEDIODIA_DE_JUNIO - 11), 0.0F);
  }
}

TEST_F(Solares, SoloCambianLasHorasDelTramo) {
  PonHora(MEDIODIA_DE_JUNIO, 700.0F, 120.0F, -10.0F, 15.0F);
  PonHora(MEDIODIA_DE_JUNIO + 1, 700.0F, 120.0F, -10.0F, 15.0F);
  const int i = static_cast<int>(MEDIODIA_DE_JUNIO);
  (void)DerivarSolares(leidas_, derivadas_, {i, i}, FechaDeIndice(i), {}, LATITUD, horizonte_);
  EXPECT_GT(Valor(SerieDerivada::Global), 0.0F);
  EXPECT_EQ(Valor(SerieDerivada::Global, MEDIODIA_DE_JUNIO + 1), 0.0F);
}

TEST_F(Solares, SinSeriesReservadasNoHaceNada) {
  SeriesDerivadas vacias;
  const float f = DerivarSolares(leidas_, vacias, {0, 100}, {}, {}, LATITUD, horizonte_);
  EXPECT_EQ(f, 0.5F);
  EXPECT_TRUE(vacias[SerieDerivada::Global].empty());
}

} // namespace
} // namespace tesmo
