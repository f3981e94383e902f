#pragma once

#include "localidades/Lectorlocalidades.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace tesmo {

/// Una línea de localidad y su sitio en los bytes del fichero.
struct LineaDeBloque {
  std::size_t inicio = 0;
  std::size_t fin = 0; ///< con su fin de línea
  CamposLocalidad campos;
};

/// Un bloque del fichero: su línea de cuenta y las localidades que de verdad la siguen.
struct BloqueDeLocalidades {
  std::size_t inicioCuenta = 0; ///< primera cifra de la cuenta
  std::size_t finCuenta = 0;    ///< tras su última cifra
  int cuenta = 0;               ///< la escrita, que puede pasar de las líneas que hay en el último bloque
  std::size_t fin = 0;          ///< tras su última línea
  std::vector<LineaDeBloque> lineas;
};

/// Los bloques de @p contenido con las reglas de LeerLocalidades; los vacíos (una línea en blanco) no se dan.
[[nodiscard]] std::vector<BloqueDeLocalidades> BloquesDeLocalidades(std::string_view contenido);

} // namespace tesmo
