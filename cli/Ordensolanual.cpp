#include "cli/Argumentos.h"
#include "cli/Latitud.h"
#include "cli/Ordenes.h"
#include "solar/Ficheroanual.h"

#include <memory>

namespace tesmo::cli {

namespace {

struct Datos {
  std::optional<std::string> latitud, salida;
};

void Ejecutar(const Datos &datos, Contexto & /*contexto*/) {
  const float latitud = LeerLatitud(*datos.latitud);
  const std::string salida = RutaDeSalida(datos.salida, "-o");
  if (!EscribirFicheroAnual(latitud, salida)) throw Fallo(Estado::FaltaSalida, "");
}

} // namespace

void RegistrarSolAnual(CLI::App &sol, Contexto &contexto) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden = NuevaOrden(sol, "anual",
                               {"Escribe el fichero con las posiciones del sol de un año",
                                "Una línea con la latitud y 8.760 con mes, hora, hora, acimut, altura y "
                                "cenit [°] a la hora más media; "
                                "de noche, 0, 0 y 90.",
                                "sol anual 36.84 -o FPS.TXT"});
  Exigir(AnadirArgumento(orden, "LAT", datos->latitud, AYUDA_LATITUD));
  Exigir(AnadirValor(orden, "-o,--salida", datos->salida, "FICHERO", "Fichero que se escribe (obligatorio)"));
  AlEjecutar(orden, contexto, datos, Ejecutar);
}

} // namespace tesmo::cli
