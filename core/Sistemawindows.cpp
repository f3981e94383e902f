#include "core/Sistema.h"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <windows.h>

namespace tesmo {

namespace fs = std::filesystem;

fs::path RutaEjecutable() {
  constexpr DWORD TAMANO = 32768; // la ruta más larga que admite el sistema
  std::wstring bufer(TAMANO, L'\0');
  bufer.resize(::GetModuleFileNameW(nullptr, bufer.data(), TAMANO));
  return bufer;
}

std::tm HoraLocal(std::time_t instante) {
  std::tm partes{};
  ::localtime_s(&partes, &instante);
  return partes;
}

fs::path RutaTemporalJunto(const fs::path &ruta) {
  static std::atomic<unsigned> cuenta{0};
  fs::path temporal = ruta;
  const std::string proceso = std::to_string(::GetCurrentProcessId());
  temporal.replace_filename(".tesmo-" + proceso + "-" + std::to_string(++cuenta) + ".tmp");
  return temporal;
}

Creacion CrearFicheroNuevo(const fs::path &ruta) {
  int descriptor = -1;
  const int modo = _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY;
  const int error = _wsopen_s(&descriptor, ruta.c_str(), modo, _SH_DENYNO, _S_IREAD | _S_IWRITE);
  if (error != 0) return error == EACCES ? Creacion::SinPermiso : Creacion::Imposible;
  _close(descriptor);
  return Creacion::Hecha;
}

bool SePuedeEscribir(const fs::path &ruta) {
  constexpr int ESCRITURA = 2;
  return _waccess(ruta.c_str(), ESCRITURA) == 0;
}

void ConservarDuenoYPermisos(const fs::path &original, const fs::path &copia) {
  std::error_code error;
  const fs::file_status estado = fs::status(original, error);
  if (!error) fs::permissions(copia, estado.permissions(), error);
}

} // namespace tesmo
