#include "intercambio/sintesis/Claridad.h"

#include "tests/intercambio/sintesis/Apoyosintesis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tesmo {
namespace {

TEST(Claridad, ElMaximoDeLaDistribucionEsElPublicado) {
  // Máximos de la claridad diaria para K̄ = 0,3; 0,4; 0,5; 0,6; 0,7 con la fórmula de Hollands y Huget (1983).
  EXPECT_NEAR(DistribucionClaridad(0.3).Maximo(), 0.69, 0.005);
  EXPECT_NEAR(DistribucionClaridad(0.4).Maximo(), 0.74, 0.005);
  EXPECT_NEAR(DistribucionClaridad(0.5).Maximo(), 0.765, 0.005);
  EXPECT_NEAR(DistribucionClaridad(0.6).Maximo(), 0.79, 0.005);
  EXPECT_NEAR(DistribucionClaridad(0.7).Maximo(), 0.82, 0.005);
}

TEST(Claridad, LaFormaConcuerdaConElAjustePublicado) {
  // Herzog (1985) ajustó la forma con γ = −1,498 + (1,184·ξ − 27,182·e^(−1,5ξ))/(kmax − kmin), donde
  // ξ = (kmax − kmin)/(kmax − K̄) y kmin = 0,05. Se compara el cuantil que deja debajo la mitad de los días.
  for (double media : {0.3, 0.4, 0.5, 0.6, 0.7}) {
    const DistribucionClaridad distribucion(media);
    const double ancho = distribucion.Maximo() - 0.05;
    const double xi = ancho / (distribucion.Maximo() - media);
    const double g = -1.498 + (1.184 * xi - 27.182 * std::exp(-1.5 * xi)) / ancho;
    const double abajo = std::exp(g * 0.05);
    const double arriba = std::exp(g * distribucion.Maximo());
    const double mediana = std::log(abajo - 0.5 * (abajo - arriba)) / g;
    EXPECT_NEAR(distribucion.Cuantil(0.5), mediana, 0.01) << media;
  }
}

TEST(Claridad, LaMediaDeLosCuantilesEsLaPedida) {
  for (double media : {0.15, 0.3, 0.42, 0.5, 0.6, 0.7, 0.78}) {
    const DistribucionClaridad distribucion(media);
    double suma = 0.0;
    for (int i = 0; i < 10000; ++i) suma += distribucion.Cuantil((i + 0.5) / 10000.0);
    EXPECT_NEAR(suma / 10000.0, media, 1e-4) << media;
    EXPECT_NEAR(distribucion.Cuantil(0.0), 0.05, 1e-9) << media;
    EXPECT_NEAR(distribucion.Cuantil(1.0), distribucion.Maximo(), 1e-9) << media;
  }
}

TEST(Claridad, ElDiaDespejadoRecortaElMaximoSinTocarLaMedia) {
  EXPECT_DOUBLE_EQ(ClaridadDespejada(0.0), 0.75);
  EXPECT_DOUBLE_EQ(ClaridadDespejada(1000.0), 0.77);
  const DistribucionClaridad recortada(0.7, 0.75);
  EXPECT_DOUBLE_EQ(recortada.Maximo(), 0.75);
  double suma = 0.0;
  for (int i = 0; i < 10000; ++i) suma += recortada.Cuantil((i + 0.5) / 10000.0);
  EXPECT_NEAR(suma / 10000.0, 0.7, 1e-4);
  EXPECT_DOUBLE_EQ(DistribucionClaridad(0.74, 0.75).Maximo(), 0.77);
  EXPECT_LT(DistribucionClaridad(0.3, 0.75).Maximo(), 0.70);
}

TEST(Claridad, UnaMediaImposibleSeLlevaALoQueLaDistribucionAdmite) {
  EXPECT_DOUBLE_EQ(DistribucionClaridad(0.0).Maximo(), DistribucionClaridad(0.1).Maximo());
  EXPECT_DOUBLE_EQ(DistribucionClaridad(2.0).Maximo(), DistribucionClaridad(0.78).Maximo());
}

struct Mes {
  NormalesLocalidad localidad;
  SolDelAnio sol;
  TemperaturasDiarias dias;
  SerieDias claridad;
};

Mes Generar(const NormalesLocalidad &localidad) {
  Azar temperatura(localidad.nombre + "/t");
  Azar azar(localidad.nombre + "/k");
  Mes mes{localidad,
          CalcularSolDelAnio(localidad.latitud),
          GenerarTemperaturasDiarias(localidad, temperatura),
          {}};
  mes.claridad = GenerarClaridad(localidad, mes.sol, mes.dias, azar);
  return mes;
}

TEST(Claridad, CadaMesSumaSuRadiacionYNingunDiaEsImposible) {
  for (const NormalesLocalidad &localidad : prueba::NormalesDelPrograma()) {
    const Mes mes = Generar(localidad);
    SerieDias radiacion(DIAS);
    for (std::size_t dia = 0; dia < DIAS; ++dia) {
      radiacion[dia] = mes.claridad[dia] * mes.sol.extraterrestre[dia];
      EXPECT_GT(mes.claridad[dia], 0.04) << localidad.nombre << dia;
      EXPECT_LT(mes.claridad[dia], 0.79) << localidad.nombre << dia;
    }
    for (std::size_t m = 0; m < MESES; ++m)
      EXPECT_NEAR(MediaDelMes(radiacion, m), localidad.meses[m].ghi, 1e-9);
  }
}

TEST(Claridad, LosDiasDespejadosVienenJuntosYSonLosDeMasRecorrido) {
  double seguidos = 0.0;
  double recorridos = 0.0;
  int meses = 0;
  for (const NormalesLocalidad &localidad : prueba::NormalesDelPrograma()) {
    const Mes mes = Generar(localidad);
    for (std::size_t m = 0; m < MESES; ++m, ++meses) {
      std::vector<double> hoy;
      std::vector<double> manana;
      std::vector<double> recorrido;
      for (std::size_t dia = PrimerDiaDe(m); dia + 1 < PrimerDiaDe(m) + DiasDe(m); ++dia) {
        hoy.push_back(mes.claridad[dia]);
        manana.push_back(mes.claridad[dia + 1]);
        recorrido.push_back(mes.dias.maximas[dia] - mes.dias.minimas[dia]);
      }
      seguidos += prueba::Correlacion(hoy, manana);
      recorridos += prueba::Correlacion(hoy, recorrido);
    }
  }
  EXPECT_GT(seguidos / meses, 0.15);
  EXPECT_LT(seguidos / meses, 0.45);
  EXPECT_NEAR(recorridos / meses, 0.5, 0.12);
}

} // namespace
} // namespace tesmo
