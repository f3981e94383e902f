#pragma once

#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/sintesis/Azar.h"
#include "intercambio/sintesis/Normales.h"

namespace tesmo {

/// Viento de cada hora.
struct VientoHorario {
  SerieHoras velocidad; ///< [m/s], en décimas
  SerieHoras direccion; ///< de dónde viene [°, 0 al norte, este 90], entera, de 0 a 359
};

/// Viento con la velocidad media de cada mes. Velocidades con distribución de Weibull, de forma 0,94·√v̄
/// (Justus, Hargraves, Mikhail y Graber, 1978), a partir de un proceso normal de autocorrelación horaria 0,85
/// (dentro de lo que hallan Brett y Tuller, 1991), por un curso diario de ±25 % con su máximo a las 15 h
/// solares (Lambert, Gilman y Lilienthal, 2006). De la dirección no hay cifras: deriva al azar, sin rosa
/// ninguna.
[[nodiscard]] VientoHorario GenerarViento(const NormalesLocalidad &localidad, Azar &velocidad,
                                          Azar &direccion);

/// Forma de Weibull para una velocidad media [m/s], llevada a 1,1..3,5.
[[nodiscard]] double FormaWeibull(double media);
/// Velocidad que sólo deja por debajo la fracción @p f, en [0, 1), de una Weibull de media 1.
[[nodiscard]] double CuantilWeibull(double f, double forma);
/// Factor del curso diario, de media 1, a la @p hora solar.
[[nodiscard]] double CursoDiarioDelViento(double hora);

} // namespace tesmo
