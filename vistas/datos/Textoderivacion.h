#pragma once

#include "extremos/Calculodias.h"

#include <string>

namespace tesmo {

/// Lo que se pidió en un cálculo de días de proyecto.
struct PeticionDias {
  std::string localidad;
  std::string provincia;
  extremos::AjustesEstacion calefaccion;
  extremos::AjustesEstacion refrigeracion;
};

/// El camino del cálculo en cifras, para leerlo y copiarlo: una línea por paso, "nombre TAB calefacción TAB
/// refrigeración", con el separador decimal de la región en vigor.
[[nodiscard]] std::string TextoDeDerivacion(const PeticionDias &peticion,
                                            const extremos::ResultadoDias &resultado);

} // namespace tesmo
