#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>

namespace {

/// Guarda el mejor tiempo de cada medida para dar las proporciones al final.
class ConProporciones : public benchmark::ConsoleReporter {
public:
  void ReportRuns(const std::vector<Run> &vueltas) override {
    for (const Run &vuelta : vueltas) {
      if (vuelta.run_type != Run::RT_Iteration || vuelta.error_occurred) continue;
      const double tiempo = vuelta.GetAdjustedRealTime();
      const auto [lugar, nuevo] = mejores_.try_emplace(vuelta.run_name.function_name, tiempo);
      if (!nuevo) lugar->second = std::min(lugar->second, tiempo);
    }
    ConsoleReporter::ReportRuns(vueltas);
  }
  void Finalize() override {
    Proporcion("Lectura / fscanf", "LeerConTesmo", "LeerConFscanf");
    Proporcion("Exportación / fprintf", "EscribirConTesmo", "EscribirConFprintf");
    double total = 0;
    for (const char *etapa : ETAPAS) total += mejores_[etapa];
    std::printf("Año entero, 21 magnitudes: %.0f us\n", total);
    for (const char *etapa : ETAPAS)
      std::printf("  %-14s %5.1f %%\n", etapa, 100.0 * mejores_[etapa] / total);
  }

private:
  static constexpr const char *ETAPAS[] = {"LeerConTesmo", "DerivarAire", "DerivarSol", "PedirLas21"};
  void Proporcion(const char *titulo, const char *una, const char *otra) {
    std::printf("%s: %.3f\n", titulo, mejores_[una] / mejores_[otra]);
  }
  std::map<std::string, double> mejores_;
};

} // namespace

int main(int argc, char **argv) {
  benchmark::Initialize(&argc, argv);
  ConProporciones informe;
  benchmark::RunSpecifiedBenchmarks(&informe);
  return 0;
}
