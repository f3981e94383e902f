#include "vistas/Configuracion.h"

#include <gtest/gtest.h>
#include <set>

using namespace tesmo;

TEST(Configuracion, EmpiezaConLosColoresDeFabrica) {
  const Configuracion tabla;
  EXPECT_EQ(tabla.dameColor(0, 0), 0x8080FFU);  // temperatura seca
  EXPECT_EQ(tabla.dameColor(7, 0), 0xFF0080U);  // altura
  EXPECT_EQ(tabla.dameColor(20, 0), 0xDB9BDAU); // global
  std::set<std::uint32_t> distintos;
  for (int i = 0; i < 21; ++i) distintos.insert(tabla.dameColor(i, 0));
  EXPECT_EQ(distintos.size(), 21U);
}

TEST(Configuracion, UnIndiceMayorDaElColorPorDefectoYNoGuardaNada) {
  Configuracion tabla;
  EXPECT_EQ(tabla.dameColor(21, 0x123456U), 0x123456U);
  EXPECT_EQ(tabla.dameColor(-1, 0x123456U), 0x123456U);
  tabla.ponColor(21, 1U);
  tabla.ponColor(-1, 1U);
  for (int i = 0; i < 21; ++i) EXPECT_NE(tabla.dameColor(i, 0), 1U);
}

TEST(Configuracion, PonColorGuardaYLiberarVuelveALosDeFabrica) {
  DameTablaDeColores().ponColor(3, 0x010203U);
  EXPECT_EQ(DameTablaDeColores().dameColor(3, 0), 0x010203U);
  LiberarTablaDeColores();
  EXPECT_EQ(DameTablaDeColores().dameColor(3, 0), 0x80FF80U);
  LiberarTablaDeColores();
}
