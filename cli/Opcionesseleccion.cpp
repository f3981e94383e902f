#include "cli/Opcionesseleccion.h"

#include "cli/Argumentos.h"
#include "core/Error.h"
#include "core/Ficheros.h"
#include "core/Rutas.h"
#include "intercambio/escritura/Importacion.h"

namespace tesmo::cli {

namespace {

/// El texto de una casilla de la superficie: vacío vale (se dirá que falta), otra cosa ha de ser un número.
/// Los límites los pone la entrada validada.
std::string TextoDeCasilla(const std::optional<std::string> &texto, const char *opcion,
                           const std::string &porDefecto) {
  if (!texto) return porDefecto;
  if (!texto->empty()) static_cast<void>(LeerNumero(*texto, opcion));
  return *texto;
}

/// Un real optativo, sin límites: los de la altitud se miran al usarla.
std::optional<float> LeerReal(const std::optional<std::string> &texto, const char *opcion) {
  if (!texto) return std::nullopt;
  return static_cast<float>(LeerNumero(*texto, opcion));
}

Periodo LeerPeriodo(const OpcionesSeleccion &opciones, Periodo periodo) {
  if (opciones.desde) periodo.inicio = LeerFecha(*opciones.desde, "--desde");
  if (opciones.hasta) periodo.fin = LeerFecha(*opciones.hasta, "--hasta");
  const auto &[a, b] = periodo;
  if (IndiceHora(b.mes, b.dia, b.hora) < IndiceHora(a.mes, a.dia, a.hora))
    throw Fallo(Estado::UsoIncorrecto, "el período acaba antes de empezar");
  return periodo;
}

} // namespace

void AnadirBase(CLI::App &orden, std::optional<std::string> &base) {
  AnadirValor(orden, "--base", base, "DIRECTORIO", "Donde está config.ini (si no se da, junto al programa)");
}

void AnadirRegistro(CLI::App &orden, std::optional<std::string> &registro) {
  AnadirValor(orden, "--registro", registro, "FICHERO", "Apunta en él los diagnósticos del cálculo");
}

void AnadirJson(CLI::App &orden, bool &json) {
  AnadirInterruptor(orden, "--json", json,
                    "Escribe el resultado en JSON; lo que no es un número finito, null");
}

void AnadirSeleccion(CLI::App &orden, OpcionesSeleccion &opciones) {
  AnadirValor(orden, "--localidad", opciones.localidad, "NOMBRE", "Localidad, como la escribe «localidades»");
  AnadirValor(orden, "--fichero", opciones.fichero, "RUTA", "Fichero .met, en vez de una localidad");
  AnadirValor(orden, "--desde", opciones.desde, "M/D/H", "Primera hora (1/1/1)");
  AnadirValor(orden, "--hasta", opciones.hasta, "M/D/H", "Última hora, incluida (12/31/24)");
  AnadirValor(orden, "--inclinacion", opciones.inclinacion, "GRADOS",
              "De la superficie, desde la horizontal, 0 a 180 (90)");
  AnadirValor(orden, "--orientacion", opciones.orientacion, "GRADOS",
              "De la superficie, desde el sur, oeste positivo, -180 a 180 (0)");
  AnadirValor(orden, "--albedo", opciones.albedo, "FRACCION", "Reflectancia del suelo, 0 a 1 (0.2)");
  AnadirValor(orden, "--presion", opciones.presion, "PA", "Presión atmosférica");
  AnadirValor(orden, "--altitud", opciones.altitud, "M",
              "Altitud que fija la presión, -500 a 9000 (la que trae el fichero)");
  AnadirValor(orden, "--horizonte", opciones.horizonte, "FICHERO", "Perfil de horizonte");
  AnadirBase(orden, opciones.base);
}

PeticionPresion InterpretarPresion(const OpcionesSeleccion &opciones) {
  if (opciones.presion && opciones.altitud)
    throw Fallo(Estado::UsoIncorrecto, "--presion y --altitud no pueden ir juntas");
  return {LeerReal(opciones.presion, "--presion"), LeerReal(opciones.altitud, "--altitud")};
}

PeticionSeleccion Interpretar(const OpcionesSeleccion &opciones) {
  if (opciones.localidad.has_value() == opciones.fichero.has_value())
    throw Fallo(Estado::UsoIncorrecto, "hay que dar --localidad o --fichero, y sólo una de las dos");
  PeticionSeleccion peticion;
  peticion.periodo = LeerPeriodo(opciones, peticion.periodo);
  auto &[inclinacion, orientacion, albedo] = peticion.superficie;
  inclinacion = TextoDeCasilla(opciones.inclinacion, "--inclinacion", inclinacion);
  orientacion = TextoDeCasilla(opciones.orientacion, "--orientacion", orientacion);
  albedo = TextoDeCasilla(opciones.albedo, "--albedo", albedo);
  const PeticionPresion presion = InterpretarPresion(opciones);
  peticion.presion = presion.presion;
  peticion.altitud = presion.altitud;
  peticion.localidad = opciones.localidad.value_or("");
  peticion.fichero = RutaDeEntrada(opciones.fichero, "--fichero");
  peticion.horizonte = RutaDeEntrada(opciones.horizonte, "--horizonte");
  peticion.base = RutaDeEntrada(opciones.base, "--base");
  return peticion;
}

std::vector<Magnitud> LeerMagnitudes(const std::vector<std::string> &nombres) {
  std::vector<Magnitud> magnitudes;
  for (const std::string &nombre : nombres) {
    const FichaMagnitud *ficha = BuscarPorRotulo(nombre);
    if (ficha == nullptr) ficha = BuscarPorCodigo(nombre);
    if (ficha == nullptr) throw Fallo(Estado::UsoIncorrecto, "variable desconocida: " + nombre);
    magnitudes.push_back(ficha->magnitud);
  }
  return magnitudes;
}

void IniciarBase(const std::string &base, Contexto &contexto) {
  std::error_code error;
  if (!base.empty() && !std::filesystem::is_directory(RutaDesdeTexto(base), error))
    throw Fallo(Estado::FaltaEntrada, "--base: no es un directorio: " + base);
  if (!base.empty()) IniciarConfiguracion(base);
  const std::string hecho = RecuperarImportacion(DameConfiguracion().RutaMeteo(""));
  if (!hecho.empty()) Avisar(contexto, hecho);
}

void IniciarRegistro(const std::optional<std::string> &registro) {
  if (!registro) return;
  AbrirRegistro(RutaAbsoluta(*registro));
  if (!RegistroAbierto()) throw Fallo(Estado::FaltaSalida, "--registro: no se puede escribir: " + *registro);
}

} // namespace tesmo::cli
