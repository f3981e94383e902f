#pragma once

#include "intercambio/auditoria/Auditoria.h"
#include "intercambio/auditoria/Materia.h"
#include "intercambio/conversion/Aniosolar.h"
#include "intercambio/escritura/Importacion.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tesmo {

/// Un fichero ajeno camino de ser una localidad: lo que se sabe de él y lo que la persona ha elegido.
struct FicheroImportable {
  std::string ruta;
  std::shared_ptr<const MapaColumnas> mapa; ///< cómo leer un texto delimitado; nulo en los demás formatos
  MateriaAuditoria materia;
  Auditoria auditoria;
  RelojFichero reloj; ///< con el que se convertirá; al preparar, el que los datos dicen
  PeticionImportacion peticion;
  HuecosLargos huecosLargos = HuecosLargos::Rechazar;
  std::optional<double> altitud = std::nullopt; ///< del sitio [m], si la del fichero no vale; vacía: la suya
  bool legible = false; ///< se pudo leer algún registro; sin ellos no hay nada que importar
};

/// Lee y audita @p ruta y propone reloj, nombre, provincia y zona. El nombre es el del sitio o, si no lo
/// dice, el del fichero; la provincia y la zona propuesta, las de las normales del lugar, si se conocen. Sin
/// estado.
[[nodiscard]] FicheroImportable PrepararFichero(const std::string &ruta,
                                                const std::vector<NormalesLocalidad> &normales,
                                                std::shared_ptr<const MapaColumnas> mapa = {});

/// Lo que dio una importación.
struct FicheroImportado {
  ResultadoImportacion resultado; ///< con su error si la lectura o la conversión fallaron
  InformeConversion informe;
  std::vector<std::string> avisos; ///< de la lectura y del reloj, también si no se pudo importar
};

/// Lee de nuevo el fichero, ahora tapando los huecos, lo lleva a hora solar y lo pone en @p directorio.
[[nodiscard]] FicheroImportado ImportarFichero(const std::string &directorio,
                                               const FicheroImportable &fichero);

} // namespace tesmo
