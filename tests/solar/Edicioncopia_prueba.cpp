// La edición del horizonte frente al objeto que lo guarda, y frente a perfiles que el ratón no dibuja.

#include "solar/Posicionsolar.h"
#include "tests/comun/Apoyos.h"
#include "tests/solar/Edicionprueba.h"

#include <gtest/gtest.h>

#include <limits>

namespace tesmo {
namespace {

using namespace prueba;

class EdicionConObjeto : public ::testing::Test {
protected:
  void SetUp() override {
    CopiarHorizonte(PerfilDe(DESORDENADO), sol_);
    edicion_.Tomar(sol_.Horizonte());
  }
  /// Pone en el objeto algo que no es de la edición, para ver si ésta lo pisa.
  void Marcar() {
    sol_.PonTamanoHorizonte(1.0F);
    sol_.PonPuntoHorizonte(0, 77.0F, 7.0F);
  }
  const PuntosHorizonte DESORDENADO{{60, 30}, {-60, 10}, {0, 20}};
  PosicionSolar sol_{36.84F, 6, 21, 12.0F};
  EdicionHorizonte edicion_;
};

TEST_F(EdicionConObjeto, SeDibujaPorAcimutYElObjetoConservaElOrdenLeido) {
  EXPECT_EQ(edicion_.Serie(), TRES);
  EXPECT_FALSE(edicion_.CopiarEn(sol_));
  EXPECT_EQ(sol_.HorizonteX(), (std::vector<float>{60, -60, 0}));
}

TEST_F(EdicionConObjeto, SinEditarNoSeCopia) {
  Marcar();
  edicion_.PulsarIzquierdo(0, 20, true, MARCA);
  edicion_.SoltarIzquierdo(0, 20, true);
  EXPECT_FALSE(Pulsar(edicion_, 30, 120));
  EXPECT_FALSE(edicion_.PulsarDerecho(30, 30));
  EXPECT_FALSE(edicion_.CopiarEn(sol_));
  EXPECT_EQ(sol_.HorizonteX(), (std::vector<float>{77}));
}

TEST_F(EdicionConObjeto, TrasEditarSeCopiaPorAcimutYUnaSolaVez) {
  EXPECT_TRUE(Pulsar(edicion_, 120, 5));
  EXPECT_TRUE(edicion_.CopiarEn(sol_));
  EXPECT_EQ(sol_.HorizonteX(), (std::vector<float>{-60, 0, 60, 120}));
  EXPECT_EQ(sol_.HorizonteY(), (std::vector<float>{10, 20, 30, 5}));
  Marcar();
  EXPECT_FALSE(edicion_.CopiarEn(sol_));
}

TEST_F(EdicionConObjeto, DeshacerHastaLoLeidoDevuelveSuOrden) {
  edicion_.PulsarIzquierdo(0, 20, true, MARCA);
  edicion_.Mover(50);
  edicion_.SoltarIzquierdo(0, 50, true);
  EXPECT_TRUE(edicion_.CopiarEn(sol_));
  EXPECT_EQ(sol_.HorizonteX(), (std::vector<float>{-60, 0, 60}));
  EXPECT_TRUE(edicion_.Deshacer());
  EXPECT_TRUE(edicion_.CopiarEn(sol_));
  EXPECT_EQ(sol_.HorizonteX(), (std::vector<float>{60, -60, 0}));
  EXPECT_EQ(sol_.HorizonteY(), (std::vector<float>{30, 10, 20}));
}

TEST_F(EdicionConObjeto, LoPropuestoQuedaPendienteDeCopiar) {
  edicion_.Proponer(PerfilDe({{1, 2}}));
  EXPECT_TRUE(edicion_.CopiarEn(sol_));
  EXPECT_EQ(sol_.HorizonteX(), (std::vector<float>{1}));
}

TEST_F(EdicionConObjeto, UnPerfilDeCincoPuntosSeGuardaConCabeceraCincoYTresLineas) {
  edicion_.Tomar({});
  for (const PuntoHorizonte punto : {PuntoHorizonte{-120, 4}, {-60, 8}, {0, 12}, {60, 16}, {120, 20}}) {
    EXPECT_TRUE(Pulsar(edicion_, punto.acimut, punto.altura));
  }
  EXPECT_TRUE(edicion_.CopiarEn(sol_));
  const prueba::DirectorioTemporal directorio;
  const std::string ruta = (directorio / "perfil.txt").string();
  ASSERT_TRUE(sol_.GuardarHorizonte(ruta));
  EXPECT_EQ(prueba::Contenido(ruta),
            "5\n-120.000000, 12.000000\n0.000000, 12.000000\n120.000000, 20.000000\n");
  ASSERT_TRUE(sol_.LeerHorizonte(ruta)); // los que faltan quedan a 0
  edicion_.Tomar(sol_.Horizonte());
  EXPECT_EQ(edicion_.Serie(), (PuntosHorizonte{{-120, 12}, {0, 12}, {0, 0}, {0, 0}, {120, 20}}));
}

// ---- Perfiles que un fichero puede traer y el ratón no.

TEST(Edicion, LosPuntosQueNoSonNumerosVanAlFinalYNoEstorban) {
  constexpr float INFINITO = std::numeric_limits<float>::infinity();
  EdicionHorizonte edicion = Edicion({{NULO, 1}, {50, 2}, {-INFINITO, 3}, {NULO, 4}, {0, NULO}});
  ASSERT_EQ(edicion.Serie().size(), 5U);
  EXPECT_EQ(edicion.Serie()[0].altura, 3.0F);
  EXPECT_EQ(edicion.Serie()[2], (PuntoHorizonte{50, 2}));
  EXPECT_TRUE(std::isnan(edicion.Serie()[3].acimut));
  EXPECT_EQ(edicion.Serie()[3].altura, 1.0F);
  EXPECT_TRUE(Pulsar(edicion, 100, 9));
  EXPECT_EQ(edicion.Serie()[3], (PuntoHorizonte{100, 9}));
  EXPECT_FALSE(edicion.PulsarDerecho(0, 0)); // el de altura sin número no está en ningún sitio
  edicion.PulsarIzquierdo(50, 2, true, MARCA);
  EXPECT_EQ(edicion.Elegido(), 2);
}

TEST(Edicion, UnPerfilLlenoNoAdmiteMas) {
  PerfilHorizonte lleno;
  lleno.PonTamano(static_cast<float>(PerfilHorizonte::PUNTOS_MAXIMOS));
  EdicionHorizonte edicion;
  edicion.Tomar(lleno);
  EXPECT_FALSE(Pulsar(edicion, 90, 10));
  EXPECT_TRUE(edicion.PulsarDerecho(0, 0));
  EXPECT_TRUE(Pulsar(edicion, 90, 10));
}

} // namespace
} // namespace tesmo
