#include "vistas/grafico/Diezmado.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace tesmo;

namespace {

constexpr double NO_NUMERO = std::numeric_limits<double>::quiet_NaN();
constexpr double INFINITO = std::numeric_limits<double>::infinity();

/// Un año de puntos en @p ancho píxeles, con un pico aislado en @p pico.
std::vector<QPointF> Anio(double ancho, std::size_t pico) {
  std::mt19937 azar(7);
  std::vector<QPointF> puntos;
  for (int k = 0; k < 8760; ++k)
    puntos.emplace_back(k * ancho / 8759.0, 300.0 + static_cast<double>(azar() % 100U));
  puntos[pico].setY(3.0);
  return puntos;
}

} // namespace

TEST(Diezmado, TodoPuntoQuedaEntreLosExtremosDeSuColumna) {
  const auto puntos = Anio(1100.0, 5000);
  const auto columnas = DiezmarPorColumnas(puntos, 1.0);
  EXPECT_LE(columnas.size(), 1101U);
  for (const QPointF &p : puntos) {
    const auto columna =
        std::ranges::find(columnas, static_cast<qint64>(std::floor(p.x())), &ColumnaTrazo::columna);
    ASSERT_NE(columna, columnas.end());
    EXPECT_LE(columna->minimo, p.y());
    EXPECT_GE(columna->maximo, p.y());
  }
}

TEST(Diezmado, ElPicoAisladoLlegaALaBarra) {
  for (const std::size_t pico : {std::size_t{0}, std::size_t{4321}, std::size_t{8759}}) {
    const auto puntos = Anio(1100.0, pico);
    const auto trazo = TrazarColumnas(DiezmarPorColumnas(puntos, 1.0), 1.0, 2.0);
    const auto masAlta = std::ranges::min_element(trazo.barras, {}, &Barra::y);
    EXPECT_DOUBLE_EQ(masAlta->y, 3.0 - 1.0) << pico;
    EXPECT_NEAR(masAlta->x + 1.0, puntos[pico].x(), 1.0) << pico;
  }
}

TEST(Diezmado, LasColumnasContiguasSeTocan) {
  const auto columnas = DiezmarPorColumnas(Anio(900.0, 100), 1.0);
  const auto trazo = TrazarColumnas(columnas, 1.0, 2.0);
  EXPECT_TRUE(trazo.segmentos.empty());
  for (std::size_t i = 1; i < trazo.barras.size(); ++i) {
    const Barra &antes = trazo.barras[i - 1];
    const Barra &esta = trazo.barras[i];
    EXPECT_LE(std::max(antes.y, esta.y), std::min(antes.y + antes.alto, esta.y + esta.alto)) << i;
  }
}

TEST(Diezmado, LasColumnasSeparadasSeUnenConUnSegmento) {
  const std::vector<QPointF> puntos{{0.5, 10.0}, {10.5, 50.0}};
  const auto trazo = TrazarColumnas(DiezmarPorColumnas(puntos, 1.0), 1.0, 2.0);
  ASSERT_EQ(trazo.segmentos.size(), 2U);
  EXPECT_EQ(trazo.segmentos[0], QPointF(0.5, 10.0));
  EXPECT_EQ(trazo.segmentos[1], QPointF(10.5, 50.0));
}

TEST(Diezmado, LoQueNoEsNumeroCortaLaLinea) {
  const std::vector<QPointF> puntos{{0.5, 10.0}, {1.5, NO_NUMERO}, {2.5, 80.0}, {2.7, 90.0}};
  const auto columnas = DiezmarPorColumnas(puntos, 1.0);
  ASSERT_EQ(columnas.size(), 2U);
  EXPECT_FALSE(columnas[0].enlaza);
  EXPECT_FALSE(columnas[1].enlaza);
  EXPECT_EQ(columnas[1].entrada, 80.0);
  EXPECT_EQ(columnas[1].salida, 90.0);
  EXPECT_TRUE(TrazarColumnas(columnas, 1.0, 2.0).segmentos.empty());
  EXPECT_EQ(PolilineaDiezmada(puntos, 1.0).size(), 2U);
}

TEST(Diezmado, UnCorteDentroDeUnaColumnaTampocoEnlaza) {
  const std::vector<QPointF> puntos{{0.1, 10.0}, {0.4, NO_NUMERO}, {0.8, 80.0}};
  const auto columnas = DiezmarPorColumnas(puntos, 1.0);
  ASSERT_EQ(columnas.size(), 2U);
  EXPECT_EQ(columnas[0].maximo, 10.0);
  EXPECT_EQ(columnas[1].minimo, 80.0);
}

TEST(Diezmado, LosInfinitosSalenDeLaPantallaSinDesbordar) {
  const std::vector<QPointF> puntos{{0.5, 10.0}, {1.5, -INFINITO}, {2.5, INFINITO}};
  for (const ColumnaTrazo &columna : DiezmarPorColumnas(puntos, 1.0)) {
    EXPECT_TRUE(std::isfinite(columna.minimo) && std::isfinite(columna.maximo));
  }
  const auto tramos = PolilineaDiezmada(puntos, 1.0);
  ASSERT_EQ(tramos.size(), 1U);
  EXPECT_LT(tramos[0][1].y(), -1.0e4);
  EXPECT_GT(tramos[0][2].y(), 1.0e4);
}

TEST(Diezmado, SinPuntosNoHayNada) {
  EXPECT_TRUE(DiezmarPorColumnas({}, 1.0).empty());
  EXPECT_TRUE(PolilineaDiezmada({}, 1.0).empty());
  EXPECT_TRUE(TrazarColumnas({}, 1.0, 2.0).barras.empty());
}

TEST(Diezmado, LaPolilineaGuardaLosExtremosDeCadaColumnaEnSuOrden) {
  const std::vector<QPointF> puntos{{0.0, 5.0}, {0.2, 9.0}, {0.4, 1.0}, {0.6, 7.0}, {0.8, 6.0}, {3.0, 2.0}};
  const auto tramos = PolilineaDiezmada(puntos, 1.0);
  ASSERT_EQ(tramos.size(), 1U);
  const QVector<QPointF> esperada{{0.0, 5.0}, {0.2, 9.0}, {0.4, 1.0}, {0.8, 6.0}, {3.0, 2.0}};
  EXPECT_EQ(tramos[0], esperada);
}

TEST(Diezmado, LaPolilineaDeUnAnioNoPierdeNingunPico) {
  const auto puntos = Anio(1100.0, 777);
  const auto tramos = PolilineaDiezmada(puntos, 0.25);
  ASSERT_EQ(tramos.size(), 1U);
  EXPECT_LE(tramos[0].size(), 4 * 4401);
  EXPECT_TRUE(tramos[0].contains(puntos[777]));
}
