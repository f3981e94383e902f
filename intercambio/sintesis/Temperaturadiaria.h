#pragma once

#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/sintesis/Azar.h"
#include "intercambio/sintesis/Normales.h"

namespace tesmo {

/// Máxima y mínima de cada día [°C].
struct TemperaturasDiarias {
  SerieDias maximas;
  SerieDias minimas;
};

/// Un año de máximas y mínimas diarias con las medias, desviaciones dentro del mes y correlaciones de
/// @p localidad. Las anomalías son un proceso autorregresivo de dos variables y primer orden con matriz
/// diagonal (Matalas, 1967; Richardson, 1981; Salas, Delleur, Yevjevich y Lane, 1980, cap. 8), cerrado de
/// diciembre a enero; media y desviación de cada mes se ajustan por perfiles sin escalón entre meses.
/// La máxima supera a la mínima de su día y a las de los días vecinos.
[[nodiscard]] TemperaturasDiarias GenerarTemperaturasDiarias(const NormalesLocalidad &localidad, Azar &azar);

} // namespace tesmo
