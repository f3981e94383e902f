#pragma once

#include "extremos/Tipos.h"

#include <optional>
#include <string>
#include <string_view>

namespace tesmo::extremos {

/// Estadísticas mensuales de una localidad, tal como están en "GDR.TXT".
struct RegistroGdr {
  std::string clave;                   ///< nombre corto de la localidad
  std::string zona;                    ///< "COSTA" en la costa; cualquier otra palabra en el interior
  float latitud = 0.0F;                ///< [°, norte positivo]
  float factorDeCola = 0.0F;           ///< la clase extrema de un mes tiene probabilidad 1/(días × factor)
  ValoresMensuales maxima{};           ///< media de las máximas diarias [°C]
  ValoresMensuales minima{};           ///< media de las mínimas diarias [°C]
  ValoresMensuales desviacionMaxima{}; ///< desviación típica de las máximas diarias [K]
  ValoresMensuales desviacionMinima{}; ///< desviación típica de las mínimas diarias [K]
  ValoresMensuales radiacion{};        ///< radiación global diaria horizontal [kJ/m²]
  ValoresMensuales sexta{};            ///< sexta serie; nada la usa
  std::optional<float> altitud;        ///< "ALT=" tras la cabecera [m, −500 a 5000]
  std::optional<float> humedadCal;     ///< "WCAL=": humedad absoluta del día de calefacción [g/kg, 0 a 40]
  std::optional<float> humedadRef;     ///< "WREF=": la del día de refrigeración [g/kg, 0 a 40]
};

enum class LecturaGdr {
  Leido,
  SinClave,   ///< ningún registro de los que se miran tiene esa clave
  Estropeado, ///< el registro está corto, o algo que no es un número o no tiene sentido ocupa su sitio
};

/// Busca en @p contenido (el fichero entero) el registro de clave exactamente @p clave (UTF-8), entre los 177
/// primeros, y lo pone en @p registro. Para saltar un registro ajeno se leen su cabecera, hasta 200 bytes de
/// lo que la sigue y seis líneas. Un registro estropeado deja un diagnóstico con @p fichero, la línea y el
/// campo; si no se devuelve Leido, @p registro queda como estaba.
[[nodiscard]] LecturaGdr LeerRegistroGdr(std::string_view contenido, std::string_view clave,
                                         std::string_view fichero, RegistroGdr &registro);

} // namespace tesmo::extremos
