#include "solar/Giroshorizonte.h"

#include "tests/solar/Perfilprueba.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace tesmo {
namespace {

using prueba::Numeros;
using prueba::Perfil;

TEST(GirosHorizonte, UnCuartoHaciaElOeste) {
  const PerfilHorizonte girado = GirarPerfil(Perfil({-90, 0, 100}, {1, 2, 3}), 1);
  EXPECT_EQ(girado.X(), (Numeros{-170, 0, 90}));
  EXPECT_EQ(girado.Y(), (Numeros{3, 1, 2}));
}

TEST(GirosHorizonte, UnCuartoHaciaElEsteEsTresHaciaElOeste) {
  const PerfilHorizonte perfil = Perfil({-120, -30, 10, 75}, {1, 2, 3, 4});
  EXPECT_EQ(GirarPerfil(perfil, -1), GirarPerfil(perfil, 3));
  EXPECT_EQ(GirarPerfil(perfil, 5), GirarPerfil(perfil, 1));
}

TEST(GirosHorizonte, CuatroCuartosLoDejanComoEstaba) {
  const PerfilHorizonte perfil = Perfil({-120, -30, 10, 75}, {1, 2, 3, 4});
  PerfilHorizonte girado = perfil;
  for (int i = 0; i < 4; ++i) girado = GirarPerfil(girado, 1);
  EXPECT_EQ(girado, perfil);
  EXPECT_EQ(GirarPerfil(perfil, 0), perfil);
}

// El norte de un perfil cerrado está en −180 y en 180: al girar es un solo punto.
TEST(GirosHorizonte, ElNorteRepetidoNoSeDuplicaAlGirar) {
  const PerfilHorizonte girado = GirarPerfil(Perfil({-180, 0, 180}, {5, 2, 5}), 1);
  EXPECT_EQ(girado.X(), (Numeros{-90, 90}));
  EXPECT_EQ(girado.Y(), (Numeros{5, 2}));
}

TEST(GirosHorizonte, ReflejarCambiaElEstePorElOeste) {
  const PerfilHorizonte reflejado = ReflejarPerfil(Perfil({-90, 0, 30, 30}, {1, 2, 3, 4}));
  EXPECT_EQ(reflejado.X(), (Numeros{-30, -30, 0, 90}));
  EXPECT_EQ(reflejado.Y(), (Numeros{4, 3, 2, 1})); // la pared sigue subiendo hacia el mismo lado
  EXPECT_FALSE(std::signbit(reflejado.X()[2]));
  EXPECT_EQ(ReflejarPerfil(reflejado), Perfil({-90, 0, 30, 30}, {1, 2, 3, 4}));
}

TEST(GirosHorizonte, CerrarPoneElNortePorLosDosLados) {
  const PerfilHorizonte cerrado = CerrarVuelta(Perfil({-135, -45, 45, 135}, {10, 0, 0, 20}));
  EXPECT_EQ(cerrado.X(), (Numeros{-180, -135, -45, 45, 135, 180}));
  EXPECT_EQ(cerrado.Y(), (Numeros{15, 10, 0, 0, 20, 15}));
  const PerfilHorizonte soloUno = CerrarVuelta(Perfil({-180, -90, 0, 90}, {8, 0, 0, 2}));
  EXPECT_EQ(soloUno.X(), (Numeros{-180, -90, 0, 90, 180}));
  EXPECT_EQ(soloUno.Y(), (Numeros{8, 0, 0, 2, 8}));
}

TEST(GirosHorizonte, LoCerradoYLoQueNoDaLaVueltaQuedanComoEstaban) {
  for (const PerfilHorizonte &perfil :
       {PerfilHorizonte{}, Perfil({10}, {5}), Perfil({-180, 0, 180}, {1, 2, 3}),
        Perfil({-90, 0, 90}, {1, 2, 3}), Perfil({0, 0}, {1, 2}), Perfil({-200, 0, 170}, {1, 2, 3})}) {
    EXPECT_EQ(CerrarVuelta(perfil), perfil);
  }
}

TEST(GirosHorizonte, LoQueNoEsUnNumeroSePierde) {
  const float nulo = std::nanf("");
  const float infinito = std::numeric_limits<float>::infinity();
  const PerfilHorizonte perfil = Perfil({nulo, 20, infinito, 10, 30}, {1, 2, 3, nulo, 4});
  EXPECT_EQ(GirarPerfil(perfil, 0).X(), (Numeros{20, 30}));
  EXPECT_EQ(ReflejarPerfil(perfil).X(), (Numeros{-30, -20}));
  EXPECT_EQ(PorAcimut(perfil).X(), (Numeros{20, 30}));
}

TEST(GirosHorizonte, AcimutesDesdeElNorte) {
  struct Caso {
    double norte, sur;
  };
  for (const Caso &caso : {Caso{0, -180}, Caso{90, -90}, Caso{180, 0}, Caso{270, 90}, Caso{360, 180},
                           Caso{-90, 90}, Caso{-180, 0}}) {
    EXPECT_EQ(DesdeElSur(caso.norte), caso.sur) << caso.norte;
  }
  EXPECT_EQ(DentroDeLaVuelta(270.0), -90.0);
  EXPECT_EQ(DentroDeLaVuelta(-270.0), 90.0);
  EXPECT_EQ(DentroDeLaVuelta(180.0), 180.0);
  EXPECT_EQ(DentroDeLaVuelta(-180.0), -180.0);
}

} // namespace
} // namespace tesmo
