#include "vistas/grafico/Trazosdistintos.h"

#include <array>

namespace tesmo {

namespace {

/// Un guión largo y, tras él, de cero a cuatro puntos: las combinaciones que se distinguen a simple vista.
constexpr std::array<qreal, 4> GUIONES{6.0, 12.0, 20.0, 32.0};
constexpr int PUNTOS_POSIBLES = 5;
constexpr qreal HUECO = 3.0;
constexpr qreal PUNTO = 1.5;

} // namespace

QList<qreal> TrazoDistinto(int puesto) {
  if (puesto <= 0) return {};
  const int cual = puesto - 1;
  const auto guion = static_cast<std::size_t>(cual / PUNTOS_POSIBLES) % GUIONES.size();
  QList<qreal> trazo{GUIONES[guion], HUECO};
  for (int punto = 0; punto < cual % PUNTOS_POSIBLES; ++punto) trazo << PUNTO << HUECO;
  return trazo;
}

} // namespace tesmo
