#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace tesmo {

/// Un fichero que se sustituye o se crea: su nombre en el directorio, sin separadores, y su contenido.
struct FicheroConjunto {
  std::string nombre;
  std::string contenido;
};

/// Ficheros que pueden ir juntos.
inline constexpr std::size_t FICHEROS_JUNTOS = 4;

/// Se llama tras cada paso en el disco; las pruebas mueren en ella.
using TrasPaso = std::function<void()>;

/// Pone los @p ficheros en @p directorio como si fueran uno: todos o ninguno. Escribe temporales y una copia
/// de lo que había, un diario que dice qué va a pasar, cambia los nombres por el orden dado y borra el
/// diario. Si el proceso muere a medias, RecuperarConjunto lo termina o lo deshace. Los enlaces se siguen y
/// los permisos se conservan. Quien llama tiene el cerrojo del directorio. Devuelve el error, en español;
/// vacío si se hizo.
[[nodiscard]] std::string SustituirJuntos(const std::filesystem::path &directorio,
                                          const std::vector<FicheroConjunto> &ficheros,
                                          const TrasPaso &tras = {});

/// Qué se hizo con una sustitución que quedó a medias.
enum class Recuperacion {
  Nada,      ///< no la había
  Terminada, ///< estaba decidida: se acabó
  Deshecha,  ///< no se había decidido, o alguien cambió después un fichero: queda lo de antes
  Imposible  ///< no se puede escribir en el directorio: el diario sigue
};

/// ¿Hay en @p directorio restos de una sustitución? @p nombres, los ficheros que pueden ser enlaces a otro
/// directorio.
[[nodiscard]] bool QuedanRestos(const std::filesystem::path &directorio,
                                const std::vector<std::string> &nombres);

/// Termina o deshace lo que quedara a medias y borra sus restos. Se puede morir en ella y repetirla. Quien
/// llama tiene el cerrojo del directorio.
[[nodiscard]] Recuperacion RecuperarConjunto(const std::filesystem::path &directorio,
                                             const std::vector<std::string> &nombres,
                                             const TrasPaso &tras = {});

} // namespace tesmo
