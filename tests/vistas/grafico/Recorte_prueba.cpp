#include "vistas/grafico/Recorte.h"

#include <gtest/gtest.h>
#include <random>

using namespace tesmo;

namespace {

const QRectF MARCO(10.0, 20.0, 100.0, 50.0); // de (10, 20) a (110, 70)

bool Dentro(const QPointF &p) {
  constexpr double HOLGURA = 1.0e-9;
  return p.x() >= 10.0 - HOLGURA && p.x() <= 110.0 + HOLGURA && p.y() >= 20.0 - HOLGURA &&
         p.y() <= 70.0 + HOLGURA;
}

} // namespace

TEST(Recorte, ElSegmentoDeDentroNoCambia) {
  const auto dentro = RecortarSegmento({20.0, 30.0}, {100.0, 60.0}, MARCO);
  ASSERT_TRUE(dentro);
  EXPECT_EQ(dentro->first, QPointF(20.0, 30.0));
  EXPECT_EQ(dentro->second, QPointF(100.0, 60.0));
}

TEST(Recorte, ElQueAtraviesaQuedaEnLosBordes) {
  const auto dentro = RecortarSegmento({0.0, 40.0}, {200.0, 40.0}, MARCO);
  ASSERT_TRUE(dentro);
  EXPECT_EQ(dentro->first, QPointF(10.0, 40.0));
  EXPECT_EQ(dentro->second, QPointF(110.0, 40.0));
  const auto vertical = RecortarSegmento({50.0, 1000.0}, {50.0, -1000.0}, MARCO);
  ASSERT_TRUE(vertical);
  EXPECT_EQ(vertical->first, QPointF(50.0, 70.0));
  EXPECT_EQ(vertical->second, QPointF(50.0, 20.0));
}

TEST(Recorte, ElQueNoTocaDesaparece) {
  EXPECT_FALSE(RecortarSegmento({0.0, 0.0}, {200.0, 10.0}, MARCO));
  EXPECT_FALSE(RecortarSegmento({0.0, 40.0}, {5.0, 40.0}, MARCO));
  EXPECT_FALSE(RecortarSegmento({0.0, 29.0}, {29.0, 0.0}, MARCO)); // por delante de la esquina
}

TEST(Recorte, UnPuntoCuentaComoSegmento) {
  EXPECT_TRUE(RecortarSegmento({10.0, 20.0}, {10.0, 20.0}, MARCO));
  EXPECT_FALSE(RecortarSegmento({9.0, 20.0}, {9.0, 20.0}, MARCO));
}

TEST(Recorte, LaPolilineaQueSaleYVuelveSeParteEnDos) {
  const QVector<QPointF> linea{{20.0, 40.0}, {50.0, 40.0}, {60.0, 200.0}, {70.0, 40.0}, {80.0, 40.0}};
  const auto tramos = RecortarPolilinea(linea, MARCO);
  ASSERT_EQ(tramos.size(), 2U);
  EXPECT_EQ(tramos[0].front(), QPointF(20.0, 40.0));
  EXPECT_DOUBLE_EQ(tramos[0].back().y(), 70.0);
  EXPECT_DOUBLE_EQ(tramos[1].front().y(), 70.0);
  EXPECT_EQ(tramos[1].back(), QPointF(80.0, 40.0));
}

TEST(Recorte, UnaPolilineaCualquieraQuedaDentroYConserva) {
  std::mt19937 azar(3);
  std::uniform_real_distribution<double> x(-50.0, 200.0);
  QVector<QPointF> linea;
  for (int i = 0; i < 2000; ++i) linea.append({x(azar), x(azar)});
  const auto tramos = RecortarPolilinea(linea, MARCO);
  ASSERT_GT(tramos.size(), 100U);
  for (const auto &tramo : tramos) {
    ASSERT_GE(tramo.size(), 2);
    for (const QPointF &p : tramo) EXPECT_TRUE(Dentro(p)) << p.x() << " " << p.y();
  }
}

TEST(Recorte, SinSegmentosNoHayTramos) {
  EXPECT_TRUE(RecortarPolilinea({}, MARCO).empty());
  EXPECT_TRUE(RecortarPolilinea({{20.0, 40.0}}, MARCO).empty());
}
