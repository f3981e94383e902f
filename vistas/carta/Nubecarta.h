#pragma once

#include "psicro/Lienzo.h"

#include <QString>

#include <vector>

namespace tesmo {

/// Una hora marcada en la carta psicrométrica.
struct MarcaNube {
  float t;        ///< temperatura seca [°C]
  float w;        ///< humedad absoluta [kg/kg]
  int mes;        ///< 1 a 12
  int hora;       ///< 1 a 24
  ColorBgr color; ///< el del punto cuando se marcó
};

/// De qué depende el color de las marcas.
enum class ColoreoNube { Uno, Hora, Mes, Estacion };

/// Color de una marca: el suyo, o el de su hora, su mes o su estación del año (diciembre a febrero,
/// invierno).
[[nodiscard]] ColorBgr ColorDeMarca(const MarcaNube &marca, ColoreoNube coloreo);

struct EntradaNube {
  QString texto;
  ColorBgr color;
};
/// Lo que explica los colores; vacía si sólo hay uno.
[[nodiscard]] std::vector<EntradaNube> LeyendaDeNube(ColoreoNube coloreo);

} // namespace tesmo
