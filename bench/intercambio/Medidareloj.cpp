#include "intercambio/conversion/Aniosolar.h"
#include "intercambio/fisica/Soldelanio.h"
#include "intercambio/reloj/Detectorreloj.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <numbers>

using namespace tesmo;

namespace {

constexpr double LATITUD = 36.84;
constexpr double GRADO = std::numbers::pi / 180.0;

/// Un año de cielo claro en hora solar con las etiquetas en punto: hay que moverlo media hora.
AnioCanonico Anio() {
  AnioCanonico anio;
  anio.sitio.latitud = LATITUD;
  anio.sitio.longitud = -2.46;
  anio.sitio.altitud = 21.0;
  anio.reloj = {TiempoEtiqueta::SolarVerdadero, 0.0, -30.0};
  const SolDelAnio sol = CalcularSolDelAnio(LATITUD);
  for (std::size_t i = 0; i < sol.cenit.size(); ++i) {
    const double coseno = sol.diurna[i] ? std::cos(sol.cenit[i] * GRADO) : 0.0;
    const auto poner = [&](Campo campo, double valor) { anio[campo].Poner(i, valor, Procedencia::Copiada); };
    poner(Campo::GlobalHorizontal, 1000.0 * coseno);
    poner(Campo::DifusaHorizontal, 200.0 * coseno);
    poner(Campo::DirectaNormal, coseno > 0.0 ? 800.0 : 0.0);
    poner(Campo::TemperaturaSeca, 20.0 + 5.0 * coseno);
    poner(Campo::HumedadRelativa, 60.0);
    poner(Campo::InfrarrojaHorizontal, 350.0);
    poner(Campo::VelocidadViento, 3.0);
    poner(Campo::DireccionViento, 90.0);
  }
  return anio;
}

void Detectar(benchmark::State &state) {
  const AnioCanonico anio = Anio();
  for (auto _ : state) benchmark::DoNotOptimize(DetectarReloj(anio));
}

void Convertir(benchmark::State &state) {
  const AnioCanonico anio = Anio();
  const RelojFichero reloj{TiempoEtiqueta::OficialEstandar, 1.0, -30.0};
  for (auto _ : state) benchmark::DoNotOptimize(LlevarAHoraSolar(anio, reloj));
}

/// La referencia: sólo copiar el año.
void Copiar(benchmark::State &state) {
  const AnioCanonico anio = Anio();
  for (auto _ : state) {
    AnioCanonico copia = anio;
    benchmark::DoNotOptimize(copia);
  }
}

void VolverAHoraOficial(benchmark::State &state) {
  const AnioCanonico anio = Anio();
  const AnioSolar solar = *LlevarAHoraSolar(anio, anio.reloj).anio;
  for (auto _ : state) benchmark::DoNotOptimize(AHoraOficial(solar, 1.0));
}

} // namespace

BENCHMARK(Detectar)->Unit(benchmark::kMillisecond);
BENCHMARK(Convertir)->Unit(benchmark::kMillisecond);
BENCHMARK(Copiar)->Unit(benchmark::kMillisecond);
BENCHMARK(VolverAHoraOficial)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
