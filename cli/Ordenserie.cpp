#include "cli/Ordenes.h"

#include "app/Programa.h"
#include "cli/Argumentos.h"
#include "cli/Opcionesvariables.h"
#include "cli/Tabla.h"
#include "meteo/Leermet.h"

#include <memory>

namespace tesmo::cli {

namespace {

using Datos = OpcionesVariables;

std::vector<std::vector<float>> PedirSeries(const LeerMet &meteo, const std::vector<Magnitud> &magnitudes) {
  std::vector<std::vector<float>> series;
  for (const Magnitud magnitud : magnitudes) {
    std::vector<float> &serie = series.emplace_back(static_cast<std::size_t>(meteo.HorasDelPeriodo()));
    meteo.DameSerie(Ficha(magnitud).rotulo, serie.data());
  }
  return series;
}

Tabla HacerTabla(const LeerMet &meteo, const std::vector<Magnitud> &magnitudes) {
  std::vector<std::string> titulos{"mes", "dia", "hora"};
  for (const Magnitud magnitud : magnitudes) titulos.emplace_back(Ficha(magnitud).rotulo);
  Tabla tabla(Tabla::Forma::ConCabecera, std::move(titulos));
  const std::vector<std::vector<float>> series = PedirSeries(meteo, magnitudes);
  for (int i = 0; i < meteo.HorasDelPeriodo(); ++i) {
    const FechaHora fecha = FechaDeIndice(meteo.PrimeraHora() + i);
    std::vector<Celda> fila{fecha.mes, fecha.dia, fecha.hora};
    for (const std::vector<float> &serie : series)
      fila.emplace_back(static_cast<double>(serie[static_cast<std::size_t>(i)]));
    tabla.Anadir(std::move(fila));
  }
  return tabla;
}

void Ejecutar(const Datos &datos, Contexto &contexto) {
  const std::vector<Magnitud> magnitudes = LeerMagnitudes(datos.variables);
  const PeticionSeleccion peticion = Interpretar(datos.seleccion);
  IniciarRegistro(datos.registro);
  std::optional<Programa> programa;
  Cargar(peticion, contexto, programa);
  contexto.salida << HacerTabla(*programa->DameLeerMet(), magnitudes).Como(datos.json);
}

} // namespace

void RegistrarSerie(CLI::App &raiz, Contexto &contexto) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden = NuevaOrden(
      raiz, "serie",
      {"Valores horarios de las variables",
       "Escribe una cabecera, «mes dia hora» y los rótulos, y una línea por hora del período.",
       "serie --localidad Almería TS HR\n"
       "serie --localidad Almería --desde 7/1/1 --hasta 7/31/24 --orientacion -90 \"Global (W/m²)\"\n"
       "serie --fichero mio.met --altitud 650 TR TH E"});
  AnadirSeleccion(orden, datos->seleccion);
  AnadirVariables(orden, *datos);
  AlEjecutar(orden, contexto, datos, Ejecutar);
}

} // namespace tesmo::cli
