#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace tesmo {

/// Pone en marcha @p orden (programa y argumentos) y vuelve sin esperar a que acabe; el programa sigue vivo
/// si el nuestro acaba. Falso si no se pudo; @p alFallar se llama más tarde si acaba mal.
[[nodiscard]] bool LanzarPrograma(const QStringList &orden,
                                  const std::function<void(const QString &)> &alFallar);

} // namespace tesmo
