#include "intercambio/magnitudes/Radiacion.h"

#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/reloj/Soldereloj.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

/// Las cuatro radiaciones de una hora [W/m²], AUSENTE la que no está.
struct Hora {
  double global;
  double normal;
  double directa;
  double difusa;
};

/// Completa la directa de la difusa o al revés; lo que no se puede queda AUSENTE.
void CompletarHora(Hora &hora, double coseno) {
  const double haz = hora.normal * std::max(coseno, 0.0);
  if (std::isnan(hora.directa)) {
    hora.directa = hora.global - hora.difusa;
    if (std::isnan(hora.directa)) hora.directa = haz;
  }
  if (std::isnan(hora.difusa)) hora.difusa = hora.global - hora.directa;
  if (std::isnan(hora.directa) || std::isnan(hora.difusa)) return;
  const double global = hora.directa + hora.difusa;
  if (hora.directa < 0.0) hora = {hora.global, hora.normal, 0.0, std::max(0.0, global)};
  if (hora.difusa < 0.0) hora = {hora.global, hora.normal, std::max(0.0, global), 0.0};
}

Procedencia De(const SerieCanonica &serie, std::size_t i, double valor) {
  return serie.valores[i] == valor ? serie.procedencias[i] : Procedencia::Calculada;
}

} // namespace

void CompletarRadiacion(const AnioCanonico &anio, const EscalaTiempo &escala, AnioCompleto &completo) {
  const SolDeReloj sol(anio, escala);
  completo.normal = anio[Campo::DirectaNormal];
  for (std::size_t i = 0; i < HORAS; ++i) {
    Hora hora{anio[Campo::GlobalHorizontal].valores[i], completo.normal.valores[i],
              anio[Campo::DirectaHorizontal].valores[i], anio[Campo::DifusaHorizontal].valores[i]};
    const bool pideCoseno = std::isnan(hora.directa) && std::isnan(hora.global - hora.difusa);
    CompletarHora(hora, pideCoseno ? sol.Coseno(i) : 0.0);
    completo.directa.Poner(i, hora.directa, De(anio[Campo::DirectaHorizontal], i, hora.directa));
    completo.difusa.Poner(i, hora.difusa, De(anio[Campo::DifusaHorizontal], i, hora.difusa));
  }
}

} // namespace tesmo
