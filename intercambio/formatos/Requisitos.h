#pragma once

#include "intercambio/comun/Aniocanonico.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace tesmo {

/// Lo que toda hora ha de tener para que de ella salga una hora de Tesmo: al menos @p minimo de los grupos,
/// cada uno un campo o varios que dicen lo mismo.
struct Requisito {
  std::string_view nombre; ///< con artículo
  int minimo;
  std::vector<Campo> campos;
};

/// Temperatura, humedad, radiación y viento.
[[nodiscard]] const std::vector<Requisito> &Requisitos();
/// El requisito al que pertenece @p campo; nulo si es de los que se pueden calcular.
[[nodiscard]] const Requisito *RequisitoDe(Campo campo);
/// ¿Se cumple @p requisito en la posición @p hora?
[[nodiscard]] bool SeCumple(const Requisito &requisito, const AnioCanonico &anio, std::size_t hora);

/// ¿Tiene @p campo algún valor en el año?
[[nodiscard]] bool HayAlguno(const AnioCanonico &anio, Campo campo);
[[nodiscard]] bool EsRadiacionSolar(Campo campo);

} // namespace tesmo
