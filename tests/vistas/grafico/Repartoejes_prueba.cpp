#include "vistas/grafico/Repartoejes.h"

#include <gtest/gtest.h>
#include <limits>

using namespace tesmo;

namespace {

constexpr LadoEje I = LadoEje::Izquierdo;
constexpr LadoEje D = LadoEje::Derecho;

std::vector<LadoEje> Repartir(const std::vector<SerieReparto> &series) { return RepartirPorUnidad(series); }

} // namespace

TEST(RepartoEjes, UnaSolaUnidadVaALaIzquierda) {
  EXPECT_EQ(Repartir({{"ºC", 40.0}, {"ºC", 20.0}}), (std::vector{I, I}));
  EXPECT_TRUE(Repartir({}).empty());
}

TEST(RepartoEjes, DosUnidadesVanCadaUnaEnSuEje) {
  EXPECT_EQ(Repartir({{"ºC", 40.0}, {"J/kg", 70000.0}, {"ºC", 25.0}}), (std::vector{I, D, I}));
  EXPECT_EQ(Repartir({{"J/kg", 70000.0}, {"ºC", 40.0}}), (std::vector{I, D}));
  EXPECT_EQ(Repartir({{"%", 100.0}, {"º", 100.0}}), (std::vector{I, D}));
}

TEST(RepartoEjes, ConMasUnidadesVanJuntasLasDeEscalaParecida) {
  EXPECT_EQ(Repartir({{"ºC", 40.0}, {"%", 100.0}, {"J/kg", 70000.0}, {"W/m²", 900.0}}),
            (std::vector{I, I, D, I}));
  EXPECT_EQ(Repartir({{"W/m²", 900.0}, {"m³/kg", 0.9}, {"ºC", 40.0}}), (std::vector{I, D, I}));
}

TEST(RepartoEjes, SeriesNulasNoEstropeanElReparto) {
  EXPECT_EQ(Repartir({{"ºC", 0.0}, {"%", 0.0}}), (std::vector{I, D}));
}

TEST(RepartoEjes, ElTituloLlevaElRotuloOLasUnidades) {
  const auto titulo = [](const std::vector<std::string> &rotulos) { return TituloDeEje(rotulos); };
  EXPECT_EQ(titulo({}), "");
  EXPECT_EQ(titulo({"Humedad relativa (%)"}), "Humedad relativa (%)");
  EXPECT_EQ(titulo({"Temperatura seca (ºC)", "Temperatura de rocío (ºC)"}), "ºC");
  EXPECT_EQ(titulo({"Temperatura seca (ºC)", "Calor específico (J/(kg K))", "Temperatura húmeda (ºC)"}),
            "ºC · J/(kg K)");
}

TEST(RepartoEjes, LosLimitesDejanAireYNoSeAnulan) {
  const LimitesEje normales = LimitesConAire(10.0, 30.0);
  EXPECT_DOUBLE_EQ(normales.minimo, 9.0);
  EXPECT_DOUBLE_EQ(normales.maximo, 31.0);
  const LimitesEje constante = LimitesConAire(0.0, 0.0);
  EXPECT_LT(constante.minimo, constante.maximo);
  const LimitesEje alta = LimitesConAire(1.0e5, 1.0e5);
  EXPECT_DOUBLE_EQ(alta.maximo - alta.minimo, 1.0e4);
  constexpr double INFINITO = std::numeric_limits<double>::infinity();
  const LimitesEje sinValores = LimitesConAire(INFINITO, -INFINITO);
  EXPECT_EQ(sinValores.minimo, 0.0);
  EXPECT_EQ(sinValores.maximo, 1.0);
}
