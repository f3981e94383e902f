#pragma once

#include "meteo/Serieshorarias.h"

#include <string>

namespace tesmo {

/// Los tres números de la segunda línea de un fichero .met.
struct SitioMet {
  float latitud = 36.84F;   ///< [°, norte positivo]
  float longitud = -2.39F;  ///< [°, este positivo]
  float tercerDato = 21.0F; ///< altitud del sitio [m]
};

/// Lo que se pudo leer de un fichero .met (para avisar; la lectura no rechaza nada).
struct ResumenLectura {
  int registros = 0; ///< registros completos leídos, 0..8760
  int linea = 0;     ///< línea (desde 1) donde la lectura se detuvo; 0 si se leyó el año entero
  [[nodiscard]] bool Completa() const { return registros == HORAS_DEL_ANIO; }
};

/// Lee el texto de un fichero .met: una línea que se descarta, los tres números del sitio con el resto de su
/// línea, y 8.760 registros de quince números separados por blancos, cada uno con la semántica de "%f" de
/// FlujoReales. Nada se valida: lo que no se pudo leer deja @p sitio y @p series como estaban, un campo que
/// no es un número detiene ahí la lectura y los campos ya leídos de ese registro quedan guardados.
/// Con sólo tres números en la segunda línea se pierde la tercera (se conserva).
ResumenLectura LeerTextoMet(const std::string &texto, SitioMet &sitio, SeriesLeidas &series);

} // namespace tesmo
