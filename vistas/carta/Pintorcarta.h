#pragma once

#include "vistas/carta/Nubecarta.h"
#include "vistas/carta/Puntocarta.h"

#include <QRect>

#include <optional>
#include <utility>
#include <vector>

class QPainter;

namespace tesmo {

class Psicro;

/// Todo lo que se ve en la carta.
struct ContenidoCarta {
  Psicro &carta;
  std::vector<MarcaNube> marcas = {};
  ColoreoNube coloreo = ColoreoNube::Uno;
  std::vector<PuntoCarta> puntos = {};
  std::optional<std::pair<std::size_t, std::size_t>> proceso = {}; ///< posiciones en puntos
};

/// Rectángulo de la carta dentro de un dibujo de tamaño @p total: lo demás es para las escalas. Siempre tiene
/// algún píxel.
[[nodiscard]] QRect RectanguloDeCarta(const QSize &total);

/// Pinta fondo, líneas, nube, nombres, puntos y escalas en un dibujo de tamaño @p total [píxeles].
void PintarCarta(QPainter &pintor, const QSize &total, ContenidoCarta &contenido);

/// Escalas de los bordes y nombres de las familias a la vista, con el origen en el de la carta.
void PintarEscalas(QPainter &pintor, const Psicro &carta);
void PintarNombres(QPainter &pintor, const Psicro &carta);

} // namespace tesmo
