#pragma once

#include "intercambio/reloj/Detectorreloj.h"

#include <optional>

namespace tesmo {

/// Con qué reloj se pasa un fichero a hora solar; lo que no se diga sale del propio fichero.
struct EleccionReloj {
  std::optional<TiempoEtiqueta> tiempo = std::nullopt; ///< vacío: el que dicen los datos
  std::optional<double> desfaseMin = std::nullopt; ///< de la etiqueta al centro de su hora [min, −90 a 90]
  /// De la hora oficial de invierno del sitio [h, este positivo]; vacío: el del fichero si es creíble
  /// (HusoDeSitio).
  std::optional<double> husoHoras = std::nullopt;
};

/// El reloj con que se convierte y se audita: sin elección, el que los datos dicen con confianza media o alta
/// y, si no, el declarado. Un tiempo elegido lleva el desfase declarado si es el suyo y −30 min si no; pero
/// de hora oficial a UTC, o al revés, si los datos desmienten lo declarado con confianza media o alta, el que
/// dice lo mismo que ellos.
[[nodiscard]] RelojFichero ElegirReloj(const VeredictoReloj &veredicto, const EleccionReloj &eleccion = {});

} // namespace tesmo
