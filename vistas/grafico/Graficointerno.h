#pragma once

#include "vistas/grafico/Capacursor.h"
#include "vistas/grafico/Curva.h"
#include "vistas/grafico/Grafico.h"
#include "vistas/grafico/Leyenda.h"

#include <array>
#include <optional>
#include <vector>

namespace tesmo {

/// Aire a cada lado del primer y el último punto, en unidades del eje horizontal.
inline constexpr double AIRE_X = 0.5;

/// Una serie con la curva que la pinta.
struct SerieTrazada {
  SerieGrafico serie;
  CurvaDiezmada *curva = nullptr; ///< de QCustomPlot
};

/// Lo que Grafico esconde para que la biblioteca de trazado no llegue a sus cabeceras.
struct Grafico::Interno {
  QCustomPlot *trazo = nullptr;
  CapaCursor *capa = nullptr;
  std::shared_ptr<const EscalaX> escala;
  std::vector<SerieTrazada> series;
  QString aviso;
  std::optional<QPoint> puntero; ///< dónde está el ratón; vacío: fuera del gráfico
  std::array<std::optional<LimitesEje>, 2> limitesFijos; ///< por lado

  [[nodiscard]] QCPAxis *Eje(LadoEje lado) const {
    return lado == LadoEje::Izquierdo ? trazo->yAxis : trazo->yAxis2;
  }
  [[nodiscard]] std::optional<LimitesEje> &LimitesFijos(LadoEje lado) {
    return limitesFijos.at(static_cast<std::size_t>(lado));
  }
  /// Abscisa del primer punto de toda serie.
  [[nodiscard]] double PrimeraAbscisa() const { return escala ? escala->Primero() : 1.0; }
  [[nodiscard]] SerieTrazada &En(int indice) { return series.at(static_cast<std::size_t>(indice)); }
  [[nodiscard]] const SerieTrazada &En(int indice) const {
    return series.at(static_cast<std::size_t>(indice));
  }
};

} // namespace tesmo
