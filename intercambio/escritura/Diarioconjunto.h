#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Lo que el diario de una sustitución conjunta apunta de cada fichero.
struct ApunteConjunto {
  std::string nombre;                    ///< en el directorio, sin separadores
  std::uint64_t huellaNueva = 0;         ///< del contenido que se pone
  std::optional<std::uint64_t> anterior; ///< huella del que había; vacía si no lo había
};

/// Huella de un contenido (FNV-1a de 64 bits; Fowler, Noll y Vo, 1991).
[[nodiscard]] std::uint64_t Huella(std::string_view contenido);

/// El diario de una sustitución conjunta.
struct DiarioConjunto {
  bool deshacer = false; ///< se empezó a reponer lo de antes: ya no se puede terminar
  std::vector<ApunteConjunto> apuntes;
};

[[nodiscard]] std::string TextoDiario(const DiarioConjunto &diario);
/// Vacío si el texto está incompleto o nombra un fichero de otro directorio.
[[nodiscard]] std::optional<DiarioConjunto> LeerDiario(std::string_view texto);

} // namespace tesmo
