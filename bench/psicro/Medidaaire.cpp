#include "psicro/Corrienteaire.h"

#include <array>
#include <benchmark/benchmark.h>
#include <cmath>
#include <numbers>
#include <vector>

using namespace tesmo;

namespace {

constexpr int HORAS = 8760;
constexpr float PRESION = 100000.0F;

struct Hora {
  float t;
  float w;
};

/// Un año de aire templado: estaciones y días en senos, de 0 a 38 °C y del 25 al 95 %.
std::vector<Hora> Anio() {
  std::vector<Hora> horas;
  CorrienteAire aire;
  for (int i = 0; i < HORAS; ++i) {
    const double estacion = std::sin(2.0 * std::numbers::pi * i / HORAS - 2.0);
    const double dia = std::sin(2.0 * std::numbers::pi * (i % 24) / 24.0 - 2.0);
    const auto t = static_cast<float>(19.0 + 12.0 * estacion + 7.0 * dia);
    aire.pont_hr(t, static_cast<float>(60.0 - 10.0 * estacion - 25.0 * dia), PRESION);
    horas.push_back({t, aire.humedadAbsoluta()});
  }
  return horas;
}

template <typename Medida>
void PorHora(benchmark::State &state, Medida &&medida) {
  const std::vector<Hora> horas = Anio();
  CorrienteAire aire;
  std::size_t i = 0;
  for (auto _ : state) {
    aire.pont_w(horas[i].t, horas[i].w, PRESION);
    benchmark::DoNotOptimize(medida(aire));
    i = i + 1 == horas.size() ? 0 : i + 1;
  }
}

void SoloElEstado(benchmark::State &state) {
  PorHora(state, [](const CorrienteAire &aire) { return aire.humedadAbsoluta(); });
}

void BulboHumedo(benchmark::State &state) {
  PorHora(state, [](const CorrienteAire &aire) { return aire.temperaturaHumeda(); });
}

void Rocio(benchmark::State &state) {
  PorHora(state, [](const CorrienteAire &aire) { return aire.temperaturaRocio(); });
}

void SeisDerivadas(benchmark::State &state) {
  PorHora(state, [](const CorrienteAire &aire) {
    return static_cast<long double>(aire.temperaturaHumeda() + aire.temperaturaRocio()) +
           aire.humedadRelativa() + aire.entalpia() + aire.densidad() + aire.volumenEspecifico();
  });
}

void SeisDerivadasPorCodigo(benchmark::State &state) {
  static constexpr std::array<const char *, 6> CODIGOS{"th", "tr", "hr", "h", "ro", "ve"};
  PorHora(state, [](const CorrienteAire &aire) {
    long double suma = 0.0L;
    for (const char *cod : CODIGOS) suma += aire.dame(cod);
    return suma;
  });
}

} // namespace

BENCHMARK(SoloElEstado);
BENCHMARK(BulboHumedo);
BENCHMARK(Rocio);
BENCHMARK(SeisDerivadas);
BENCHMARK(SeisDerivadasPorCodigo);
BENCHMARK_MAIN();
