#pragma once

#include "intercambio/conversion/Aniosolar.h"

#include <string>

namespace tesmo {

/// Superficie en que se dan las cinco magnitudes solares.
struct SuperficieCsv {
  float inclinacion = 90; ///< desde la horizontal [°, 0 a 180]
  float orientacion = 0;  ///< desde el sur, oeste positivo [°, −180 a 180]
  float albedo = 0.2F;
};

/// Texto CSV de @p anio: mes, día, hora y las 21 magnitudes horarias con su rótulo, separadas por comas, con
/// punto decimal y las cifras justas para que cada real de 32 bits vuelva a leerse igual. Hora solar
/// verdadera; aire a la presión de la altitud del sitio; sin horizonte. Lo que no es un número finito queda
/// en blanco.
[[nodiscard]] std::string TextoCsv(const AnioSolar &anio, const SuperficieCsv &superficie = {});

/// Las diez series de @p anio como las guardan los motores, en reales de 32 bits.
[[nodiscard]] SeriesLeidas SeriesDe(const AnioSolar &anio);

} // namespace tesmo
