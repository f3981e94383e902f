#include "intercambio/auditoria/Comprobaciones.h"
#include "intercambio/auditoria/Hallazgos.h"

#include <cmath>

namespace tesmo {

Hallazgo MirarReloj(const MateriaAuditoria &materia) {
  // Un cuarto de hora mueve ya la irradiación de una fachada a poniente un 6 % o más: convertir con lo
  // declarado daría otro año, y hay que verlo.
  constexpr double MINUTOS_DE_AVISO = 10.0;
  const VeredictoReloj &veredicto = materia.reloj;
  std::string texto = veredicto.texto.empty() ? "no se pudo medir" : veredicto.texto;
  for (const std::string &aviso : veredicto.avisos) texto += " " + aviso;
  if (veredicto.metodo == MetodoReloj::Ninguno) return NoComprobada(texto);
  const bool otroTiempo = veredicto.propuesto.reloj.tiempo != veredicto.declarado.reloj.tiempo;
  const double diferencia =
      std::abs(veredicto.propuesto.reloj.desfaseMin - veredicto.declarado.reloj.desfaseMin);
  const bool distinto = !veredicto.concuerda && (otroTiempo || diferencia > MINUTOS_DE_AVISO);
  if (distinto || veredicto.confianza < ConfianzaReloj::Media || !veredicto.avisos.empty())
    return {Gravedad::Aviso, texto, {}};
  return Conforme(texto);
}

} // namespace tesmo
