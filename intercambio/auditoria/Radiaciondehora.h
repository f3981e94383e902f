#pragma once

#include "intercambio/auditoria/Materia.h"

#include <cstddef>

namespace tesmo {

// La radiación de una hora, la traiga el fichero en la columna que la traiga.

/// Lo que un piranómetro puede marcar sin sol [W/m²] (desviación térmica, con signo cambiado, de C. N. Long y
/// Y. Shi, 2008).
inline constexpr double RADIACION_NOCTURNA = 4.0;

/// Coseno del cenit en el centro de la hora @p i, nunca negativo. Exige materia.sol.Hay().
[[nodiscard]] double CosenoDe(const MateriaAuditoria &materia, std::size_t i);

/// Global horizontal del fichero [W/m²]; si falta, la directa horizontal más la difusa y, si tampoco, la
/// directa normal por el coseno del cenit más la difusa. AUSENTE si no sale.
[[nodiscard]] double GlobalDe(const MateriaAuditoria &materia, std::size_t i);

/// Directa horizontal del fichero [W/m²]; si falta, la directa normal por el coseno del cenit y, si tampoco,
/// la global menos la difusa. AUSENTE si no sale.
[[nodiscard]] double DirectaHorizontalDe(const MateriaAuditoria &materia, std::size_t i);

/// Directa normal del fichero [W/m²]; si falta, la horizontal entre el coseno del cenit. AUSENTE si no la hay
/// o si el sol está demasiado bajo para dividir. Exige materia.sol.Hay().
[[nodiscard]] double DirectaNormalDe(const MateriaAuditoria &materia, std::size_t i);

} // namespace tesmo
