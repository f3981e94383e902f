#include "intercambio/reloj/Cursodeldia.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tesmo {
namespace {

constexpr double GRADO = 3.14159265358979 / 180.0;
constexpr std::size_t DIA = 79; // 21 de marzo: declinación casi nula

/// Un sitio en el ecuador y el meridiano 0, con un solo día de sol, el @p dia: directa normal de 800 W/m² y
/// la global que le toca si la etiqueta h es el centro de su hora más @p desfaseMin, en hora solar.
AnioCanonico AnioDe(double desfaseMin) {
  AnioCanonico anio;
  anio.sitio.latitud = 0.0;
  anio.sitio.longitud = 0.0;
  anio.reloj = {TiempoEtiqueta::SolarVerdadero, 0.0, desfaseMin};
  for (std::size_t h = 0; h < 24; ++h) {
    const double hora = static_cast<double>(h) + 1.0 + desfaseMin / 60.0;
    const double coseno = std::max(0.0, std::cos((hora - 12.0) * 15.0 * GRADO));
    const double normal = coseno > 0.05 ? 800.0 : 0.0;
    anio[Campo::DirectaNormal].Poner(DIA * 24 + h, normal, Procedencia::Copiada);
    anio[Campo::DifusaHorizontal].Poner(DIA * 24 + h, 50.0, Procedencia::Copiada);
    anio[Campo::GlobalHorizontal].Poner(DIA * 24 + h, 50.0 + normal * coseno, Procedencia::Copiada);
  }
  return anio;
}

TEST(CursoReloj, ElDiaMasClaroEsElQueMasHazTrae) {
  EXPECT_EQ(DiaMasClaro(AnioDe(-30.0)), DIA);
  EXPECT_FALSE(DiaMasClaro(AnioCanonico{}).has_value());
}

TEST(CursoReloj, ConElRelojBuenoLosPuntosCaenSobreElSol) {
  const CursoReloj curso = CursoDelDia(AnioDe(-30.0), {TiempoEtiqueta::SolarVerdadero, 0.0, -30.0}, DIA);
  ASSERT_EQ(curso.haz.size(), 12U);  // de las 6:30 a las 17:30
  EXPECT_LT(curso.desviacion, 0.01); // la declinación de ese día no es cero del todo
  EXPECT_NEAR(curso.haz.front().hora, 6.5, 1e-9);
  EXPECT_NEAR(curso.sol.front().hora, 6.0, 0.3);
  EXPECT_NEAR(curso.sol.back().hora, 18.0, 0.3);
}

TEST(CursoReloj, ConOtroRelojLosPuntosVanCorridosLoMismo) {
  const CursoReloj curso = CursoDelDia(AnioDe(-30.0), {TiempoEtiqueta::SolarVerdadero, 0.0, 30.0}, DIA);
  EXPECT_NEAR(curso.haz.front().hora, 7.5, 1e-9);
  EXPECT_GT(curso.desviacion, 0.1);
}

TEST(CursoReloj, SinDirectaNormalLaFormaDelDiaVaALaEscalaDelSol) {
  AnioCanonico anio = AnioDe(-30.0);
  anio[Campo::DirectaNormal] = SerieCanonica{};
  const CursoReloj curso = CursoDelDia(anio, anio.reloj, DIA);
  ASSERT_FALSE(curso.haz.empty());
  double mayor = 0.0;
  for (const PuntoCurso &punto : curso.haz) mayor = std::max(mayor, punto.valor);
  EXPECT_NEAR(mayor, 1.0, 0.01); // el sol pasa por el cenit
}

TEST(CursoReloj, SinSitioNoHayCurso) {
  AnioCanonico anio = AnioDe(-30.0);
  anio.sitio.longitud = AUSENTE;
  EXPECT_TRUE(CursoDelDia(anio, {TiempoEtiqueta::Utc, 0.0, -30.0}, DIA).sol.empty());
  EXPECT_FALSE(CursoDelDia(anio, anio.reloj, DIA).sol.empty()); // con etiqueta solar no hace falta
  EXPECT_TRUE(std::isnan(CursoDelDia(anio, {TiempoEtiqueta::Utc, 0.0, -30.0}, DIA).desviacion));
}

} // namespace
} // namespace tesmo
