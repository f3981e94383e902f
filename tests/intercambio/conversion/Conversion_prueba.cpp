#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/conversion/Aniosolar.h"
#include "intercambio/fisica/Soldelanio.h"
#include "solar/Posicionsolar.h"
#include "tests/intercambio/reloj/Aniofisico.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <thread>

namespace tesmo {
namespace {

using prueba::AnioFisico;
using prueba::Quitar;

const RelojFichero PVGIS{TiempoEtiqueta::Utc, 0.0, -50.0};
const RelojFichero PENINSULA{TiempoEtiqueta::OficialEstandar, 1.0, -30.0};
const RelojFichero SOLAR{TiempoEtiqueta::SolarVerdadero, 0.0, -30.0};

std::vector<RelojFichero> Relojes() { return {PVGIS, PENINSULA, {TiempoEtiqueta::SolarVerdadero, 0.0, 0.0}}; }

TEST(Conversion, CadaDiaConservaSuEnergia) {
  for (const RelojFichero &reloj : Relojes()) {
    for (const double latitud : {-35.0, 0.0, 40.0, 60.0}) {
      const ResultadoConversion r = LlevarAHoraSolar(AnioFisico({.reloj = reloj, .latitud = latitud}), reloj);
      ASSERT_TRUE(r.anio) << r.error;
      EXPECT_LT(r.informe.global.mayorDesvioDiario, 0.001) << latitud;
      EXPECT_LT(r.informe.difusa.mayorDesvioDiario, 0.001) << latitud;
      EXPECT_NEAR(r.informe.global.energia.despues, r.informe.global.energia.antes,
                  1e-6 * r.informe.global.energia.antes);
      EXPECT_LT(r.informe.energiaDeNoche, 0.01);
    }
  }
}

TEST(Conversion, NadaApareceAntesDeLaSalidaNiDespuesDeLaPuesta) {
  for (const RelojFichero &reloj : Relojes()) {
    const ResultadoConversion r = LlevarAHoraSolar(AnioFisico({.reloj = reloj}), reloj);
    ASSERT_TRUE(r.anio);
    PosicionSolar sol(40.0F, 1, 1, 12.0F);
    for (std::size_t h = 0; h < HORAS; ++h) {
      const std::size_t dia = h / HORAS_POR_DIA;
      const std::size_t mes = MesDe(dia);
      const auto posicion =
          sol.CalcularPosicion(40.0F, static_cast<int>(mes) + 1, static_cast<int>(dia - PrimerDiaDe(mes)) + 1,
                               static_cast<float>(h % HORAS_POR_DIA) + 0.5F);
      ASSERT_NEAR((*r.anio)[SerieAlmacenada::Cenit].valores[h], posicion.cenit, 0.006);
      if (sol.EsDeDia()) continue;
      ASSERT_EQ((*r.anio)[SerieAlmacenada::RadiacionDirecta].valores[h], 0.0) << h;
      ASSERT_EQ((*r.anio)[SerieAlmacenada::RadiacionDifusa].valores[h], 0.0) << h;
    }
  }
}

TEST(Conversion, UnHazQueNoCierraYUnaRadiacionImposibleSeAvisan) {
  AnioCanonico anio = AnioFisico({.reloj = PENINSULA});
  const auto avisa = [](const AnioCanonico &dado, const char *parte) {
    const std::vector<std::string> avisos = LlevarAHoraSolar(dado, dado.reloj).informe.avisos;
    return std::ranges::any_of(avisos,
                               [parte](const std::string &a) { return a.find(parte) != std::string::npos; });
  };
  EXPECT_FALSE(avisa(anio, "no es la difusa más la directa"));
  EXPECT_FALSE(avisa(anio, "sus unidades"));
  for (double &valor : anio[Campo::GlobalHorizontal].valores) valor *= 0.8;
  EXPECT_TRUE(avisa(anio, "no es la difusa más la directa"));
  for (const double factor : {0.0, 1e-3, 3.0}) {
    AnioCanonico otro = AnioFisico({.reloj = PENINSULA});
    for (const Campo campo : {Campo::GlobalHorizontal, Campo::DirectaNormal, Campo::DifusaHorizontal})
      for (double &valor : otro[campo].valores) valor *= factor;
    EXPECT_TRUE(avisa(otro, "sus unidades")) << factor;
  }
}

TEST(Conversion, ElHazCierraYLaDirectaNormalEsPosible) {
  for (const RelojFichero &reloj : Relojes()) {
    const ResultadoConversion r = LlevarAHoraSolar(AnioFisico({.reloj = reloj}), reloj);
    ASSERT_TRUE(r.anio);
    EXPECT_LT(r.informe.cierre.antes, 2.0);
    EXPECT_LT(r.informe.cierre.despues, 2.0);
    for (std::size_t h = 0; h < HORAS; ++h) {
      const double coseno = std::cos((*r.anio)[SerieAlmacenada::Cenit].valores[h] * 3.14159265358979 / 180.0);
      const double directa = (*r.anio)[SerieAlmacenada::RadiacionDirecta].valores[h];
      ASSERT_GE(directa, 0.0);
      if (directa == 0.0) continue;
      ASSERT_LT(directa / coseno, IrradianciaExtraterrestre(h / HORAS_POR_DIA)) << h;
    }
  }
}

TEST(Conversion, UnRelojEquivocadoAbreElCierre) {
  const AnioCanonico anio = AnioFisico({.reloj = PVGIS});
  const ResultadoConversion r = LlevarAHoraSolar(anio, {TiempoEtiqueta::Utc, 0.0, -20.0});
  EXPECT_GT(r.informe.cierre.antes, 20.0);
  EXPECT_GT(r.informe.cierre.despues, 20.0);
}

TEST(Conversion, LoQueYaEstaEnHoraSolarPasaExacto) {
  const AnioCanonico anio = AnioFisico({.reloj = SOLAR});
  const ResultadoConversion r = LlevarAHoraSolar(anio, SOLAR);
  ASSERT_TRUE(r.anio);
  EXPECT_TRUE(r.informe.intacto);
  const AnioSolar &solar = *r.anio;
  EXPECT_EQ(solar[SerieAlmacenada::TemperaturaSeca].valores, anio[Campo::TemperaturaSeca].valores);
  EXPECT_EQ(solar[SerieAlmacenada::HumedadRelativa].valores, anio[Campo::HumedadRelativa].valores);
  EXPECT_EQ(solar[SerieAlmacenada::RadiacionDifusa].valores, anio[Campo::DifusaHorizontal].valores);
  EXPECT_EQ(solar[SerieAlmacenada::VelocidadViento].valores, anio[Campo::VelocidadViento].valores);
  EXPECT_EQ(solar[SerieAlmacenada::DireccionViento].valores, anio[Campo::DireccionViento].valores);
  EXPECT_EQ(r.informe.cuentas[0].copiadas, 8760);
}

TEST(Conversion, LosAngulosEscritosPasanSiElAnioNoSeMueve) {
  AnioCanonico anio = AnioFisico({.reloj = SOLAR});
  for (std::size_t i = 0; i < HORAS; ++i) {
    anio[Campo::AcimutSolar].Poner(i, -12.5, Procedencia::Copiada);
    anio[Campo::CenitSolar].Poner(i, 61.25, Procedencia::Copiada);
  }
  const ResultadoConversion r = LlevarAHoraSolar(anio, SOLAR);
  EXPECT_EQ((*r.anio)[SerieAlmacenada::Acimut].valores[4000], -12.5);
  EXPECT_EQ((*r.anio)[SerieAlmacenada::Cenit].valores[4000], 61.25);
  EXPECT_EQ(r.informe.cuentas[9].copiadas, 8760);
}

TEST(Conversion, ElMediodiaSolarQuedaEnMedio) {
  // De un año simétrico respecto al mediodía solar, la mañana y la tarde de cada día quedan iguales.
  const ResultadoConversion r = LlevarAHoraSolar(AnioFisico({.reloj = PVGIS, .longitud = 8.0}), PVGIS);
  const std::vector<double> &directa = (*r.anio)[SerieAlmacenada::RadiacionDirecta].valores;
  double manana = 0.0;
  double tarde = 0.0;
  for (std::size_t h = 0; h < HORAS; ++h) (h % HORAS_POR_DIA < 12 ? manana : tarde) += directa[h];
  EXPECT_NEAR(manana / tarde, 1.0, 0.01);
}

TEST(Conversion, ElInformeDiceLoQuePasaConLosPicos) {
  AnioCanonico anio = AnioFisico({.reloj = PVGIS});
  anio[Campo::TemperaturaSeca].valores[5000] = 45.0;
  const ResultadoConversion r = LlevarAHoraSolar(anio, PVGIS);
  EXPECT_EQ(r.informe.temperatura.maxima.antes, 45.0);
  EXPECT_LT(r.informe.temperatura.maxima.despues, 45.0);
  EXPECT_GT(r.informe.temperatura.maxima.despues, 27.0);
  EXPECT_NEAR(r.informe.temperatura.media.despues, r.informe.temperatura.media.antes, 0.01);
  const std::vector<std::string> texto = TextoInforme(r.informe);
  EXPECT_TRUE(std::ranges::any_of(texto, [](const std::string &linea) {
    return linea.find("máxima 45,0 °C") == std::string::npos &&
           linea.find("máxima 45,0 → ") != std::string::npos;
  }));
}

TEST(Conversion, CuentaLoCalculadoYLoInventado) {
  AnioCanonico anio = AnioFisico({.reloj = PVGIS});
  Quitar(anio, Campo::InfrarrojaHorizontal);
  anio[Campo::TemperaturaSeca].procedencias[100] = Procedencia::Inventada;
  const ResultadoConversion r = LlevarAHoraSolar(anio, PVGIS);
  EXPECT_EQ(r.informe.cuentas[1].inventadas, 8760) << "temperatura de cielo";
  EXPECT_EQ(r.informe.cuentas[0].inventadas, 2) << "la hora inventada toca a dos horas solares";
  EXPECT_EQ(r.informe.cuentas[0].calculadas, 8758);
  ASSERT_EQ(r.informe.avisos.size(), 1U);
  EXPECT_NE(r.informe.avisos[0].find("infrarroja"), std::string::npos);
}

TEST(Conversion, LaHumedadRelativaSeRehaceYNoPasaDeCien) {
  AnioCanonico anio = AnioFisico({.reloj = PVGIS});
  std::ranges::fill(anio[Campo::HumedadRelativa].valores, 100.0);
  const ResultadoConversion r = LlevarAHoraSolar(anio, PVGIS);
  const std::vector<double> &relativa = (*r.anio)[SerieAlmacenada::HumedadRelativa].valores;
  EXPECT_LE(std::ranges::max(relativa), 100.0);
  // Entre dos aires saturados la mezcla lo está casi: la curva de saturación es convexa.
  EXPECT_GT(std::ranges::min(relativa), 98.0);
}

TEST(Conversion, DiceDondeFaltaLoIndispensable) {
  AnioCanonico anio = AnioFisico({.reloj = PVGIS});
  anio[Campo::TemperaturaSeca].Poner(41, AUSENTE, Procedencia::Ausente);
  ResultadoConversion r = LlevarAHoraSolar(anio, PVGIS);
  EXPECT_FALSE(r.anio);
  EXPECT_EQ(r.error, "falta la temperatura seca en 1 horas, la primera en la línea 50");

  anio = AnioFisico({.reloj = PVGIS});
  Quitar(anio, Campo::DirectaNormal);
  Quitar(anio, Campo::DifusaHorizontal);
  r = LlevarAHoraSolar(anio, PVGIS);
  EXPECT_NE(r.error.find("radiación"), std::string::npos);

  anio = AnioFisico({.reloj = PVGIS});
  anio.sitio.longitud = AUSENTE;
  EXPECT_NE(LlevarAHoraSolar(anio, PVGIS).error.find("longitud"), std::string::npos);
  anio.sitio.latitud = 120.0;
  EXPECT_NE(LlevarAHoraSolar(anio, PVGIS).error.find("latitud"), std::string::npos);
}

TEST(Conversion, LaRadiacionDeNochePuraNoPasaYSeDice) {
  AnioCanonico anio = AnioFisico({.reloj = SOLAR});
  for (std::size_t d = 0; d < DIAS; ++d) {
    anio[Campo::GlobalHorizontal].valores[d * HORAS_POR_DIA] = 100.0;
    anio[Campo::DifusaHorizontal].valores[d * HORAS_POR_DIA] = 100.0;
  }
  const ResultadoConversion r = LlevarAHoraSolar(anio, {TiempoEtiqueta::SolarVerdadero, 0.0, -31.0});
  EXPECT_NEAR(r.informe.energiaDeNoche, 36.5, 0.01);
  ASSERT_FALSE(r.informe.avisos.empty());
  EXPECT_NE(r.informe.avisos.back().find("36,5 kWh/m²"), std::string::npos);
}

TEST(Conversion, EnLaNochePolarNoHayRadiacionNiFallo) {
  for (const double latitud : {89.0, 75.0, -89.0}) {
    const ResultadoConversion r =
        LlevarAHoraSolar(AnioFisico({.reloj = PVGIS, .latitud = latitud, .longitud = 15.0}), PVGIS);
    ASSERT_TRUE(r.anio) << r.error;
    for (const double valor : (*r.anio)[SerieAlmacenada::RadiacionDirecta].valores) ASSERT_TRUE(valor >= 0.0);
    EXPECT_NEAR(r.informe.global.energia.despues + r.informe.energiaDeNoche, r.informe.global.energia.antes,
                1e-6 * r.informe.global.energia.antes);
  }
}

TEST(Conversion, DesdeVariosHilosDaLoMismo) {
  const AnioCanonico anio = AnioFisico({.reloj = PVGIS});
  const ResultadoConversion uno = LlevarAHoraSolar(anio, PVGIS);
  std::vector<ResultadoConversion> otros(4);
  std::vector<std::thread> hilos;
  for (ResultadoConversion &otro : otros) hilos.emplace_back([&] { otro = LlevarAHoraSolar(anio, PVGIS); });
  for (std::thread &hilo : hilos) hilo.join();
  for (const ResultadoConversion &otro : otros) {
    for (std::size_t s = 0; s < NUMERO_SERIES_LEIDAS; ++s) {
      EXPECT_EQ(otro.anio->series[s].valores, uno.anio->series[s].valores);
    }
  }
}

TEST(HoraOficial, IrYVolverConservaEnergiasYTemperaturas) {
  for (const RelojFichero &reloj : {PENINSULA, RelojFichero{TiempoEtiqueta::OficialEstandar, 1.0, 0.0}}) {
    const AnioCanonico anio = AnioFisico({.reloj = reloj});
    const ResultadoConversion r = LlevarAHoraSolar(anio, reloj);
    const AnioCanonico vuelta = AHoraOficial(*r.anio, reloj.husoHoras, reloj.desfaseMin);
    for (std::size_t mes = 0; mes < MESES; ++mes) {
      for (const Campo campo : {Campo::GlobalHorizontal, Campo::DifusaHorizontal}) {
        const double antes = MediaHorariaDelMes(anio[campo].valores, mes);
        EXPECT_NEAR(MediaHorariaDelMes(vuelta[campo].valores, mes), antes, 0.002 * antes) << mes;
      }
      for (const Campo campo : {Campo::TemperaturaSeca}) {
        EXPECT_NEAR(MediaHorariaDelMes(vuelta[campo].valores, mes),
                    MediaHorariaDelMes(anio[campo].valores, mes), 0.05);
      }
    }
    EXPECT_LT(
        prueba::MayorDiferencia(vuelta[Campo::TemperaturaSeca].valores, anio[Campo::TemperaturaSeca].valores),
        1.0);
  }
}

TEST(HoraOficial, ElAnioQueSaleSabeSuReloj) {
  const ResultadoConversion r = LlevarAHoraSolar(AnioFisico({.reloj = PVGIS}), PVGIS);
  const AnioCanonico oficial = AHoraOficial(*r.anio, 1.0);
  EXPECT_EQ(oficial.reloj.tiempo, TiempoEtiqueta::OficialEstandar);
  EXPECT_EQ(oficial.reloj.husoHoras, 1.0);
  EXPECT_EQ(oficial.reloj.desfaseMin, -30.0);
  const double cierre = LlevarAHoraSolar(oficial, oficial.reloj).informe.cierre.antes;
  EXPECT_LT(cierre, 2.0);
}

TEST(HoraOficial, ElRocioYLaInfrarrojaSalenDelAireYDelCielo) {
  const ResultadoConversion r = LlevarAHoraSolar(AnioFisico({.reloj = PVGIS}), PVGIS);
  const AnioCanonico oficial = AHoraOficial(*r.anio, 1.0);
  for (std::size_t i = 0; i < HORAS; i += 100) {
    EXPECT_LE(oficial[Campo::TemperaturaRocio].valores[i], oficial[Campo::TemperaturaSeca].valores[i]);
    EXPECT_NEAR(oficial[Campo::InfrarrojaHorizontal].valores[i], 320.0, 41.0);
  }
  EXPECT_TRUE(std::isnan(oficial[Campo::NubosidadOpaca].valores[0]));
}

TEST(HoraOficial, UnAnioDeSeriesLlevaLaPresionDeSuAltitud) {
  SeriesLeidas series;
  series[SerieAlmacenada::TemperaturaSeca].assign(HORAS, 21.5F);
  SitioClima sitio;
  sitio.altitud = 1000.0;
  const AnioSolar solar = AnioSolarDeSeries(sitio, 1.0, series);
  EXPECT_EQ(solar[SerieAlmacenada::TemperaturaSeca].valores[77], 21.5);
  EXPECT_NEAR(solar.presion.valores[0], 89875.0, 5.0); // atmósfera normal
  EXPECT_EQ(AHoraOficial(solar, 1.0)[Campo::TemperaturaSeca].valores[77], 21.5);
}

} // namespace
} // namespace tesmo
