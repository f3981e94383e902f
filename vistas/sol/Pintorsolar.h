#pragma once

#include "vistas/sol/Contenidosolar.h"
#include "vistas/sol/Escalasolar.h"

#include <QString>

class QPainter;

namespace tesmo {

/// Medio lado de la marca de un punto del horizonte [px]: hasta ahí llega una pulsación.
inline constexpr double MEDIA_MARCA = 5.0;

/// Rectángulo de los ejes dentro de un dibujo de tamaño @p total: lo demás es para título y rótulos.
[[nodiscard]] QRectF MarcoSolar(const QSize &total);

/// Pinta rejilla, caminos del sol, horizonte, ejes y título en un dibujo de tamaño @p total [px] cuyo eje de
/// alturas acaba en @p alturaMaxima [°]; @p aviso se lee en el centro.
void PintarSolar(QPainter &pintor, const QSize &total, const ContenidoSolar &contenido, double alturaMaxima,
                 const QString &aviso);

/// La rejilla y los ejes, con sus rótulos y los puntos cardinales.
void PintarRejillaSolar(QPainter &pintor, const QRectF &marco, const EscalaSolar &escala,
                        double alturaMaxima);
void PintarEjesSolares(QPainter &pintor, const QRectF &marco, const EscalaSolar &escala, double alturaMaxima);

} // namespace tesmo
