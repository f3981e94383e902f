#pragma once

#include "intercambio/reloj/Escalatiempo.h"

#include <cstddef>

namespace tesmo {

/// El sol (SolVerdadero) de un sitio a la hora de un reloj. Hace falta que SitioBasta; si no, los cosenos no
/// son números. Guarda una referencia al año: ha de vivir más que él.
class SolDeReloj {
public:
  SolDeReloj(const AnioCanonico &anio, const EscalaTiempo &escala);

  [[nodiscard]] const EscalaTiempo &Escala() const { return escala_; }
  /// Coseno del cenit @p minutos después del centro de la hora del registro @p i (0 a 8759); negativo de
  /// noche. El año de calendario es el del registro.
  [[nodiscard]] double Coseno(std::size_t i, double minutos = 0.0) const;
  /// Coseno del cenit en el instante @p solar [h solares desde las 0 h del 1 de enero], en un año medio.
  [[nodiscard]] double CosenoSolar(double solar) const;

private:
  [[nodiscard]] double CosenoDe(double declinacion, double solar) const;

  const AnioCanonico &anio_;
  EscalaTiempo escala_;
  double latitud_; ///< [rad]
};

} // namespace tesmo
