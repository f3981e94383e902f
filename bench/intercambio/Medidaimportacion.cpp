#include "core/Ficheros.h"
#include "intercambio/Importacionlote.h"
#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/escritura/Textoepw.h"
#include "intercambio/fisica/Soldelanio.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <numbers>
#include <thread>
#include <unistd.h>

using namespace tesmo;

namespace {

namespace fs = std::filesystem;

constexpr std::size_t FICHEROS = 100;

/// Un año cualquiera con sol, para escribirlo como EPW.
AnioSolar Anio() {
  constexpr double LATITUD = 40.0;
  AnioSolar anio;
  anio.sitio = {"Banco", "R", "ESP", "1", LATITUD, -3.7, 650.0};
  anio.husoHoras = 1;
  const SolDelAnio sol = CalcularSolDelAnio(LATITUD);
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double coseno = sol.diurna[i] ? std::cos(sol.cenit[i] * std::numbers::pi / 180.0) : 0.0;
    const double onda = std::sin(static_cast<double>(i) * 0.01);
    const std::array<double, NUMERO_SERIES_LEIDAS> valores{
        15.0 + 8.0 * onda, 2.0,  700.0 * coseno * coseno, 120.0 * coseno, 0.007, 60.0,
        2.5 + onda,        90.0, sol.acimut[i],           sol.cenit[i]};
    for (std::size_t s = 0; s < valores.size(); ++s)
      anio.series[s].Poner(i, valores[s], Procedencia::Copiada);
    anio.presion.Poner(i, 94000.0, Procedencia::Copiada);
  }
  return anio;
}

/// Una carpeta con cien EPW, que se borra al acabar el programa.
class Carpeta {
public:
  Carpeta() : ruta_(fs::temp_directory_path() / ("banco_intercambio_" + std::to_string(getpid()))) {
    fs::create_directories(ruta_ / "epw");
    AnioSolar anio = Anio();
    for (std::size_t i = 0; i < FICHEROS; ++i) {
      anio.sitio.nombre = "Sitio " + std::to_string(i);
      rutas_.push_back((ruta_ / "epw" / (std::to_string(i) + ".epw")).string());
      if (!EscribirFicheroEntero(rutas_.back(), TextoEpw(anio))) std::abort();
    }
  }
  ~Carpeta() { fs::remove_all(ruta_); }
  Carpeta(const Carpeta &) = delete;
  Carpeta &operator=(const Carpeta &) = delete;

  [[nodiscard]] const std::vector<std::string> &Rutas() const { return rutas_; }
  [[nodiscard]] fs::path Catalogo() const { return ruta_ / "Meteo"; }

private:
  fs::path ruta_;
  std::vector<std::string> rutas_;
};

const Carpeta &LaCarpeta() {
  static const Carpeta CARPETA;
  return CARPETA;
}

void PonerRitmo(benchmark::State &state) {
  state.counters["ficheros/s"] =
      benchmark::Counter(static_cast<double>(FICHEROS), benchmark::Counter::kIsIterationInvariantRate);
}

/// La referencia: traer a memoria los mismos ficheros, sin mirarlos.
void SoloTraerlos(benchmark::State &state) {
  for (auto _ : state)
    for (const std::string &ruta : LaCarpeta().Rutas()) benchmark::DoNotOptimize(LeerFicheroEntero(ruta));
  PonerRitmo(state);
}

/// La otra: leerlos, sin reloj, ni conversión ni escritura, en un hilo.
void SoloLeerlos(benchmark::State &state) {
  for (auto _ : state)
    for (const std::string &ruta : LaCarpeta().Rutas()) benchmark::DoNotOptimize(LeerFicheroClima(ruta));
  PonerRitmo(state);
}

void Importarlos(benchmark::State &state) {
  OpcionesLote opciones;
  opciones.peticion.provincia = "P";
  opciones.peticion.zona = ZONA_COSTA;
  opciones.hilos = static_cast<unsigned>(state.range(0));
  std::size_t hechos = 0;
  for (auto _ : state) {
    state.PauseTiming();
    fs::remove_all(LaCarpeta().Catalogo());
    state.ResumeTiming();
    ImportarLote(
        LaCarpeta().Catalogo().string(), LaCarpeta().Rutas(), opciones,
        [&](std::size_t, const FicheroDeLote &uno) { hechos += uno.importacion.ficheros.size() / 3; });
  }
  if (hechos != FICHEROS * static_cast<std::size_t>(state.iterations()))
    state.SkipWithError("faltan ficheros");
  PonerRitmo(state);
}

} // namespace

BENCHMARK(SoloTraerlos)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SoloLeerlos)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Importarlos)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond)->UseRealTime();
