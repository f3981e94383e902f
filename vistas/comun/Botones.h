#pragma once

class QLabel;
class QPushButton;
class QString;
class QWidget;

namespace tesmo {

/// Botón sin dueño de nombre @p nombre; @p ayuda es lo que dice al posar el puntero.
[[nodiscard]] QPushButton *CrearBoton(const char *nombre, const QString &texto, const QString &ayuda);
/// El mismo sin ayuda.
[[nodiscard]] QPushButton *CrearBoton(const char *nombre, const QString &texto);
/// Rótulo sin dueño cuya tecla de acceso, si la tiene, lleva a @p control.
[[nodiscard]] QLabel *CrearRotulo(const QString &texto, QWidget &control);

} // namespace tesmo
