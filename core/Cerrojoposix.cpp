#include "core/Cerrojo.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tesmo {

struct CerrojoDirectorio::Recurso {
  int descriptor;
};

CerrojoDirectorio::CerrojoDirectorio(const std::filesystem::path &directorio)
    : recurso_(std::make_unique<Recurso>()) {
  recurso_->descriptor = ::open(directorio.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (recurso_->descriptor < 0) return; // sin directorio, quien escriba en él ya lo dirá
  tomado_ = ::flock(recurso_->descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

CerrojoDirectorio::~CerrojoDirectorio() {
  if (recurso_->descriptor >= 0) ::close(recurso_->descriptor);
}

} // namespace tesmo
