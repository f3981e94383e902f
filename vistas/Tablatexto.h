#pragma once

#include <QString>

class QTableWidget;

namespace tesmo {

/// Los títulos y las celdas de @p tabla, separados por tabuladores y una línea por fila, para pegarlos en una
/// hoja de cálculo. Una celda sin nada queda vacía.
[[nodiscard]] QString TextoDeTabla(const QTableWidget &tabla);

} // namespace tesmo
