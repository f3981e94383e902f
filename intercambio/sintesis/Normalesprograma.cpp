#include "intercambio/sintesis/Normalesprograma.h"

#include "core/Ficheros.h"
#include "core/Sistema.h"

namespace tesmo {

std::string RutaNormalesDelPrograma() {
  return TextoDeRuta(RutaEjecutable().parent_path() / "datos" / "normales.csv");
}

std::vector<NormalesLocalidad> NormalesDelPrograma() {
  const std::string ruta = RutaNormalesDelPrograma();
  const auto texto = LeerFicheroEntero(RutaDesdeTexto(ruta));
  if (!texto) return {};
  std::vector<std::string> errores;
  std::vector<NormalesLocalidad> normales = LeerNormales(*texto, ruta, errores);
  return errores.empty() ? normales : std::vector<NormalesLocalidad>();
}

} // namespace tesmo
