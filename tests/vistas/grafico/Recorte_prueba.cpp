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

double Area(const QVector<QPointF> &poligono) {
  double area = 0.0;
  for (qsizetype i = 0; i < poligono.size(); ++i) {
    const QPointF &a = poligono[i];
    const QPointF &b = poligono[(i + 1) % poligono.size()];
    area += a.x() * b.y() - b.x() * a.y();
  }
  return std::abs(area) / 2.0;
}

TEST(Recorte, DeUnPoligonoQuedaLoDeDentro) {
  const QVector<QPointF> marco{MARCO.topLeft(), MARCO.topRight(), MARCO.bottomRight(), MARCO.bottomLeft()};
  const QVector<QPointF> dentro{{20.0, 30.0}, {60.0, 30.0}, {40.0, 60.0}};
  EXPECT_EQ(RecortarPoligono(dentro, MARCO), dentro);
  const QVector<QPointF> todo{{-1e6, -1e6}, {1e6, -1e6}, {1e6, 1e6}, {-1e6, 1e6}};
  EXPECT_NEAR(Area(RecortarPoligono(todo, MARCO)), Area(marco), 1e-6);
  EXPECT_TRUE(RecortarPoligono({{0.0, 0.0}, {5.0, 0.0}, {5.0, 5.0}}, MARCO).isEmpty());
  EXPECT_TRUE(RecortarPoligono({}, MARCO).isEmpty());
}

TEST(Recorte, UnPoligonoQueSobresaleSeCortaEnElBorde) {
  // Un cuadrado de 20 de lado con la esquina superior izquierda del marco en su centro: queda un cuarto.
  const QPointF esquina = MARCO.topLeft();
  const QVector<QPointF> cuadrado{esquina + QPointF(-10, -10), esquina + QPointF(10, -10),
                                  esquina + QPointF(10, 10), esquina + QPointF(-10, 10)};
  const QVector<QPointF> cuarto = RecortarPoligono(cuadrado, MARCO);
  EXPECT_NEAR(Area(cuarto), 100.0, 1e-9);
  for (const QPointF &p : cuarto) EXPECT_TRUE(Dentro(p)) << p.x() << ' ' << p.y();
}
