#pragma once

#include <QList>
#include <QString>

class QTableWidget;

namespace tesmo {

/// Los títulos y las celdas de @p tabla, separados por tabuladores y una línea por fila, para pegarlos en una
/// hoja de cálculo. Una celda sin nada queda vacía.
[[nodiscard]] QString TextoDeTabla(const QTableWidget &tabla);
/// Sólo las filas @p filas, por ese orden; todas si no hay ninguna.
[[nodiscard]] QString TextoDeTabla(const QTableWidget &tabla, QList<int> filas);

} // namespace tesmo
