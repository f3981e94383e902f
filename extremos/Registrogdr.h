#pragma once

#include "extremos/Tipos.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

/// Registros de "GDR.TXT" que se miran: los que siguen no existen para los días extremos.
inline constexpr int REGISTROS_MIRADOS_GDR = 177;

/// Un registro y los bytes de sus líneas en el fichero.
struct SitioRegistroGdr {
  std::string clave;
  std::size_t inicio = 0;
  std::size_t fin = 0; ///< con el fin de su última línea
};

/// Dónde está cada registro de @p contenido, también los que pasan de los que se miran, con las reglas con
/// que LeerRegistroGdr salta los ajenos.
[[nodiscard]] std::vector<SitioRegistroGdr> SituarRegistrosGdr(std::string_view contenido);

/// Busca en @p contenido (el fichero entero) el registro de clave exactamente @p clave (UTF-8), entre los 177
/// primeros, y lo pone en @p registro. Para saltar un registro ajeno se leen su cabecera, hasta 200 bytes de
/// lo que la sigue y seis líneas. Un registro estropeado deja un diagnóstico con @p fichero, la línea y el
/// campo; si no se devuelve Leido, @p registro queda como estaba.
[[nodiscard]] LecturaGdr LeerRegistroGdr(std::string_view contenido, std::string_view clave,
                                         std::string_view fichero, RegistroGdr &registro);

} // namespace tesmo::extremos
