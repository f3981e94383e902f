#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace tesmo {

/// Lo que decide con qué se abre un texto.
struct EntornoEditor {
  QString visual; ///< variable VISUAL
  QString editor; ///< variable EDITOR
  /// Ruta de un programa del sistema; vacía si no está.
  std::function<QString(const QString &)> buscar;

  [[nodiscard]] static EntornoEditor DelSistema();
};

/// Órdenes, por orden de preferencia, que abren @p ruta en un editor: el de VISUAL; el de EDITOR dentro de un
/// terminal, si hay alguno; el abridor del escritorio. En Windows, sólo "notepad.EXE".
[[nodiscard]] std::vector<QStringList> OrdenesDeEditor(const QString &ruta, const EntornoEditor &entorno);

/// Abre @p ruta en un editor y vuelve sin esperar a que se cierre; el editor sigue vivo si el programa acaba.
/// @p alFallar se llama, entonces o más tarde, si no hay con qué abrirlo o si el programa acaba mal.
void AbrirEditor(const QString &ruta, std::function<void(const QString &)> alFallar);

} // namespace tesmo
