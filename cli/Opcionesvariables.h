#pragma once

#include "cli/Interprete.h"
#include "cli/Opcionesseleccion.h"

#include <optional>
#include <string>
#include <vector>

namespace tesmo::cli {

/// Lo que comparten las órdenes que escriben variables de una selección.
struct OpcionesVariables {
  OpcionesSeleccion seleccion;
  std::vector<std::string> variables;
  std::optional<std::string> registro;
  bool json = false;
};

/// Añade el registro, --json y las variables, obligatorias; la selección la añade AnadirSeleccion.
void AnadirVariables(CLI::App &orden, OpcionesVariables &opciones);

} // namespace tesmo::cli
