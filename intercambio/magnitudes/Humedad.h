#pragma once

#include "intercambio/magnitudes/Aniocompleto.h"
#include "psicro/Corrienteaire.h"

namespace tesmo {

/// Humedad de un aire de temperatura y presión conocidas.
struct HumedadDeHora {
  double absoluta = AUSENTE; ///< [kg/kg]
  double relativa = AUSENTE; ///< [%]
  double rocio = AUSENTE;    ///< [°C]
};

/// Pone en @p completo la presión (la del fichero o, donde falte, la de la atmósfera normal a la altitud del
/// sitio) y las humedades: la absoluta del fichero; si no, la de su humedad relativa, o de su rocío, a la
/// presión de la hora, por CorrienteAire. La temperatura seca ha de estar ya.
void CompletarHumedad(const AnioCanonico &anio, AnioCompleto &completo);

/// Deja en @p aire el de temperatura @p seca [°C] y humedad @p absoluta [kg/kg] a @p presion [Pa]: la
/// absoluta no pasa de la de saturación, ni baja de cero. Con @p conRocio, también su rocío.
[[nodiscard]] HumedadDeHora HumedadDeAbsoluta(CorrienteAire &aire, double seca, double absoluta,
                                              double presion, bool conRocio);
/// El de humedad @p relativa [%], llevada a 0…100.
[[nodiscard]] HumedadDeHora HumedadDeRelativa(CorrienteAire &aire, double seca, double relativa,
                                              double presion);
/// El de temperatura de @p rocio [°C], que no pasa de la seca.
[[nodiscard]] HumedadDeHora HumedadDeRocio(CorrienteAire &aire, double seca, double rocio, double presion);

} // namespace tesmo
