#include "intercambio/sintesis/Radiacionhoraria.h"

#include "core/Unidades.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace tesmo {

namespace {

using std::numbers::pi;

/// Cenit desde el que no se da directa [°]: dividida por un coseno casi nulo no significaría nada.
constexpr double CENIT_SIN_DIRECTA = 89.0;
/// Ángulo de puesta que separa invierno y verano en Erbs [rad]: 81,4°.
constexpr double PUESTA_ERBS = 81.4 * GRADO;
constexpr double DECIMAS = 10.0;
constexpr double VATIOS_POR_KILOVATIO = 1000.0;

double ADecimas(double valor) { return std::round(valor * DECIMAS) / DECIMAS; }

/// Partes de un día en sus 24 horas, que suman 1.
using Partes = std::array<double, HORAS_POR_DIA>;

double AnguloHorario(std::size_t hora) { return (CentroDeHora(hora) - 12.0) * pi / 12.0; }

Partes RepartoDelDia(const SolDelAnio &sol, std::size_t dia, double puesta, double (*parte)(double, double)) {
  Partes partes{};
  double suma = 0.0;
  for (std::size_t h = 0; h < HORAS_POR_DIA; ++h) {
    if (sol.diurna[dia * HORAS_POR_DIA + h]) partes[h] = std::max(0.0, parte(AnguloHorario(h), puesta));
    suma += partes[h];
  }
  for (double &p : partes) p = suma > 0.0 ? p / suma : 0.0;
  return partes;
}

double ParteComun(double hora, double puesta) {
  return pi / 24.0 * (std::cos(hora) - std::cos(puesta)) / (std::sin(puesta) - puesta * std::cos(puesta));
}

} // namespace

double FraccionDifusaDiaria(double k, double puesta) {
  if (puesta < PUESTA_ERBS) {
    if (k >= 0.715) return 0.143;
    return 1.0 - 0.2727 * k + 2.4495 * k * k - 11.9514 * k * k * k + 9.3879 * k * k * k * k;
  }
  if (k >= 0.722) return 0.175;
  return 1.0 + 0.2832 * k - 2.5557 * k * k + 0.8448 * k * k * k;
}

double ParteGlobal(double hora, double puesta) {
  constexpr double SESENTA_GRADOS = pi / 3.0;
  const double a = 0.409 + 0.5016 * std::sin(puesta - SESENTA_GRADOS);
  const double b = 0.6609 - 0.4767 * std::sin(puesta - SESENTA_GRADOS);
  return (a + b * std::cos(hora)) * ParteComun(hora, puesta);
}

double ParteDifusaHoraria(double hora, double puesta) { return ParteComun(hora, puesta); }

double CotaDelHaz(double extraterrestre, double cenit) {
  constexpr double TRANSMITANCIA = 0.7;
  constexpr double EXPONENTE_MASA = 0.678;
  const double masa = 1.0 / (std::cos(cenit * GRADO) + 0.50572 * std::pow(96.07995 - cenit, -1.6364));
  return extraterrestre * std::pow(TRANSMITANCIA, std::pow(masa, EXPONENTE_MASA));
}

RadiacionSintetica GenerarRadiacion(const SerieDias &claridad, const SolDelAnio &sol) {
  RadiacionSintetica radiacion{SerieHoras(HORAS), SerieHoras(HORAS)};
  for (std::size_t dia = 0; dia < DIAS; ++dia) {
    const double puesta = (12.0 - sol.salida[dia]) * pi / 12.0;
    const double total = claridad[dia] * sol.extraterrestre[dia] * VATIOS_POR_KILOVATIO;
    const double totalDifusa = total * FraccionDifusaDiaria(claridad[dia], puesta);
    const Partes global = RepartoDelDia(sol, dia, puesta, ParteGlobal);
    const Partes difusa = RepartoDelDia(sol, dia, puesta, ParteDifusaHoraria);
    for (std::size_t h = 0; h < HORAS_POR_DIA; ++h) {
      const std::size_t i = dia * HORAS_POR_DIA + h;
      if (!sol.diurna[i]) continue;
      const double haz =
          CotaDelHaz(IrradianciaExtraterrestre(dia), sol.cenit[i]) * std::cos(sol.cenit[i] * GRADO);
      const double cota = sol.cenit[i] < CENIT_SIN_DIRECTA ? haz : 0.0;
      const double globalHora = ADecimas(total * global[h]);
      radiacion.directa[i] = ADecimas(std::clamp(globalHora - totalDifusa * difusa[h], 0.0, cota));
      radiacion.difusa[i] = ADecimas(std::max(0.0, globalHora - radiacion.directa[i]));
    }
  }
  return radiacion;
}

} // namespace tesmo
