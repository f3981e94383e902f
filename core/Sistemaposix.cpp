#include "core/Sistema.h"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#ifdef __APPLE__
#include <array>
#include <mach-o/dyld.h>
#endif

namespace tesmo {

namespace fs = std::filesystem;

fs::path RutaEjecutable() {
  std::error_code error;
#ifdef __APPLE__
  std::array<char, 4096> bufer{};
  auto tamano = static_cast<std::uint32_t>(bufer.size());
  if (_NSGetExecutablePath(bufer.data(), &tamano) != 0) return {};
  return fs::canonical(bufer.data(), error);
#else
  return fs::read_symlink("/proc/self/exe", error);
#endif
}

std::tm HoraLocal(std::time_t instante) {
  std::tm partes{};
  ::localtime_r(&instante, &partes);
  return partes;
}

fs::path RutaTemporalJunto(const fs::path &ruta) {
  static std::atomic<unsigned> cuenta{0};
  fs::path temporal = ruta;
  temporal.replace_filename(".tesmo-" + std::to_string(::getpid()) + "-" + std::to_string(++cuenta) + ".tmp");
  return temporal;
}

Creacion CrearFicheroNuevo(const fs::path &ruta) {
  constexpr mode_t LECTURA_Y_ESCRITURA = 0666; // lo recorta la máscara del usuario
  const int descriptor = ::open(ruta.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, LECTURA_Y_ESCRITURA);
  if (descriptor < 0) {
    return errno == EACCES || errno == EPERM || errno == EROFS ? Creacion::SinPermiso : Creacion::Imposible;
  }
  ::close(descriptor);
  return Creacion::Hecha;
}

bool SePuedeEscribir(const fs::path &ruta) { return ::access(ruta.c_str(), W_OK) == 0; }

void ConservarDuenoYPermisos(const fs::path &original, const fs::path &copia) {
  struct stat datos {};
  if (::stat(original.c_str(), &datos) != 0) return;
  // Cambiar de dueño exige privilegios; si se niegan, la copia queda del usuario, como al guardar de nuevo.
  if (::chown(copia.c_str(), datos.st_uid, datos.st_gid) != 0) errno = 0;
  constexpr mode_t PERMISOS = 07777;
  if (::chmod(copia.c_str(), datos.st_mode & PERMISOS) != 0) errno = 0;
}

} // namespace tesmo
