#include "extremos/Radiacionhoraria.h"

#include <algorithm>
#include <cmath>

namespace tesmo::extremos {

namespace {

constexpr std::size_t HORAS_DE_MANANA = HORAS_DE_REPARTO / 2;
constexpr long double PRIMERA_HORA = 5.5L;
constexpr long double MEDIODIA = 12.0L;
constexpr long double GRADOS_POR_HORA = 15.0L;
constexpr long double PI_ENTRE_24 = 0.1308997L;
constexpr long double SESENTA_GRADOS = 1.047L; ///< [rad]
/// Posición en el día de la primera hora con reparto.
constexpr std::size_t PRIMERA_POSICION = 5;

/// Coeficientes de Collares-Pereira y Rabl de la parte global.
struct CoeficientesGlobales {
  long double a, b;
  explicit CoeficientesGlobales(long double ocaso)
      : a(0.409L + 0.5016L * std::sin(ocaso - SESENTA_GRADOS)),
        b(0.6609L - 0.4767L * std::sin(ocaso - SESENTA_GRADOS)) {}
};

/// Parte difusa de Liu y Jordan sin recortar.
long double ParteDifusa(long double omega, long double ocaso) {
  return PI_ENTRE_24 * (std::cos(omega) - std::cos(ocaso)) / (std::sin(ocaso) - ocaso * std::cos(ocaso));
}

float SinNegativos(long double valor) { return valor < 0.0L ? 0.0F : static_cast<float>(valor); }

} // namespace

RepartoHorario RepartirDia(long double ocaso) {
  const CoeficientesGlobales coeficientes(ocaso);
  RepartoHorario reparto;
  for (std::size_t i = 0; i < HORAS_DE_MANANA; ++i) {
    const long double t = PRIMERA_HORA + static_cast<long double>(i);
    const long double omega = GRADOS_POR_HORA * (t - MEDIODIA) * GRADO_DE_ONDA;
    const long double parte = ParteDifusa(omega, ocaso);
    const long double difusa = std::max(parte, 0.0L);
    const long double global = std::max((coeficientes.a + coeficientes.b * std::cos(omega)) * parte, 0.0L);
    const std::size_t simetrica = HORAS_DE_REPARTO - 1 - i;
    reparto.difusa[i] = reparto.difusa[simetrica] = difusa;
    reparto.global[i] = reparto.global[simetrica] = global;
    reparto.sumaDifusa += 2.0L * difusa;
    reparto.sumaGlobal += 2.0L * global;
  }
  return reparto;
}

RadiacionDelDia RepartirRadiacion(long double diaria, const SolDeProyecto &sol) {
  RadiacionDelDia radiacion;
  if (!(sol.extraterrestre > 0.0L)) return radiacion; // noche polar
  radiacion.claridad = diaria / sol.extraterrestre;
  const long double directaDiaria = std::max(diaria - FraccionDifusa(radiacion.claridad) * diaria, 0.0L);
  const long double difusaDiaria = diaria - directaDiaria;
  const RepartoHorario reparto = RepartirDia(sol.ocaso);
  for (std::size_t i = 0; i < HORAS_DE_REPARTO; ++i) {
    const long double difusa = reparto.difusa[i] * difusaDiaria;
    radiacion.difusa[PRIMERA_POSICION + i] = SinNegativos(difusa);
    radiacion.directa[PRIMERA_POSICION + i] = SinNegativos(reparto.global[i] * diaria - difusa);
  }
  return radiacion;
}

} // namespace tesmo::extremos
