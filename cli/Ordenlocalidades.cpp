#include "cli/Ordenes.h"

#include "cli/Argumentos.h"
#include "cli/Opcionesseleccion.h"
#include "cli/Tabla.h"
#include "localidades/Ciudad.h"

#include <memory>
#include <set>
#include <utility>

namespace tesmo::cli {

namespace {

struct Datos {
  std::optional<std::string> provincia, base, registro;
  bool json = false;
};

std::vector<Celda> Fila(const ObjetoCiudad &ciudad) {
  return {ciudad.provincia,
          ciudad.localidad,
          ciudad.localidadCorta,
          ciudad.fichero,
          static_cast<double>(ciudad.latitud),
          static_cast<double>(ciudad.longitud),
          static_cast<double>(ciudad.decimo)};
}

/// Las localidades de @p provincia (todas si no se da), cada una una vez, por orden de fichero.
void Listar(const BaseDeLocalidades &base, const std::optional<std::string> &provincia, Tabla &tabla) {
  std::set<std::pair<std::string, std::string>> vistas;
  for (const auto &ciudad : base.Registros()) {
    if (provincia && ciudad->provincia != *provincia) continue;
    if (vistas.emplace(ciudad->provincia, ciudad->localidad).second) tabla.Anadir(Fila(*ciudad));
  }
  if (provincia && vistas.empty())
    throw Fallo(Estado::FaltaEntrada, "no se conoce la provincia: " + *provincia);
}

void Ejecutar(const Datos &datos, Contexto &contexto) {
  IniciarRegistro(datos.registro);
  IniciarBase(datos.base ? RutaAbsoluta(*datos.base) : std::string(), contexto);
  const BaseDeLocalidades &base = DameBaseDeLocalidades();
  if (!base.Cargada()) throw Fallo(Estado::FaltaEntrada, "");
  Tabla tabla(Tabla::Forma::SinCabecera,
              {"provincia", "localidad", "corto", "fichero", "latitud", "longitud", "decimo"});
  Listar(base, datos.provincia, tabla);
  contexto.salida << tabla.Como(datos.json);
}

} // namespace

void RegistrarLocalidades(CLI::App &raiz, Contexto &contexto) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden = NuevaOrden(raiz, "localidades",
                               {"Lista las localidades de la base",
                                "Una línea por localidad: provincia, localidad, nombre corto, fichero, "
                                "latitud [°], longitud [°] y décimo "
                                "número (en los datos propios, la altitud [m]).",
                                "localidades\nlocalidades --provincia Granada --json"});
  AnadirValor(orden, "--provincia", datos->provincia, "PROVINCIA", "Sólo las de esa provincia");
  AnadirBase(orden, datos->base);
  AnadirRegistro(orden, datos->registro);
  AnadirJson(orden, datos->json);
  AlEjecutar(orden, contexto, datos, Ejecutar);
}

} // namespace tesmo::cli
