#include "tests/comun/Datosreales.h"

#include "core/Ficheros.h"

#include <cstdlib>

namespace tesmo::prueba {

std::optional<std::filesystem::path> DatoReal(const std::string &nombre) {
  const char *carpeta = std::getenv("TESMO_DATOS_REALES");
  const std::filesystem::path ruta =
      RutaDesdeTexto(carpeta != nullptr ? carpeta : TESMO_CARPETA_DATOS_REALES) / RutaDesdeTexto(nombre);
  std::error_code error;
  return std::filesystem::is_regular_file(ruta, error) ? std::optional(ruta) : std::nullopt;
}

} // namespace tesmo::prueba
