#pragma once

#include "meteo/Magnitudes.h"

#include <array>
#include <cstdint>

namespace tesmo {

/// Colores de las 21 magnitudes del visor, en su orden: enteros 0x00BBGGRR. Empieza con los de fábrica.
class Configuracion {
public:
  Configuracion();

  /// Color de la magnitud @p i, o @p porDefecto si @p i no es de 0 a 20.
  [[nodiscard]] std::uint32_t dameColor(int i, std::uint32_t porDefecto) const;
  /// Otro índice que 0 a 20 se ignora.
  void ponColor(int i, std::uint32_t color);

private:
  std::array<std::uint32_t, NUMERO_MAGNITUDES_VISOR> colores_{};
};

/// La tabla compartida, creada la primera vez que se pide.
Configuracion &DameTablaDeColores();
/// La olvida; la próxima petición la crea otra vez con los colores de fábrica.
void LiberarTablaDeColores();

} // namespace tesmo
