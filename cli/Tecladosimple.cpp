#include "cli/Teclado.h"

namespace tesmo::cli {

// Sin biblioteca de edición no hay diálogo: la entrada se lee seguida, sea lo que sea.

bool EntradaEsTerminal() { return false; }

std::optional<std::string> LeerLineaTecleada(const std::string & /*aviso*/, const Completar & /*completar*/) {
  return std::nullopt;
}

} // namespace tesmo::cli
