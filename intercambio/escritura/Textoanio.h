#pragma once

#include "intercambio/conversion/Aniosolar.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tesmo {

/// En qué se puede escribir un año.
enum class FormatoSalida : std::uint8_t { Met, Epw, Csv };

/// Grados de longitud de una hora de huso.
inline constexpr double GRADOS_POR_HUSO = 15.0;

/// El que dice la extensión de @p fichero, en mayúsculas o minúsculas; vacío si es otra.
[[nodiscard]] std::optional<FormatoSalida> FormatoDeSalida(std::string_view fichero);

/// El texto entero de @p anio en @p formato: un .met de quince columnas y un CSV en hora solar verdadera
/// (TextoMet, TextoCsv), o un EPW en hora oficial (TextoEpw).
[[nodiscard]] std::string TextoDeAnio(const AnioSolar &anio, FormatoSalida formato);

/// Huso [h, este positivo] de la hora oficial de un sitio a @p longitud [°] cuyo fichero dice que su
/// meridiano es @p meridiano [°]: ése, si es de un huso (múltiplo de un cuarto de hora) y está a tres horas y
/// media o menos; si no, el de su longitud.
[[nodiscard]] double HusoDeSitio(double meridiano, double longitud);

} // namespace tesmo
