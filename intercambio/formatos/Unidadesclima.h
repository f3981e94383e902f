#pragma once

#include "intercambio/comun/Aniocanonico.h"

#include <string_view>
#include <vector>

namespace tesmo {

/// Una unidad en que puede venir escrito un campo: canónico = factor · escrito + sumando.
struct UnidadClima {
  std::string_view nombre;
  double factor = 1.0;
  double sumando = 0.0;
};

/// Las unidades en que se entiende un campo; la primera es la del año canónico.
[[nodiscard]] const std::vector<UnidadClima> &UnidadesDe(Campo campo);
/// La unidad de @p campo que se llama @p nombre ("m2" vale por "m²" y "º" por "°"); nula si no la hay.
[[nodiscard]] const UnidadClima *BuscarUnidad(Campo campo, std::string_view nombre);

} // namespace tesmo
