#include "cli/Perfildehorizonte.h"

namespace tesmo::cli {

HorizonteLeido LeerHorizonteDado(const std::string &ruta, const std::string &dada, Contexto &contexto) {
  FalloLectura fallo;
  std::optional<HorizonteLeido> leido = LeerHorizonteDeFichero(ruta, fallo);
  if (!leido) {
    throw Fallo(Estado::FaltaEntrada,
                "no se puede leer el perfil de horizonte: " + DescribirFallo(dada, fallo));
  }
  if (leido->origenSupuesto) {
    Avisar(contexto, dada + ": " + std::string(QueSeSupuso(*leido)) +
                         "; si no es así, «horizonte convertir» los gira y los refleja");
  }
  return *std::move(leido);
}

} // namespace tesmo::cli
