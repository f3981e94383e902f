#include "intercambio/reloj/Eleccionreloj.h"

#include "core/Unidades.h"

#include <cmath>

namespace tesmo {

namespace {

/// El desfase [min] con que @p reloj, de hora oficial o UTC, dice lo mismo en el otro de los dos; vacío si
/// alguno no es de ellos o si no cabe en los que se admiten.
std::optional<double> DesfaseEnOtroTiempoCivil(const RelojFichero &reloj, TiempoEtiqueta otro) {
  if (reloj.tiempo == TiempoEtiqueta::SolarVerdadero || otro == TiempoEtiqueta::SolarVerdadero)
    return std::nullopt;
  const double sentido = otro == TiempoEtiqueta::Utc ? -1.0 : 1.0;
  const double desfase = reloj.desfaseMin + sentido * reloj.husoHoras * MINUTOS_POR_HORA;
  return std::fabs(desfase) <= DESFASE_MAXIMO_MIN ? std::optional(desfase) : std::nullopt;
}

} // namespace

RelojFichero ElegirReloj(const VeredictoReloj &veredicto, const EleccionReloj &eleccion) {
  constexpr double FIN_DE_LA_HORA_MIN = -30.0; // lo corriente: la etiqueta es el final de su hora
  const RelojFichero &declarado = veredicto.declarado.reloj;
  const bool fiable = veredicto.confianza >= ConfianzaReloj::Media;
  RelojFichero reloj = fiable ? veredicto.propuesto.reloj : declarado;
  if (eleccion.tiempo && *eleccion.tiempo != reloj.tiempo) {
    const std::optional<double> hallado =
        fiable && !veredicto.concuerda ? DesfaseEnOtroTiempoCivil(reloj, *eleccion.tiempo) : std::nullopt;
    reloj = declarado;
    if (*eleccion.tiempo != declarado.tiempo) reloj.desfaseMin = hallado.value_or(FIN_DE_LA_HORA_MIN);
    reloj.tiempo = *eleccion.tiempo;
  }
  if (eleccion.desfaseMin) reloj.desfaseMin = *eleccion.desfaseMin;
  if (eleccion.husoHoras) reloj.husoHoras = *eleccion.husoHoras;
  return reloj;
}

} // namespace tesmo
