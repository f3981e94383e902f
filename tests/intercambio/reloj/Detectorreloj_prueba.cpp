#include "intercambio/reloj/Detectorreloj.h"
#include "intercambio/reloj/Eleccionreloj.h"
#include "tests/intercambio/reloj/Aniofisico.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tesmo {
namespace {

using prueba::AnioFisico;
using prueba::Corrido;
using prueba::Quitar;

const RelojFichero PVGIS{TiempoEtiqueta::Utc, 0.0, -50.0};
const RelojFichero PENINSULA{TiempoEtiqueta::OficialEstandar, 1.0, -30.0};
const RelojFichero SOLAR{TiempoEtiqueta::SolarVerdadero, 0.0, -30.0};

AnioCanonico Anio(const RelojFichero &reloj) { return AnioFisico({.reloj = reloj}); }

TEST(DetectorReloj, HallaElDesfaseDeCadaFamilia) {
  for (const RelojFichero &reloj :
       {PVGIS, PENINSULA, RelojFichero{TiempoEtiqueta::OficialEstandar, 1.0, 0.0}, SOLAR}) {
    const VeredictoReloj veredicto = DetectarReloj(Anio(reloj));
    EXPECT_EQ(veredicto.metodo, MetodoReloj::Haz);
    EXPECT_NEAR(veredicto.desfaseHallado, reloj.desfaseMin, 1.0) << TextoReloj(reloj);
    EXPECT_TRUE(veredicto.concuerda) << veredicto.texto;
    EXPECT_EQ(veredicto.propuesto.reloj.desfaseMin, reloj.desfaseMin);
    EXPECT_EQ(veredicto.confianza, ConfianzaReloj::Alta) << veredicto.texto;
  }
}

TEST(DetectorReloj, LoVuelveAHallarConElFicheroCorridoMediaHoraOUna) {
  for (const double corrimiento : {-60.0, -30.0, 30.0, 60.0}) {
    AnioCanonico anio = Anio({TiempoEtiqueta::Utc, 0.0, PVGIS.desfaseMin + corrimiento});
    anio.reloj = PVGIS;
    const VeredictoReloj veredicto = DetectarReloj(anio);
    EXPECT_NEAR(veredicto.desfaseHallado, PVGIS.desfaseMin + corrimiento, 1.0) << corrimiento;
    EXPECT_FALSE(veredicto.concuerda);
    EXPECT_EQ(veredicto.propuesto.reloj.tiempo, TiempoEtiqueta::Utc);
    ASSERT_TRUE(veredicto.alternativa.has_value());
    EXPECT_EQ(veredicto.alternativa->reloj.desfaseMin, PVGIS.desfaseMin);
  }
}

TEST(DetectorReloj, UnRegistroMasTardeSonSesentaMinutosMenos) {
  const VeredictoReloj veredicto = DetectarReloj(Corrido(Anio(PENINSULA), 1));
  EXPECT_NEAR(veredicto.desfaseHallado, -90.0, 1.0);
}

TEST(DetectorReloj, DistingueLaHoraSolarDeLaCivil) {
  AnioCanonico anio = Anio(SOLAR);
  anio.reloj = PENINSULA;
  const VeredictoReloj solar = DetectarReloj(anio);
  EXPECT_EQ(solar.propuesto.reloj.tiempo, TiempoEtiqueta::SolarVerdadero) << solar.texto;
  EXPECT_NEAR(solar.desfaseHallado, -30.0, 1.0);

  anio = Anio(PENINSULA);
  anio.reloj = SOLAR;
  const VeredictoReloj civil = DetectarReloj(anio);
  EXPECT_EQ(civil.propuesto.reloj.tiempo, TiempoEtiqueta::OficialEstandar) << civil.texto;
}

TEST(DetectorReloj, UnHusoEquivocadoSeHallaAunqueEsteLejos) {
  AnioCanonico anio = Anio(PENINSULA);
  anio.reloj.husoHoras = -8.0;
  const VeredictoReloj veredicto = DetectarReloj(anio);
  EXPECT_NEAR(veredicto.desfaseHallado, -30.0 - 9.0 * 60.0, 1.0);
  ASSERT_FALSE(veredicto.avisos.empty());
  EXPECT_NE(veredicto.avisos.back().find("huso"), std::string::npos);
}

TEST(DetectorReloj, ElRuidoNoLoMueve) {
  const VeredictoReloj veredicto = DetectarReloj(AnioFisico({.reloj = PENINSULA, .ruido = 0.1}));
  EXPECT_NEAR(veredicto.desfaseHallado, -30.0, 2.0);
  EXPECT_NE(veredicto.confianza, ConfianzaReloj::Ninguna);
}

TEST(DetectorReloj, UnQuintoDeHorasDisparatadasNoLoMueve) {
  AnioCanonico anio = Anio(PENINSULA);
  for (std::size_t i = 0; i < 8760; i += 6) anio[Campo::DifusaHorizontal].valores[i] *= 0.2;
  EXPECT_NEAR(DetectarReloj(anio).desfaseHallado, -30.0, 2.0);
}

TEST(DetectorReloj, SinDirectaNormalUsaElCenitEscrito) {
  const RelojFichero enPunto{TiempoEtiqueta::SolarVerdadero, 0.0, 0.0};
  AnioCanonico anio = Anio(enPunto);
  // El cenit de cada hora, del propio año: (global − difusa) / directa normal.
  for (std::size_t i = 0; i < 8760; ++i) {
    const double normal = anio[Campo::DirectaNormal].valores[i];
    const double haz = anio[Campo::GlobalHorizontal].valores[i] - anio[Campo::DifusaHorizontal].valores[i];
    const double coseno = normal > 0.0 ? std::min(1.0, haz / normal) : 0.0;
    anio[Campo::CenitSolar].Poner(i, std::acos(coseno) * 180.0 / 3.14159265358979, Procedencia::Copiada);
  }
  Quitar(anio, Campo::DirectaNormal);
  const VeredictoReloj veredicto = DetectarReloj(anio);
  EXPECT_EQ(veredicto.metodo, MetodoReloj::Cenit);
  EXPECT_NEAR(veredicto.desfaseHallado, 0.0, 1.0);
  EXPECT_TRUE(veredicto.concuerda);
}

TEST(DetectorReloj, UnCenitCeroDeNocheNoDiceNada) {
  AnioCanonico anio = Anio(SOLAR);
  for (std::size_t i = 0; i < 8760; ++i) {
    const double normal = anio[Campo::DirectaNormal].valores[i];
    const double haz = anio[Campo::GlobalHorizontal].valores[i] - anio[Campo::DifusaHorizontal].valores[i];
    const bool deDia = normal > 0.0 && haz > 0.0;
    const double cenit = deDia ? std::acos(std::min(1.0, haz / normal)) * 180.0 / 3.14159265358979 : 0.0;
    anio[Campo::CenitSolar].Poner(i, i % 2 == 0 || deDia ? cenit : 10.0, Procedencia::Copiada);
  }
  Quitar(anio, Campo::DirectaNormal);
  const VeredictoReloj veredicto = DetectarReloj(anio);
  EXPECT_EQ(veredicto.metodo, MetodoReloj::Cenit);
  EXPECT_NEAR(veredicto.desfaseHallado, -30.0, 1.0) << veredicto.texto;
  EXPECT_LT(veredicto.declarado.residuo, 0.02);
  EXPECT_LT(veredicto.horas, 4500);
}

TEST(DetectorReloj, LaSimetriaSolaNoCorrigePorMenosDeVeinteMinutos) {
  for (const double corrimiento : {-12.0, 12.0, 35.0}) {
    AnioCanonico anio = Anio({TiempoEtiqueta::OficialEstandar, 1.0, -30.0 + corrimiento});
    anio.reloj = PENINSULA;
    Quitar(anio, Campo::DirectaNormal);
    Quitar(anio, Campo::DifusaHorizontal);
    const VeredictoReloj veredicto = DetectarReloj(anio);
    ASSERT_EQ(veredicto.metodo, MetodoReloj::Simetria);
    EXPECT_NEAR(veredicto.desfaseHallado, -30.0 + corrimiento, 3.0);
    const bool basta = corrimiento > 20.0;
    EXPECT_EQ(veredicto.propuesto.reloj.desfaseMin != -30.0, basta) << veredicto.texto;
    EXPECT_EQ(veredicto.concuerda, !basta);
    EXPECT_EQ(veredicto.texto.find("no basta para cambiarlo") != std::string::npos, !basta)
        << veredicto.texto;
  }
}

TEST(DetectorReloj, ConSoloLaGlobalUsaLosDiasClaros) {
  for (const double desfase : {-50.0, -30.0, 0.0}) {
    AnioCanonico anio = Anio({TiempoEtiqueta::OficialEstandar, 1.0, desfase});
    Quitar(anio, Campo::DirectaNormal);
    Quitar(anio, Campo::DifusaHorizontal);
    const VeredictoReloj veredicto = DetectarReloj(anio);
    EXPECT_EQ(veredicto.metodo, MetodoReloj::Simetria);
    EXPECT_NEAR(veredicto.desfaseHallado, desfase, 3.0);
    EXPECT_GE(veredicto.horas, 30);
    EXPECT_NE(veredicto.confianza, ConfianzaReloj::Alta) << "una simetría no basta para tanto";
  }
}

TEST(DetectorReloj, SinGlobalUsaLaSimetriaDeLaDirectaNormal) {
  AnioCanonico anio = Anio(PENINSULA);
  Quitar(anio, Campo::GlobalHorizontal);
  const VeredictoReloj veredicto = DetectarReloj(anio);
  EXPECT_EQ(veredicto.metodo, MetodoReloj::Simetria);
  EXPECT_NEAR(veredicto.desfaseHallado, -30.0, 5.0);
}

/// El año de @p anio como un .met: directa y difusa horizontales y el cenit de cada hora, pero el cenit, del
/// año @p otro.
AnioCanonico ComoMetConElCenitDe(AnioCanonico anio, const AnioCanonico &otro) {
  for (std::size_t i = 0; i < 8760; ++i) {
    const auto haz = [i](const AnioCanonico &a) {
      return a[Campo::GlobalHorizontal].valores[i] - a[Campo::DifusaHorizontal].valores[i];
    };
    const double normal = otro[Campo::DirectaNormal].valores[i];
    const double coseno = normal > 0.0 ? std::min(1.0, haz(otro) / normal) : 0.0;
    anio[Campo::CenitSolar].Poner(i, std::acos(coseno) * 180.0 / 3.14159265358979, Procedencia::Copiada);
    anio[Campo::DirectaHorizontal].Poner(i, haz(anio), Procedencia::Copiada);
  }
  Quitar(anio, Campo::DirectaNormal);
  Quitar(anio, Campo::GlobalHorizontal);
  return anio;
}

TEST(DetectorReloj, ElCenitDelFinalDeLaHoraNoMueveLaRadiacion) {
  const AnioCanonico anio =
      ComoMetConElCenitDe(Anio(SOLAR), Anio({TiempoEtiqueta::SolarVerdadero, 0.0, 0.0}));
  const VeredictoReloj veredicto = DetectarReloj(anio);
  ASSERT_EQ(veredicto.metodo, MetodoReloj::Simetria) << veredicto.texto;
  EXPECT_TRUE(veredicto.concuerda) << veredicto.texto;
  EXPECT_EQ(veredicto.propuesto.reloj, SOLAR);
  ASSERT_EQ(veredicto.avisos.size(), 1U) << veredicto.texto;
  EXPECT_NE(veredicto.avisos[0].find("El cenit escrito es el de hora solar verdadera, etiqueta en el centro"),
            std::string::npos)
      << veredicto.avisos[0];
  EXPECT_NE(veredicto.avisos[0].find("no se mueve"), std::string::npos) << veredicto.avisos[0];
}

TEST(DetectorReloj, SiLosDiasClarosVanConElCenitElRelojSeMueve) {
  const RelojFichero enPunto{TiempoEtiqueta::SolarVerdadero, 0.0, 0.0};
  AnioCanonico anio = ComoMetConElCenitDe(Anio(enPunto), Anio(enPunto));
  anio.reloj = SOLAR;
  const VeredictoReloj veredicto = DetectarReloj(anio);
  EXPECT_EQ(veredicto.metodo, MetodoReloj::Cenit);
  EXPECT_EQ(veredicto.propuesto.reloj, enPunto) << veredicto.texto;
  EXPECT_EQ(veredicto.confianza, ConfianzaReloj::Alta);
  EXPECT_TRUE(veredicto.avisos.empty());
}

TEST(DetectorReloj, ElCenitSoloNoBastaParaCambiarLoDeclarado) {
  AnioCanonico anio = ComoMetConElCenitDe(Anio(SOLAR), Anio({TiempoEtiqueta::SolarVerdadero, 0.0, 0.0}));
  Quitar(anio, Campo::DirectaHorizontal);
  Quitar(anio, Campo::DifusaHorizontal);
  const VeredictoReloj veredicto = DetectarReloj(anio);
  EXPECT_EQ(veredicto.metodo, MetodoReloj::Cenit);
  EXPECT_EQ(veredicto.confianza, ConfianzaReloj::Baja);
  EXPECT_EQ(ElegirReloj(veredicto, {}), SOLAR);
  ASSERT_EQ(veredicto.avisos.size(), 1U);
  EXPECT_NE(veredicto.avisos[0].find("no hay días claros"), std::string::npos) << veredicto.avisos[0];
}

TEST(DetectorReloj, AvisaSiElCenitCasaYLaRadiacionNo) {
  AnioCanonico anio = ComoMetConElCenitDe(Anio({TiempoEtiqueta::SolarVerdadero, 0.0, 0.0}), Anio(SOLAR));
  anio.reloj = SOLAR;
  const VeredictoReloj veredicto = DetectarReloj(anio);
  ASSERT_EQ(veredicto.metodo, MetodoReloj::Cenit);
  EXPECT_TRUE(veredicto.concuerda);
  ASSERT_EQ(veredicto.avisos.size(), 1U) << veredicto.texto;
  EXPECT_NE(veredicto.avisos[0].find("no sigue al cenit escrito"), std::string::npos);
}

TEST(ElegirReloj, EntreOficialYUtcSeTrasladaLoQueDicenLosDatos) {
  // Un PVGIS con la ciudad cambiada: declara la hora oficial, y sus datos son UTC − 50.
  AnioCanonico anio = Anio(PVGIS);
  anio.reloj = PENINSULA;
  EXPECT_NEAR(ElegirReloj(DetectarReloj(anio), {.tiempo = TiempoEtiqueta::Utc}).desfaseMin, -50.0, 1.0);
  // Con lo declarado bien, quien elige otro tiempo lo desmiente y se vuelve a lo corriente.
  EXPECT_EQ(ElegirReloj(DetectarReloj(Anio(PENINSULA)), {.tiempo = TiempoEtiqueta::Utc}).desfaseMin, -30.0);
}

TEST(ElegirReloj, SinConfianzaNoHayQueTrasladar) {
  // Los datos no desmienten nada: elegir UTC no puede ser lo mismo que no elegir.
  for (const ConfianzaReloj confianza : {ConfianzaReloj::Ninguna, ConfianzaReloj::Baja}) {
    VeredictoReloj veredicto;
    veredicto.declarado.reloj = PENINSULA;
    veredicto.propuesto.reloj = {TiempoEtiqueta::OficialEstandar, 1.0, 12.0};
    veredicto.confianza = confianza;
    EXPECT_EQ(ElegirReloj(veredicto, {.tiempo = TiempoEtiqueta::Utc}).desfaseMin, -30.0);
    EXPECT_EQ(ElegirReloj(veredicto, {.tiempo = TiempoEtiqueta::Utc}).tiempo, TiempoEtiqueta::Utc);
    veredicto.confianza = ConfianzaReloj::Media;
    EXPECT_EQ(ElegirReloj(veredicto, {.tiempo = TiempoEtiqueta::Utc}).desfaseMin, -48.0);
  }
}

TEST(ElegirReloj, UnAnioQueNoDiceNadaSeConvierteConLoElegido) {
  AnioCanonico anio;
  anio.sitio.latitud = 40.0;
  anio.sitio.longitud = -3.7;
  anio.reloj = PENINSULA;
  const VeredictoReloj veredicto = DetectarReloj(anio);
  ASSERT_EQ(veredicto.metodo, MetodoReloj::Ninguno);
  const RelojFichero elegido{TiempoEtiqueta::Utc, PENINSULA.husoHoras, -30.0};
  EXPECT_EQ(ElegirReloj(veredicto, {.tiempo = TiempoEtiqueta::Utc}), elegido);
}

TEST(DetectorReloj, SinSolConQueMedirSeQuedaConLoDeclarado) {
  AnioCanonico anio;
  anio.sitio.latitud = 40.0;
  anio.sitio.longitud = -3.7;
  anio.reloj = PENINSULA;
  const VeredictoReloj veredicto = DetectarReloj(anio);
  EXPECT_EQ(veredicto.metodo, MetodoReloj::Ninguno);
  EXPECT_EQ(veredicto.confianza, ConfianzaReloj::Ninguna);
  EXPECT_EQ(veredicto.propuesto.reloj.desfaseMin, -30.0);
  EXPECT_TRUE(std::isnan(veredicto.desfaseHallado));
  EXPECT_NE(veredicto.texto.find("no se puede comprobar"), std::string::npos);
}

TEST(DetectorReloj, SinLugarNoMide) {
  AnioCanonico anio = Anio(PENINSULA);
  anio.sitio.longitud = AUSENTE;
  EXPECT_NE(DetectarReloj(anio).texto.find("dónde está el sitio"), std::string::npos);
  anio.reloj = SOLAR; // en hora solar la longitud no hace falta
  EXPECT_NE(DetectarReloj(anio).metodo, MetodoReloj::Ninguno);
}

TEST(DetectorReloj, AvisaDeLosMesesDeVeranoAdelantados) {
  AnioCanonico anio = Anio(PENINSULA);
  const AnioCanonico verano = Corrido(anio, 1);
  const auto desde = static_cast<std::ptrdiff_t>(DIAS_ANTES_DEL_MES[4]) * 24;
  const auto hasta = static_cast<std::ptrdiff_t>(DIAS_ANTES_DEL_MES[9]) * 24;
  for (std::size_t c = 0; c < NUMERO_CAMPOS; ++c) {
    std::copy(verano.series[c].valores.begin() + desde, verano.series[c].valores.begin() + hasta,
              anio.series[c].valores.begin() + desde);
  }
  const VeredictoReloj veredicto = DetectarReloj(anio);
  ASSERT_EQ(veredicto.avisos.size(), 1U);
  EXPECT_NE(veredicto.avisos[0].find("hora de verano"), std::string::npos);
  EXPECT_LT(veredicto.grado, 0.75);
}

TEST(DetectorReloj, MesesDeAniosDistintosNoEstorban) {
  AnioCanonico anio = Anio(PVGIS);
  for (std::size_t i = 0; i < 8760; ++i) anio.anios[i] = 2005 + static_cast<int>(i / 730);
  EXPECT_NEAR(DetectarReloj(anio).desfaseHallado, -50.0, 1.0);
}

TEST(DetectorReloj, UnAnioEnBlancoONegativoNoLoTumba) {
  AnioCanonico anio = Anio(PENINSULA);
  for (SerieCanonica &serie : anio.series) std::ranges::fill(serie.valores, -9999.0);
  EXPECT_EQ(DetectarReloj(anio).metodo, MetodoReloj::Ninguno);
}

TEST(TextoReloj, DiceElTiempoYElDesfase) {
  EXPECT_EQ(TextoReloj(PVGIS), "UTC, etiqueta − 50 min");
  EXPECT_EQ(TextoReloj(PENINSULA), "hora oficial (UTC+1), etiqueta − 30 min");
  EXPECT_EQ(TextoReloj({TiempoEtiqueta::OficialEstandar, -3.5, 0.0}),
            "hora oficial (UTC−3,5), etiqueta en el centro de su hora");
  EXPECT_EQ(TextoReloj(SOLAR), "hora solar verdadera, etiqueta − 30 min");
}

TEST(TextoReloj, LoQueNoEsHoraOficialSeDiceTambienEnUtc) {
  AnioCanonico anio = Anio(PVGIS);
  anio.reloj = PENINSULA;
  const VeredictoReloj veredicto = DetectarReloj(anio);
  EXPECT_NE(veredicto.texto.find("lo mismo que UTC, etiqueta − 50 min"), std::string::npos)
      << veredicto.texto;
}

} // namespace
} // namespace tesmo
