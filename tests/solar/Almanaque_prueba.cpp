// Las posiciones frente a la declinación de J. W. Spencer, "Fourier series representation of the position of
// the sun", Search 2 (5), 172 (1971), exacta a 0,035°, y a las fórmulas del triángulo de posición escritas
// aparte, en doble precisión. El error del modelo es el de su declinación de un solo seno (Cooper, 1969): a
// la misma hora los dos soles distan justo la diferencia de declinaciones, que acota la de alturas.

#include "core/Calendario.h"
#include "solar/Posicionsolar.h"
#include "tests/comun/Rejilla.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tesmo {
namespace {

constexpr double RADIANES = std::numbers::pi / 180.0;
/// Lo más que se aparta de Spencer el seno único de Cooper: 1,39° el 5 de octubre.
constexpr double ERROR_DECLINACION = 1.40;

double DeclinacionSpencer(int diaDelAnio) {
  const double b = (diaDelAnio - 1) * 2.0 * std::numbers::pi / 365.0;
  const double radianes = 0.006918 - 0.399912 * std::cos(b) + 0.070257 * std::sin(b) -
                          0.006758 * std::cos(2 * b) + 0.000907 * std::sin(2 * b) -
                          0.002697 * std::cos(3 * b) + 0.00148 * std::sin(3 * b);
  return radianes / RADIANES;
}

struct PosicionEsperada {
  double altura;
  double acimut; // desde el sur, oeste positivo
};

PosicionEsperada Almanaque(double latitud, double delta, double hora) {
  const double phi = latitud * RADIANES;
  const double d = delta * RADIANES;
  const double w = (hora - 12.0) * 15.0 * RADIANES;
  const double senAltura = std::sin(phi) * std::sin(d) + std::cos(phi) * std::cos(d) * std::cos(w);
  const double sur = std::sin(phi) * std::cos(d) * std::cos(w) - std::cos(phi) * std::sin(d);
  const double oeste = std::cos(d) * std::sin(w);
  return {std::asin(std::clamp(senAltura, -1.0, 1.0)) / RADIANES, std::atan2(oeste, sur) / RADIANES};
}

template <typename Funcion>
void ParaCadaDia(int paso, Funcion funcion) {
  for (int mes = 1; mes <= 12; ++mes) {
    for (int dia = 1; dia <= DiasDelMes(mes); dia += paso) {
      funcion(mes, dia, DeclinacionSpencer(DiaDelAnio(mes, dia)));
    }
  }
}

TEST(Almanaque, DeclinacionDentroDelErrorDelModelo) {
  ParaCadaDia(1, [](int mes, int dia, double spencer) {
    EXPECT_NEAR(static_cast<double>(DeclinacionSolar(mes, dia)), spencer, ERROR_DECLINACION)
        << mes << '/' << dia;
  });
}

TEST(Almanaque, AlturaEnTodaLatitud) {
  int comparadas = 0;
  for (const float latitud : prueba::Rejilla(-89.0F, 89.0F, 1.0F)) {
    PosicionSolar sol(latitud, 1, 1, 12.0F);
    ParaCadaDia(9, [&](int mes, int dia, double spencer) {
      for (const float hora : prueba::Rejilla(0.5F, 24.0F, 1.0F)) {
        const AngulosSolares angulos = sol.CalcularPosicion(latitud, mes, dia, hora);
        ASSERT_FALSE(std::isnan(angulos.acimut) || std::isnan(angulos.altura) || std::isnan(angulos.cenit));
        const double error = std::fabs(static_cast<double>(sol.Declinacion()) - spencer);
        const double esperada = Almanaque(latitud, spencer, hora).altura;
        if (sol.EsDeDia()) {
          ASSERT_NEAR(angulos.altura, esperada, error + 1e-4)
              << latitud << ' ' << mes << '/' << dia << ' ' << hora;
          ++comparadas;
        } else {
          ASSERT_LT(esperada, error + 0.02); // la tolerancia de la salida vale centésimas de grado
        }
      }
    });
  }
  EXPECT_GT(comparadas, 50'000);
}

TEST(Almanaque, AcimutAlNorteDelEcuador) {
  constexpr double ALTURA_MAXIMA = 75.0; // más arriba un grado de declinación mueve mucho el acimut
  int comparadas = 0;
  for (const float latitud : prueba::Rejilla(1.0F, 89.0F, 4.0F)) {
    PosicionSolar sol(latitud, 1, 1, 12.0F);
    ParaCadaDia(9, [&](int mes, int dia, double spencer) {
      for (const float hora : prueba::Rejilla(0.5F, 24.0F, 1.0F)) {
        const AngulosSolares angulos = sol.CalcularPosicion(latitud, mes, dia, hora);
        if (!sol.EsDeDia() || angulos.altura > ALTURA_MAXIMA) continue;
        const double delta = std::fabs(static_cast<double>(sol.Declinacion()) - spencer);
        const double esperado = Almanaque(latitud, spencer, hora).acimut;
        const double altura = std::min(ALTURA_MAXIMA, angulos.altura + delta);
        const double giro = std::remainder(angulos.acimut - esperado, 360.0);
        ASSERT_LE(std::fabs(giro), 1.05 * delta / std::cos(altura * RADIANES) + 1e-3)
            << latitud << ' ' << mes << '/' << dia << ' ' << hora;
        ++comparadas;
      }
    });
  }
  EXPECT_GT(comparadas, 5'000);
}

TEST(Almanaque, SalidaYPuestaEnTodaLatitudConSolDiario) {
  for (const float latitud : prueba::Rejilla(-60.0F, 60.0F, 1.0F)) {
    const double tangente = std::tan(latitud * RADIANES);
    ParaCadaDia(5, [&](int mes, int dia, double spencer) {
      const SalidaPuesta sol = HorasDeSol(latitud, DeclinacionSolar(mes, dia));
      const double omega = std::acos(-tangente * std::tan(spencer * RADIANES)) / RADIANES;
      // |dω/dδ| = |tan φ| sec² δ / sen ω, tomada en el lado más desfavorable.
      const double seno = std::sin(std::min(omega, 180.0 - omega) * RADIANES) - 0.1;
      const double margen = std::fabs(tangente) * 1.2 / seno * ERROR_DECLINACION / 15.0 + 1e-5;
      EXPECT_NEAR(sol.salida, 12.0 - omega / 15.0, margen) << latitud << ' ' << mes << '/' << dia;
      EXPECT_NEAR(sol.puesta, 12.0 + omega / 15.0, margen);
    });
  }
}

// Con la declinación del propio modelo sólo queda el redondeo a 32 bits del coseno, del ángulo y de la hora.
TEST(Almanaque, SalidaYPuestaDePoloAPoloConLaDeclinacionDelModelo) {
  int conSolDiario = 0;
  int polares = 0;
  for (const float latitud : prueba::Rejilla(-89.0F, 89.0F, 0.5F)) {
    ParaCadaDia(1, [&](int mes, int dia, double) {
      const long double delta = DeclinacionSolar(mes, dia);
      const SalidaPuesta sol = HorasDeSol(latitud, delta);
      const double coseno = -std::tan(latitud * RADIANES) * std::tan(static_cast<double>(delta) * RADIANES);
      if (std::fabs(std::fabs(coseno) - 1.0) < 1e-6) return; // ahí decide el redondeo
      if (std::fabs(coseno) > 1.0) {
        ASSERT_EQ(sol.salida, -1.0F) << latitud << ' ' << mes << '/' << dia;
        ASSERT_EQ(sol.puesta, coseno > 0.0 ? -1.0F : 25.0F) << latitud << ' ' << mes << '/' << dia;
        ++polares;
        return;
      }
      const double omega = std::acos(coseno);
      const double margen = 2.5e-6 + 1.5e-7 / std::sin(omega); // [h]
      const double medioDia = omega * 12.0 / std::numbers::pi;
      ASSERT_NEAR(sol.salida, 12.0 - medioDia, margen) << latitud << ' ' << mes << '/' << dia;
      ASSERT_NEAR(sol.puesta, 12.0 + medioDia, margen) << latitud << ' ' << mes << '/' << dia;
      ++conSolDiario;
    });
  }
  EXPECT_GT(conSolDiario, 100'000);
  EXPECT_GT(polares, 10'000);
}

// El círculo polar del modelo: 90° menos su declinación de los solsticios, 23,45°.
TEST(Almanaque, ElSolDeMedianocheEmpiezaEnElCirculoPolar) {
  constexpr float FUERA = 66.54F;
  constexpr float DENTRO = 66.56F;
  for (const float signo : {1.0F, -1.0F}) {
    const SalidaPuesta largo = HorasDeSol(signo * FUERA, DeclinacionSolar(signo > 0.0F ? 6 : 12, 21));
    const SalidaPuesta corto = HorasDeSol(signo * FUERA, DeclinacionSolar(signo > 0.0F ? 12 : 6, 21));
    EXPECT_GT(largo.puesta - largo.salida, 23.0F);
    EXPECT_GE(largo.salida, 0.0F);
    EXPECT_LT(corto.puesta - corto.salida, 1.0F);
    EXPECT_GT(corto.salida, 11.0F);
    EXPECT_EQ(HorasDeSol(signo * DENTRO, DeclinacionSolar(signo > 0.0F ? 6 : 12, 21)).puesta, 25.0F);
    EXPECT_EQ(HorasDeSol(signo * DENTRO, DeclinacionSolar(signo > 0.0F ? 12 : 6, 21)).puesta, -1.0F);
  }
}

// Con la declinación del propio modelo, el vector sólo puede diferir del triángulo de posición en el
// redondeo.
TEST(Almanaque, ElVectorEsElDelTrianguloDePosicion) {
  for (const float latitud : prueba::Rejilla(1.0F, 89.0F, 2.0F)) {
    PosicionSolar sol(latitud, 1, 1, 12.0F);
    ParaCadaDia(11, [&](int mes, int dia, double) {
      for (const float hora : prueba::Rejilla(0.25F, 24.0F, 0.5F)) {
        const AngulosSolares angulos = sol.CalcularPosicion(latitud, mes, dia, hora);
        if (!sol.EsDeDia() || angulos.altura > 89.0F) continue;
        const auto esperado = Almanaque(latitud, static_cast<double>(sol.Declinacion()), hora);
        ASSERT_NEAR(angulos.altura, esperado.altura, 1e-4);
        ASSERT_NEAR(std::remainder(angulos.acimut - esperado.acimut, 360.0), 0.0, 2e-3)
            << latitud << ' ' << mes << '/' << dia << ' ' << hora;
      }
    });
  }
}

} // namespace
} // namespace tesmo
