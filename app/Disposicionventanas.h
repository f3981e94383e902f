#pragma once

#include <QRect>
#include <QSize>

#include <vector>

class QMdiArea;

namespace tesmo {

/// Cómo reparte el área un mosaico: ventanas a todo lo ancho, una sobre otra, o a todo lo alto, una junto a
/// otra.
enum class Mosaico { Horizontal, Vertical };

/// Rectángulos de @p ventanas ventanas que llenan @p area sin solaparse ni dejar hueco, salvo en la última
/// tira si no salen iguales. Si así bajarían de @p minimo, se reparten en más tiras.
[[nodiscard]] std::vector<QRect> RepartirEnMosaico(const QSize &area, int ventanas, const QSize &minimo,
                                                   Mosaico mosaico);

/// Esquinas superiores de @p iconos ventanas minimizadas de tamaño @p icono, de izquierda a derecha y desde
/// el fondo de @p area hacia arriba.
[[nodiscard]] std::vector<QPoint> AlinearIconos(const QSize &area, int iconos, const QSize &icono);

/// Pone en mosaico las ventanas de @p area que no están minimizadas.
void PonerEnMosaico(QMdiArea &area, Mosaico mosaico);
/// Minimiza todas las ventanas de @p area.
void MinimizarTodo(QMdiArea &area);
/// Alinea al fondo de @p area las ventanas minimizadas.
void OrganizarIconos(QMdiArea &area);

} // namespace tesmo
