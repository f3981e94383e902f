#pragma once

#include "cli/Contexto.h"
#include "cli/Interprete.h"
#include "intercambio/Aniodefichero.h"
#include "intercambio/formatos/Mapacolumnas.h"

#include <memory>
#include <optional>
#include <string>

namespace tesmo::cli {

/// Opciones de las órdenes que llevan un fichero ajeno a la hora de los cálculos, tal como se teclean.
struct OpcionesReloj {
  std::optional<std::string> reloj, desfase, huso, altitud, mapa;
  bool rellenar = false;
};
/// Sólo la opción --mapa.
void AnadirMapa(CLI::App &orden, std::optional<std::string> &mapa);
void AnadirReloj(CLI::App &orden, OpcionesReloj &opciones);

/// Lanzan Fallo (uso incorrecto) si algo no vale.
[[nodiscard]] EleccionReloj InterpretarReloj(const OpcionesReloj &opciones);
/// El mapa del fichero que se dio; nulo si no se dio. Fallo (falta la entrada) si no se abre o no se
/// entiende.
[[nodiscard]] std::shared_ptr<const MapaColumnas> InterpretarMapa(const std::optional<std::string> &mapa);
[[nodiscard]] OpcionesLectura InterpretarLectura(const OpcionesReloj &opciones);

/// Avisos de la lectura y de la conversión de un fichero, uno por línea y con su nombre delante.
void AvisarDeFichero(const std::string &fichero, const AnioDeFichero &anio, Contexto &contexto);

} // namespace tesmo::cli
