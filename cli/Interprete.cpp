#include "cli/Interprete.h"

#include "cli/Argumentos.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <utility>

namespace tesmo::cli {

namespace {

/// Grupos en que la ayuda lista las opciones y las órdenes.
constexpr const char *GRUPO_OPCIONES = "Opciones";
constexpr const char *GRUPO_ORDENES = "Órdenes";
/// Ancho de la columna de nombres [caracteres]: caben los de la selección con su valor.
constexpr std::size_t ANCHO_NOMBRES = 34;

/// La ayuda de CLI11 con sus rótulos en español.
class Formateador : public CLI::Formatter {
public:
  Formateador() {
    label("Usage", "Uso");
    label("OPTIONS", "OPCIONES");
    label("SUBCOMMAND", "ORDEN");
    label("SUBCOMMANDS", "ORDENES");
    label("Positionals", "Argumentos");
    column_width(ANCHO_NOMBRES);
  }
  std::string make_option_opts(const CLI::Option *opcion) const override {
    const bool varios = opcion->get_expected_max() == CLI::detail::expected_max_vector_size;
    const std::string tipo = opcion->get_type_name();
    return (tipo.empty() ? "" : " " + tipo) + (varios ? " ..." : "");
  }
};

std::string Antes(const std::string &texto, const std::string &corte) {
  return texto.substr(0, texto.find(corte));
}

std::string Despues(const std::string &texto, const std::string &corte) {
  const std::size_t lugar = texto.find(corte);
  return lugar == std::string::npos ? texto : texto.substr(lugar + corte.size());
}

/// Lo que CLI11 dice en inglés de unos argumentos mal dados, en español. @p orden: la más interior que se
/// llegó a reconocer.
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

/// La orden más interior de las que se reconocieron.
const CLI::App &OrdenDada(const CLI::App &raiz) {
  const CLI::App *orden = &raiz;
  while (!orden->get_subcommands().empty()) orden = orden->get_subcommands().front();
  return *orden;
}

std::string NombreCompleto(const CLI::App &orden) {
  return orden.get_parent() == nullptr ? orden.get_name()
                                       : NombreCompleto(*orden.get_parent()) + " " + orden.get_name();
}

} // namespace

CLI::App &AnadirOrden(CLI::App &madre, const std::string &nombre, const std::string &descripcion,
                      const std::string &pie) {
  CLI::App *orden = madre.add_subcommand(nombre, descripcion);
  orden->group(GRUPO_ORDENES);
  orden->get_help_ptr()->group(GRUPO_OPCIONES); // la copia de la madre pierde el grupo
  orden->footer(pie);
  return *orden;
}

void ExigirOrdenDentro(CLI::App &orden) { orden.require_subcommand(1); }

void AlReconocer(CLI::App &orden, std::function<void()> accion) { orden.callback(std::move(accion)); }

CLI::Option &AnadirValor(CLI::App &orden, const std::string &nombres, std::optional<std::string> &destino,
                         const std::string &tipo, const std::string &ayuda) {
  const auto guardar = [&destino](const std::string &texto) { destino = Desproteger(texto); };
  return *orden.add_option_function<std::string>(nombres, guardar, ayuda)->type_name(tipo);
}

CLI::Option &AnadirInterruptor(CLI::App &orden, const std::string &nombres, bool &destino,
                               const std::string &ayuda) {
  return *orden.add_flag(nombres, destino, ayuda);
}

CLI::Option &AnadirArgumento(CLI::App &orden, const std::string &nombre, std::optional<std::string> &destino,
                             const std::string &ayuda) {
  return AnadirValor(orden, nombre, destino, "", ayuda);
}

CLI::Option &AnadirArgumentos(CLI::App &orden, const std::string &nombre, std::vector<std::string> &destino,
                              const std::string &ayuda) {
  const auto guardar = [&destino](const std::vector<std::string> &textos) {
    for (const std::string &texto : textos) destino.push_back(Desproteger(texto));
  };
  return *orden.add_option_function<std::vector<std::string>>(nombre, guardar, ayuda)->type_name("");
}

void Exigir(CLI::Option &opcion) { opcion.required(); }

Interprete::Interprete(const std::string &nombre, const std::string &descripcion, const std::string &pie)
    : raiz_(std::make_unique<CLI::App>(descripcion, nombre)) {
  raiz_->allow_windows_style_options(false);
  raiz_->option_defaults()->group(GRUPO_OPCIONES);
  raiz_->formatter(std::make_shared<Formateador>());
  raiz_->set_help_flag("-h,--help,--ayuda", "Enseña esta ayuda");
  raiz_->footer(pie);
  ExigirOrdenDentro(*raiz_);
}

Interprete::~Interprete() = default;

Interpretacion Interprete::Interpretar(const std::vector<std::string> &argumentos) {
  Interpretacion interpretacion;
  std::vector<std::string> alReves = Proteger(argumentos);
  std::reverse(alReves.begin(), alReves.end()); // CLI11 los consume por el final
  try {
    raiz_->parse(std::move(alReves));
  } catch (const CLI::CallForHelp &) {
    interpretacion.ayuda = raiz_->help();
  } catch (const CLI::ParseError &error) {
    interpretacion.error = ErrorEnEspanol(error, OrdenDada(*raiz_));
  }
  interpretacion.orden = NombreCompleto(OrdenDada(*raiz_));
  return interpretacion;
}

} // namespace tesmo::cli
