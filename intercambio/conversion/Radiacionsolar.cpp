#include "intercambio/conversion/Radiacionsolar.h"

#include "core/Unidades.h"
#include "intercambio/reloj/Repartoradiacion.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

/// Con el sol más bajo en el centro de la hora no se da directa [°]: dividida por un coseno casi nulo, que
/// además se escribe con dos decimales, no significaría nada.
constexpr double CENIT_SIN_DIRECTA = 89.0;
/// La mayor parte de la extraterrestre que llega como directa normal: la de un cielo de alta montaña.
constexpr double COCIENTE_MAXIMO = 0.85;
/// Holgura del tope: sólo ha de notarse en las horas de salida y puesta.
constexpr double HOLGURA = 1.01;
constexpr std::size_t PRIMERA_HORA_DE_TARDE = 12;

/// Lo que la directa horizontal de cada hora es de la extraterrestre horizontal, en el reparto de origen.
SerieHoras Cocientes(const SerieHoras &directa, const SerieHoras &extraterrestre) {
  SerieHoras cocientes(HORAS);
  for (std::size_t i = 0; i < HORAS; ++i) {
    if (directa[i] <= 0.0) continue;
    cocientes[i] =
        extraterrestre[i] > 0.0 ? std::min(COCIENTE_MAXIMO, directa[i] / extraterrestre[i]) : COCIENTE_MAXIMO;
  }
  return cocientes;
}

/// Mayor cociente de los registros que caen en cada hora solar.
SerieHoras MayorCociente(const std::vector<Corte> &cortes, const SerieHoras &cocientes) {
  SerieHoras mayores(HORAS);
  for (const Corte &corte : cortes) {
    mayores[corte.horaSolar] = std::max(mayores[corte.horaSolar], cocientes[corte.registro]);
  }
  return mayores;
}

/// La mayor directa horizontal de la hora @p h si lo que llega del haz es @p cociente.
double Tope(const SolDelAnio &sol, std::size_t h, double cociente) {
  if (!sol.diurna[h] || sol.cenit[h] >= CENIT_SIN_DIRECTA) return 0.0;
  return HOLGURA * cociente * IrradianciaExtraterrestre(h / HORAS_POR_DIA) * std::cos(sol.cenit[h] * GRADO);
}

void BajarAlTope(RadiacionEnHoraSolar &radiacion, const SolDelAnio &sol, const SerieHoras &mayores) {
  for (std::size_t h = 0; h < HORAS; ++h) {
    const double sobra = radiacion.directa[h] - Tope(sol, h, mayores[h]);
    if (sobra <= 0.0) continue;
    radiacion.directa[h] -= sobra;
    const bool tarde = h % HORAS_POR_DIA >= PRIMERA_HORA_DE_TARDE;
    const std::size_t vecina = (tarde ? h + HORAS - 1 : h + 1) % HORAS;
    const bool cabe = radiacion.directa[vecina] + sobra <= Tope(sol, vecina, COCIENTE_MAXIMO);
    (cabe ? radiacion.directa[vecina] : radiacion.difusa[h]) += sobra;
  }
}

bool Entera(const SerieCanonica &serie) {
  return std::ranges::none_of(serie.valores, [](double valor) { return std::isnan(valor); });
}

} // namespace

RadiacionEnHoraSolar RadiacionAHoraSolar(const AnioCompleto &completo, const std::vector<Corte> &cortes,
                                         double latitud, const SolDelAnio &sol) {
  const RepartoRadiacion reparto(cortes, SolDeReparto::DeLosMotores(latitud), sol.diurna);
  RadiacionEnHoraSolar radiacion;
  radiacion.directa = reparto.Repartir(completo.directa.valores, radiacion.perdida);
  radiacion.difusa = reparto.Repartir(completo.difusa.valores, radiacion.perdida);
  if (Entera(completo.normal)) radiacion.normal = reparto.Promediar(completo.normal.valores);
  BajarAlTope(radiacion, sol,
              MayorCociente(cortes, Cocientes(completo.directa.valores, reparto.Extraterrestre())));
  return radiacion;
}

} // namespace tesmo
