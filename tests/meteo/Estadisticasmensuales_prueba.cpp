#include "meteo/Estadisticas.h"
#include "meteo/Leermet.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

/// Enero a 5 °C y febrero a 30 °C, con un pico y un valle conocidos; el resto del año, a 0 °C.
class EstadisticaMensual : public ::testing::Test {
protected:
  EstadisticaMensual() {
    auto &seca = leidas_[SerieAlmacenada::TemperaturaSeca];
    std::fill_n(seca.begin(), 31 * 24, 5.0F);
    std::fill_n(seca.begin() + 31 * 24, 28 * 24, 30.0F);
    seca[Posicion(1, 20, 4)] = -3.0F;
    seca[Posicion(2, 1, 15)] = 38.0F;
    seca[Posicion(2, 7, 15)] = 38.0F; // empata: cuenta la primera
  }
  static std::size_t Posicion(int mes, int dia, int hora) {
    return static_cast<std::size_t>(IndiceHora(mes, dia, hora));
  }
  void PonPeriodo(const Periodo &periodo) {
    criterio_.inicio = periodo.inicio;
    criterio_.tramo = {IndiceHora(periodo.inicio.mes, periodo.inicio.dia, periodo.inicio.hora),
                       IndiceHora(periodo.fin.mes, periodo.fin.dia, periodo.fin.hora)};
  }
  [[nodiscard]] ResultadoEstadisticas DelPeriodo(Magnitud magnitud = Magnitud::TS) const {
    return CalcularEstadisticas(magnitud, leidas_, derivadas_, criterio_);
  }
  [[nodiscard]] std::vector<EstadisticasDelMes> PorMes(Magnitud magnitud = Magnitud::TS) const {
    return CalcularEstadisticasPorMes(magnitud, leidas_, derivadas_, criterio_);
  }

  SeriesLeidas leidas_;
  SeriesDerivadas derivadas_;
  CriterioEstadisticas criterio_{{1, 1, 1}, {0, HORAS_DEL_ANIO - 1}, 1, 24, {}};
};

TEST_F(EstadisticaMensual, LasBasesDeFabricaSon15Y25Grados) {
  EXPECT_EQ(BasesGradosDia{}.calefaccion, 15.0F);
  EXPECT_EQ(BasesGradosDia{}.refrigeracion, 25.0F);
}

TEST_F(EstadisticaMensual, LaHoraDeCadaExtremoEsLaPrimeraEnQueSeDa) {
  const ResultadoEstadisticas r = DelPeriodo();
  EXPECT_EQ(r.maximo, 38.0F);
  EXPECT_EQ(r.fechaMaximo, (FechaHora{2, 1, 15}));
  EXPECT_EQ(r.minimo, -3.0F);
  EXPECT_EQ(r.fechaMinimo, (FechaHora{1, 20, 4}));
  EXPECT_EQ(r.horas, HORAS_DEL_ANIO);
}

TEST_F(EstadisticaMensual, SinHorasQueCuentenNoHayFechas) {
  criterio_.primeraHoraDelDia = 20;
  criterio_.ultimaHoraDelDia = 5;
  EXPECT_EQ(DelPeriodo().horas, 0);
  EXPECT_FALSE(DelPeriodo().fechaMaximo);
  EXPECT_FALSE(DelPeriodo().fechaMinimo);
  for (const auto &[mes, r] : PorMes()) {
    EXPECT_EQ(r.maximo, -100.0F) << mes;
    EXPECT_EQ(r.minimo, 500000.0F) << mes;
    EXPECT_EQ(r.media, 0.0F) << mes;
  }
}

// Por debajo del valor de partida nada es máximo: tampoco tiene hora.
TEST_F(EstadisticaMensual, UnExtremoDePartidaNoTieneHora) {
  leidas_[SerieAlmacenada::TemperaturaSeca].assign(HORAS_DEL_ANIO, -150.0F);
  EXPECT_EQ(DelPeriodo().horas, HORAS_DEL_ANIO);
  EXPECT_FALSE(DelPeriodo().fechaMaximo);
  EXPECT_EQ(DelPeriodo().fechaMinimo, (FechaHora{1, 1, 1}));
}

TEST_F(EstadisticaMensual, UnaEntradaPorMesConHorasEnElPeriodo) {
  PonPeriodo({{1, 31, 24}, {3, 1, 1}});
  const auto meses = PorMes();
  ASSERT_EQ(meses.size(), 3U);
  EXPECT_EQ(meses[0].mes, 1);
  EXPECT_EQ(meses[0].resultado.horas, 1);
  EXPECT_EQ(meses[0].resultado.fechaMaximo, (FechaHora{1, 31, 24}));
  EXPECT_EQ(meses[1].mes, 2);
  EXPECT_EQ(meses[1].resultado.horas, 28 * 24);
  EXPECT_EQ(meses[2].mes, 3);
  EXPECT_EQ(meses[2].resultado.horas, 1);
  EXPECT_EQ(meses[2].resultado.unidad, "ºC");
}

