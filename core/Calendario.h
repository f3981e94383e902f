#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tesmo {

/// Año de 365 días: el 29 de febrero no existe.
inline constexpr std::size_t MESES_DEL_ANIO = 12;
inline constexpr std::array<int, MESES_DEL_ANIO> DIAS_DEL_MES{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
inline constexpr std::array<int, MESES_DEL_ANIO> DIAS_ANTES_DEL_MES{0,   31,  59,  90,  120, 151,
                                                                    181, 212, 243, 273, 304, 334};
inline constexpr int DIAS_DEL_ANIO = 365;
inline constexpr int HORAS_DEL_DIA = 24;
inline constexpr int HORAS_DEL_ANIO = DIAS_DEL_ANIO * HORAS_DEL_DIA;

/// Día del año (1 a 365) del @p dia de @p mes; un mes fuera de 1..12 no tiene días antes, y un día mayor que
/// el mes sigue contando en el siguiente.
[[nodiscard]] constexpr int DiaDelAnio(int mes, int dia) {
  return (mes >= 1 && mes <= 12 ? DIAS_ANTES_DEL_MES[static_cast<std::size_t>(mes - 1)] : 0) + dia;
}
/// Días del mes de un año de 365; 30 para un mes fuera de 1..12.
[[nodiscard]] int DiasDelMes(int mes);

/// Un instante del año: mes 1..12, día 1..31, hora 1..24.
struct FechaHora {
  int mes = 1;
  int dia = 1;
  int hora = 1;
  bool operator==(const FechaHora &) const = default;
};

/// Posición de una hora en toda serie horaria: (días antes del mes + día − 1) × 24 + (hora − 1), horas 1
/// a 24. Un mes fuera de 1..12 da hora − 1, sea cual sea el día.
[[nodiscard]] int IndiceHora(int mes, int dia, int hora);
/// La fecha de la posición @p indice (0..8759) de una serie horaria; fuera de ahí, la del extremo.
[[nodiscard]] FechaHora FechaDeIndice(int indice);
/// Avanza la fecha una hora en su sitio; del 31 de diciembre a las 24 pasa al mes 13.
void SiguienteHora(int &mes, int &dia, int &hora);

/// Nombre de un mes, "enero", y su abreviatura de tres letras, "ene"; vacíos fuera de 1..12.
[[nodiscard]] std::string_view NombreMes(int mes);
[[nodiscard]] std::string_view MesCorto(int mes);
/// El @p nombre de un mes con mayúscula: "Enero", "Ene".
[[nodiscard]] std::string ConMayuscula(std::string_view nombre);
/// "3 de mayo a la hora 14" de la posición @p indice (0..8759) de una serie horaria.
[[nodiscard]] std::string TextoHora(int indice);

} // namespace tesmo
