#pragma once

#include <array>

namespace tesmo {

/// Año de 365 días: el 29 de febrero no existe.
inline constexpr std::array<int, 12> DIAS_DEL_MES{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
inline constexpr std::array<int, 12> DIAS_ANTES_DEL_MES{0,   31,  59,  90,  120, 151,
                                                        181, 212, 243, 273, 304, 334};
inline constexpr int DIAS_DEL_ANIO = 365;
inline constexpr int HORAS_DEL_DIA = 24;
inline constexpr int HORAS_DEL_ANIO = DIAS_DEL_ANIO * HORAS_DEL_DIA;

/// Día del año (1 a 365) del @p dia de @p mes; un mes fuera de 1..12 no tiene días antes, y un día mayor que
/// el mes sigue contando en el siguiente.
[[nodiscard]] constexpr int DiaDelAnio(int mes, int dia) {
  return (mes >= 1 && mes <= 12 ? DIAS_ANTES_DEL_MES[static_cast<std::size_t>(mes - 1)] : 0) + dia;
}

} // namespace tesmo
