#pragma once

#include "intercambio/comun/Aniocanonico.h"

#include <cstddef>
#include <optional>

namespace tesmo {

/// Un tramo de horas seguidas del año, que puede pasar del 31 de diciembre al 1 de enero.
struct TramoSinDato {
  std::size_t primera = 0;
  std::size_t horas = 0;
  [[nodiscard]] std::size_t Hora(std::size_t k) const {
    return (primera + k) % static_cast<std::size_t>(HORAS_DEL_ANIO);
  }
  [[nodiscard]] std::size_t Ultima() const { return Hora(horas - 1); }
};

/// Pone en el tramo los valores intermedios entre la hora de antes y la de después, como Calculada.
void InterpolarHueco(AnioCanonico &anio, Campo campo, const TramoSinDato &tramo);

/// La misma hora de los días vecinos, ponderada por su cercanía; sólo valen los que no se inventaron. Vacío
/// si no hay ninguno a menos de DIAS_VECINOS.
[[nodiscard]] std::optional<double> DeDiasVecinos(const SerieCanonica &serie, Campo campo, std::size_t hora);
inline constexpr int DIAS_VECINOS = 15;

} // namespace tesmo
