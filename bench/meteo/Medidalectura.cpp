#include "bench/meteo/Medidameteo.h"

#include "solar/Posicionsolar.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <vector>

using namespace tesmo;

namespace {

void LeerConFscanf(benchmark::State &estado) {
  const std::string ruta = medida::FicheroMet();
  SeriesLeidas series;
  std::array<float *, NUMERO_SERIES_LEIDAS> d{};
  for (std::size_t c = 0; c < d.size(); ++c) d[c] = series[static_cast<SerieAlmacenada>(c)].data();
  for (auto _ : estado) {
    std::FILE *f = std::fopen(ruta.c_str(), "r");
    std::array<char, 300> linea{};
    SitioMet sitio;
    (void)!std::fgets(linea.data(), static_cast<int>(linea.size()), f);
    (void)!std::fscanf(f, "%f %f %f\n", &sitio.latitud, &sitio.longitud, &sitio.tercerDato);
    (void)!std::fgets(linea.data(), static_cast<int>(linea.size()), f);
    int leidos = 0;
    for (int i = 0; i < HORAS_DEL_ANIO; ++i) {
      float x = 0;
      leidos +=
          std::fscanf(f, "%f %f %f %f %f %f %f %f %f %f %f %f %f %f %f\n", &x, &x, &x, d[0] + i, d[1] + i,
                      d[2] + i, d[3] + i, d[4] + i, d[5] + i, d[6] + i, d[7] + i, d[8] + i, d[9] + i, &x, &x);
    }
    std::fclose(f);
    benchmark::DoNotOptimize(leidos);
  }
}

void LeerConTesmo(benchmark::State &estado) {
  const std::string ruta = medida::FicheroMet();
  LeerMet met;
  for (auto _ : estado) {
    if (!met.LeerFichero(ruta) || !met.Resumen().Completa()) estado.SkipWithError("lectura incompleta");
  }
}

void DerivarAire(benchmark::State &estado) {
  LeerMet met = medida::AnioCargado();
  for (auto _ : estado) met.DerivarPsicrometricas(101325.0F);
}

void DerivarSol(benchmark::State &estado) {
  LeerMet met = medida::AnioCargado();
  met.DerivarPsicrometricas(101325.0F);
  const PosicionSolar sol;
  for (auto _ : estado) met.DerivarSolares(sol);
}

void PedirLas21(benchmark::State &estado) {
  LeerMet met = medida::AnioCargado();
  met.AsegurarDerivadas(101325.0F, PosicionSolar());
  std::vector<float> destino(static_cast<std::size_t>(HORAS_DEL_ANIO));
  for (auto _ : estado) {
    for (std::size_t i = 0; i < NUMERO_MAGNITUDES_VISOR; ++i) {
      met.DameSerie(MAGNITUDES[i].rotulo, destino.data());
      benchmark::DoNotOptimize(destino.data());
    }
  }
}

} // namespace

BENCHMARK(LeerConFscanf)->Unit(benchmark::kMicrosecond)->Repetitions(5);
BENCHMARK(LeerConTesmo)->Unit(benchmark::kMicrosecond)->Repetitions(5);
BENCHMARK(DerivarAire)->Unit(benchmark::kMicrosecond)->Repetitions(3);
BENCHMARK(DerivarSol)->Unit(benchmark::kMicrosecond)->Repetitions(3);
BENCHMARK(PedirLas21)->Unit(benchmark::kMicrosecond)->Repetitions(3);
