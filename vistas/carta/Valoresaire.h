#pragma once

#include <array>

namespace tesmo {

/// Un valor del estado del aire que se lee en la carta.
struct ValorAire {
  const char *control; ///< objectName de su casilla en el panel
  const char *rotulo;
  const char *unidad; ///< vacía en la humedad relativa
};

/// Los del panel, en su orden; la tabla de puntos lleva los mismos.
inline constexpr std::array<ValorAire, 8> VALORES_AIRE{{
    {"edT", "T", "ºC"},
    {"edW", "W", "kg/ kg"},
    {"edH", "H", "J/kg"},
    {"edHR", "HR", ""},
    {"edVE", "VE", "m³/kg"},
    {"edTR", "TR", "ºC"},
    {"edTH", "TH", "ºC"},
    {"edPresion", "Presión", "Pa"},
}};

} // namespace tesmo
