#include "bench/meteo/Medidameteo.h"

#include "core/Ficheros.h"
#include "solar/Posicionsolar.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <vector>

using namespace tesmo;

namespace {

/// Los 21 rótulos que se exportan.
std::vector<std::string> Rotulos() {
  std::vector<std::string> rotulos;
  for (const Magnitud magnitud : ORDEN_DE_EXPORTACION) rotulos.emplace_back(Ficha(magnitud).rotulo);
  return rotulos;
}

LeerMet AnioDerivado() {
  LeerMet met = medida::AnioCargado();
  met.AsegurarDerivadas(101325.0F, PosicionSolar());
  return met;
}

/// Un fprintf por línea, con las mismas cifras.
void EscribirConFprintf(benchmark::State &estado) {
  const LeerMet met = AnioDerivado();
  const std::string ruta = TextoDeRuta(medida::DirectorioTemporal() / "fprintf.met");
  std::vector<SerieHoraria> s;
  for (const std::string &rotulo : Rotulos()) {
    s.emplace_back(static_cast<std::size_t>(HORAS_DEL_ANIO));
    met.DameSerie(rotulo, s.back().data());
  }
  for (auto _ : estado) {
    std::FILE *f = std::fopen(ruta.c_str(), "w");
    int mes = 1, dia = 1, hora = 1;
    for (std::size_t i = 0; i < static_cast<std::size_t>(HORAS_DEL_ANIO); ++i) {
      const auto v = [&](std::size_t c) { return static_cast<double>(s[c][i]); };
      std::fprintf(
          f,
          "%d\t%d\t%d\t%.1f\t%.0f\t%.0f\t%.4f\t%.1f\t%.0f\t%.1f\t%.1f\t%.1f\t%.1f\t%.1f\t%.1f\t%.1f\t%.0f\t"
          "%.3f\t%.0f\t%.0f\t%.0f\t%.0f\t%.0f\t%.0f\t\n",
          mes, dia, hora, v(0), v(1), v(2), v(3), v(4), v(5), v(6), v(7), v(8), v(9), v(10), v(11), v(12),
          v(13), v(14), v(15), v(16), v(17), v(18), v(19), v(20));
      SiguienteHora(mes, dia, hora);
    }
    std::fclose(f);
  }
}

void EscribirConTesmo(benchmark::State &estado) {
  LeerMet met = AnioDerivado();
  const std::vector<std::string> rotulos = Rotulos();
  const std::string ruta = TextoDeRuta(medida::DirectorioTemporal() / "tesmo.met");
  for (auto _ : estado) {
    if (!met.EscribirFichero(ruta, rotulos)) estado.SkipWithError("no se pudo escribir");
  }
}

} // namespace

BENCHMARK(EscribirConFprintf)->Unit(benchmark::kMicrosecond)->Repetitions(5)->UseRealTime();
BENCHMARK(EscribirConTesmo)->Unit(benchmark::kMicrosecond)->Repetitions(5)->UseRealTime();
