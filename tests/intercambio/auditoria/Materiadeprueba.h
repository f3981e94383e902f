#pragma once

#include "intercambio/auditoria/Auditoria.h"
#include "intercambio/auditoria/Materia.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tesmo::prueba {

/// Primera línea de datos de los ficheros que se fingen: ocho de cabecera, como en un EPW.
inline constexpr int PRIMERA_LINEA = 9;
[[nodiscard]] inline int LineaDe(std::size_t hora) { return static_cast<int>(hora) + PRIMERA_LINEA; }
/// Posición de la hora @p hora (1 a 24) del @p dia de @p mes.
[[nodiscard]] std::size_t Posicion(int mes, int dia, int hora);

/// Un año sin ninguna falta: 37° N, 2,4° O, 500 m, hora oficial UTC+1, etiqueta al final de la hora. El sol
/// es el de Spencer (1971) y el cielo, claro con nubes de un día para otro; nada es de un sitio real.
[[nodiscard]] MateriaAuditoria MateriaLimpia();
/// El mismo con las columnas de un .met: absoluta en vez de rocío y presión, directa horizontal en vez de
/// global y directa normal.
[[nodiscard]] MateriaAuditoria MateriaMetLimpia();

/// El resultado de la comprobación @p clave.
[[nodiscard]] Hallazgo Mirar(const MateriaAuditoria &materia, std::string_view clave);
/// Las claves de las comprobaciones con aviso o falta grave, separadas por blancos.
[[nodiscard]] std::string Faltas(const MateriaAuditoria &materia);

} // namespace tesmo::prueba
