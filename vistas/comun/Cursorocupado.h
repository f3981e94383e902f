#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace tesmo {

/// Reloj de arena mientras vive; al salir, por el camino que sea, vuelve el cursor que había.
class CursorOcupado {
public:
  CursorOcupado() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~CursorOcupado() { QGuiApplication::restoreOverrideCursor(); }
  CursorOcupado(const CursorOcupado &) = delete;
  CursorOcupado &operator=(const CursorOcupado &) = delete;
};

} // namespace tesmo
