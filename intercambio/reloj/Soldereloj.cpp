#include "intercambio/reloj/Soldereloj.h"

#include "core/Unidades.h"
#include "intercambio/fisica/Solverdadero.h"

#include <cmath>

namespace tesmo {

SolDeReloj::SolDeReloj(const AnioCanonico &anio, const EscalaTiempo &escala)
    : anio_(anio), escala_(escala), latitud_(anio.sitio.latitud * GRADO) {}

double SolDeReloj::Coseno(std::size_t i, double minutos) const {
  const double instante = escala_.Centro(i) + minutos / MINUTOS_POR_HORA;
  return CosenoDe(SolVerdadero(anio_.anios[i], escala_.DiaUtc(instante)).declinacion,
                  escala_.ASolar(instante));
}

double SolDeReloj::CosenoSolar(double solar) const {
  return CosenoDe(SolVerdadero(0, escala_.DiaUtc(escala_.DeSolar(solar))).declinacion, solar);
}

double SolDeReloj::CosenoDe(double declinacion, double solar) const {
  return std::sin(latitud_) * std::sin(declinacion) +
         std::cos(latitud_) * std::cos(declinacion) * std::cos((solar - MEDIODIA) * GIRO_POR_HORA);
}

} // namespace tesmo
