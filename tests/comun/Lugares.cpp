#include "tests/comun/Lugares.h"

namespace tesmo::prueba {

std::string Raiz() { return TESMO_RAIZ; }

std::string Programas() { return TESMO_BIN; }

} // namespace tesmo::prueba
