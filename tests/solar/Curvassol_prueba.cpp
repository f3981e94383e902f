#include "solar/Curvassol.h"

#include "solar/Posicionsolar.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

namespace tesmo {
namespace {

constexpr float ALMERIA = 36.84F;

/// La curva escrita aparte: la hora sumada en 32 bits y la posición pedida al objeto.
CurvaSolar CurvaLlana(float latitud, int mes, int dia) {
  PosicionSolar sol(latitud, mes, dia, 12.0F);
  const SalidaPuesta horas = sol.CalcularSalidaPuesta(latitud, mes, dia);
  CurvaSolar curva;
  float t = horas.salida;
  while ((t = t + 0.01F) <= horas.puesta) {
    const AngulosSolares a = sol.CalcularPosicion(latitud, mes, dia, t);
    curva.push_back({t, a.acimut, a.altura});
  }
  return curva;
}

std::string Impreso(const char *patron, float latitud, int a, int b) {
  std::array<char, 128> bufer{};
  std::snprintf(bufer.data(), bufer.size(), patron, static_cast<double>(latitud), a, b);
  return bufer.data();
}

TEST(Curvassol, LaCurvaDelDiaEsLaDelObjetoPuntoPorPunto) {
  int puntos = 0;
  for (const float latitud : {-89.0F, -66.0F, -36.84F, 0.0F, 10.0F, ALMERIA, 66.6F, 89.0F}) {
    for (int mes = 1; mes <= 12; ++mes) {
      const CurvasDelDia curvas = CurvasDeDia(latitud, mes, 21);
      ASSERT_EQ(curvas.curva, CurvaLlana(latitud, mes, 21)) << latitud << ' ' << mes;
      puntos += static_cast<int>(curvas.curva.size());
    }
  }
  EXPECT_GT(puntos, 60'000);
}

TEST(Curvassol, EmpiezaUnaCentesimaDespuesDeLaSalidaYNoPasaDeLaPuesta) {
  const SalidaPuesta horas = HorasDeSol(ALMERIA, DeclinacionSolar(6, 21));
  const CurvaSolar curva = CurvasDeDia(ALMERIA, 6, 21).curva;
  EXPECT_EQ(curva.front().t, horas.salida + 0.01F);
  EXPECT_LE(curva.back().t, horas.puesta);
  EXPECT_GT(curva.back().t + 0.01F, horas.puesta);
  EXPECT_LT(curva.front().acimut, -100.0F); // en junio sale más al norte que el este
  EXPECT_NEAR(curva[curva.size() / 2].altura, 90.0F - ALMERIA + 23.45F, 0.01F);
}

TEST(Curvassol, EnElPoloEnDiciembreNoHayNada) {
  const CurvasDelDia curvas = CurvasDeDia(89.0F, 12, 21);
  EXPECT_TRUE(curvas.curva.empty());
  for (const CurvaSolar &hora : curvas.horas) EXPECT_TRUE(hora.empty());
}

TEST(Curvassol, EnElPoloEnJunioVaDeMenosUnaAVeinticincoHoras) {
  const CurvasDelDia curvas = CurvasDeDia(89.0F, 6, 21);
  EXPECT_EQ(curvas.curva.front().t, -1.0F + 0.01F);
  EXPECT_NEAR(curvas.curva.back().t, 25.0, 0.011);
  EXPECT_NEAR(static_cast<double>(curvas.curva.size()), 2600.0, 3.0); // t se suma en 32 bits
  for (std::size_t i = 1; i < curvas.curva.size(); ++i) {
    ASSERT_NEAR(curvas.curva[i].t - curvas.curva[i - 1].t, 0.01, 2e-6);
  }
  for (const CurvaSolar &hora : curvas.horas) EXPECT_EQ(hora.size(), 1U);
}

TEST(Curvassol, LasHorasEnPuntoSonLasQueCaenEntreSalidaYPuesta) {
  const CurvasDelDia curvas = CurvasDeDia(ALMERIA, 12, 21);
  const SalidaPuesta horas = HorasDeSol(ALMERIA, DeclinacionSolar(12, 21));
  PosicionSolar sol(ALMERIA, 12, 21, 12.0F);
  for (int h = 0; h < 24; ++h) {
    const auto t = static_cast<float>(h);
    const CurvaSolar &hora = curvas.horas[static_cast<std::size_t>(h)];
    ASSERT_EQ(hora.size(), horas.salida < t && t < horas.puesta ? 1U : 0U) << h;
    if (hora.empty()) continue;
    const AngulosSolares a = sol.CalcularPosicion(ALMERIA, 12, 21, t);
    EXPECT_EQ(hora.front(), (PuntoSolar{t, a.acimut, a.altura}));
  }
  EXPECT_TRUE(curvas.horas[7].empty());
  EXPECT_EQ(curvas.horas[8].size(), 1U);
}

// En el ecuador el sol sale a las 6 salvo un redondeo; con la tolerancia de la salida las 6 son de noche.
TEST(Curvassol, LaHoraDentroDeLaToleranciaSeGuardaEnElDiaYNoEnLosMeses) {
  float latitud = 0.0F;
  for (int i = 0; i < 2000 && latitud == 0.0F; ++i) {
    const float candidata = 0.0005F * static_cast<float>(i);
    const SalidaPuesta horas = HorasDeSol(candidata, DeclinacionSolar(6, 21));
    if (horas.salida < 6.0F && !EsHoraDeDia(horas, 6.0F)) latitud = candidata;
  }
  ASSERT_GT(latitud, 0.0F);
  const CurvasDelDia dia = CurvasDeDia(latitud, 6, 21);
  ASSERT_EQ(dia.horas[6].size(), 1U);
  EXPECT_TRUE(EsDeNoche(dia.horas[6].front()));
  const CurvasDeLosMeses meses = CurvasDeMeses(latitud, 21);
  for (const PuntoDeMes &punto : meses.horas[6]) EXPECT_NE(punto.mes, 6);
}

TEST(Curvassol, LaCurvaGuardaLasMuestrasQueYaSonDeNoche) {
  const CurvaSolar curva = CurvasDeDia(ALMERIA, 3, 21).curva;
  const SalidaPuesta horas = HorasDeSol(ALMERIA, DeclinacionSolar(3, 21));
  int deNoche = 0;
  for (const PuntoSolar &punto : curva) {
    EXPECT_EQ(EsDeNoche(punto), !EsHoraDeDia(horas, punto.t)) << punto.t;
    deNoche += EsDeNoche(punto) ? 1 : 0;
  }
  EXPECT_LE(deNoche, 1);
}

TEST(Curvassol, LosMesesSonDoceCurvasDelMismoDia) {
  for (const float latitud : {-36.84F, 0.0F, ALMERIA, 89.0F}) {
    const CurvasDeLosMeses curvas = CurvasDeMeses(latitud, 15);
    std::array<std::vector<PuntoDeMes>, 24> horas;
    for (int mes = 1; mes <= 12; ++mes) {
      const CurvasDelDia dia = CurvasDeDia(latitud, mes, 15);
      ASSERT_EQ(curvas.meses[static_cast<std::size_t>(mes - 1)], dia.curva);
      for (std::size_t h = 0; h < 24; ++h) {
        for (const PuntoSolar &punto : dia.horas[h]) {
          if (!EsDeNoche(punto)) horas[h].push_back({mes, punto});
        }
      }
    }
    for (std::size_t h = 0; h < 24; ++h) {
      ASSERT_EQ(curvas.horas[h].size(), horas[h].size());
      for (std::size_t i = 0; i < horas[h].size(); ++i) {
        EXPECT_EQ(curvas.horas[h][i].mes, horas[h][i].mes);
        EXPECT_EQ(curvas.horas[h][i].punto, horas[h][i].punto);
      }
    }
  }
}

TEST(Curvassol, Titulos) {
  EXPECT_EQ(CurvasDeDia(ALMERIA, 6, 21).titulo, "Latitud = 36.84, Mes = 06, Día = 21");
  EXPECT_EQ(CurvasDeDia(-5.0F, 12, 3).titulo, "Latitud = -5.00, Mes = 12, Día = 3");
  EXPECT_EQ(CurvasDeMeses(ALMERIA, 21).titulo, "Latitud = 36.84, día 21 de todos los meses");
  for (const float latitud : {-89.0F, -0.004F, 0.0F, 0.125F, 2.675F, 9.995F, 36.845F, 89.0F, 1234.5F}) {
    EXPECT_EQ(CurvasDeDia(latitud, 1, 9).titulo,
              Impreso("Latitud =%6.2f, Mes = %02d, Día = %d", latitud, 1, 9));
    EXPECT_EQ(CurvasDeMeses(latitud, 9).titulo,
              Impreso("Latitud =%6.2f, día %d de todos los meses", latitud, 9, 0));
  }
}

TEST(Curvassol, ConLatitudCeroLosMesesVanEnElOrdenDelSur) {
  constexpr const char *NORTE = "Jun Jul May Ago Abr Sep Mar Oct Feb Nov Ene Dic";
  constexpr const char *SUR = "Dic Ene Nov Feb Oct Mar Sep Abr Ago May Jul Jun";
  EXPECT_EQ(CurvasDeMeses(0.0F, 21).orden, SUR);
  EXPECT_EQ(CurvasDeMeses(-0.01F, 21).orden, SUR);
  EXPECT_EQ(CurvasDeMeses(0.01F, 21).orden, NORTE);
  EXPECT_EQ(OrdenDeMeses(ALMERIA), NORTE);
}

// El orden del letrero es el de las alturas a mediodía.
TEST(Curvassol, ElOrdenDelNorteEsElDeLasAlturas) {
  const CurvasDeLosMeses curvas = CurvasDeMeses(ALMERIA, 15);
  float anterior = 90.0F;
  for (std::size_t i = 0; i < 12; ++i) {
    const std::string_view nombre = curvas.orden.substr(4 * i, 3);
    for (std::size_t m = 0; m < 12; ++m) {
      if (ConMayuscula(MesCorto(static_cast<int>(m) + 1)) != nombre) continue;
      const auto &mediodia = curvas.horas[12];
      ASSERT_EQ(mediodia[m].mes, static_cast<int>(m) + 1);
      EXPECT_LT(mediodia[m].punto.altura, anterior) << nombre;
      anterior = mediodia[m].punto.altura;
    }
  }
  EXPECT_LT(anterior, 90.0F - ALMERIA - 23.0F);
}

TEST(Curvassol, UnaLatitudQueNoEsNumeroNoDaPuntosNiSeQuedaDandoVueltas) {
  EXPECT_TRUE(CurvasDeDia(std::nanf(""), 6, 21).curva.empty());
}

} // namespace
} // namespace tesmo
