#pragma once

#include "solar/Edicionhorizonte.h"

#include <cmath>
#include <ostream>

namespace tesmo {

/// Para que un fallo enseñe el punto.
inline void PrintTo(const PuntoHorizonte &punto, std::ostream *salida) {
  *salida << '(' << punto.acimut << ", " << punto.altura << ')';
}

namespace prueba {

inline constexpr AlcanceRaton MARCA{2.0F, 1.0F};
inline const float NULO = std::nanf("");
inline const PuntosHorizonte TRES{{-60, 10}, {0, 20}, {60, 30}};

inline EdicionHorizonte Edicion(const PuntosHorizonte &puntos) {
  EdicionHorizonte edicion;
  edicion.Tomar(PerfilDe(puntos));
  return edicion;
}

/// Un clic sin Mayúsculas.
inline bool Pulsar(EdicionHorizonte &edicion, float acimut, float altura) {
  edicion.PulsarIzquierdo(acimut, altura, false, MARCA);
  return edicion.SoltarIzquierdo(acimut, altura, false);
}

} // namespace prueba
} // namespace tesmo
