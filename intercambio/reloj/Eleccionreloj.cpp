#include "intercambio/reloj/Eleccionreloj.h"

namespace tesmo {

RelojFichero ElegirReloj(const VeredictoReloj &veredicto, const EleccionReloj &eleccion) {
  constexpr double FIN_DE_LA_HORA_MIN = -30.0; // lo corriente: la etiqueta es el final de su hora
  const RelojFichero &declarado = veredicto.declarado.reloj;
  RelojFichero reloj = veredicto.confianza >= ConfianzaReloj::Media ? veredicto.propuesto.reloj : declarado;
  if (eleccion.tiempo && *eleccion.tiempo != reloj.tiempo) {
    reloj = declarado;
    if (*eleccion.tiempo != declarado.tiempo) reloj.desfaseMin = FIN_DE_LA_HORA_MIN;
    reloj.tiempo = *eleccion.tiempo;
  }
  if (eleccion.desfaseMin) reloj.desfaseMin = *eleccion.desfaseMin;
  if (eleccion.husoHoras) reloj.husoHoras = *eleccion.husoHoras;
  return reloj;
}

} // namespace tesmo
