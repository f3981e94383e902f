#include "cli/Ordenes.h"

#include "cli/Argumentos.h"
#include "cli/Opcionesseleccion.h"
#include "cli/Tabla.h"
#include "core/Error.h"
#include "psicro/Constantes.h"
#include "psicro/Corrienteaire.h"

#include <array>
#include <memory>

namespace tesmo::cli {

namespace {

using Fijar = void (CorrienteAire::*)(float, float, float);

struct OrdenDeAire {
  const char *nombre;
  Fijar fijar;
};
constexpr std::array<OrdenDeAire, 6> ORDENES_DE_AIRE{{{"pont_w", &CorrienteAire::pont_w},
                                                      {"pont_th", &CorrienteAire::pont_th},
                                                      {"pont_tr", &CorrienteAire::pont_tr},
                                                      {"pont_hr", &CorrienteAire::pont_hr},
                                                      {"pont_h", &CorrienteAire::pont_h},
                                                      {"ponw_h", &CorrienteAire::ponw_h}}};
const std::vector<std::string> CODIGOS{"m", "p", "t", "w", "th", "tr", "hr", "h", "ro", "ve"};

struct Datos {
  std::optional<std::string> orden, a, b, p;
  bool json = false;
};

Fijar BuscarOrden(const std::string &nombre) {
  for (const OrdenDeAire &orden : ORDENES_DE_AIRE)
    if (nombre == orden.nombre) return orden.fijar;
  throw Fallo(Estado::UsoIncorrecto, "orden de aire desconocida: " + nombre);
}

void Ejecutar(const Datos &datos, Contexto &contexto) {
  const Fijar fijar = BuscarOrden(*datos.orden);
  const auto a = static_cast<float>(LeerNumero(*datos.a, "A"));
  const auto b = static_cast<float>(LeerNumero(*datos.b, "B"));
  const float p = datos.p ? static_cast<float>(LeerNumero(*datos.p, "P")) : aire::PRESION_NORMAL;
  CorrienteAire aire;
  // Los diagnósticos no llevan fin de línea; aquí cada uno ocupa la suya.
  AbrirRegistroEn([&contexto](std::string_view texto) { contexto.error << texto << '\n'; });
  (aire.*fijar)(a, b, p);
  std::vector<Celda> valores;
  valores.reserve(CODIGOS.size());
  for (const std::string &codigo : CODIGOS) valores.emplace_back(static_cast<double>(aire.dame(codigo)));
  CerrarRegistro();
  Tabla tabla(Tabla::Forma::Propiedades, CODIGOS);
  tabla.Anadir(std::move(valores));
  contexto.salida << tabla.Como(datos.json);
}

} // namespace

void RegistrarAire(CLI::App &raiz, Contexto &contexto) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden =
      NuevaOrden(raiz, "aire",
                 {"Estado del aire húmedo a partir de dos magnitudes y la presión",
                  "Escribe caudal m [kg/s], presión p [Pa], temperaturas t, húmeda th y de rocío tr [°C], "
                  "humedad absoluta w\n"
                  "[kg/kg] y relativa hr [%], entalpía h [J/kg], densidad ro [kg/m³] y volumen específico ve "
                  "[m³/kg], uno por\n"
                  "línea. Lo que se sale de límites se lleva a ellos y se dice en la salida de errores.",
                  "aire pont_hr 25 50\naire pont_w -5 0.002 93000\naire pont_h 20 40000 --json"});
  Exigir(AnadirArgumento(orden, "ORDEN", datos->orden, "pont_w, pont_th, pont_tr, pont_hr, pont_h o ponw_h"));
  Exigir(AnadirArgumento(orden, "A", datos->a, "Temperatura seca [°C]; en ponw_h, humedad absoluta [kg/kg]"));
  Exigir(AnadirArgumento(orden, "B", datos->b,
                         "Lo que dice la orden: w [kg/kg], th o tr [°C], hr [%], h [J/kg]"));
  AnadirArgumento(orden, "P", datos->p, "Presión [Pa] (101325)");
  AnadirJson(orden, datos->json);
  AlEjecutar(orden, contexto, datos, Ejecutar);
}

} // namespace tesmo::cli
