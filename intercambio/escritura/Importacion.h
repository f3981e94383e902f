#pragma once

#include "intercambio/conversion/Aniosolar.h"
#include "intercambio/escritura/Sustitucionconjunta.h"
#include "localidades/Objetociudad.h"

#include <string>
#include <vector>

namespace tesmo {

/// Zonas de los registros de GDR.TXT.
inline constexpr const char *ZONA_COSTA = "COSTA";
inline constexpr const char *ZONA_INTERIOR = "INTERIOR";

/// Qué localidad se quiere hacer de un año. Textos en UTF-8.
struct PeticionImportacion {
  std::string nombre;    ///< de la localidad; se limpia (TextoDeCampo)
  std::string provincia; ///< lo mismo
  std::string zona;      ///< "COSTA" o "INTERIOR"; vacía: la que ya tuviera; si no, zonaPropuesta
  std::string origen;    ///< de dónde sale el año, para la primera línea del .met
  bool reemplazar = false;
  /// Si no se dice la zona y la localidad no tenía: "COSTA", "INTERIOR" o vacía, que es "INTERIOR".
  std::string zonaPropuesta = {};
  /// Ruta del fichero de que salió el año: si es el propio .met de la localidad, se conserva a su lado con
  /// ".original" detrás. Vacía: no se mira.
  std::string fuente = {};
};

enum class FalloImportacion {
  Ninguno,
  Peticion, ///< falta el nombre, la provincia o la posición, o el año no está entero
  Existe,   ///< ya hay una localidad de ese nombre y no se pidió reemplazarla
  Ocupado,  ///< otro proceso está importando en el mismo directorio
  Salida    ///< no se pudo escribir; queda lo que había
};

struct ResultadoImportacion {
  FalloImportacion fallo = FalloImportacion::Ninguno;
  std::string error;                 ///< en español y sin fin de línea
  std::vector<std::string> avisos;   ///< lo que no impidió terminar
  std::vector<std::string> ficheros; ///< rutas escritas
  ObjetoCiudad registro;             ///< como lo leerá la base: para PonRegistro
  bool reemplazada = false;
};

/// Hace de @p anio una localidad en @p directorio, el de los datos meteorológicos (se crea si falta): su .met
/// de quince columnas, su registro en "GDR.TXT" y su línea en "LocalidadesCC", por este orden y los tres o
/// ninguno. El nombre corto sale del nombre y no pisa el de otra localidad ni un fichero que ya esté; una
/// localidad que se reemplaza conserva los suyos. No toca la base en memoria.
[[nodiscard]] ResultadoImportacion ImportarLocalidad(const std::string &directorio,
                                                     const PeticionImportacion &peticion,
                                                     const AnioSolar &anio, const TrasPaso &tras = {});

/// Termina o deshace lo que una importación dejara a medias en @p directorio. Se llama al empezar, antes de
/// leer las localidades. Devuelve qué se hizo, en español; vacío si no había nada que hacer.
[[nodiscard]] std::string RecuperarImportacion(const std::string &directorio);

} // namespace tesmo
