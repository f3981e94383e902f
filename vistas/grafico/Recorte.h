#pragma once

#include <QPointF>
#include <QRectF>
#include <QVector>

#include <optional>
#include <utility>
#include <vector>

namespace tesmo {

/// La parte del segmento @p a – @p b que cae dentro de @p marco (bordes incluidos); vacía si no toca.
/// Liang y Barsky (1984), "A new concept and method for line clipping".
[[nodiscard]] std::optional<std::pair<QPointF, QPointF>> RecortarSegmento(const QPointF &a, const QPointF &b,
                                                                          const QRectF &marco);

/// Los tramos de @p linea que caen dentro de @p marco. Hace falta en el dibujo vectorial, cuyo formato no
/// recorta.
[[nodiscard]] std::vector<QVector<QPointF>> RecortarPolilinea(const QVector<QPointF> &linea,
                                                              const QRectF &marco);

/// La parte del polígono @p poligono, cerrado o no, que cae dentro de @p marco; puede recorrer sus bordes más
/// de una vez. Sutherland y Hodgman (1974), "Reentrant polygon clipping".
[[nodiscard]] QVector<QPointF> RecortarPoligono(const QVector<QPointF> &poligono, const QRectF &marco);

} // namespace tesmo
