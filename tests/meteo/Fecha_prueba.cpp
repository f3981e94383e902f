#include "meteo/Fecha.h"

#include <gtest/gtest.h>

using namespace tesmo;

namespace {

Periodo Validado(FechaHora inicio, FechaHora fin) {
  Periodo periodo{inicio, fin};
  ValidarPeriodo(periodo);
  return periodo;
}

} // namespace

TEST(Periodo, DeFabricaElPrimerDia) {
  const Periodo periodo;
  EXPECT_EQ(IndiceHora(periodo.fin.mes, periodo.fin.dia, periodo.fin.hora), 23);
}

TEST(Periodo, UnPeriodoBuenoNoCambia) {
  EXPECT_EQ(Validado({1, 1, 1}, {12, 31, 24}), (Periodo{{1, 1, 1}, {12, 31, 24}}));
  EXPECT_EQ(Validado({3, 5, 7}, {3, 5, 7}), (Periodo{{3, 5, 7}, {3, 5, 7}}));
}

TEST(Periodo, ElDiaSeAjustaAlMes) {
  EXPECT_EQ(Validado({2, 31, 1}, {6, 31, 3}), (Periodo{{2, 28, 1}, {6, 30, 3}}));
}

TEST(Periodo, ElMismoDiaConLaHoraFinalAntesTomaLaInicial) {
  EXPECT_EQ(Validado({1, 1, 10}, {1, 1, 5}), (Periodo{{1, 1, 10}, {1, 1, 10}}));
}

TEST(Periodo, ElMismoMesConElDiaFinalAntesTomaElInicial) {
  EXPECT_EQ(Validado({4, 20, 3}, {4, 10, 8}), (Periodo{{4, 20, 3}, {4, 20, 8}}));
}

TEST(Periodo, ElMesFinalAntesTomaElInicialYSigueHastaQueNadaCambia) {
  EXPECT_EQ(Validado({5, 20, 9}, {3, 25, 2}), (Periodo{{5, 20, 9}, {5, 25, 2}}));
  EXPECT_EQ(Validado({5, 20, 9}, {3, 10, 2}), (Periodo{{5, 20, 9}, {5, 20, 9}}))
      << "mes, día y hora se corrigen uno tras otro";
  EXPECT_EQ(Validado({2, 31, 24}, {1, 31, 1}), (Periodo{{2, 28, 24}, {2, 28, 24}}));
}

TEST(Periodo, TodoParDeFechasAcabaOrdenado) {
  for (int m1 = 1; m1 <= 12; ++m1) {
    for (int m2 = 1; m2 <= 12; ++m2) {
      for (const int d1 : {1, 15, 31}) {
        for (const int d2 : {1, 15, 31}) {
          for (const int h1 : {1, 24}) {
            const Periodo p = Validado({m1, d1, h1}, {m2, d2, 12});
            ASSERT_LE(IndiceHora(p.inicio.mes, p.inicio.dia, p.inicio.hora),
                      IndiceHora(p.fin.mes, p.fin.dia, p.fin.hora));
            ASSERT_EQ(p.inicio.mes, m1);
          }
        }
      }
    }
  }
}
