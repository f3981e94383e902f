#pragma once

#include "extremos/Tipos.h"

namespace tesmo::extremos {

/// Temperatura exterior hora a hora de un día de proyecto: dos medias ondas de la mínima, a la salida del
/// sol, a la máxima, y otra que vuelve a la mínima del día siguiente. Método de De Wit, Goudriaan y van Laar
/// (1978), llamado WAVE por Reicosky y otros (1989, Agricultural and Forest Meteorology 46, 193-209).
/// @param minima, maxima [°C]
/// @param salida hora de salida del sol [h solar]; −1 si no sale o no se pone
/// @param horaMaxima [h solar]
[[nodiscard]] ValoresHorarios CursoDeTemperatura(long double minima, long double maxima, float salida,
                                                 int horaMaxima);

} // namespace tesmo::extremos
