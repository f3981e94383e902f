// La carta solar sin ventana: grados y píxeles, ejes, trozos de curva y área bajo el horizonte.

#include "vistas/sol/Contenidosolar.h"
#include "vistas/sol/Escalasolar.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace tesmo;

namespace {

const QRectF MARCO(50.0, 30.0, 720.0, 450.0); // dos píxeles por grado de acimut y cinco por grado de altura
constexpr float NADA = std::numeric_limits<float>::quiet_NaN();

} // namespace

TEST(EscalaSolar, LosExtremosCaenEnLosBordesDelMarco) {
  const EscalaSolar escala(MARCO, 90.0);
  EXPECT_EQ(escala.Sitio(-180.0, 0.0), QPointF(50.0, 480.0));
  EXPECT_EQ(escala.Sitio(180.0, 90.0), QPointF(770.0, 30.0));
  EXPECT_EQ(escala.Sitio(0.0, 45.0), QPointF(410.0, 255.0));
}

TEST(EscalaSolar, GradosYPixelesSonInversosTambienFueraDelMarco) {
  const EscalaSolar escala(MARCO, 100.0);
  for (const double acimut : {-200.0, -180.0, -12.5, 0.0, 77.0, 185.0})
    EXPECT_NEAR(escala.Acimut(escala.X(acimut)), acimut, 1e-4);
  for (const double altura : {-3.0, 0.0, 33.3, 100.0, 120.0})
    EXPECT_NEAR(escala.Altura(escala.Y(altura)), altura, 1e-4);
}

TEST(EscalaSolar, ElAlcanceEsLaMarcaEnGrados) {
  const AlcanceRaton alcance = EscalaSolar(MARCO, 90.0).Alcance(5.0);
  EXPECT_FLOAT_EQ(alcance.acimut, 2.5F);
  EXPECT_FLOAT_EQ(alcance.altura, 1.0F);
}

TEST(EscalaSolar, UnMarcoSinTamanoNoDivideEntreCero) {
  const EscalaSolar escala(QRectF(10.0, 10.0, 0.0, 0.0), 90.0);
  EXPECT_TRUE(std::isfinite(escala.Acimut(10.0)));
  EXPECT_TRUE(std::isfinite(escala.Y(45.0)));
}

TEST(EjesSolares, LaAlturaLlegaACienSoloSiElHorizontePasaDeNoventa) {
  EXPECT_EQ(AlturaDelEje({}), 90.0);
  EXPECT_EQ(AlturaDelEje({{0.0F, 90.0F}}), 90.0);
  EXPECT_EQ(AlturaDelEje({{0.0F, 12.0F}, {30.0F, 90.5F}}), 100.0);
  EXPECT_EQ(AlturaDelEje({{0.0F, NADA}}), 90.0);
}

struct CasoRotulos {
  double eje, rotulo;
  int paso;
};
class RotulosDeAcimut : public ::testing::TestWithParam<CasoRotulos> {};
TEST_P(RotulosDeAcimut, CabenYCaenEnLosPuntosCardinales) {
  const auto [eje, rotulo, paso] = GetParam();
  EXPECT_EQ(PasoDeRotulos(eje, rotulo), paso);
  EXPECT_EQ(90 % paso, 0);
}
INSTANTIATE_TEST_SUITE_P(EjesSolares, RotulosDeAcimut,
                         ::testing::Values(CasoRotulos{1440.0, 35.0, 10}, // 40 px por cada 10°
                                           CasoRotulos{1260.0, 35.0, 10}, // justo
                                           CasoRotulos{928.0, 35.0, 30}, CasoRotulos{300.0, 35.0, 90},
                                           CasoRotulos{1.0, 35.0, 90})); // ni así: el mayor

