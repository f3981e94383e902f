#include "cli/Formateador.h"

#include "cli/Argumentos.h"

namespace tesmo::cli {

namespace {

/// Ancho de la columna de nombres [caracteres]: caben los de la selección con su valor.
constexpr std::size_t ANCHO_NOMBRES = 34;

std::string Antes(const std::string &texto, const std::string &corte) {
  return texto.substr(0, texto.find(corte));
}

std::string Despues(const std::string &texto, const std::string &corte) {
  const std::size_t lugar = texto.find(corte);
  return lugar == std::string::npos ? texto : texto.substr(lugar + corte.size());
}

} // namespace

Formateador::Formateador() {
  label("Usage", "Uso");
  label("OPTIONS", "OPCIONES");
  label("SUBCOMMAND", "ORDEN");
  label("SUBCOMMANDS", "ORDENES");
  label("Positionals", "Argumentos");
  column_width(ANCHO_NOMBRES);
}

std::string Formateador::make_option_opts(const CLI::Option *opcion) const {
  const bool varios = opcion->get_expected_max() == CLI::detail::expected_max_vector_size;
  const std::string tipo = opcion->get_type_name();
  return (tipo.empty() ? "" : " " + tipo) + (varios ? " ..." : "");
}

std::string ErrorEnEspanol(const CLI::ParseError &error, const CLI::App &orden) {
  const std::string ingles = Desproteger(error.what());
  if (dynamic_cast<const CLI::ExtrasError *>(&error) != nullptr)
    return "orden, opción o argumento desconocido: " + Despues(ingles, ": ");
  if (dynamic_cast<const CLI::RequiredError *>(&error) != nullptr) {
    const std::vector<std::string> sobra = orden.remaining(true);
    if (!ingles.starts_with("A subcommand")) return "falta " + Antes(ingles, " is required");
    return sobra.empty() ? "falta la orden" : "orden desconocida: " + Desproteger(sobra.front());
  }
  if (dynamic_cast<const CLI::ArgumentMismatch *>(&error) != nullptr) {
    const bool faltan = ingles.ends_with("missing");
    return Antes(ingles, ":") + (faltan ? ": falta su valor" : ": se ha dado más de una vez");
  }
  return "argumentos mal dados: " + Antes(Antes(ingles, ":"), " ");
}

} // namespace tesmo::cli
