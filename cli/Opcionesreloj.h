#pragma once

#include "cli/Contexto.h"
#include "intercambio/Aniodefichero.h"

#include <CLI/CLI.hpp>

#include <optional>
#include <string>

namespace tesmo::cli {

/// Opciones de las órdenes que llevan un fichero ajeno a la hora de los cálculos, tal como se teclean.
struct OpcionesReloj {
  std::optional<std::string> reloj, desfase;
  bool rellenar = false;
};
void AnadirReloj(CLI::App &orden, OpcionesReloj &opciones);

/// Lanzan Fallo (uso incorrecto) si algo no vale.
[[nodiscard]] EleccionReloj InterpretarReloj(const OpcionesReloj &opciones);
[[nodiscard]] OpcionesLectura InterpretarLectura(const OpcionesReloj &opciones);

/// Avisos de la lectura y de la conversión de un fichero, uno por línea y con su nombre delante.
void AvisarDeFichero(const std::string &fichero, const AnioDeFichero &anio, Contexto &contexto);

} // namespace tesmo::cli
