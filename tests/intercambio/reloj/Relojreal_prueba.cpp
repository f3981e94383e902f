#include "core/Ficheros.h"
#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/conversion/Aniosolar.h"
#include "intercambio/formatos/Lectura.h"
#include "intercambio/reloj/Detectorreloj.h"
#include "meteo/Derivacionessolares.h"
#include "solar/Posicionsolar.h"
#include "tests/comun/Datosreales.h"
#include "tests/intercambio/reloj/Aniofisico.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

namespace tesmo {
namespace {

constexpr const char *PVGIS_CSV = "PVGIS_tmy_45.000_8.000_2005_2023.csv";
constexpr const char *PVGIS_EPW = "PVGIS_tmy_45.000_8.000_2005_2023.epw";
constexpr const char *TABERNAS = "PVGIS_TMY_37.095_-2.3585_PSA_Tabernas.epw";
constexpr const char *SAND_POINT = "TMY3_703165TY_SandPoint_Alaska.csv";

AnioCanonico Leer(const std::string &ruta) {
  const ResultadoLectura lectura = LeerFicheroClima(ruta);
  return lectura.anio.value_or(AnioCanonico{});
}

/// Corre la radiación de un año de UTC @p minutos más tarde moviendo el sitio: 15° son una hora.
AnioCanonico CorridoPorLongitud(AnioCanonico anio, double minutos) {
  anio.sitio.longitud += minutos / 4.0;
  return anio;
}

TEST(RelojReal, PvgisCasaA50MinutosDeSuEtiquetaUtc) {
  TESMO_DATO_REAL(ruta, TABERNAS);
  const VeredictoReloj veredicto = DetectarReloj(Leer(ruta));
  EXPECT_EQ(veredicto.propuesto.reloj.tiempo, TiempoEtiqueta::Utc) << veredicto.texto;
  EXPECT_NEAR(veredicto.desfaseHallado, -50.0, 1.0);
  EXPECT_EQ(veredicto.confianza, ConfianzaReloj::Alta);
}

TEST(RelojReal, LoVuelveAHallarCorridoMediaHoraOUna) {
  TESMO_DATO_REAL(ruta, TABERNAS);
  const AnioCanonico anio = Leer(ruta);
  for (const double minutos : {-60.0, -30.0, 30.0, 60.0}) {
    const VeredictoReloj veredicto = DetectarReloj(CorridoPorLongitud(anio, minutos));
    EXPECT_NEAR(veredicto.desfaseHallado, -50.0 - minutos, 1.0) << minutos;
  }
  EXPECT_NEAR(DetectarReloj(prueba::Corrido(anio, -1)).desfaseHallado, 10.0, 1.0);
}

TEST(RelojReal, LaCabeceraDePvgisSeDesmiente) {
  TESMO_DATO_REAL(ruta, TABERNAS);
  AnioCanonico anio = Leer(ruta);
  anio.reloj = {TiempoEtiqueta::OficialEstandar, 1.0, -30.0};
  const VeredictoReloj veredicto = DetectarReloj(anio);
  EXPECT_FALSE(veredicto.concuerda);
  EXPECT_NEAR(veredicto.desfaseHallado, 10.0, 1.0);
  EXPECT_NE(veredicto.texto.find("UTC, etiqueta − 50 min"), std::string::npos) << veredicto.texto;
}

TEST(RelojReal, Tmy3EsHoraOficialQueTerminaEnLaEtiqueta) {
  TESMO_DATO_REAL(ruta, SAND_POINT);
  const VeredictoReloj veredicto = DetectarReloj(Leer(ruta));
  EXPECT_TRUE(veredicto.concuerda) << veredicto.texto;
  EXPECT_NEAR(veredicto.desfaseHallado, -30.0, 1.0);
}

TEST(RelojReal, SinDirectaNormalLaSimetriaTambienLoHalla) {
  TESMO_DATO_REAL(ruta, TABERNAS);
  AnioCanonico anio = Leer(ruta);
  prueba::Quitar(anio, Campo::DirectaNormal);
  prueba::Quitar(anio, Campo::DifusaHorizontal);
  const VeredictoReloj veredicto = DetectarReloj(anio);
  EXPECT_EQ(veredicto.metodo, MetodoReloj::Simetria);
  EXPECT_NEAR(veredicto.desfaseHallado, -50.0, 10.0) << veredicto.texto;
}

TEST(ConversionReal, ElCierreYLaEnergiaDeCadaDiaSeGuardan) {
  for (const char *nombre : {PVGIS_CSV, PVGIS_EPW, TABERNAS, SAND_POINT}) {
    TESMO_DATO_REAL(ruta, nombre);
    const AnioCanonico anio = Leer(ruta);
    const ResultadoConversion r = LlevarAHoraSolar(anio, DetectarReloj(anio).propuesto.reloj);
    ASSERT_TRUE(r.anio) << nombre << ": " << r.error;
    EXPECT_LT(r.informe.cierre.despues, 2.0) << nombre;
    EXPECT_LT(r.informe.global.mayorDesvioDiario, 0.001) << nombre;
    EXPECT_LT(r.informe.energiaDeNoche, 0.01) << nombre;
  }
}

TEST(ConversionReal, ElCsvYElEpwDeUnSitioDanElMismoAnio) {
  TESMO_DATO_REAL(csv, PVGIS_CSV);
  TESMO_DATO_REAL(epw, PVGIS_EPW);
  const AnioCanonico a = Leer(csv);
  const AnioCanonico b = Leer(epw);
  const ResultadoConversion uno = LlevarAHoraSolar(a, DetectarReloj(a).propuesto.reloj);
  const ResultadoConversion otro = LlevarAHoraSolar(b, DetectarReloj(b).propuesto.reloj);
  ASSERT_TRUE(uno.anio && otro.anio);
  const auto diferencia = [&](SerieAlmacenada serie) {
    return prueba::MayorDiferencia((*uno.anio)[serie].valores, (*otro.anio)[serie].valores);
  };
  EXPECT_LT(diferencia(SerieAlmacenada::RadiacionDirecta), 1.0);
  EXPECT_LT(diferencia(SerieAlmacenada::RadiacionDifusa), 1.0);
  EXPECT_LT(diferencia(SerieAlmacenada::TemperaturaSeca), 0.05);
  EXPECT_LT(diferencia(SerieAlmacenada::TemperaturaCielo), 0.05);
}

TEST(ConversionReal, IrYVolverConservaEnergiasYTemperaturasDelMes) {
  for (const char *nombre : {PVGIS_EPW, TABERNAS, SAND_POINT}) {
    TESMO_DATO_REAL(ruta, nombre);
    const AnioCanonico anio = Leer(ruta);
    const RelojFichero reloj = DetectarReloj(anio).propuesto.reloj;
    const double huso = reloj.tiempo == TiempoEtiqueta::Utc ? 0.0 : reloj.husoHoras;
    const ResultadoConversion r = LlevarAHoraSolar(anio, reloj);
    const AnioCanonico vuelta = AHoraOficial(*r.anio, huso, reloj.desfaseMin);
    for (std::size_t mes = 0; mes < MESES; ++mes) {
      for (const Campo campo : {Campo::GlobalHorizontal, Campo::DifusaHorizontal}) {
        const double antes = MediaHorariaDelMes(anio[campo].valores, mes);
        EXPECT_NEAR(MediaHorariaDelMes(vuelta[campo].valores, mes), antes, 0.002 * antes) << nombre << mes;
      }
      EXPECT_NEAR(MediaHorariaDelMes(vuelta[Campo::TemperaturaSeca].valores, mes),
                  MediaHorariaDelMes(anio[Campo::TemperaturaSeca].valores, mes), 0.05)
          << nombre << mes;
    }
  }
}

/// Irradiación global anual [kWh/m²] de un muro al oeste según los motores.
double GlobalDelMuroAlOeste(const AnioSolar &anio) {
  SeriesLeidas leidas;
  for (std::size_t s = 0; s < NUMERO_SERIES_LEIDAS; ++s) {
    const auto serie = static_cast<SerieAlmacenada>(s);
    for (std::size_t h = 0; h < HORAS; ++h) leidas[serie][h] = static_cast<float>(anio[serie].valores[h]);
  }
  SeriesDerivadas derivadas;
  derivadas.Reservar(HORAS_DEL_ANIO);
  const auto latitud = static_cast<float>(anio.sitio.latitud);
  const PosicionSolar sol(latitud, 1, 1, 12.0F);
  DerivarSolares(leidas, derivadas, {0, HORAS_DEL_ANIO - 1}, {1, 1, 1}, {90.0F, 90.0F, 0.2F}, latitud, sol);
  const SerieHoraria &global = derivadas[SerieDerivada::Global];
  return std::accumulate(global.begin(), global.end(), 0.0) / 1000.0;
}

TEST(ConversionReal, MediaHoraDeRelojCambiaElMuroAlOesteMasDeUnDiezPorCiento) {
  TESMO_DATO_REAL(ruta, TABERNAS);
  const AnioCanonico anio = Leer(ruta);
  const double bien = GlobalDelMuroAlOeste(*LlevarAHoraSolar(anio, {TiempoEtiqueta::Utc, 0.0, -50.0}).anio);
  const double antes = GlobalDelMuroAlOeste(*LlevarAHoraSolar(anio, {TiempoEtiqueta::Utc, 0.0, -80.0}).anio);
  const double despues =
      GlobalDelMuroAlOeste(*LlevarAHoraSolar(anio, {TiempoEtiqueta::Utc, 0.0, -20.0}).anio);
  RecordProperty("bien", std::to_string(bien));
  RecordProperty("antes", std::to_string(antes / bien - 1.0));
  RecordProperty("despues", std::to_string(despues / bien - 1.0));
  for (const double otro : {antes, despues}) {
    EXPECT_GT(std::fabs(otro / bien - 1.0), 0.10) << bien << ' ' << otro;
    EXPECT_LT(std::fabs(otro / bien - 1.0), 0.30) << bien << ' ' << otro;
  }
}

} // namespace
} // namespace tesmo
