#include "meteo/Fecha.h"

#include <gtest/gtest.h>
#include <limits>

using namespace tesmo;

namespace {

Periodo Validado(FechaHora inicio, FechaHora fin) {
  Periodo periodo{inicio, fin};
  ValidarPeriodo(periodo);
  return periodo;
}

} // namespace

TEST(Fecha, IndicesDelAnio) {
  EXPECT_EQ(IndiceHora(1, 1, 1), 0);
  EXPECT_EQ(IndiceHora(12, 31, 24), 8759);
  EXPECT_EQ(IndiceHora(2, 29, 1), 1416);
  EXPECT_EQ(IndiceHora(3, 1, 1), 1416);
}

TEST(Fecha, UnMesFueraDelAnioDaLaHoraMenosUno) {
  EXPECT_EQ(IndiceHora(0, 17, 5), 4);
  EXPECT_EQ(IndiceHora(13, 1, 24), 23);
  EXPECT_EQ(IndiceHora(-3, 31, 1), 0);
}

TEST(Fecha, UnIndiceDesmedidoSeSatura) {
  constexpr int MAYOR = std::numeric_limits<int>::max();
  constexpr int MENOR = std::numeric_limits<int>::min();
  EXPECT_EQ(IndiceHora(1, MAYOR, MAYOR), MAYOR);
  EXPECT_EQ(IndiceHora(12, MENOR, MENOR), MENOR);
  EXPECT_EQ(IndiceHora(0, 1, MENOR), MENOR);
}

TEST(Fecha, LaHoraSiguientePasaDeDiaYDeMes) {
  int mes = 2, dia = 28, hora = 24;
  SiguienteHora(mes, dia, hora);
  EXPECT_EQ((FechaHora{mes, dia, hora}), (FechaHora{3, 1, 1}));
  SiguienteHora(mes, dia, hora);
  EXPECT_EQ((FechaHora{mes, dia, hora}), (FechaHora{3, 1, 2}));
}

TEST(Fecha, TrasElUltimoDiaVieneElMesTrece) {
  int mes = 12, dia = 31, hora = 24;
  SiguienteHora(mes, dia, hora);
  EXPECT_EQ((FechaHora{mes, dia, hora}), (FechaHora{13, 1, 1}));
}

TEST(Fecha, RecorrerElAnioEnteroDaCadaPosicion) {
  int mes = 1, dia = 1, hora = 1;
  for (int i = 0; i < HORAS_DEL_ANIO; ++i) {
    ASSERT_EQ(IndiceHora(mes, dia, hora), i);
    ASSERT_EQ(FechaDeIndice(i), (FechaHora{mes, dia, hora}));
    SiguienteHora(mes, dia, hora);
  }
  EXPECT_EQ(mes, 13);
}

TEST(Fecha, UnaPosicionFueraDelAnioDaElExtremo) {
  EXPECT_EQ(FechaDeIndice(-5), (FechaHora{1, 1, 1}));
  EXPECT_EQ(FechaDeIndice(9000), (FechaHora{12, 31, 24}));
}

TEST(Fecha, DiasDeCadaMes) {
  EXPECT_EQ(DiasDelMes(2), 28);
  EXPECT_EQ(DiasDelMes(12), 31);
  EXPECT_EQ(DiasDelMes(11), 30);
  EXPECT_EQ(DiasDelMes(13), 30);
}

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
