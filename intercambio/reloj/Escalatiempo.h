#pragma once

#include "intercambio/comun/Aniocanonico.h"

#include <cstddef>

namespace tesmo {

/// El paso de las etiquetas de un fichero al tiempo solar verdadero. Instantes en horas desde las 0 h del 1
/// de enero, cada cual en su tiempo; el año tiene 365 días y se cierra: los dos sentidos valen para cualquier
/// número y 8760 horas más allá dan lo mismo más 8760.
class EscalaTiempo {
public:
  /// @param longitud [°, este positivo]; no se mira si la etiqueta ya es solar
  EscalaTiempo(const RelojFichero &reloj, double longitud);

  /// Centro de la hora del registro @p i (0 a 8759), en tiempo de etiqueta.
  [[nodiscard]] double Centro(std::size_t i) const { return static_cast<double>(i) + 1.0 + desfase_; }
  /// Instante solar del @p instante de etiqueta: longitud y ecuación del tiempo de Spencer (1971). El huso y
  /// la longitud de los dos lados de la línea de cambio de fecha no hacen saltar un día.
  [[nodiscard]] double ASolar(double instante) const;
  /// El camino de vuelta.
  [[nodiscard]] double DeSolar(double solar) const;
  /// Días del 1 de enero, en UTC, del @p instante de etiqueta; en tiempo solar, en ese tiempo.
  [[nodiscard]] double DiaUtc(double instante) const;

private:
  bool esSolar_;
  double desfase_;    ///< [h]
  double huso_;       ///< de la etiqueta sobre UTC [h]
  double desdeCivil_; ///< tiempo solar medio menos tiempo de etiqueta [h]
};

} // namespace tesmo
