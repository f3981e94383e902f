#include "vistas/intercambio/Cajacurso.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

HorasCurso HorasDelCurso(double salida, double puesta) {
  return {std::max(0.0, 2.0 * std::floor((salida - 1.0) / 2.0)),
          std::min(24.0, 2.0 * std::ceil((puesta + 1.0) / 2.0))};
}

} // namespace tesmo
