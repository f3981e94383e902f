#include "intercambio/sintesis/Normalesprograma.h"

#include "core/Ficheros.h"
#include "core/Sistema.h"

#include <filesystem>

namespace tesmo {

namespace {

std::filesystem::path EnDirectorio(const std::filesystem::path &base) {
  return base / "datos" / "normales.csv";
}

std::vector<NormalesLocalidad> LeerSiEstan(const std::string &ruta) {
  const auto texto = LeerFicheroEntero(RutaDesdeTexto(ruta));
  if (!texto) return {};
  std::vector<std::string> errores;
  std::vector<NormalesLocalidad> normales = LeerNormales(*texto, ruta, errores);
  return errores.empty() ? normales : std::vector<NormalesLocalidad>();
}

} // namespace

std::string RutaNormalesDelPrograma() { return TextoDeRuta(EnDirectorio(RutaEjecutable().parent_path())); }

std::vector<NormalesLocalidad> NormalesDelPrograma() { return LeerSiEstan(RutaNormalesDelPrograma()); }

std::vector<NormalesLocalidad> NormalesDeSuBase(const std::string &fichero) {
  const std::filesystem::path directorio = RutaDesdeTexto(fichero).parent_path();
  return LeerSiEstan(TextoDeRuta(EnDirectorio(directorio.parent_path())));
}

} // namespace tesmo
