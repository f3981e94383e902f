#include "intercambio/sintesis/Azar.h"

#include "tests/intercambio/sintesis/Apoyosintesis.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tesmo {
namespace {

TEST(Azar, ElResumenEsElDeLosVectoresPublicadosDeFnv) {
  // Vectores de prueba de FNV-1a de 64 bits: Fowler, Noll, Vo, Eastlake y Hansen (2012).
  EXPECT_EQ(ResumenFnv(""), 0xcbf29ce484222325U);
  EXPECT_EQ(ResumenFnv("a"), 0xaf63dc4c8601ec8cU);
  EXPECT_EQ(ResumenFnv("foobar"), 0x85944171f73967e8U);
}

TEST(Azar, SplitmixDaLaSucesionPublicadaDeLaSemilla1234567) {
  std::uint64_t estado = 1234567;
  for (std::uint64_t esperado : {6457827717110365317U, 3203168211198807973U, 9817491932198370423U,
                                 4593380528125082431U, 16408922859458223821U}) {
    EXPECT_EQ(Splitmix(estado), esperado);
  }
}

TEST(Azar, XoshiroDaLosPrimerosNumerosQueSeSacanAMano) {
  // Del estado (1, 2, 3, 4): 2·5 = 10 girado 7 es 1280, por 9, 11520; el estado siguiente es (7, 0, ...) y un
  // segundo miembro nulo da 0; los demás, con la misma cuenta.
  Azar azar(std::array<std::uint64_t, 4>{1, 2, 3, 4});
  EXPECT_EQ(azar.Siguiente(), 11520U);
  EXPECT_EQ(azar.Siguiente(), 0U);
  EXPECT_EQ(azar.Siguiente(), 1509978240U);
  EXPECT_EQ(azar.Siguiente(), 1215971899390074240U);
}

TEST(Azar, LaMismaSemillaDaLoMismoYOtraOtraCosa) {
  Azar uno("Almería/viento");
  Azar otro("Almería/viento");
  Azar distinto("Almería/claridad");
  const std::uint64_t primero = uno.Siguiente();
  EXPECT_EQ(primero, otro.Siguiente());
  EXPECT_NE(primero, distinto.Siguiente());
}

TEST(Azar, LaUniformeTieneMediaUnMedioYVarianzaUnDoceavoSinTocarLosExtremos) {
  Azar azar("uniforme");
  std::vector<double> valores(100000);
  for (double &valor : valores) {
    valor = azar.Uniforme();
    ASSERT_GT(valor, 0.0);
    ASSERT_LT(valor, 1.0);
  }
  EXPECT_NEAR(prueba::Media(valores), 0.5, 0.004);
  EXPECT_NEAR(prueba::Desviacion(valores), std::sqrt(1.0 / 12.0), 0.003);
}

TEST(Azar, LaNormalTieneSusMomentosYSusColas) {
  Azar azar("normal");
  std::vector<double> valores(100000);
  int fuera = 0;
  for (double &valor : valores) {
    valor = azar.Normal();
    fuera += std::fabs(valor) > 1.959964 ? 1 : 0;
  }
  EXPECT_NEAR(prueba::Media(valores), 0.0, 0.015);
  EXPECT_NEAR(prueba::Desviacion(valores), 1.0, 0.01);
  EXPECT_NEAR(fuera, 5000, 300);
}

TEST(Azar, LaProbabilidadNormalEsLaDeLasTablas) {
  // Abramowitz y Stegun (1964), tabla 26.1.
  EXPECT_NEAR(ProbabilidadNormal(0.0), 0.5, 1e-15);
  EXPECT_NEAR(ProbabilidadNormal(1.0), 0.841344746068543, 1e-14);
  EXPECT_NEAR(ProbabilidadNormal(-2.0), 0.022750131948179, 1e-14);
}

TEST(Azar, LaSerieAutorregresivaTieneSuCorrelacionYSeCierra) {
  for (double r1 : {0.0, 0.29, 0.85}) {
    Azar azar("autorregresiva");
    const std::size_t n = 60000;
    const std::vector<double> serie = SerieAutorregresiva(azar, n, r1);
    std::vector<double> siguiente(serie.begin() + 1, serie.end());
    siguiente.push_back(serie.front());
    EXPECT_NEAR(prueba::Media(serie), 0.0, 0.05) << r1;
    EXPECT_NEAR(prueba::Desviacion(serie), 1.0, 0.03) << r1;
    EXPECT_NEAR(prueba::Correlacion(serie, siguiente), r1, 0.02) << r1;
  }
}

TEST(Azar, ElPrimerValorDeLaSerieSigueAlUltimo) {
  // Con el mismo ruido, lo que el primero recibe del último es r1 veces él: se ve comparando con el ruido.
  const double r1 = 0.9;
  Azar azar("cierre");
  Azar gemelo("cierre");
  const std::vector<double> serie = SerieAutorregresiva(azar, 500, r1);
  const double ruido = gemelo.Normal();
  EXPECT_NEAR(serie.front(), r1 * serie.back() + std::sqrt(1.0 - r1 * r1) * ruido, 1e-12);
}

} // namespace
} // namespace tesmo
