#pragma once

#include "intercambio/comun/Aniocanonico.h"

#include <cstddef>
#include <vector>

namespace tesmo {

/// Un día sin nubes y lo que su simetría dice del reloj.
struct DiaClaro {
  double desfase =
      0; ///< minutos que faltan a la etiqueta para que el centro de su radiación sea mediodía solar
  std::size_t mes = 0; ///< de 0 a 11
};

/// Los días claros de @p anio: los que casi llegan a la mayor energía global de los que los rodean y cambian
/// sin saltos de una hora a otra. Las etiquetas, en el tiempo de @p reloj; su desfase no cuenta.
[[nodiscard]] std::vector<DiaClaro> DiasClaros(const AnioCanonico &anio, const RelojFichero &reloj);

} // namespace tesmo
