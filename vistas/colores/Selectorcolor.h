#pragma once

#include <QColor>

#include <functional>

class QObject;
class QString;
class QWidget;

namespace tesmo {

/// Abre sobre @p padre el selector de color de nombre @p nombre, con @p actual puesto, y vuelve sin esperar.
/// Si se acepta un color se llama a @p elegido, salvo que @p receptor haya muerto.
void AbrirSelectorDeColor(QWidget &padre, const QString &nombre, const QColor &actual,
                          const QObject &receptor, std::function<void(const QColor &)> elegido);

} // namespace tesmo
