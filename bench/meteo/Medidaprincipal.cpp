#include "bench/comun/Mejorestiempos.h"

#include <cstdio>

namespace {

/// Da las proporciones al final.
class ConProporciones : public ConMejoresTiempos {
public:
  void Finalize() override {
    Proporcion("Lectura / fscanf", "LeerConTesmo", "LeerConFscanf");
    Proporcion("Exportación / fprintf", "EscribirConTesmo", "EscribirConFprintf");
    double total = 0;
    for (const char *etapa : ETAPAS) total += Mejor(etapa);
    std::printf("Año entero, 21 magnitudes: %.0f us\n", total);
    for (const char *etapa : ETAPAS) std::printf("  %-14s %5.1f %%\n", etapa, 100.0 * Mejor(etapa) / total);
  }

private:
  static constexpr const char *ETAPAS[] = {"LeerConTesmo", "DerivarAire", "DerivarSol", "PedirLas21"};
  void Proporcion(const char *titulo, const char *una, const char *otra) {
    std::printf("%s: %.3f\n", titulo, Mejor(una) / Mejor(otra));
  }
};

} // namespace

int main(int argc, char **argv) {
  benchmark::Initialize(&argc, argv);
  ConProporciones informe;
  benchmark::RunSpecifiedBenchmarks(&informe);
  return 0;
}
