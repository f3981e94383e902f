#include "solar/Influenciahorizonte.h"

#include "core/Calendario.h"
#include "solar/Posicionsolar.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>

namespace tesmo {
namespace {

PerfilHorizonte Perfil(std::initializer_list<std::pair<float, float>> puntos) {
  PerfilHorizonte perfil;
  perfil.PonTamano(static_cast<float>(puntos.size()));
  int i = 0;
  for (const auto &[x, y] : puntos) perfil.PonPunto(i++, x, y);
  return perfil;
}

PerfilHorizonte Muro(float altura) { return Perfil({{-180.0F, altura}, {180.0F, altura}}); }

TEST(Influenciahorizonte, ParteDeCieloDeUnMuroTodoAlrededor) {
  EXPECT_DOUBLE_EQ(ParteDeCielo({}), 1.0);
  EXPECT_DOUBLE_EQ(ParteDeCielo(Muro(0.0F)), 1.0);
  EXPECT_NEAR(ParteDeCielo(Muro(30.0F)), 0.5, 1e-12); // sen 30° = 1/2
  EXPECT_NEAR(ParteDeCielo(Muro(90.0F)), 0.0, 1e-12);
  EXPECT_NEAR(ParteDeCielo(Muro(100.0F)), 0.0, 1e-12); // más allá del cenit no quita cielo de otro lado
  EXPECT_DOUBLE_EQ(ParteDeCielo(Muro(-5.0F)), 1.0);    // bajo el horizonte no se gana cielo
}

TEST(Influenciahorizonte, ParteDeCieloDeMedioMuro) {
  // De −90 a 90 hay 181 grados enteros de los 360.
  EXPECT_NEAR(ParteDeCielo(Perfil({{-90.0F, 30.0F}, {90.0F, 30.0F}})), 1.0 - 0.5 * 181.0 / 360.0, 1e-12);
  // Las dos mitades del grado del norte son −180 y 180.
  EXPECT_NEAR(ParteDeCielo(Perfil({{-180.0F, 90.0F}})), 1.0 - 0.5 / 360.0, 1e-12);
}

TEST(Influenciahorizonte, SinHorizonteNoSePierdeNada) {
  int deSol = 0;
  PosicionSolar sol(36.84F, 1, 1, 12.0F);
  for (int mes = 1; mes <= 12; ++mes) {
    for (int dia = 1; dia <= DiasDelMes(mes); ++dia) {
      for (int h = 1; h <= 24; ++h) {
        sol.CalcularPosicion(36.84F, mes, dia, static_cast<float>(h) - 0.5F);
        deSol += sol.EsDeDia() ? 1 : 0;
      }
    }
  }
  const HorasDeSolDelAnio horas = HorasDeSolPerdidas({}, 36.84F);
  EXPECT_EQ(horas.deSol, deSol);
  EXPECT_NEAR(horas.deSol, HORAS_DEL_ANIO / 2.0, 60.0);
  EXPECT_EQ(horas.perdidas, 0);
  EXPECT_EQ(HorasDeSolPerdidas(Muro(0.0F), 36.84F).perdidas, 0);
}

TEST(Influenciahorizonte, TrasUnMuroDeNoventaGradosNoQuedaSol) {
  for (const float latitud : {-89.0F, -36.84F, 0.0F, 36.84F, 89.0F}) {
    const HorasDeSolDelAnio horas = HorasDeSolPerdidas(Muro(90.0F), latitud);
    EXPECT_GT(horas.deSol, 4000) << latitud;
    EXPECT_EQ(horas.perdidas, horas.deSol) << latitud;
  }
}

// Tras un muro de altura a, en el ecuador en equinoccio se pierden los 2·a/15 h de los dos extremos del día;
// en el año, a 36,84 °N, se cuentan hora a hora con el objeto.
TEST(Influenciahorizonte, SePierdenLasHorasPorDebajoDelMuro) {
  constexpr float ALTURA = 20.0F;
  int esperadas = 0;
  PosicionSolar sol(36.84F, 1, 1, 12.0F);
  for (int mes = 1; mes <= 12; ++mes) {
    for (int dia = 1; dia <= DiasDelMes(mes); ++dia) {
      for (int h = 1; h <= 24; ++h) {
        const AngulosSolares a = sol.CalcularPosicion(36.84F, mes, dia, static_cast<float>(h) - 0.5F);
        esperadas += sol.EsDeDia() && a.altura < ALTURA ? 1 : 0;
      }
    }
  }
  EXPECT_GT(esperadas, 1000);
  EXPECT_EQ(HorasDeSolPerdidas(Muro(ALTURA), 36.84F).perdidas, esperadas);
}

TEST(Influenciahorizonte, UnMuroAlEsteSoloQuitaMananas) {
  const PerfilHorizonte este = Perfil({{-179.0F, 90.0F}, {-1.0F, 90.0F}});
  const PerfilHorizonte oeste = Perfil({{1.0F, 90.0F}, {179.0F, 90.0F}});
  const HorasDeSolDelAnio porElEste = HorasDeSolPerdidas(este, 36.84F);
  const HorasDeSolDelAnio porElOeste = HorasDeSolPerdidas(oeste, 36.84F);
  EXPECT_EQ(porElEste.perdidas, porElOeste.perdidas);
  EXPECT_EQ(porElEste.perdidas + porElOeste.perdidas, porElEste.deSol);
}

} // namespace
} // namespace tesmo
