// Los años de las 19 localidades, leídos de los ficheros que la síntesis escribe, contra las medias de las
// que salen. Lo calculado aquí no comparte código con la síntesis.

#include "tests/intercambio/sintesis/Apoyosintesis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tesmo {
namespace {

using namespace prueba;

/// Humedad de saturación [kg/kg] con la presión de vapor de Magnus sobre agua o hielo (Alduchov y Eskridge,
/// 1996), que se aparta menos de 0,5 % de las tablas entre −15 y 50 °C.
double SaturacionDeMagnus(double t, double altitud) {
  const double ps =
      t >= 0.0 ? 610.94 * std::exp(17.625 * t / (t + 243.04)) : 611.21 * std::exp(22.587 * t / (t + 273.86));
  const double p = 101325.0 * std::pow(1.0 - 2.25577e-5 * altitud, 5.2559);
  return 0.62198 * ps / (p - ps);
}

TEST(AniosSinteticos, Son19Con8760RegistrosFechadosEnOrden) {
  constexpr int DIAS_POR_MES[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  ASSERT_EQ(AniosDelPrograma().size(), 19U);
  for (const AnioDePrueba &anio : AniosDelPrograma()) {
    ASSERT_EQ(anio.met.registros.size(), 8760U) << anio.normales.nombre;
    auto registro = anio.met.registros.begin();
    for (int mes = 1; mes <= 12; ++mes) {
      for (int dia = 1; dia <= DIAS_POR_MES[mes - 1]; ++dia) {
        for (int hora = 1; hora <= 24; ++hora, ++registro) {
          ASSERT_EQ((*registro)[MES], mes);
          ASSERT_EQ((*registro)[DIA], dia);
          ASSERT_EQ((*registro)[HORA], hora);
          ASSERT_EQ((*registro)[13], 0.0);
          ASSERT_EQ((*registro)[14], 0.0);
        }
      }
    }
  }
}

TEST(AniosSinteticos, LaCabeceraDiceQueSonSinteticosYDonde) {
  for (const AnioDePrueba &anio : AniosDelPrograma()) {
    EXPECT_TRUE(anio.met.primeraLinea.starts_with("Año sintético de Tesmo")) << anio.met.primeraLinea;
    EXPECT_NE(anio.met.primeraLinea.find("medias mensuales publicadas"), std::string::npos);
    EXPECT_NE(anio.met.primeraLinea.find(anio.normales.nombre), std::string::npos);
    EXPECT_LT(anio.met.primeraLinea.size(), 299U);
    EXPECT_EQ(anio.met.sitio, (std::vector<double>{anio.normales.latitud, anio.normales.longitud,
                                                   anio.normales.altitud, 15.0}));
  }
}

TEST(AniosSinteticos, LasMaximasYMinimasMediasDeCadaMesSonLasPublicadas) {
  double peor = 0.0;
  for (const AnioDePrueba &anio : AniosDelPrograma()) {
    for (int mes = 1; mes <= 12; ++mes) {
      const NormalesMes &normales = anio.normales.meses[static_cast<std::size_t>(mes) - 1];
      const double maxima = Media(MaximosDelMes(anio.met, mes, TS)) - normales.tmaxMedia;
      const double minima = Media(MinimosDelMes(anio.met, mes, TS)) - normales.tminMedia;
      EXPECT_LT(std::fabs(maxima), 0.1) << anio.normales.nombre << mes;
      EXPECT_LT(std::fabs(minima), 0.1) << anio.normales.nombre << mes;
      peor = std::max({peor, std::fabs(maxima), std::fabs(minima)});
    }
  }
  RecordProperty("peor_K", std::to_string(peor));
}

TEST(AniosSinteticos, LaDispersionDentroDelMesEsLaPublicada) {
  double peor = 0.0;
  for (const AnioDePrueba &anio : AniosDelPrograma()) {
    for (int mes = 1; mes <= 12; ++mes) {
      const NormalesMes &normales = anio.normales.meses[static_cast<std::size_t>(mes) - 1];
      const double maxima = Desviacion(MaximosDelMes(anio.met, mes, TS)) / normales.sdTmaxIntrames - 1.0;
      const double minima = Desviacion(MinimosDelMes(anio.met, mes, TS)) / normales.sdTminIntrames - 1.0;
      EXPECT_LT(std::fabs(maxima), 0.15) << anio.normales.nombre << mes;
      EXPECT_LT(std::fabs(minima), 0.15) << anio.normales.nombre << mes;
      peor = std::max({peor, std::fabs(maxima), std::fabs(minima)});
    }
  }
  RecordProperty("peor_relativo", std::to_string(peor));
}

TEST(AniosSinteticos, LaHumedadMediaDeCadaMesEsLaPublicada) {
  double peor = 0.0;
  for (const AnioDePrueba &anio : AniosDelPrograma()) {
    for (int mes = 1; mes <= 12; ++mes) {
      const double pedida = anio.normales.meses[static_cast<std::size_t>(mes) - 1].hrMedia;
      const double error = std::fabs(Media(HorasDelMes(anio.met, mes, HR)) - pedida);
      EXPECT_LT(error, 3.0) << anio.normales.nombre << mes;
      peor = std::max(peor, error);
    }
  }
  RecordProperty("peor_puntos", std::to_string(peor));
}

TEST(AniosSinteticos, LaRadiacionDeCadaMesEsLaPublicada) {
  double peor = 0.0;
  for (const AnioDePrueba &anio : AniosDelPrograma()) {
    for (int mes = 1; mes <= 12; ++mes) {
      const double pedida = anio.normales.meses[static_cast<std::size_t>(mes) - 1].ghi * 1000.0 / 24.0;
      const double global = Media(HorasDelMes(anio.met, mes, RDIR)) + Media(HorasDelMes(anio.met, mes, RDIF));
      EXPECT_LT(std::fabs(global / pedida - 1.0), 0.02) << anio.normales.nombre << mes;
      peor = std::max(peor, std::fabs(global / pedida - 1.0));
    }
  }
  RecordProperty("peor_relativo", std::to_string(peor));
}

TEST(AniosSinteticos, ElVientoMedioDeCadaMesEsElPublicado) {
  for (const AnioDePrueba &anio : AniosDelPrograma()) {
    for (int mes = 1; mes <= 12; ++mes) {
      const double pedido = anio.normales.meses[static_cast<std::size_t>(mes) - 1].viento;
      EXPECT_NEAR(Media(HorasDelMes(anio.met, mes, VV)), pedido, 0.02 * pedido)
          << anio.normales.nombre << mes;
    }
  }
}

TEST(AniosSinteticos, ElAireNuncaPasaDeLaSaturacionYSusDosHumedadesCasan) {
  for (const AnioDePrueba &anio : AniosDelPrograma()) {
    for (const auto &registro : anio.met.registros) {
      const double saturacion = SaturacionDeMagnus(registro[TS], anio.normales.altitud);
      ASSERT_LE(registro[W], saturacion) << anio.normales.nombre;
      // El grado de saturación y la humedad relativa difieren unas décimas; Magnus pone otras pocas.
      ASSERT_NEAR(100.0 * registro[W] / saturacion, registro[HR], 2.5) << anio.normales.nombre;
      ASSERT_LE(registro[HR], 100.0);
      ASSERT_GT(registro[HR], 5.0);
    }
  }
}

TEST(AniosSinteticos, NoHaySolAntesDeSalirNiDespuesDePonerseNiDirectaRasante) {
  constexpr double GRADO = std::numbers::pi / 180.0;
  for (const AnioDePrueba &anio : AniosDelPrograma()) {
    int soleadas = 0;
    for (std::size_t i = 0; i < anio.met.registros.size(); ++i) {
      const auto &registro = anio.met.registros[i];
      // Hora de salida por la declinación de Cooper (1969).
      const std::size_t dia = i / 24 + 1;
      const double declinacion =
          23.45 * GRADO * std::sin(2.0 * std::numbers::pi * (284.0 + static_cast<double>(dia)) / 365.0);
      const double puesta = std::acos(-std::tan(anio.normales.latitud * GRADO) * std::tan(declinacion));
      const double hora = (registro[HORA] - 0.5 - 12.0) * 15.0 * GRADO;
      const double global = registro[RDIR] + registro[RDIF];
      if (std::fabs(hora) > puesta + 0.002) {
        ASSERT_EQ(global, 0.0) << anio.normales.nombre << i;
        ASSERT_EQ(registro[CENIT], 90.0) << anio.normales.nombre << i;
        ASSERT_EQ(registro[ACIMUT], 0.0) << anio.normales.nombre << i;
      }
      if (registro[CENIT] >= 89.0) {
        ASSERT_EQ(registro[RDIR], 0.0) << anio.normales.nombre << i;
      }
      ASSERT_GE(registro[RDIR], 0.0);
      ASSERT_GE(registro[RDIF], 0.0);
      soleadas += global > 0.0 ? 1 : 0;
    }
    EXPECT_NEAR(soleadas, 4380, 60) << anio.normales.nombre;
  }
}

TEST(AniosSinteticos, LaTemperaturaNoSaltaAMedianocheMasQueEnCualquierHora) {
  double peor = 0.0;
  for (const AnioDePrueba &anio : AniosDelPrograma()) {
    const auto &registros = anio.met.registros;
    for (std::size_t i = 0; i < registros.size(); ++i) {
      const double paso = std::fabs(registros[(i + 1) % registros.size()][TS] - registros[i][TS]);
      ASSERT_LT(paso, 6.0) << anio.normales.nombre << i;
      if (i % 24 != 23) continue;
      ASSERT_LT(paso, 2.5) << anio.normales.nombre << i;
      peor = std::max(peor, paso);
    }
  }
  RecordProperty("peor_K", std::to_string(peor));
}

TEST(AniosSinteticos, ElCieloEstaMasFrioQueElAireYDentroDeLoMedidoEnClimasComoEste) {
  for (const AnioDePrueba &anio : AniosDelPrograma()) {
    for (const auto &registro : anio.met.registros) {
      ASSERT_LE(registro[TC], registro[TS]) << anio.normales.nombre;
      ASSERT_GT(registro[TC], registro[TS] - 30.0) << anio.normales.nombre;
    }
  }
}

} // namespace
} // namespace tesmo
