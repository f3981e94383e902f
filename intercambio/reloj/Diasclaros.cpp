#include "intercambio/reloj/Diasclaros.h"

#include "core/Unidades.h"
#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/reloj/Escalatiempo.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

/// Un día claro llega a esta parte de la mayor energía de los diez de antes y los diez de después.
constexpr double PARTE_DE_LA_MAYOR = 0.95;
constexpr std::size_t DIAS_VECINOS = 10;
/// La suma de las segundas diferencias, en tanto por uno de la radiación del día: la de un día sin nubes de
/// nueve horas o más no pasa de 0,2; una sola nube de mediodía la dobla.
constexpr double ASPEREZA_MAXIMA = 0.3;
/// Con menos energía no hay sol del que hablar [Wh/m²].
constexpr double ENERGIA_MINIMA = 500.0;

/// La radiación de un día solar.
struct DiaDeSol {
  double energia = 0; ///< [Wh/m²]
  double centro = 0;  ///< hora solar de su centro de gravedad
  double aspereza = 0;
};

/// La global o, en su lugar, otra radiación igual de simétrica en un día claro.
double Radiacion(const AnioCanonico &anio, std::size_t i) {
  const double global = anio[Campo::GlobalHorizontal].valores[i];
  if (!std::isnan(global)) return global;
  const double suma = anio[Campo::DirectaHorizontal].valores[i] + anio[Campo::DifusaHorizontal].valores[i];
  if (!std::isnan(suma)) return suma;
  const double normal = anio[Campo::DirectaNormal].valores[i];
  return std::isnan(normal) ? 0.0 : normal;
}

/// Los 365 días, contados de medianoche a medianoche solares de la etiqueta.
std::vector<DiaDeSol> Dias(const AnioCanonico &anio, const EscalaTiempo &escala) {
  std::vector<DiaDeSol> dias(DIAS);
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double g = Radiacion(anio, i);
    const double anterior = Radiacion(anio, (i + HORAS - 1) % HORAS);
    const double siguiente = Radiacion(anio, (i + 1) % HORAS);
    const double solar = escala.ASolar(static_cast<double>(i) + 1.0) / HORAS_DEL_DIA;
    const double medianoche = std::floor(solar);
    DiaDeSol &dia = dias[static_cast<std::size_t>(medianoche + static_cast<double>(DIAS)) % DIAS];
    dia.energia += g;
    dia.centro += g * (solar - medianoche) * HORAS_DEL_DIA;
    dia.aspereza += std::fabs(anterior - 2.0 * g + siguiente);
  }
  for (DiaDeSol &dia : dias) {
    if (dia.energia <= 0.0) continue;
    dia.centro /= dia.energia;
    dia.aspereza /= dia.energia;
  }
  return dias;
}

bool EsClaro(const std::vector<DiaDeSol> &dias, std::size_t d) {
  double mayor = 0.0;
  for (std::size_t k = DIAS - DIAS_VECINOS; k <= DIAS + DIAS_VECINOS; ++k) {
    mayor = std::max(mayor, dias[(d + k) % DIAS].energia);
  }
  const DiaDeSol &dia = dias[d];
  return dia.energia > ENERGIA_MINIMA && dia.energia >= PARTE_DE_LA_MAYOR * mayor &&
         dia.aspereza <= ASPEREZA_MAXIMA;
}

} // namespace

std::vector<DiaClaro> DiasClaros(const AnioCanonico &anio, const RelojFichero &reloj) {
  const std::vector<DiaDeSol> dias = Dias(anio, EscalaTiempo(reloj, anio.sitio.longitud));
  std::vector<DiaClaro> claros;
  for (std::size_t d = 0; d < DIAS; ++d) {
    if (EsClaro(dias, d)) claros.push_back({(MEDIODIA - dias[d].centro) * MINUTOS_POR_HORA, MesDe(d)});
  }
  return claros;
}

} // namespace tesmo
