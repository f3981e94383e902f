#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tesmo {

/// Rutas: texto UTF-8 dentro, ruta nativa al tocar el disco.
[[nodiscard]] std::filesystem::path RutaDesdeTexto(std::string_view texto);
[[nodiscard]] std::string TextoDeRuta(const std::filesystem::path &ruta);

/// Pasa a '/' los '\' de un directorio configurado.
[[nodiscard]] std::string NormalizarSeparadores(std::string_view texto);
/// Busca @p ruta tal cual y, si no existe, componente a componente sin distinguir mayúsculas. Lo que no se
/// encuentra queda como estaba.
[[nodiscard]] std::filesystem::path BuscarSinMayusculas(const std::filesystem::path &ruta);

/// Destino real de una cadena de enlaces, exista o no; @p ruta misma si no se puede seguir.
[[nodiscard]] std::filesystem::path SeguirEnlaces(std::filesystem::path ruta);

/// Todo el contenido de un fichero regular; vacío si falta, no es regular o no se puede abrir.
[[nodiscard]] std::optional<std::string> LeerFicheroEntero(const std::filesystem::path &ruta);

/// Pone @p contenido en @p ruta. Un fichero regular se sustituye entero (temporal al lado y cambio de nombre,
/// siguiendo enlaces y conservando permisos); un dispositivo, o un fichero en un directorio donde no se puede
/// escribir, se escribe en su sitio. Devuelve falso, sin tocar lo que había, si no se puede.
[[nodiscard]] bool EscribirFicheroEntero(const std::filesystem::path &ruta, std::string_view contenido);
/// Añade @p contenido al final de @p ruta en una sola escritura, creándolo si falta.
[[nodiscard]] bool AnadirAFichero(const std::filesystem::path &ruta, std::string_view contenido);

} // namespace tesmo
