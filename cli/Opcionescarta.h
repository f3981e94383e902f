#pragma once

#include "cli/Interprete.h"

#include <array>
#include <optional>
#include <string>

namespace tesmo {
class Psicro;
}

namespace tesmo::cli {

/// Opciones que cambian la carta, tal como se teclean.
struct OpcionesCarta {
  static constexpr std::size_t RANGOS = 15; ///< máximo, mínimo y paso de las cinco familias
  std::array<std::optional<std::string>, RANGOS> rangos;
  std::optional<std::string> sin, ancho, alto, zoom, dx, dy, v3, v4;
};
void AnadirCarta(CLI::App &orden, OpcionesCarta &opciones);

/// Tamaño del dibujo [píxeles].
struct TamanoCarta {
  int ancho = 900;
  int alto = 600;
};
/// Lanza Fallo (uso incorrecto) si algo no vale.
[[nodiscard]] TamanoCarta InterpretarTamano(const OpcionesCarta &opciones);
/// Pone en @p carta los rangos, las familias a la vista y la vista; lanza Fallo (uso incorrecto) si algo no
/// vale.
void Aplicar(const OpcionesCarta &opciones, Psicro &carta);

} // namespace tesmo::cli
