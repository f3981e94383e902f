#pragma once

#include <array>
#include <string_view>

namespace tesmo {

/// Nombre de cada mes, enero primero.
inline constexpr std::array<std::string_view, 12> NOMBRES_DE_MES{
    "Enero", "Febrero", "Marzo",      "Abril",   "Mayo",      "Junio",
    "Julio", "Agosto",  "Septiembre", "Octubre", "Noviembre", "Diciembre"};
inline constexpr std::array<std::string_view, 12> MESES_ABREVIADOS{"Ene", "Feb", "Mar", "Abr", "May", "Jun",
                                                                   "Jul", "Ago", "Sep", "Oct", "Nov", "Dic"};

} // namespace tesmo
