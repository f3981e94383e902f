#pragma once

#include "intercambio/fisica/Soldelanio.h"

namespace tesmo {

/// Radiación horizontal de cada hora [W/m²], en décimas. La global es la suma de las dos.
struct RadiacionSintetica {
  SerieHoras directa;
  SerieHoras difusa;
};

/// Radiación horaria de unas claridades diarias. La difusa del día sale de Erbs, Klein y Duffie (1982,
/// relación diaria con el ángulo de puesta); la global se reparte en horas con Collares-Pereira y Rabl (1979)
/// y la difusa con Liu y Jordan (1960), rehechas para que las horas sumen el día; la directa es global menos
/// difusa. La directa no pasa de la del cielo despejado (CotaDelHaz) y es cero con el sol a menos de un grado
/// del horizonte: lo que sobra se da por difuso y la global no cambia. Nada con el sol puesto.
[[nodiscard]] RadiacionSintetica GenerarRadiacion(const SerieDias &claridad, const SolDelAnio &sol);

/// Fracción difusa de un día de claridad @p k y ángulo horario de puesta @p puesta [rad].
[[nodiscard]] double FraccionDifusaDiaria(double k, double puesta);
/// Parte del día (por hora) que corresponde al ángulo horario @p hora [rad], de la global y de la difusa.
[[nodiscard]] double ParteGlobal(double hora, double puesta);
[[nodiscard]] double ParteDifusaHoraria(double hora, double puesta);
/// Mayor irradiancia directa normal con cielo despejado [W/m²] para un cenit [°] menor que 90:
/// extraterrestre · 0,7^(m^0,678) (Meinel y Meinel, 1976) con la masa de aire m de Kasten y Young (1989).
[[nodiscard]] double CotaDelHaz(double extraterrestre, double cenit);

} // namespace tesmo
