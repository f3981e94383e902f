#include "intercambio/sintesis/Temperaturahoraria.h"

#include "tests/intercambio/sintesis/Apoyosintesis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tesmo {
namespace {

/// Una localidad inventada con las mismas cifras todo el año.
NormalesLocalidad Llana(double maxima, double minima, double sd) {
  NormalesLocalidad localidad;
  localidad.nombre = "Llana";
  localidad.latitud = 37.0;
  localidad.longitud = -4.0;
  for (NormalesMes &mes : localidad.meses) {
    mes.tmaxMedia = maxima;
    mes.tminMedia = minima;
    mes.sdTmaxIntrames = mes.sdTminIntrames = sd;
    mes.r1Tmax = 0.6;
    mes.r1Tmin = 0.5;
    mes.rTmaxTmin = 0.4;
    mes.horaTmax = 14.5;
  }
  return localidad;
}

TemperaturasDiarias Generar(const NormalesLocalidad &localidad) {
  Azar azar(localidad.nombre);
  return GenerarTemperaturasDiarias(localidad, azar);
}

TEST(TemperaturasDiarias, CadaMesTieneSuMediaYSuDesviacion) {
  for (const NormalesLocalidad &localidad : prueba::NormalesDelPrograma()) {
    const TemperaturasDiarias dias = Generar(localidad);
    for (std::size_t mes = 0; mes < MESES; ++mes) {
      const NormalesMes &normales = localidad.meses[mes];
      EXPECT_NEAR(MediaDelMes(dias.maximas, mes), normales.tmaxMedia, 1e-9) << localidad.nombre << mes;
      EXPECT_NEAR(MediaDelMes(dias.minimas, mes), normales.tminMedia, 1e-9) << localidad.nombre << mes;
      EXPECT_NEAR(DesviacionDelMes(dias.maximas, mes), normales.sdTmaxIntrames, 1e-6)
          << localidad.nombre << mes;
      EXPECT_NEAR(DesviacionDelMes(dias.minimas, mes), normales.sdTminIntrames, 1e-6)
          << localidad.nombre << mes;
    }
  }
}

TEST(TemperaturasDiarias, LaMaximaSuperaALaMinimaDeSuDiaYDeLosVecinos) {
  for (const NormalesLocalidad &localidad : prueba::NormalesDelPrograma()) {
    const TemperaturasDiarias dias = Generar(localidad);
    for (std::size_t dia = 0; dia < DIAS; ++dia) {
      const double maxima = dias.maximas[dia];
      EXPECT_GT(maxima, dias.minimas[dia]) << localidad.nombre << dia;
      EXPECT_GT(maxima, dias.minimas[(dia + 1) % DIAS]) << localidad.nombre << dia;
      EXPECT_GT(maxima, dias.minimas[(dia + DIAS - 1) % DIAS]) << localidad.nombre << dia;
    }
  }
}

TEST(TemperaturasDiarias, ConUnRecorridoMenorQueLaDesviacionNadaSeDesborda) {
  // Cifras imposibles de cumplir a la vez: lo que se pide es que salgan números y no un bucle ni un NaN.
  const TemperaturasDiarias dias = Generar(Llana(15.0, 14.9, 10.0));
  for (std::size_t dia = 0; dia < DIAS; ++dia) {
    EXPECT_TRUE(std::isfinite(dias.maximas[dia]) && std::fabs(dias.maximas[dia]) < 200.0) << dia;
    EXPECT_TRUE(std::isfinite(dias.minimas[dia]) && std::fabs(dias.minimas[dia]) < 200.0) << dia;
  }
}

TEST(TemperaturasDiarias, LasCorrelacionesSonDeMediaLasPedidas) {
  // Un mes tiene 30 días y su correlación baila ±0,15; los 228 meses juntos no. La muestra corta sesga la
  // autocorrelación hacia abajo unas centésimas, (1 + 3·r)/n según Kendall (1954): de ahí el margen.
  double pedidas[3] = {};
  double salidas[3] = {};
  int meses = 0;
  for (const NormalesLocalidad &localidad : prueba::NormalesDelPrograma()) {
    const TemperaturasDiarias dias = Generar(localidad);
    for (std::size_t mes = 0; mes < MESES; ++mes, ++meses) {
      const auto tramo = [mes](const SerieDias &serie, std::size_t desde, std::size_t hasta) {
        const auto inicio = serie.begin() + static_cast<std::ptrdiff_t>(PrimerDiaDe(mes));
        return std::vector<double>(inicio + static_cast<std::ptrdiff_t>(desde),
                                   inicio + static_cast<std::ptrdiff_t>(DiasDe(mes) - hasta));
      };
      pedidas[0] += localidad.meses[mes].r1Tmax;
      pedidas[1] += localidad.meses[mes].r1Tmin;
      pedidas[2] += localidad.meses[mes].rTmaxTmin;
      salidas[0] += prueba::Correlacion(tramo(dias.maximas, 0, 1), tramo(dias.maximas, 1, 0));
      salidas[1] += prueba::Correlacion(tramo(dias.minimas, 0, 1), tramo(dias.minimas, 1, 0));
      salidas[2] += prueba::Correlacion(tramo(dias.maximas, 0, 0), tramo(dias.minimas, 0, 0));
    }
  }
  ASSERT_EQ(meses, 228);
  for (int i = 0; i < 3; ++i) EXPECT_NEAR(salidas[i] / meses, pedidas[i] / meses, 0.09) << i;
}

TEST(TemperaturasHorarias, LaHoraSolarDescuentaLongitudYEcuacionDelTiempo) {
  // 3 de noviembre, +16,4 min de ecuación del tiempo: a 15° oeste, las 13 UTC son las 12 h 16 min solares.
  EXPECT_NEAR(HoraSolarDeUtc(13.0, -15.0, 306), 12.0 + 16.4 / 60.0, 0.01);
}

/// Curva de un año de días iguales salvo el que se diga.
struct Curva {
  NormalesLocalidad localidad = Llana(25.0, 12.0, 1.0);
  SolDelAnio sol = CalcularSolDelAnio(37.0);
  TemperaturasDiarias dias{SerieDias(DIAS, 25.0), SerieDias(DIAS, 12.0)};
  [[nodiscard]] SerieHoras Horas() const { return GenerarTemperaturasHorarias(dias, localidad, sol); }
};

TEST(TemperaturasHorarias, LaMinimaCaeAlSalirElSolYLaMaximaASuHora) {
  const Curva curva;
  const SerieHoras horas = curva.Horas();
  for (std::size_t dia = 0; dia < DIAS; ++dia) {
    const auto hoy = horas.begin() + static_cast<std::ptrdiff_t>(dia * HORAS_POR_DIA);
    const double minima = static_cast<double>(std::min_element(hoy, hoy + 24) - hoy) + 0.5;
    const double maxima = static_cast<double>(std::max_element(hoy, hoy + 24) - hoy) + 0.5;
    EXPECT_NEAR(minima, curva.sol.salida[dia], 0.5) << dia;
    EXPECT_NEAR(maxima, HoraSolarDeUtc(14.5, -4.0, dia), 0.9) << dia;
    EXPECT_EQ(*std::min_element(hoy, hoy + 24), 12.0) << dia;
    EXPECT_EQ(*std::max_element(hoy, hoy + 24), 25.0) << dia;
  }
}

TEST(TemperaturasHorarias, EntreSalidaYMaximaSubeYDespuesBajaHastaLaOtraSalida) {
  const SerieHoras horas = Curva().Horas();
  for (std::size_t i = 172UL * 24 + 6; i < 172UL * 24 + 13; ++i) EXPECT_LT(horas[i], horas[i + 1]) << i;
  for (std::size_t i = 172UL * 24 + 15; i < 173UL * 24 + 4; ++i) EXPECT_GT(horas[i], horas[i + 1]) << i;
}

TEST(TemperaturasHorarias, UnDiaFrioEntreDosCalidosNoSaltaAMedianocheNiSeSaleDeSusExtremos) {
  Curva curva;
  curva.dias.maximas[100] = 15.0;
  curva.dias.minimas[100] = 6.0;
  curva.dias.minimas[101] = 4.0;
  const SerieHoras horas = curva.Horas();
  const auto frio = horas.begin() + 100L * 24;
  EXPECT_EQ(*std::max_element(frio, frio + 24), 15.0);
  EXPECT_EQ(*std::min_element(frio, frio + 24), 6.0);
  for (std::size_t i = 99UL * 24; i < 102UL * 24; ++i)
    EXPECT_LT(std::fabs(horas[i + 1] - horas[i]), 5.0) << i;
  EXPECT_LT(std::fabs(horas[100UL * 24] - horas[100UL * 24 - 1]), 2.0);
}

TEST(TemperaturasHorarias, DiciembreEnlazaConEnero) {
  Curva curva;
  curva.dias.maximas[364] = 30.0;
  curva.dias.minimas[0] = 8.0;
  const SerieHoras horas = curva.Horas();
  const double paso = horas.front() - horas.back();
  EXPECT_LT(paso, 0.0);
  EXPECT_GT(paso, -2.5);
}

} // namespace
} // namespace tesmo
