#pragma once

#include "core/Calendario.h"

namespace tesmo {

/// Período elegido, ambos extremos incluidos; de fábrica el 1 de enero, horas 1 a 24.
struct Periodo {
  FechaHora inicio{1, 1, 1};
  FechaHora fin{1, 1, 24};
  bool operator==(const Periodo &) const = default;
};

/// Aplica las reglas del período hasta que nada cambia: día dentro de su mes y fin no anterior al inicio.
void ValidarPeriodo(Periodo &periodo);

} // namespace tesmo
