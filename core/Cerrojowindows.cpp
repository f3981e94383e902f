#include "core/Cerrojo.h"

#include <windows.h>

namespace tesmo {

struct CerrojoDirectorio::Recurso {
  HANDLE fichero;
};

CerrojoDirectorio::CerrojoDirectorio(const std::filesystem::path &directorio)
    : recurso_(std::make_unique<Recurso>()) {
  // Un fichero sin compartir, que el sistema borra al cerrarse: los directorios no se cierran.
  const std::filesystem::path ruta = directorio / ".tesmo-cerrojo";
  recurso_->fichero = ::CreateFileW(ruta.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  tomado_ = recurso_->fichero != INVALID_HANDLE_VALUE || ::GetLastError() != ERROR_SHARING_VIOLATION;
}

CerrojoDirectorio::~CerrojoDirectorio() {
  if (recurso_->fichero != INVALID_HANDLE_VALUE) ::CloseHandle(recurso_->fichero);
}

} // namespace tesmo
