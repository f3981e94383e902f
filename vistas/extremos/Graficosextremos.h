#pragma once

#include "extremos/Calculodias.h"

#include <array>

namespace tesmo {

class Grafico;
class PaginaResultadosExtremos;

/// Los dos gráficos de los días extremos: siete series en cada uno, las marcadas en la lista a la vista y la
/// misma escala en los dos.
class GraficosExtremos {
public:
  /// @p pagina sobrevive a este objeto.
  explicit GraficosExtremos(PaginaResultadosExtremos &pagina);

  /// Sin series y con la lista vacía.
  void Vaciar();
  /// Series, lista con la primera marcada y ejes de un resultado.
  void Rehacer(const extremos::ResultadoDias &resultado);
  /// Enseña las magnitudes marcadas de @p resultado y ajusta a ellas los ejes.
  void EnsenarMarcadas(const extremos::ResultadoDias &resultado);

private:
  void FijarEjes(const extremos::ResultadoDias &resultado);

  PaginaResultadosExtremos &pagina_;
  std::array<Grafico *, 2> graficos_;
};

} // namespace tesmo
