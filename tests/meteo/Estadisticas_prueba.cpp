#include "meteo/Estadisticas.h"

#include <gtest/gtest.h>

#include <numeric>

namespace tesmo {
namespace {

constexpr float BASE_CALEFACCION = 15.0F;
constexpr float BASE_REFRIGERACION = 25.0F;

class Estadistica : public ::testing::Test {
protected:
  [[nodiscard]] ResultadoEstadisticas Calcular(Magnitud magnitud) const {
    return CalcularEstadisticas(magnitud, leidas_, derivadas_, criterio_);
  }
  void SoloHoras(int primera, int ultima) {
    criterio_.primeraHoraDelDia = primera;
    criterio_.ultimaHoraDelDia = ultima;
  }
  void PonTramo(int primera, int ultima) {
    criterio_.tramo = {primera, ultima};
    criterio_.inicio = FechaDeIndice(primera);
  }

  SeriesLeidas leidas_;
  SeriesDerivadas derivadas_;
  CriterioEstadisticas criterio_{{1, 1, 1}, {0, 47}, 1, 24, BASE_CALEFACCION, BASE_REFRIGERACION};
};

TEST_F(Estadistica, SinHorasQueCuentenQuedanLosValoresDePartida) {
  leidas_[SerieAlmacenada::TemperaturaSeca].assign(HORAS_DEL_ANIO, 10.0F);
  PonTramo(0, 5); // horas 1 a 6
  SoloHoras(8, 12);
  const ResultadoEstadisticas r = Calcular(Magnitud::TS);
  EXPECT_EQ(r.maximo, -100.0F);
  EXPECT_EQ(r.minimo, 500000.0F);
  EXPECT_EQ(r.media, 0.0F);
  EXPECT_EQ(r.gradosDiaCalefaccion, 0.0F);
  EXPECT_EQ(r.unidad, "ºC");
}

TEST_F(Estadistica, MediaMaximoYMinimoAMano) {
  auto &viento = leidas_[SerieAlmacenada::VelocidadViento];
  PonTramo(10, 13);
  viento[9] = 99.0F;
  viento[10] = 2.0F;
  viento[11] = 5.0F;
  viento[12] = 0.0F; // un cero cuenta: la rutina simple no tiene puerta
  viento[13] = 1.0F;
  viento[14] = 99.0F;
  const ResultadoEstadisticas r = Calcular(Magnitud::VV);
  EXPECT_EQ(r.maximo, 5.0F);
  EXPECT_EQ(r.minimo, 0.0F);
  EXPECT_EQ(r.media, 2.0F);
  EXPECT_EQ(r.gradosDiaCalefaccion, 0.0F); // no se forman
  EXPECT_EQ(r.tercerSumatorio, 0.0F);
  EXPECT_EQ(r.unidad, "m/s");
}

// Los valores de partida mandan si ningún dato los mejora.
TEST_F(Estadistica, LosValoresDePartidaNoSonInfinitos) {
  leidas_[SerieAlmacenada::TemperaturaSeca].assign(HORAS_DEL_ANIO, -150.0F);
  EXPECT_EQ(Calcular(Magnitud::TS).maximo, -100.0F);
  derivadas_.Reservar(HORAS_DEL_ANIO);
  derivadas_[SerieDerivada::Entalpia].assign(HORAS_DEL_ANIO, 600000.0F);
  EXPECT_EQ(Calcular(Magnitud::E).minimo, 500000.0F);
}

// Dos días: uno a 10 °C y otro a 30 °C dan 5 grados-día de cada.
TEST_F(Estadistica, GradosDiaAMano) {
  auto &seca = leidas_[SerieAlmacenada::TemperaturaSeca];
  for (std::size_t i = 0; i < 24; ++i) {
    seca[i] = 10.0F;
    seca[24 + i] = 30.0F;
  }
  const ResultadoEstadisticas r = Calcular(Magnitud::TS);
  EXPECT_FLOAT_EQ(r.gradosDiaCalefaccion, 5.0F);
  EXPECT_FLOAT_EQ(r.gradosDiaRefrigeracion, 5.0F);
  EXPECT_EQ(r.tercerSumatorio, 0.0F);
  SoloHoras(1, 12);
  EXPECT_FLOAT_EQ(Calcular(Magnitud::TS).gradosDiaCalefaccion, 2.5F);
}

TEST_F(Estadistica, LaDepresionRespectoALaTemperaturaExterior) {
  leidas_[SerieAlmacenada::TemperaturaSeca].assign(HORAS_DEL_ANIO, 12.0F);
  auto &cielo = leidas_[SerieAlmacenada::TemperaturaCielo];
  for (std::size_t i = 0; i < 24; ++i) {
    cielo[i] = 2.0F;
    cielo[24 + i] = 14.0F; // por encima no resta
  }
  const ResultadoEstadisticas r = Calcular(Magnitud::TC);
  EXPECT_FLOAT_EQ(r.tercerSumatorio, 10.0F);
  EXPECT_FLOAT_EQ(r.media, 8.0F);
  EXPECT_FLOAT_EQ(r.gradosDiaCalefaccion, 14.0F);
}

TEST_F(Estadistica, LasCuatroTemperaturasFormanGradosDia) {
  derivadas_.Reservar(HORAS_DEL_ANIO);
  for (const Magnitud m : {Magnitud::TS, Magnitud::TR, Magnitud::TC, Magnitud::TH}) {
    EXPECT_FLOAT_EQ(Calcular(m).gradosDiaCalefaccion, 30.0F) << Ficha(m).codigo;
  }
  for (const Magnitud m : {Magnitud::HA, Magnitud::HR, Magnitud::E, Magnitud::VE, Magnitud::CE, Magnitud::Al,
                           Magnitud::Az, Magnitud::C, Magnitud::DV, Magnitud::RSDr, Magnitud::G}) {
    EXPECT_EQ(Calcular(m).gradosDiaCalefaccion, 0.0F) << Ficha(m).codigo;
  }
}

TEST_F(Estadistica, LaRadiacionHorizontalSoloCuentaConDifusa) {
  auto &directa = leidas_[SerieAlmacenada::RadiacionDirecta];
  auto &difusa = leidas_[SerieAlmacenada::RadiacionDifusa];
  directa[11] = 600.0F;
  difusa[11] = 100.0F;
  directa[12] = 0.0F;
  difusa[12] = 50.0F;
  directa[13] = 900.0F; // sin difusa no cuenta
  EXPECT_EQ(Calcular(Magnitud::RSDr).maximo, 600.0F);
  EXPECT_EQ(Calcular(Magnitud::RSDr).minimo, 0.0F);
  EXPECT_EQ(Calcular(Magnitud::RSDr).media, 300.0F);
  EXPECT_EQ(Calcular(Magnitud::RSDf).minimo, 50.0F);
  EXPECT_EQ(Calcular(Magnitud::RSDf).media, 75.0F);
}

TEST_F(Estadistica, LasSolaresDeLaSuperficieSoloCuentanConDifusaEnElla) {
  derivadas_.Reservar(HORAS_DEL_ANIO);
  leidas_[SerieAlmacenada::RadiacionDifusa].assign(HORAS_DEL_ANIO, 10.0F); // no es la puerta
  derivadas_[SerieDerivada::Difusa][11] = 40.0F;
  for (const auto serie : {SerieDerivada::DirectaNormal, SerieDerivada::Directa, SerieDerivada::Reflejada,
                           SerieDerivada::Global}) {
    derivadas_[serie][11] = 40.0F;
    derivadas_[serie][12] = 4000.0F;
  }
  for (const Magnitud m : {Magnitud::DN, Magnitud::Dr, Magnitud::Df, Magnitud::R, Magnitud::G}) {
    EXPECT_EQ(Calcular(m).maximo, 40.0F) << Ficha(m).codigo;
    EXPECT_EQ(Calcular(m).minimo, 40.0F);
    EXPECT_EQ(Calcular(m).media, 40.0F);
  }
}

TEST_F(Estadistica, LosGramosSonExactamenteMilVecesLosKilogramos) {
  for (std::size_t i = 0; i < 48; ++i) {
    leidas_[SerieAlmacenada::HumedadAbsoluta][i] = 0.004F + 0.00013F * static_cast<float>(i);
  }
  for (int i = 0; i < 48; ++i) {
    PonTramo(i, i);
    EXPECT_EQ(Calcular(Magnitud::HA).maximo, Calcular(Magnitud::HAkg).maximo * 1000.0F);
  }
  EXPECT_EQ(Calcular(Magnitud::HA).unidad, "g/kg");
  EXPECT_EQ(Calcular(Magnitud::HAkg).unidad, "kg/kg");
}

TEST_F(Estadistica, LaHoraDelDiaSeCuentaDesdeElInicioDelPeriodo) {
  auto &viento = leidas_[SerieAlmacenada::VelocidadViento];
  std::iota(viento.begin(), viento.end(), 0.0F);
  PonTramo(20, 30); // del 1 de enero a las 21 al 2 de enero a las 7
  SoloHoras(1, 2);
  const ResultadoEstadisticas r = Calcular(Magnitud::VV);
  EXPECT_EQ(r.minimo, 24.0F);
  EXPECT_EQ(r.maximo, 25.0F);
}

TEST_F(Estadistica, DeFabricaSoloCuentaLaPrimeraHoraDelDia) {
  const CriterioEstadisticas deFabrica;
  EXPECT_EQ(deFabrica.primeraHoraDelDia, 1);
  EXPECT_EQ(deFabrica.ultimaHoraDelDia, 1);
}

TEST_F(Estadistica, UnaMagnitudSinDerivarNoTieneHoras) {
  const ResultadoEstadisticas r = Calcular(Magnitud::G);
  EXPECT_EQ(r.maximo, -100.0F);
  EXPECT_EQ(r.minimo, 500000.0F);
  EXPECT_EQ(r.unidad, "W/m²");
}

TEST_F(Estadistica, LasUnidadesSonLasDelRotulo) {
  EXPECT_EQ(Calcular(Magnitud::CE).unidad, "J/(kg K)");
  EXPECT_EQ(Calcular(Magnitud::DV).unidad, "º N");
  EXPECT_EQ(Calcular(Magnitud::VE).unidad, "m³/kg");
}

TEST_F(Estadistica, UnTramoFueraDelAnioSeRecorta) {
  leidas_[SerieAlmacenada::VelocidadViento].assign(HORAS_DEL_ANIO, 3.0F);
  criterio_.tramo = {8750, 9000};
  EXPECT_EQ(Calcular(Magnitud::VV).media, 3.0F);
  criterio_.tramo = {50, 40};
  EXPECT_EQ(Calcular(Magnitud::VV).media, 0.0F);
}

} // namespace
} // namespace tesmo
