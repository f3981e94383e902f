#pragma once

#include "intercambio/reloj/Detectorreloj.h"

#include <array>
#include <memory>

namespace tesmo {

/// Lo que un año tiene para juzgar su reloj en un tiempo de etiqueta.
class EvidenciaReloj {
public:
  virtual ~EvidenciaReloj() = default;
  /// Horas o días con que cuenta.
  [[nodiscard]] virtual int Numero() const = 0;
  /// Desfase que mejor casa [min].
  [[nodiscard]] virtual double Mejor() const = 0;
  /// Lo mal que casa un desfase, como RelojMedido::residuo.
  [[nodiscard]] virtual double Residuo(double minutos) const = 0;
  /// Desfase que mejor casa con cada mes; AUSENTE si tiene poco.
  [[nodiscard]] virtual std::array<double, 12> PorMes(double centro) const = 0;
};

/// La evidencia de @p metodo con las etiquetas de @p anio en el tiempo de @p reloj; nula si no llega.
[[nodiscard]] std::unique_ptr<EvidenciaReloj> Evidencia(MetodoReloj metodo, const AnioCanonico &anio,
                                                        const RelojFichero &reloj);

} // namespace tesmo
