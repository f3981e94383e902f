#pragma once

#include "intercambio/formatos/Filas.h"
#include "intercambio/formatos/Mapacolumnas.h"

#include <string_view>

namespace tesmo {

/// La hora de una fecha que no la lleva.
inline constexpr int SIN_HORA = -1;

/// Pone la fecha de @p texto en @p fila según @p orden: tres números con lo que sea entre ellos
/// ("31/12/2014", "2014-12-31"), u ocho cifras seguidas ("20141231"), y detrás, si está, la hora ("13:00",
/// "1300" o "13"), también pegada ("2014123113"). Sin hora queda SIN_HORA. Falso si no hay una fecha entera.
[[nodiscard]] bool LeerFechaTexto(std::string_view texto, OrdenFecha orden, FilaClima &fila);

/// La hora de "13", "13:00", "1300" o "930" en @p fila; falso si no la hay.
[[nodiscard]] bool LeerHoraTexto(std::string_view texto, FilaClima &fila);

} // namespace tesmo
