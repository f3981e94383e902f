#include "intercambio/reloj/Cortes.h"
#include "intercambio/reloj/Escalatiempo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace tesmo {
namespace {

constexpr std::size_t HORAS_ANIO = HORAS_DEL_ANIO;
const RelojFichero SOLAR{TiempoEtiqueta::SolarVerdadero, 0.0, -30.0};
const RelojFichero PVGIS{TiempoEtiqueta::Utc, 0.0, -50.0};
const RelojFichero PENINSULA{TiempoEtiqueta::OficialEstandar, 1.0, -30.0};

TEST(EscalaTiempo, EnHoraSolarLaEtiquetaYaEsElSol) {
  const EscalaTiempo escala(SOLAR, AUSENTE);
  EXPECT_EQ(escala.Centro(0), 0.5);
  EXPECT_EQ(escala.ASolar(1234.25), 1234.25);
  EXPECT_EQ(escala.DeSolar(1234.25), 1234.25);
}

TEST(EscalaTiempo, ElMediodiaDeMadridLlegaTarde) {
  // 3,7° al oeste y un huso de 15°: 74,8 min de retraso; el 3 de noviembre el sol va 16,4 min adelantado. El
  // mediodía solar cae a las 12:58,4 de la hora oficial de invierno.
  const EscalaTiempo escala(PENINSULA, -3.7);
  const double noviembre = 306.0 * 24.0;
  EXPECT_NEAR(escala.DeSolar(noviembre + 12.0) - noviembre, 12.0 + 58.4 / 60.0, 0.6 / 60.0);
}

TEST(EscalaTiempo, IrYVolverNoMueveNada) {
  for (const RelojFichero &reloj : {PVGIS, PENINSULA}) {
    const EscalaTiempo escala(reloj, -117.2);
    for (double instante = -30.0; instante < 8800.0; instante += 7.3) {
      EXPECT_NEAR(escala.DeSolar(escala.ASolar(instante)), instante, 1e-7);
    }
  }
}

TEST(EscalaTiempo, ElAnioSeCierra) {
  const EscalaTiempo escala(PENINSULA, -3.7);
  EXPECT_NEAR(escala.ASolar(8760.0 + 5.0), escala.ASolar(5.0) + 8760.0, 1e-9);
}

TEST(EscalaTiempo, ALosDosLadosDelCambioDeFechaNoSaltaElDia) {
  const EscalaTiempo escala({TiempoEtiqueta::OficialEstandar, 12.0, -30.0}, -179.0);
  EXPECT_NEAR(escala.ASolar(12.0), 12.0, 0.5);
}

TEST(Cortes, CubrenElAnioSinHuecoNiSolape) {
  for (const RelojFichero &reloj : {SOLAR, PVGIS, PENINSULA}) {
    const std::vector<Corte> cortes = CortesDelAnio(EscalaTiempo(reloj, -117.2));
    std::vector<double> porRegistro(HORAS_ANIO);
    std::vector<double> porHora(HORAS_ANIO);
    for (const Corte &corte : cortes) {
      EXPECT_LT(corte.desde, corte.hasta);
      EXPECT_LE(std::fabs(corte.enRegistro), 0.501);
      EXPECT_LE(std::fabs(corte.enHora), 0.501);
      porRegistro[corte.registro] += corte.hasta - corte.desde;
      porHora[corte.horaSolar] += corte.hasta - corte.desde;
    }
    // Medio minuto al día de ecuación del tiempo alarga o encoge la hora una parte en tres mil.
    for (std::size_t i = 0; i < HORAS_ANIO; ++i) {
      ASSERT_NEAR(porRegistro[i], 1.0, 5e-4) << i;
      ASSERT_NEAR(porHora[i], 1.0, 1e-6) << i;
    }
  }
}

TEST(Cortes, UnAnioEnHoraSolarTieneUnCortePorHora) {
  const std::vector<Corte> cortes = CortesDelAnio(EscalaTiempo(SOLAR, AUSENTE));
  ASSERT_EQ(cortes.size(), HORAS_ANIO);
  EXPECT_TRUE(std::ranges::all_of(cortes, [](const Corte &c) { return c.registro == c.horaSolar; }));
}

TEST(Cortes, ElCentroDeUnaHoraSolarCaeEntreLosRegistrosQueLoRodean) {
  const EscalaTiempo escala(PVGIS, 8.0);
  const std::vector<Entre> sitios = CentrosSolaresEntreRegistros(escala);
  for (const std::size_t h : {0UL, 100UL, 4380UL, 8759UL}) {
    const double centro = escala.ASolar(escala.Centro(sitios[h].izquierdo) + sitios[h].parte);
    EXPECT_NEAR(std::remainder(centro - static_cast<double>(h) - 0.5, 8760.0), 0.0, 1e-6) << h;
  }
}

} // namespace
} // namespace tesmo
