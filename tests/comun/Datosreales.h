#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace tesmo::prueba {

/// Ruta de un fichero climático real, de los que no van con el proyecto. Se busca en la carpeta que diga la
/// variable de entorno TESMO_DATOS_REALES o, si no está, en la que se dio al configurar; vacía si no lo hay.
[[nodiscard]] std::optional<std::filesystem::path> DatoReal(const std::string &nombre);

} // namespace tesmo::prueba

/// Salta la prueba, diciéndolo, si falta el fichero real @p nombre; si está, pone su ruta en @p variable.
#define TESMO_DATO_REAL(variable, nombre)                                                                    \
  const auto variable##_hallado = tesmo::prueba::DatoReal(nombre);                                           \
  if (!variable##_hallado) GTEST_SKIP() << "sin " << (nombre) << ": falta la carpeta de datos reales";       \
  const std::string variable = tesmo::TextoDeRuta(*variable##_hallado)
