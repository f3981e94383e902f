#include "intercambio/sintesis/Vientosintetico.h"

#include "tests/intercambio/sintesis/Apoyosintesis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tesmo {
namespace {

VientoHorario Generar(double media) {
  NormalesLocalidad localidad;
  for (NormalesMes &mes : localidad.meses) mes.viento = media;
  Azar velocidad("velocidad");
  Azar direccion("direccion");
  return GenerarViento(localidad, velocidad, direccion);
}

TEST(Viento, LaFormaDeWeibullEsLaPublicadaYQuedaEntreLimites) {
  EXPECT_NEAR(FormaWeibull(4.0), 1.88, 1e-12); // Justus et al. (1978): 0,94·√4
  EXPECT_EQ(FormaWeibull(0.1), 1.1);
  EXPECT_EQ(FormaWeibull(30.0), 3.5);
}

TEST(Viento, LosCuantilesDeRayleighSonLosConocidos) {
  // Con forma 2 la Weibull es una Rayleigh: mediana √(4·ln 2/π) y percentil 90 √(4·ln 10/π) de la media.
  EXPECT_NEAR(CuantilWeibull(0.5, 2.0), 0.9394372787, 1e-9);
  EXPECT_NEAR(CuantilWeibull(0.9, 2.0), 1.7122328, 1e-6);
  EXPECT_EQ(CuantilWeibull(0.0, 2.0), 0.0);
}

TEST(Viento, ElCursoDiarioTieneMediaUnoYSuMaximoPorLaTarde) {
  double suma = 0.0;
  for (std::size_t i = 0; i < HORAS_POR_DIA; ++i) suma += CursoDiarioDelViento(CentroDeHora(i));
  EXPECT_NEAR(suma / 24.0, 1.0, 1e-12);
  EXPECT_DOUBLE_EQ(CursoDiarioDelViento(15.0), 1.25);
  EXPECT_DOUBLE_EQ(CursoDiarioDelViento(3.0), 0.75);
}

TEST(Viento, CadaMesTieneSuMediaYLaDispersionDeSuDistribucion) {
  for (double media : {1.5, 4.0, 9.2}) {
    const VientoHorario viento = Generar(media);
    for (std::size_t mes = 0; mes < MESES; ++mes) {
      EXPECT_NEAR(MediaHorariaDelMes(viento.velocidad, mes), media, 0.01) << media << ' ' << mes;
    }
    // Desviación relativa de una Weibull de forma k: √(Γ(1+2/k)/Γ(1+1/k)² − 1), más el curso diario
    // (0,25/√2).
    const double k = FormaWeibull(media);
    const double weibull = std::tgamma(1.0 + 2.0 / k) / std::pow(std::tgamma(1.0 + 1.0 / k), 2.0);
    const double esperada = std::sqrt(weibull * (1.0 + 0.25 * 0.25 / 2.0) - 1.0);
    EXPECT_NEAR(prueba::Desviacion(viento.velocidad) / media, esperada, 0.05) << media;
  }
}

TEST(Viento, LaVelocidadTieneMemoriaDeUnaHoraAOtra) {
  const VientoHorario viento = Generar(4.0);
  const std::vector<double> hoy(viento.velocidad.begin(), viento.velocidad.end() - 1);
  const std::vector<double> siguiente(viento.velocidad.begin() + 1, viento.velocidad.end());
  EXPECT_NEAR(prueba::Correlacion(hoy, siguiente), 0.85, 0.05);
}

TEST(Viento, LaDireccionEsEnteraDeCeroA359YElAnioSeCierra) {
  const VientoHorario viento = Generar(4.0);
  for (std::size_t i = 0; i < HORAS; ++i) {
    EXPECT_EQ(viento.direccion[i], std::floor(viento.direccion[i])) << i;
    EXPECT_GE(viento.direccion[i], 0.0) << i;
    EXPECT_LT(viento.direccion[i], 360.0) << i;
    const double giro = viento.direccion[(i + 1) % HORAS] - viento.direccion[i];
    EXPECT_LT(std::fabs(std::remainder(giro, 360.0)), 70.0) << i;
  }
  EXPECT_LT(*std::min_element(viento.direccion.begin(), viento.direccion.end()), 10.0);
  EXPECT_GT(*std::max_element(viento.direccion.begin(), viento.direccion.end()), 350.0);
}

} // namespace
} // namespace tesmo
