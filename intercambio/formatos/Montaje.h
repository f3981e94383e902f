#pragma once

#include "intercambio/formatos/Filas.h"

#include <vector>

namespace tesmo {

/// Pone cada fila en su hora del año. Con horas de 0 a 23 cada etiqueta pasa a la siguiente; con horas de 1 a
/// 24, un 0 es el 24 de la víspera. Errores: 29 de febrero, horas repetidas, desorden y más registros que
/// horas; con varios registros por hora o varios años, uno solo que lo dice, y no se pone ninguno. Un año que
/// empieza en otro mes y da la vuelta una sola vez vale, con un aviso. De las horas sin fila se avisa con las
/// líneas que las rodean.
void MontarAnio(const std::vector<FilaClima> &filas, AnioCanonico &anio, Cuaderno &cuaderno);

/// La posición de la etiqueta en el año, o −1 si la fecha no es del año de 365 días.
[[nodiscard]] int PosicionEtiqueta(int mes, int dia, int hora);

} // namespace tesmo
