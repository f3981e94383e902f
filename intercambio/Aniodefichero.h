#pragma once

#include "intercambio/Aniosolar.h"
#include "intercambio/formatos/Lectura.h"
#include "intercambio/reloj/Detectorreloj.h"

#include <optional>
#include <string>
#include <vector>

namespace tesmo {

/// Con qué reloj se pasa un fichero a hora solar; lo que no se diga sale del propio fichero.
struct EleccionReloj {
  std::optional<TiempoEtiqueta> tiempo = std::nullopt; ///< vacío: el que dicen los datos
  std::optional<double> desfaseMin = std::nullopt; ///< de la etiqueta al centro de su hora [min, −90 a 90]
  /// De la hora oficial de invierno del sitio [h, este positivo]; vacío: el del fichero si es creíble
  /// (HusoDeSitio).
  std::optional<double> husoHoras = std::nullopt;
};

/// Un fichero llevado hasta el año de los motores, con lo que se supo por el camino.
struct AnioDeFichero {
  ResultadoLectura lectura; ///< sin el año, que ya no hace falta
  VeredictoReloj veredicto;
  RelojFichero reloj; ///< con el que se convirtió
  SitioClima sitio;
  ResultadoConversion conversion;
  std::vector<std::string> errores; ///< en español, sin fin de línea; vacío si hay año
};

/// Lee @p ruta, mira su reloj y lo lleva a hora solar. Sin estado: se puede llamar desde varios hilos.
[[nodiscard]] AnioDeFichero LeerAnioDeFichero(const std::string &ruta, const EleccionReloj &eleccion,
                                              const OpcionesLectura &opciones = {});

/// El reloj con que se convierte: sin elección, el que los datos dicen con confianza media o alta y, si no,
/// el declarado. Un tiempo elegido lleva el desfase declarado si es el suyo y −30 min si no.
[[nodiscard]] RelojFichero ElegirReloj(const VeredictoReloj &veredicto, const EleccionReloj &eleccion);

} // namespace tesmo
