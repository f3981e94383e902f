#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tesmo {

/// Desde dónde se cuentan los acimutes de un listado; en los dos, en el sentido del reloj.
enum class OrigenAcimut { Norte, Sur };

/// Lo que dicen de ello las líneas de texto de un listado, en español o en inglés: "0 = S", "desde el norte",
/// "north = 0", "180 = sur"… o los títulos de PVGIS ("A", "H_hor": sur) y de sus lectores ("horizon_azimuth":
/// norte). Vacío si no dicen nada o se contradicen.
[[nodiscard]] std::optional<OrigenAcimut> OrigenEnTextos(const std::vector<std::string> &textos);

} // namespace tesmo
