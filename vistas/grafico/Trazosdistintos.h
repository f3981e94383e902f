#pragma once

#include <QList>

namespace tesmo {

/// Trazo de la línea de @p puesto (0 en adelante), en anchos de la pluma; vacío, continua, para el 0. Los 21
/// primeros son distintos.
[[nodiscard]] QList<qreal> TrazoDistinto(int puesto);

} // namespace tesmo
