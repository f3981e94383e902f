#pragma once

#include "intercambio/conversion/Aniosolar.h"
#include "intercambio/conversion/Radiacionsolar.h"
#include "intercambio/fisica/Soldelanio.h"
#include "intercambio/magnitudes/Aniocompleto.h"

namespace tesmo {

/// Una conversión, antes y después.
struct ConversionHecha {
  const AnioCanonico &anio;
  const AnioCompleto &completo;
  const EscalaTiempo &escala;
  const AnioSolar &solar;
  const RadiacionEnHoraSolar &radiacion;
  const SolDelAnio &sol; ///< el de los motores
};

/// Pone en @p informe las cuentas, los picos, las energías y el cierre de @p hecha; añade los avisos de lo
/// que se perdió.
void Informar(InformeConversion &informe, const ConversionHecha &hecha);

} // namespace tesmo
