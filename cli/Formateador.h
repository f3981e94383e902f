#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace tesmo::cli {

/// Nombre del grupo en que la ayuda lista las opciones.
inline constexpr const char *GRUPO_OPCIONES = "Opciones";
inline constexpr const char *GRUPO_ORDENES = "Órdenes";

/// La ayuda de CLI11 con sus rótulos en español.
class Formateador : public CLI::Formatter {
public:
  Formateador();
  std::string make_option_opts(const CLI::Option *opcion) const override;
};

/// Lo que CLI11 dice en inglés de unos argumentos mal dados, en español. @p orden: la más interior que se
/// llegó a reconocer.
[[nodiscard]] std::string ErrorEnEspanol(const CLI::ParseError &error, const CLI::App &orden);

} // namespace tesmo::cli
