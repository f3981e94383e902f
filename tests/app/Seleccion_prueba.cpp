#include "app/Seleccion.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

using Cambio = Seleccion::Cambio;

class SeleccionDeVentana : public ::testing::Test {
protected:
  void SetUp() override {
    seleccion_.AlCambiar([this](Cambio cambio) { cambios_.push_back(cambio); });
  }
  Seleccion seleccion_;
  std::vector<Cambio> cambios_;
};

TEST_F(SeleccionDeVentana, EmpiezaSinLocalidadYConElPrimerDia) {
  EXPECT_EQ(seleccion_.DameLocalidad(), "Localidad");
  EXPECT_FALSE(seleccion_.HayLocalidad());
  EXPECT_EQ(seleccion_.DamePeriodo(), (Periodo{{1, 1, 1}, {1, 1, 24}}));
  EXPECT_EQ(seleccion_.DameSuperficie(), (Seleccion::Superficie{"90", "0", "0.2"}));
  EXPECT_FALSE(seleccion_.DameAltitudUsuario().has_value());
}

TEST_F(SeleccionDeVentana, CambiarDeProvinciaDejaLaLocalidadSinElegir) {
  seleccion_.PonProvincia("Cádiz");
  seleccion_.PonLocalidad("Rota");
  seleccion_.PonAltitudUsuario(100.0F);
  cambios_.clear();
  seleccion_.PonProvincia("Jaén");
  EXPECT_FALSE(seleccion_.HayLocalidad());
  EXPECT_FALSE(seleccion_.DameAltitudUsuario().has_value());
  EXPECT_EQ(cambios_, std::vector<Cambio>{Cambio::Provincia});
}

TEST_F(SeleccionDeVentana, VolverAElegirLaMismaProvinciaTambienLaDejaSinElegir) {
  seleccion_.PonProvincia("Cádiz");
  seleccion_.PonLocalidad("Rota");
  seleccion_.PonProvincia("Cádiz");
  EXPECT_FALSE(seleccion_.HayLocalidad());
}

TEST_F(SeleccionDeVentana, CambiarDeLocalidadOlvidaLaAltitudDelUsuario) {
  seleccion_.PonLocalidad("Rota");
  seleccion_.PonAltitudUsuario(100.0F);
  EXPECT_EQ(seleccion_.DameAltitudUsuario(), 100.0F);
  seleccion_.PonLocalidad("Tarifa");
  EXPECT_FALSE(seleccion_.DameAltitudUsuario().has_value());
  EXPECT_EQ(cambios_, (std::vector<Cambio>{Cambio::Localidad, Cambio::Altitud, Cambio::Localidad}));
}

TEST_F(SeleccionDeVentana, LoQueNoCambiaNoAvisa) {
  seleccion_.PonLocalidad("Localidad");
  seleccion_.PonPeriodo({{1, 1, 1}, {1, 1, 24}});
  seleccion_.PonSuperficie({"90", "0", "0.2"});
  seleccion_.PonAltitudUsuario(std::nullopt);
  EXPECT_TRUE(cambios_.empty());
}

TEST_F(SeleccionDeVentana, ElPeriodoSeValidaAlPonerlo) {
  seleccion_.PonPeriodo({{2, 31, 1}, {1, 1, 1}});
  const Periodo &periodo = seleccion_.DamePeriodo();
  EXPECT_EQ(periodo.inicio.dia, 28);
  EXPECT_LE(IndiceHora(2, 28, 1), IndiceHora(periodo.fin.mes, periodo.fin.dia, periodo.fin.hora));
  EXPECT_EQ(cambios_, std::vector<Cambio>{Cambio::Periodo});
}

TEST_F(SeleccionDeVentana, LaSuperficieGuardaLosTextosTecleados) {
  seleccion_.PonSuperficie({"37,5", "", "no"});
  EXPECT_EQ(seleccion_.DameSuperficie().inclinacion, "37,5");
  EXPECT_EQ(seleccion_.DameSuperficie().orientacion, "");
  EXPECT_EQ(cambios_, std::vector<Cambio>{Cambio::Superficie});
}

TEST_F(SeleccionDeVentana, UnAvisoPuedeInscribirOtro) {
  int segundas = 0;
  seleccion_.AlCambiar([&](Cambio) { seleccion_.AlCambiar([&](Cambio) { ++segundas; }); });
  seleccion_.PonLocalidad("Rota");
  EXPECT_EQ(segundas, 1);
}

TEST_F(SeleccionDeVentana, LoPendienteSePidePorOrdenYSinAvisar) {
  std::string orden;
  seleccion_.AntesDeUsar([&] { orden += "a"; });
  seleccion_.AntesDeUsar([&] { orden += "b"; });
  seleccion_.PedirLoPendiente();
  EXPECT_EQ(orden, "ab");
  EXPECT_TRUE(cambios_.empty());
}

} // namespace
} // namespace tesmo
