#include "extremos/Radiaciondiaria.h"

#include "extremos/Tipos.h"

#include <array>
#include <cmath>
#include <numbers>

namespace tesmo::extremos {

namespace {

constexpr long double PI = std::numbers::pi_v<long double>;
constexpr long double GRADO = PI / 180.0L;
constexpr long double CONSTANTE_SOLAR = 1353.0L; ///< [W/m²]
constexpr long double DIAS_POR_MES = 30.4L;

struct CurvaDeClaridad {
  long double media;
  long double gamma;
  long double maxima;
};
constexpr std::array<CurvaDeClaridad, 5> CURVAS{{
    {0.3L, -2.112L, 0.69L},
    {0.4L, 0.126L, 0.74L},
    {0.5L, 2.366L, 0.76L},
    {0.6L, 4.669L, 0.79L},
    {0.7L, 8.24L, 0.82L},
}};
constexpr long double CLARIDAD_MINIMA = 0.05L;

long double EnCurva(const CurvaDeClaridad &curva, long double fraccion) {
  const long double arriba = std::exp(CLARIDAD_MINIMA * curva.gamma);
  const long double abajo = std::exp(curva.gamma * curva.maxima);
  return std::log(arriba - fraccion * (arriba - abajo)) / curva.gamma;
}

long double AnguloDelOcaso(long double phi, long double delta) {
  const long double c = -std::tan(phi) * std::tan(delta);
  const long double angulo = std::atan(std::sqrt(std::fmax(1.0L - c * c, 0.0L)) / c);
  return std::signbit(angulo) ? angulo + PI : angulo;
}

} // namespace

SolDeProyecto CalcularSolDeProyecto(float latitud, int mes) {
  const long double n = (mes - 1) * DIAS_POR_MES + DIA_DE_PROYECTO;
  const long double delta = 23.45L * std::sin(2.0L * PI * (284.0L + n) / DIAS_DEL_ANIO) * GRADO;
  const long double phi = latitud * GRADO;
  const long double excentricidad = 1.0L + 0.033L * std::cos(360.0L * n / DIAS_DEL_ANIO);
  SolDeProyecto sol;
  sol.ocaso = AnguloDelOcaso(phi, delta);
  sol.extraterrestre =
      HORAS_DEL_DIA / PI * excentricidad * CONSTANTE_SOLAR *
      (std::cos(phi) * std::cos(delta) * std::sin(sol.ocaso) + sol.ocaso * std::sin(phi) * std::sin(delta));
  return sol;
}

long double ClaridadDiaria(long double claridadMensual, long double fraccion) {
  if (!(claridadMensual > CURVAS.front().media)) return EnCurva(CURVAS.front(), fraccion);
  for (std::size_t c = 1; c < CURVAS.size(); ++c) {
    if (claridadMensual > CURVAS[c].media) continue;
    const long double k = EnCurva(CURVAS[c - 1], fraccion);
    const long double avance =
        (claridadMensual - CURVAS[c - 1].media) / (CURVAS[c].media - CURVAS[c - 1].media);
    return k + (EnCurva(CURVAS[c], fraccion) - k) * avance;
  }
  return EnCurva(CURVAS.back(), fraccion);
}

long double FraccionDifusa(long double k) {
  if (k <= 0.17L) return 0.99L;
  if (k < 0.75L) return 1.188L + k * (-2.272L + k * (9.473L + k * (-21.856L + k * 14.648L)));
  if (k < 0.8L) return 0.632L - 0.54L * k;
  return 0.2L;
}

} // namespace tesmo::extremos
