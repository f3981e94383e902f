#include "solar/Curvassol.h"
#include "solar/Influenciahorizonte.h"

#include <benchmark/benchmark.h>

using namespace tesmo;

namespace {

constexpr float LATITUD = 36.84F;

void CurvaDeUnDia(benchmark::State &state) {
  for (auto _ : state) benchmark::DoNotOptimize(CurvasDeDia(LATITUD, 6, 21));
}

void CurvasDeTodosLosMeses(benchmark::State &state) {
  for (auto _ : state) benchmark::DoNotOptimize(CurvasDeMeses(LATITUD, 21));
}

void HorasPerdidas(benchmark::State &state) {
  PerfilHorizonte perfil;
  perfil.PonTamano(2.0F);
  perfil.PonPunto(0, -180.0F, 10.0F);
  perfil.PonPunto(1, 180.0F, 10.0F);
  for (auto _ : state) benchmark::DoNotOptimize(HorasDeSolPerdidas(perfil, LATITUD));
}

} // namespace

BENCHMARK(CurvaDeUnDia)->Unit(benchmark::kMillisecond);
BENCHMARK(CurvasDeTodosLosMeses)->Unit(benchmark::kMillisecond);
BENCHMARK(HorasPerdidas)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