TEST(TramosDeCurva, LaNocheNoSePintaYCortaLaCurva) {
  const CurvaSolar curva{{7.0F, -90.0F, 1.0F}, {8.0F, -80.0F, 12.0F}, {9.0F, 0.0F, 0.0F}};
  const auto tramos = TramosDeCurva(curva);
  ASSERT_EQ(tramos.size(), 1U);
  EXPECT_EQ(tramos[0].size(), 2U);
  EXPECT_TRUE(TramosDeCurva({{9.0F, 0.0F, 0.0F}}).empty());
  EXPECT_TRUE(TramosDeCurva({}).empty());
}

TEST(TramosDeCurva, SeCortaAlPasarPorElNorte) {
  const CurvaSolar curva{{23.8F, 177.0F, 20.0F}, {23.9F, 179.0F, 20.0F}, {24.1F, -179.0F, 20.0F}};
  const auto tramos = TramosDeCurva(curva);
  ASSERT_EQ(tramos.size(), 2U);
  EXPECT_EQ(tramos[0].size(), 2U);
  EXPECT_EQ(tramos[1][0].acimut, -179.0F);
}

TEST(TramosDeCurva, UnDiaSinNocheDaLaVueltaEnTrozosSinSaltos) {
  std::size_t puntos = 0;
  const CurvaSolar curva = CurvasDeDia(89.0F, 6, 21).curva;
  const auto tramos = TramosDeCurva(curva);
  for (const CurvaSolar &tramo : tramos) {
    puntos += tramo.size();
    for (std::size_t i = 1; i < tramo.size(); ++i)
      ASSERT_LT(std::fabs(tramo[i].acimut - tramo[i - 1].acimut), 1.0F);
  }
  EXPECT_EQ(puntos, curva.size());
  EXPECT_EQ(tramos.size(), 3U); // de −1 a 25 h pasa dos veces por el norte
}

TEST(AreaDeHorizonte, BajaAlSueloPorLosDosLados) {
  const PuntosHorizonte area = AreaDeHorizonte({{-40.0F, 5.0F}, {10.0F, 20.0F}, {60.0F, 8.0F}});
  const PuntosHorizonte esperada{
      {-40.0F, 5.0F}, {10.0F, 20.0F}, {60.0F, 8.0F}, {60.0F, 0.0F}, {-40.0F, 0.0F}};
  EXPECT_EQ(area, esperada);
}

TEST(AreaDeHorizonte, ConUnPuntoOConLosQueNoSonNumerosNoHayArea) {
  EXPECT_TRUE(AreaDeHorizonte({}).empty());
  EXPECT_TRUE(AreaDeHorizonte({{1.0F, 2.0F}}).empty());
  EXPECT_TRUE(AreaDeHorizonte({{1.0F, 2.0F}, {NADA, 3.0F}}).empty());
}

TEST(HoraDeCasilla, VaDeCeroAVeinticuatro) {
  EXPECT_FLOAT_EQ(HoraDeCasilla(-1.25F), 22.75F);
  EXPECT_FLOAT_EQ(HoraDeCasilla(0.0F), 0.0F);
  EXPECT_FLOAT_EQ(HoraDeCasilla(13.5F), 13.5F);
  EXPECT_FLOAT_EQ(HoraDeCasilla(24.5F), 0.5F);
}

TEST(ContenidoSolar, CadaDibujoSustituyeALasHorasDelOtro) {
  ContenidoSolar contenido;
  contenido.horizonte = {{0.0F, 5.0F}};
  PonCurvas(contenido, CurvasDeMeses(36.84F, 21));
  EXPECT_EQ(contenido.dibujo, DibujoSolar::Meses);
  EXPECT_EQ(contenido.horas[12].size(), MESES_DEL_ANIO);
  PonCurvas(contenido, CurvasDeDia(36.84F, 6, 21));
  EXPECT_EQ(contenido.dibujo, DibujoSolar::Dia);
  EXPECT_EQ(contenido.horas[12].size(), 1U);
  EXPECT_EQ(contenido.horizonte.size(), 1U);
}
