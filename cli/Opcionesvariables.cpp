#include "cli/Opcionesvariables.h"

#include "cli/Argumentos.h"

namespace tesmo::cli {

void AnadirVariables(CLI::App &orden, OpcionesVariables &opciones) {
  AnadirRegistro(orden, opciones.registro);
  AnadirJson(orden, opciones.json);
  Exigir(
      AnadirArgumentos(orden, "VARIABLE", opciones.variables, "Código (TS, RSDr, …, HAkg) o rótulo exacto"));
}

} // namespace tesmo::cli
