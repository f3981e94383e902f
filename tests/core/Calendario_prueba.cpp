#include "core/Calendario.h"

#include <gtest/gtest.h>

#include <limits>

using namespace tesmo;

TEST(Calendario, IndicesDelAnio) {
  EXPECT_EQ(IndiceHora(1, 1, 1), 0);
  EXPECT_EQ(IndiceHora(12, 31, 24), 8759);
  EXPECT_EQ(IndiceHora(2, 29, 1), 1416);
  EXPECT_EQ(IndiceHora(3, 1, 1), 1416);
}

TEST(Calendario, UnMesFueraDelAnioDaLaHoraMenosUno) {
  EXPECT_EQ(IndiceHora(0, 17, 5), 4);
  EXPECT_EQ(IndiceHora(13, 1, 24), 23);
  EXPECT_EQ(IndiceHora(-3, 31, 1), 0);
}

TEST(Calendario, UnIndiceDesmedidoSeSatura) {
  constexpr int MAYOR = std::numeric_limits<int>::max();
  constexpr int MENOR = std::numeric_limits<int>::min();
  EXPECT_EQ(IndiceHora(1, MAYOR, MAYOR), MAYOR);
  EXPECT_EQ(IndiceHora(12, MENOR, MENOR), MENOR);
  EXPECT_EQ(IndiceHora(0, 1, MENOR), MENOR);
}

TEST(Calendario, LaHoraSiguientePasaDeDiaYDeMes) {
  int mes = 2, dia = 28, hora = 24;
  SiguienteHora(mes, dia, hora);
  EXPECT_EQ((FechaHora{mes, dia, hora}), (FechaHora{3, 1, 1}));
  SiguienteHora(mes, dia, hora);
  EXPECT_EQ((FechaHora{mes, dia, hora}), (FechaHora{3, 1, 2}));
}

TEST(Calendario, TrasElUltimoDiaVieneElMesTrece) {
  int mes = 12, dia = 31, hora = 24;
  SiguienteHora(mes, dia, hora);
  EXPECT_EQ((FechaHora{mes, dia, hora}), (FechaHora{13, 1, 1}));
}

TEST(Calendario, RecorrerElAnioEnteroDaCadaPosicion) {
  int mes = 1, dia = 1, hora = 1;
  for (int i = 0; i < HORAS_DEL_ANIO; ++i) {
    ASSERT_EQ(IndiceHora(mes, dia, hora), i);
    ASSERT_EQ(FechaDeIndice(i), (FechaHora{mes, dia, hora}));
    SiguienteHora(mes, dia, hora);
  }
  EXPECT_EQ(mes, 13);
}

TEST(Calendario, UnaPosicionFueraDelAnioDaElExtremo) {
  EXPECT_EQ(FechaDeIndice(-5), (FechaHora{1, 1, 1}));
  EXPECT_EQ(FechaDeIndice(9000), (FechaHora{12, 31, 24}));
}

TEST(Calendario, DiasDeCadaMes) {
  EXPECT_EQ(DiasDelMes(2), 28);
  EXPECT_EQ(DiasDelMes(12), 31);
  EXPECT_EQ(DiasDelMes(11), 30);
  EXPECT_EQ(DiasDelMes(13), 30);
}

TEST(Calendario, LosNombresDeLosMeses) {
  EXPECT_EQ(NombreMes(1), "enero");
  EXPECT_EQ(NombreMes(9), "septiembre");
  EXPECT_EQ(NombreMes(12), "diciembre");
  for (int mes = 1; mes <= 12; ++mes) EXPECT_EQ(MesCorto(mes), NombreMes(mes).substr(0, 3)) << mes;
  EXPECT_EQ(ConMayuscula(NombreMes(5)), "Mayo");
  EXPECT_EQ(ConMayuscula(MesCorto(8)), "Ago");
}

TEST(Calendario, UnMesFueraDelAnioNoTieneNombre) {
  for (const int mes : {-1, 0, 13, std::numeric_limits<int>::max()}) {
    EXPECT_EQ(NombreMes(mes), "");
    EXPECT_EQ(MesCorto(mes), "");
  }
  EXPECT_EQ(ConMayuscula(""), "");
}

TEST(Calendario, UnaHoraEnPalabras) {
  EXPECT_EQ(TextoHora(0), "1 de enero a la hora 1");
  EXPECT_EQ(TextoHora(1415), "28 de febrero a la hora 24");
  EXPECT_EQ(TextoHora(8759), "31 de diciembre a la hora 24");
}
