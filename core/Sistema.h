#pragma once

#include <ctime>
#include <filesystem>

namespace tesmo {

/// Lo que cada sistema operativo hace a su manera, detrás de funciones corrientes.

/// Ruta del ejecutable en marcha; vacía si el sistema no la da.
[[nodiscard]] std::filesystem::path RutaEjecutable();

/// Fecha y hora de @p instante en el reloj del sistema, con su huso y su horario de verano.
[[nodiscard]] std::tm HoraLocal(std::time_t instante);

/// Nombre libre, propio de este proceso, en el directorio de @p ruta.
[[nodiscard]] std::filesystem::path RutaTemporalJunto(const std::filesystem::path &ruta);
/// Qué pasó al crear un fichero: el sitio puede faltar por permisos o por otra causa (disco lleno, nombre).
enum class Creacion { Hecha, SinPermiso, Imposible };
/// Crea @p ruta vacía; no toca un fichero que ya exista.
[[nodiscard]] Creacion CrearFicheroNuevo(const std::filesystem::path &ruta);
/// ¿Puede este proceso escribir en el fichero @p ruta, que existe?
[[nodiscard]] bool SePuedeEscribir(const std::filesystem::path &ruta);
/// Da a @p copia los permisos de @p original y, si el sistema deja, su dueño.
void ConservarDuenoYPermisos(const std::filesystem::path &original, const std::filesystem::path &copia);

} // namespace tesmo
