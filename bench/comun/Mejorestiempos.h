#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

/// Informe que guarda el mejor tiempo de cada medida; quien hereda da con ellos sus proporciones en Finalize.
class ConMejoresTiempos : public benchmark::ConsoleReporter {
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

protected:
  /// El de @p medida, en la unidad con que se declaró; 0 si no se hizo.
  [[nodiscard]] double Mejor(const std::string &medida) const {
    const auto hallada = mejores_.find(medida);
    return hallada == mejores_.end() ? 0.0 : hallada->second;
  }

private:
  std::map<std::string, double> mejores_;
};