// Enero: 743 horas a 5 °C y una a −3 °C. Febrero: 670 a 30 °C y dos a 38 °C.
TEST_F(EstadisticaMensual, LasCifrasDeCadaMesAMano) {
  const auto meses = PorMes();
  ASSERT_EQ(meses.size(), 12U);
  const ResultadoEstadisticas &enero = meses[0].resultado;
  EXPECT_EQ(enero.maximo, 5.0F);
  EXPECT_EQ(enero.minimo, -3.0F);
  EXPECT_FLOAT_EQ(enero.media, (743.0F * 5.0F - 3.0F) / 744.0F);
  EXPECT_FLOAT_EQ(enero.gradosDiaCalefaccion, (743.0F * 10.0F + 18.0F) / 24.0F);
  EXPECT_EQ(enero.gradosDiaRefrigeracion, 0.0F);
  const ResultadoEstadisticas &febrero = meses[1].resultado;
  EXPECT_EQ(febrero.gradosDiaCalefaccion, 0.0F);
  EXPECT_FLOAT_EQ(febrero.gradosDiaRefrigeracion, (670.0F * 5.0F + 2.0F * 13.0F) / 24.0F);
  EXPECT_EQ(febrero.fechaMaximo, (FechaHora{2, 1, 15}));
}

TEST_F(EstadisticaMensual, LosGradosDiaDeLosMesesSumanLosDelPeriodo) {
  PonPeriodo({{1, 10, 5}, {11, 3, 20}});
  criterio_.primeraHoraDelDia = 3;
  criterio_.ultimaHoraDelDia = 17;
  float calefaccion = 0.0F;
  int horas = 0;
  for (const auto &mes : PorMes()) {
    calefaccion += mes.resultado.gradosDiaCalefaccion;
    horas += mes.resultado.horas;
  }
  EXPECT_GT(horas, 0);
  EXPECT_EQ(horas, DelPeriodo().horas);
  EXPECT_NEAR(calefaccion, DelPeriodo().gradosDiaCalefaccion, 1e-3F * calefaccion);
}

TEST_F(EstadisticaMensual, UnPeriodoVacioNoTieneMeses) {
  criterio_.tramo = {100, 99};
  EXPECT_TRUE(PorMes().empty());
}

TEST_F(EstadisticaMensual, UnaDerivadaSinDerivarNoTieneHoras) {
  const auto meses = PorMes(Magnitud::E);
  ASSERT_EQ(meses.size(), 12U);
  EXPECT_EQ(meses[0].resultado.horas, 0);
}

TEST(EstadisticasDeLeerMet, LasDosFormasDanLasMismasCifras) {
  const prueba::DirectorioTemporal directorio;
  LeerMet met;
  std::string texto = "x\n36.84 -2.39 21.0 15.0\n";
  for (int i = 0; i < 48; ++i)
    texto += "1 1 1 " + std::to_string(10 + i % 24) + " 0 0 0 0.006 50 3.25 270 0 90 0 0\n";
  ASSERT_TRUE(met.LeerFichero(directorio.Escribir("a.met", texto)));
  met.PonPeriodo(1, 1, 1, 1, 2, 24);
  met.PonHorasDelDia(5, 24);
  float maximo = 0, minimo = 0, media = 0, calefaccion = 0, refrigeracion = 0, tercera = 0;
  std::string unidad;
  met.Estadisticas("Temperatura seca (ºC)", 15.0F, 25.0F, maximo, minimo, media, calefaccion, refrigeracion,
                   tercera, unidad);
  const ResultadoEstadisticas r = met.DameEstadisticas(Magnitud::TS, {});
  EXPECT_EQ(r.maximo, 33.0F);
  EXPECT_EQ(r.minimo, 14.0F);
  EXPECT_EQ(maximo, r.maximo);
  EXPECT_EQ(minimo, r.minimo);
  EXPECT_EQ(media, r.media);
  EXPECT_EQ(calefaccion, r.gradosDiaCalefaccion);
  EXPECT_EQ(refrigeracion, r.gradosDiaRefrigeracion);
  EXPECT_EQ(unidad, r.unidad);
  const auto meses = met.DameEstadisticasPorMes(Magnitud::TS, {});
  ASSERT_EQ(meses.size(), 1U);
  EXPECT_EQ(meses[0].resultado.media, r.media);
}

} // namespace
} // namespace tesmo
