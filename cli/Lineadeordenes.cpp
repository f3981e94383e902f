#include "cli/Lineadeordenes.h"

#include "cli/Argumentos.h"
#include "cli/Formateador.h"
#include "cli/Ordenes.h"
#include "core/Error.h"
#include "core/Mensajes.h"
#include "localidades/Ciudad.h"

#include <algorithm>
#include <memory>

namespace tesmo::cli {

namespace {

constexpr const char *NOMBRE = "tesmo-cli";

/// Escribe los mensajes de los motores como "título: texto".
class PresentadorDeLineas : public PresentadorMensajes {
public:
  explicit PresentadorDeLineas(std::ostream &error)
      : error_(error), anterior_(DameMensajes().PonPresentador(this)) {}
  ~PresentadorDeLineas() override { DameMensajes().PonPresentador(anterior_); }
  PresentadorDeLineas(const PresentadorDeLineas &) = delete;
  PresentadorDeLineas &operator=(const PresentadorDeLineas &) = delete;

  void Presentar(const std::string &texto, const std::string &titulo, Icono) override {
    const std::size_t fin = texto.find_last_not_of(" \n"); // las cajas acaban en "\n ": aquí sobra
    error_ << titulo << ": " << texto.substr(0, fin == std::string::npos ? 0 : fin + 1) << '\n';
  }

private:
  std::ostream &error_;
  PresentadorMensajes *anterior_;
};

/// Lleva a la salida de errores los avisos de la base de localidades y cierra el registro al acabar.
class Avisos {
public:
  explicit Avisos(Contexto &contexto)
      : anterior_(PonAvisoLocalidades([&contexto](const std::string &texto) { Avisar(contexto, texto); })) {}
  ~Avisos() {
    PonAvisoLocalidades(std::move(anterior_));
    CerrarRegistro();
  }
  Avisos(const Avisos &) = delete;
  Avisos &operator=(const Avisos &) = delete;

private:
  AvisoLocalidades anterior_;
};

std::string Ejemplos(const std::string &lineas) {
  std::string texto = "Ejemplos:";
  for (std::size_t inicio = 0; inicio < lineas.size();) {
    const std::size_t fin = std::min(lineas.find('\n', inicio), lineas.size());
    texto += "\n  " + std::string(NOMBRE) + " " + lineas.substr(inicio, fin - inicio);
    inicio = fin + 1;
  }
  return texto;
}

void Configurar(CLI::App &raiz, Contexto &contexto) {
  raiz.allow_windows_style_options(false);
  raiz.option_defaults()->group(GRUPO_OPCIONES);
  raiz.formatter(std::make_shared<Formateador>());
  raiz.set_help_flag("-h,--help,--ayuda", "Enseña esta ayuda");
  raiz.require_subcommand(1);
  raiz.footer(
      Ejemplos("localidades\nserie --localidad Almería TS HR\nserie --help") +
      "\n\nCada orden tiene su ayuda: " + NOMBRE +
      " ORDEN --help.\nEstado de salida: 0 hecho, 2 uso incorrecto, 3 falta una entrada, 4 no se pudo "
      "escribir una salida.");
  RegistrarLocalidades(raiz, contexto);
  RegistrarAire(raiz, contexto);
  RegistrarCorriente(raiz, contexto);
  RegistrarCarta(raiz, contexto);
  RegistrarSol(raiz, contexto);
  RegistrarHorizonte(raiz, contexto);
  RegistrarSerie(raiz, contexto);
  RegistrarEstadisticas(raiz, contexto);
  RegistrarExportar(raiz, contexto);
  RegistrarDiasExtremos(raiz, contexto);
  RegistrarImportar(raiz, contexto);
  RegistrarConvertirAnio(raiz, contexto);
  RegistrarSintetizar(raiz, contexto);
  RegistrarAuditar(raiz, contexto);
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

int Escribir(Estado estado, const std::string &texto, const CLI::App &raiz, Contexto &contexto) {
  if (!texto.empty()) contexto.error << "Error: " << texto << '\n';
  if (estado == Estado::UsoIncorrecto)
    contexto.error << "Pruebe: " << NombreCompleto(OrdenDada(raiz)) << " --help\n";
  return static_cast<int>(estado);
}

void Interpretar(CLI::App &raiz, const std::vector<std::string> &argumentos) {
  std::vector<std::string> alReves = Proteger(argumentos);
  std::reverse(alReves.begin(), alReves.end()); // CLI11 los consume por el final
  raiz.parse(std::move(alReves));
}

int Cumplir(CLI::App &raiz, const std::vector<std::string> &argumentos, Contexto &contexto) {
  try {
    Interpretar(raiz, argumentos);
    contexto.accion();
  } catch (const CLI::CallForHelp &) {
    contexto.salida << raiz.help();
  } catch (const CLI::ParseError &fallo) {
    return Escribir(Estado::UsoIncorrecto, ErrorEnEspanol(fallo, OrdenDada(raiz)), raiz, contexto);
  } catch (const Fallo &fallo) {
    return Escribir(fallo.DameEstado(), fallo.what(), raiz, contexto);
  }
  contexto.salida.flush();
  if (contexto.salida.good()) return static_cast<int>(Estado::Hecho);
  return Escribir(Estado::FaltaSalida, "no se pudo escribir el resultado", raiz, contexto);
}

} // namespace

CLI::App &NuevaOrden(CLI::App &raiz, const std::string &nombre, const AyudaOrden &ayuda) {
  CLI::App *orden = raiz.add_subcommand(nombre, ayuda.descripcion);
  orden->group(GRUPO_ORDENES);
  orden->get_help_ptr()->group(GRUPO_OPCIONES); // la copia de la raíz pierde el grupo
  orden->footer(ayuda.detalle + "\n\n" + Ejemplos(ayuda.ejemplos));
  return *orden;
}

int Ejecutar(const std::vector<std::string> &argumentos, std::ostream &salida, std::ostream &error) {
  Contexto contexto{salida, error};
  const PresentadorDeLineas presentador(error);
  const Avisos avisos(contexto);
  CLI::App raiz("Tesmo desde la línea de órdenes: año meteorológico típico, aire húmedo y sol.", NOMBRE);
  Configurar(raiz, contexto);
  return Cumplir(raiz, argumentos, contexto);
}

} // namespace tesmo::cli
