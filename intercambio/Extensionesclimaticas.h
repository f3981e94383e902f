#pragma once

#include <array>
#include <string_view>

namespace tesmo {

/// Extensiones, en minúsculas, de los ficheros que se toman de una carpeta por climáticos.
inline constexpr std::array<std::string_view, 6> EXTENSIONES_CLIMATICAS{".epw",  ".csv", ".met",
                                                                        ".tmy3", ".txt", ".dat"};

} // namespace tesmo
