#pragma once

#include "intercambio/reloj/Cortes.h"

#include "intercambio/comun/Aniocanonico.h"

#include <vector>

namespace tesmo {

/// @p serie en los instantes de @p sitios, por rectas entre sus vecinos. Lo que coincide con un valor
/// conserva su procedencia; lo demás es calculado, o inventado si lo es uno de los dos.
[[nodiscard]] SerieCanonica Interpolar(const SerieCanonica &serie, const std::vector<Entre> &sitios);

/// La dirección [°, 0 a 360] del viento medio entre dos vecinos, como vector. Con la suma nula vale la del
/// más cercano.
[[nodiscard]] SerieCanonica InterpolarDireccion(const SerieCanonica &direccion,
                                                const SerieCanonica &velocidad,
                                                const std::vector<Entre> &sitios);

/// La procedencia de lo que sale de dos horas.
[[nodiscard]] Procedencia ProcedenciaEntre(const SerieCanonica &serie, const Entre &sitio);

} // namespace tesmo
