#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tesmo::cli {

/// ¿Es un terminal la entrada del programa? Falso si no hay con qué editar líneas.
[[nodiscard]] bool EntradaEsTerminal();

/// Lo que puede venir detrás de las palabras ya escritas; vacío: nombres de fichero.
using Completar = std::function<std::vector<std::string>(const std::string &escrito)>;

/// Pide una línea en el terminal tras @p aviso, con historia y, con el tabulador, lo que dé @p completar a
/// partir de lo escrito antes de la palabra. Vacío al acabar la entrada.
[[nodiscard]] std::optional<std::string> LeerLineaTecleada(const std::string &aviso,
                                                           const Completar &completar);

} // namespace tesmo::cli
