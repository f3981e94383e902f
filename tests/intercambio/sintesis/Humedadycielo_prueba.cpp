#include "intercambio/fisica/Emisividadcielo.h"
#include "intercambio/sintesis/Cielosintetico.h"
#include "intercambio/sintesis/Humedadsintetica.h"
#include "intercambio/sintesis/Temperaturahoraria.h"

#include "psicro/Atmosfera.h"
#include "psicro/Saturacion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tesmo {
namespace {

struct Caso {
  NormalesLocalidad localidad;
  SolDelAnio sol = CalcularSolDelAnio(37.0);
  TemperaturasDiarias dias;
  SerieHoras temperaturas;
  HumedadHoraria humedad;

  Caso(double maxima, double minima, double relativa) {
    localidad.latitud = 37.0;
    for (NormalesMes &mes : localidad.meses) {
      mes.horaTmax = 14.0;
      mes.hrMedia = relativa;
    }
    dias = {SerieDias(DIAS, maxima), SerieDias(DIAS, minima)};
    temperaturas = GenerarTemperaturasHorarias(dias, localidad, sol);
    humedad = GenerarHumedad(temperaturas, dias, localidad, sol, PRESION);
  }
  static constexpr double PRESION = 95000.0;
};

TEST(Humedad, LaMediaDeCadaMesEsLaPedida) {
  for (double pedida : {20.0, 45.0, 70.0, 90.0, 97.0}) {
    const Caso caso(22.0, 10.0, pedida);
    for (std::size_t mes = 0; mes < MESES; ++mes) {
      EXPECT_NEAR(MediaHorariaDelMes(caso.humedad.relativa, mes), pedida, 0.05) << pedida << ' ' << mes;
    }
  }
}

TEST(Humedad, AbsolutaYRelativaCasanConLaTemperaturaEscrita) {
  for (double maxima : {3.0, 20.0, 44.0}) {
    const Caso caso(maxima, maxima - 12.0, 55.0);
    for (std::size_t i = 0; i < HORAS; i += 7) {
      const double w = caso.humedad.absoluta[i];
      const double vapor = w * Caso::PRESION / (0.62198 + w);
      const double saturacion = presionSaturacion(static_cast<float>(caso.temperaturas[i]));
      EXPECT_NEAR(100.0 * vapor / saturacion, caso.humedad.relativa[i], 0.01) << i;
    }
  }
}

TEST(Humedad, NuncaSaturaNiConHumedadesImposibles) {
  const Caso caso(5.0, -6.0, 98.0);
  for (std::size_t i = 0; i < HORAS; ++i) {
    const auto t = static_cast<float>(caso.temperaturas[i]);
    EXPECT_LE(caso.humedad.relativa[i], HUMEDAD_MAXIMA) << i;
    EXPECT_LT(caso.humedad.absoluta[i], humedadSaturacion(t, static_cast<float>(Caso::PRESION))) << i;
    EXPECT_LE(caso.humedad.rocio[i], caso.temperaturas[i]) << i;
  }
}

TEST(Humedad, ElAireSeSecaAlCalentarseYElVaporNoSaltaAMedianoche) {
  const Caso caso(30.0, 15.0, 50.0);
  const std::size_t dia = 172UL * 24;
  EXPECT_GT(caso.humedad.relativa[dia + 4], caso.humedad.relativa[dia + 14] + 20.0);
  for (std::size_t i = 0; i + 1 < HORAS; ++i) {
    EXPECT_NEAR(caso.humedad.absoluta[i], caso.humedad.absoluta[i + 1], 2e-5) << i;
  }
}

TEST(Cielo, LaEmisividadDelCieloDespejadoEsLaPublicada) {
  // Berdahl y Martin (1984): 0,711 + 0,56·(tr/100) + 0,73·(tr/100)², calculada a mano.
  EXPECT_NEAR(EmisividadDelCielo(0.0, 0.0), 0.711, 1e-12);
  EXPECT_NEAR(EmisividadDelCielo(20.0, 0.0), 0.8522, 1e-12);
  EXPECT_NEAR(EmisividadDelCielo(-10.0, 0.0), 0.6623, 1e-12);
}

TEST(Cielo, LasNubesAumentanLaEmisividadSinPasarDeUno) {
  // Walton (1983) con diez décimas: 1 + 0,224 − 0,35 + 0,28 = 1,154.
  EXPECT_NEAR(EmisividadDelCielo(0.0, 10.0), 0.711 * 1.154, 1e-12);
  EXPECT_EQ(EmisividadDelCielo(28.0, 10.0), 1.0);
}

TEST(Cielo, LaNubosidadVaDelCieloRasoAlCubierto) {
  EXPECT_DOUBLE_EQ(NubosidadDeClaridad(0.8), 0.0);
  EXPECT_DOUBLE_EQ(NubosidadDeClaridad(0.75), 0.0);
  EXPECT_DOUBLE_EQ(NubosidadDeClaridad(0.5), 5.0);
  EXPECT_DOUBLE_EQ(NubosidadDeClaridad(0.25), 10.0);
  EXPECT_DOUBLE_EQ(NubosidadDeClaridad(0.05), 10.0);
}

TEST(Cielo, UnCieloRasoIrradiaComoElCuartoDeLaEmisividad) {
  const SerieHoras cielo =
      GenerarTemperaturaDeCielo(SerieHoras(HORAS, 20.0), SerieHoras(HORAS, 0.0), SerieDias(DIAS, 0.75));
  EXPECT_NEAR(cielo[12], std::pow(0.711, 0.25) * 293.15 - 273.15, 0.006);
  EXPECT_EQ(*std::min_element(cielo.begin(), cielo.end()), *std::max_element(cielo.begin(), cielo.end()));
}

TEST(Cielo, LaNubosidadPasaDeUnDiaAOtroPocoAPoco) {
  SerieDias claridad(DIAS, 0.75);
  claridad[10] = 0.25;
  const SerieHoras cielo =
      GenerarTemperaturaDeCielo(SerieHoras(HORAS, 15.0), SerieHoras(HORAS, 5.0), claridad);
  for (std::size_t i = 8UL * 24; i < 13UL * 24; ++i) EXPECT_LT(std::fabs(cielo[i + 1] - cielo[i]), 1.0) << i;
  EXPECT_GT(cielo[10UL * 24 + 12], cielo[9UL * 24 + 11] + 8.0);
}

} // namespace
} // namespace tesmo
