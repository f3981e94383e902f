#include "intercambio/fisica/Soldelanio.h"

#include "core/Unidades.h"
#include "solar/Soldeldia.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tesmo {

namespace {

using std::numbers::pi;

constexpr double CONSTANTE_SOLAR = 1367.0;
constexpr double EXCENTRICIDAD = 0.033;
constexpr double CENTESIMAS = 100.0;

double ACentesimas(double valor) { return std::round(valor * CENTESIMAS) / CENTESIMAS; }

/// Ángulo horario de la puesta [rad]: 0 si el sol no sale y π si no se pone, que en SalidaPuesta son horas de
/// fuera del día.
double AnguloDePuesta(const SalidaPuesta &sol) {
  return sol.puesta > sol.salida ? std::min((12.0 - sol.salida) * pi / 12.0, pi) : 0.0;
}

/// Irradiación diaria horizontal fuera de la atmósfera [kWh/m²] (Duffie y Beckman, 1991, 1.10).
double IrradiacionDiaria(std::size_t dia, double latitud, double declinacion, const SalidaPuesta &sol) {
  const double puesta = AnguloDePuesta(sol);
  const double f = latitud * GRADO;
  const double d = declinacion * GRADO;
  const double horas =
      24.0 / pi * (std::cos(f) * std::cos(d) * std::sin(puesta) + puesta * std::sin(f) * std::sin(d));
  return IrradianciaExtraterrestre(dia) * horas / 1000.0;
}

} // namespace

double IrradianciaExtraterrestre(std::size_t dia) {
  const double n = static_cast<double>(dia + 1);
  return CONSTANTE_SOLAR * (1.0 + EXCENTRICIDAD * std::cos(2.0 * pi * n / static_cast<double>(DIAS)));
}

double EcuacionDelTiempoEnHoras(double dia) {
  constexpr double MINUTOS = 229.18; // de radianes de giro de la Tierra a minutos
  const double b = 2.0 * pi * dia / static_cast<double>(DIAS);
  return MINUTOS / 60.0 *
         (0.000075 + 0.001868 * std::cos(b) - 0.032077 * std::sin(b) - 0.014615 * std::cos(2.0 * b) -
          0.04089 * std::sin(2.0 * b));
}

SolDelAnio CalcularSolDelAnio(double latitud) {
  SolDelAnio sol{SerieDias(DIAS), SerieDias(DIAS), SerieHoras(HORAS), SerieHoras(HORAS),
                 std::vector<bool>(HORAS)};
  const auto f = static_cast<float>(latitud);
  for (std::size_t dia = 0; dia < DIAS; ++dia) {
    const int mes = static_cast<int>(MesDe(dia)) + 1;
    const int diaDelMes = static_cast<int>(dia - PrimerDiaDe(MesDe(dia))) + 1;
    const SolDelDia solDelDia(f, mes, diaDelMes);
    sol.salida[dia] = solDelDia.Horas().salida;
    const auto declinacion = static_cast<double>(DeclinacionSolar(mes, diaDelMes));
    sol.extraterrestre[dia] = IrradiacionDiaria(dia, latitud, declinacion, solDelDia.Horas());
    for (std::size_t h = 0; h < HORAS_POR_DIA; ++h) {
      const PosicionDeVector posicion = solDelDia.En(static_cast<float>(CentroDeHora(h)));
      const std::size_t i = dia * HORAS_POR_DIA + h;
      sol.diurna[i] = posicion.esDeDia;
      sol.acimut[i] = ACentesimas(posicion.angulos.acimut);
      sol.cenit[i] = ACentesimas(posicion.angulos.cenit);
    }
  }
  return sol;
}

} // namespace tesmo
