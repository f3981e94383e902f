#include "tests/comun/Apoyos.h"

#include <atomic>
#include <sys/wait.h>
#include <unistd.h>

namespace tesmo::prueba {

namespace fs = std::filesystem;

DirectorioTemporal::DirectorioTemporal() {
  static std::atomic<int> cuenta{0};
  ruta_ = fs::temp_directory_path() /
          ("tesmo-prueba-" + std::to_string(::getpid()) + "-" + std::to_string(++cuenta));
  fs::create_directories(ruta_);
}

DirectorioTemporal::~DirectorioTemporal() {
  std::error_code error;
  if (fs::current_path(error) == ruta_) fs::current_path(fs::temp_directory_path(), error);
  fs::remove_all(ruta_, error);
}

std::string DirectorioTemporal::Escribir(const std::string &nombre, const std::string &contenido) const {
  const fs::path destino = *this / nombre;
  fs::create_directories(destino.parent_path());
  std::ofstream(destino, std::ios::binary) << contenido;
  return TextoDeRuta(destino);
}

std::string Contenido(const fs::path &ruta) {
  std::ifstream fichero(ruta, std::ios::binary);
  return {std::istreambuf_iterator<char>(fichero), {}};
}

bool SinPrivilegios(const fs::path &directorio, const std::function<bool()> &accion) {
  constexpr uid_t NADIE = 65534;
  const pid_t hijo = ::fork();
  if (hijo == 0) {
    if (::chdir(directorio.c_str()) != 0) ::_exit(1);
    const bool soltado = ::getuid() != 0 || (::setgid(NADIE) == 0 && ::setuid(NADIE) == 0);
    ::_exit(soltado && accion() ? 0 : 1);
  }
  int estado = 1;
  return hijo > 0 && ::waitpid(hijo, &estado, 0) == hijo && WIFEXITED(estado) && WEXITSTATUS(estado) == 0;
}

bool SinPrivilegios(const std::function<bool()> &accion) { return SinPrivilegios(".", accion); }

} // namespace tesmo::prueba
