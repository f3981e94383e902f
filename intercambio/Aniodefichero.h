#pragma once

#include "intercambio/conversion/Aniosolar.h"
#include "intercambio/formatos/Lectura.h"
#include "intercambio/reloj/Eleccionreloj.h"

#include <string>
#include <vector>

namespace tesmo {

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

/// Lo que se dijo al leer @p anio y al mirar su reloj, en español y sin fin de línea.
[[nodiscard]] std::vector<std::string> AvisosDe(const AnioDeFichero &anio);

} // namespace tesmo
