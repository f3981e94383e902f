#include "psicro/Psicrometrico.h"

#include <benchmark/benchmark.h>

using namespace tesmo;

namespace {

/// Lienzo que sólo suma, para medir el modelo y no la pintura.
class LienzoSuma : public Lienzo {
public:
  void PonColor(ColorBgr color) override { suma += static_cast<long>(color); }
  void PonGrueso(int grueso) override { suma += grueso; }
  void MoverA(int x, int y) override { suma += x + y; }
  void LineaA(int x, int y) override { suma += x - y; }
  long suma = 0;
};

void DibujoCompleto(benchmark::State &state) {
  Psicro carta;
  carta.ponVista(0, 0, 0, 0, 1);
  LienzoSuma lienzo;
  for (auto _ : state) {
    carta.dibujar(lienzo, 900, 600);
    benchmark::DoNotOptimize(lienzo.suma);
  }
}

} // namespace

BENCHMARK(DibujoCompleto)->Unit(benchmark::kMicrosecond);
