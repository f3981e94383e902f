#pragma once

#include "core/Calendario.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Un punto de la carta solar: hora solar t [h], acimut [°, 0 al sur, oeste positivo] y altura [°].
struct PuntoSolar {
  float t;
  float acimut;
  float altura;
  bool operator==(const PuntoSolar &) const = default;
};
using CurvaSolar = std::vector<PuntoSolar>;

/// ¿Cayó ya el punto en la noche (acimut y altura 0)? La curva lo guarda, pero no se pinta.
[[nodiscard]] constexpr bool EsDeNoche(const PuntoSolar &punto) {
  return punto.acimut == 0.0F && punto.altura == 0.0F;
}

/// El camino del sol de un día y sus horas en punto.
struct CurvasDelDia {
  std::string titulo;
  CurvaSolar curva;
  std::array<CurvaSolar, HORAS_DEL_DIA> horas; ///< por hora, 0 a 23: un punto o ninguno
};

/// Un punto de una hora en punto sobre la curva de un mes (1 a 12).
struct PuntoDeMes {
  int mes;
  PuntoSolar punto;
};

/// El camino del sol del mismo día de cada mes.
struct CurvasDeLosMeses {
  std::string titulo;
  std::array<CurvaSolar, MESES_DEL_ANIO> meses;
  std::array<std::vector<PuntoDeMes>, HORAS_DEL_DIA> horas;
  std::string_view orden; ///< los nombres de los meses, de la curva más alta a la más baja
};

/// La curva va desde una centésima de hora después de la salida hasta la puesta, de centésima en centésima,
/// con t sumada en 32 bits; sin salida no hay puntos. Una hora en punto entra si cae entre las dos, aunque la
/// tolerancia de la salida la haga de noche.
/// @param latitud [°, norte positivo]; @param mes 1 a 12; @param dia día del mes
[[nodiscard]] CurvasDelDia CurvasDeDia(float latitud, int mes, int dia);

/// Lo mismo para el @p dia de los doce meses; aquí una hora en punto con acimut y altura 0 no entra.
[[nodiscard]] CurvasDeLosMeses CurvasDeMeses(float latitud, int dia);

/// Los meses de la curva más alta a la más baja; la latitud 0 sigue el orden del sur.
[[nodiscard]] std::string_view OrdenDeMeses(float latitud);

} // namespace tesmo
