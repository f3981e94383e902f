#include "vistas/intercambio/Cajacurso.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

TEST(CajaCurso, LaBaseEsElCeroYLasHorasSonPares) {
  const CajaCurso caja{10.0, 20.0, 160.0, 100.0, 4.0, 20.0};
  EXPECT_DOUBLE_EQ(caja.X(4.0), 10.0);
  EXPECT_DOUBLE_EQ(caja.X(12.0), 90.0);
  EXPECT_DOUBLE_EQ(caja.Y(0.0), 120.0);
  EXPECT_DOUBLE_EQ(caja.Y(1.0), 20.0);
  const HorasCurso horas = HorasDelCurso(6.2, 17.8);
  EXPECT_DOUBLE_EQ(horas.primera, 4.0);
  EXPECT_DOUBLE_EQ(horas.ultima, 20.0);
}

TEST(CajaCurso, UnDiaSinNocheNoSaleDeLas24Horas) {
  const HorasCurso horas = HorasDelCurso(0.1, 23.9);
  EXPECT_DOUBLE_EQ(horas.primera, 0.0);
  EXPECT_DOUBLE_EQ(horas.ultima, 24.0);
}

} // namespace
} // namespace tesmo
