#pragma once

#include <QString>

#include <functional>

namespace tesmo {

/// Abre @p ruta con el programa que el escritorio le tenga asignado y vuelve sin esperar. @p alFallar se
/// llama, entonces o más tarde, si no hay con qué abrirlo.
void AbrirDocumento(const QString &ruta, const std::function<void(const QString &)> &alFallar);

} // namespace tesmo
