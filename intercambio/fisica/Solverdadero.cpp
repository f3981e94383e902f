#include "intercambio/fisica/Solverdadero.h"

#include "core/Calendario.h"
#include "core/Unidades.h"

#include <chrono>
#include <cmath>

namespace tesmo {

namespace {

constexpr int PRIMER_ANIO = 1950;
constexpr int ULTIMO_ANIO = 2050;
/// A mitad de camino entre dos bisiestos.
constexpr int ANIO_MEDIO = 2002;
/// Minutos que tarda la Tierra en girar un grado.
constexpr double MINUTOS_POR_GRADO = 4.0;

/// Días desde el mediodía del 1 de enero de 2000.
double DiasDesdeLaEpoca(int anio, double diaUtc) {
  using namespace std::chrono;
  const year calendario{anio >= PRIMER_ANIO && anio <= ULTIMO_ANIO ? anio : ANIO_MEDIO};
  const sys_days epoca{year{2000} / January / 1};
  const auto hastaEnero = (sys_days{calendario / January / 1} - epoca).count();
  constexpr double PRIMERO_DE_MARZO = DIAS_ANTES_DEL_MES[2];
  const double salto = calendario.is_leap() && diaUtc >= PRIMERO_DE_MARZO ? 1.0 : 0.0;
  return static_cast<double>(hastaEnero) + diaUtc + salto - 0.5;
}

} // namespace

SolDeInstante SolVerdadero(int anio, double diaUtc) {
  const double n = DiasDesdeLaEpoca(anio, diaUtc);
  const double longitudMedia = 280.460 + 0.9856474 * n;
  const double anomalia = (357.528 + 0.9856003 * n) * GRADO;
  const double ecliptica =
      (longitudMedia + 1.915 * std::sin(anomalia) + 0.020 * std::sin(2.0 * anomalia)) * GRADO;
  const double oblicuidad = (23.439 - 4e-7 * n) * GRADO;
  const double ascension =
      std::atan2(std::cos(oblicuidad) * std::sin(ecliptica), std::cos(ecliptica)) / GRADO;
  return {std::asin(std::sin(oblicuidad) * std::sin(ecliptica)),
          MINUTOS_POR_GRADO * std::remainder(longitudMedia - ascension, 360.0)};
}

} // namespace tesmo
