#pragma once

#include "intercambio/reloj/Escalatiempo.h"

#include <cstddef>
#include <vector>

namespace tesmo {

/// El trozo de hora que comparten un registro de un fichero y una hora solar. Instantes en horas solares.
struct Corte {
  std::size_t registro = 0;  ///< 0 a 8759
  std::size_t horaSolar = 0; ///< 0 a 8759
  double desde = 0;          ///< dentro de un solo día
  double hasta = 0;
  double enRegistro = 0; ///< de su centro al del registro [h], de −0,5 a 0,5
  double enHora = 0;     ///< de su centro al de la hora solar [h], de −0,5 a 0,5
};

/// Todos los trozos del año, en el orden de los registros: cubren las 8760 horas sin hueco ni solape.
[[nodiscard]] std::vector<Corte> CortesDelAnio(const EscalaTiempo &escala);

/// Un instante entre dos valores de una serie.
struct Entre {
  std::size_t izquierdo = 0;
  std::size_t derecho = 0;
  double parte = 0; ///< del derecho, de 0 a 1
};

/// El sitio de los centros de las 8760 horas solares entre los registros…
[[nodiscard]] std::vector<Entre> CentrosSolaresEntreRegistros(const EscalaTiempo &escala);
/// …y el de los centros de los registros entre los de las horas solares.
[[nodiscard]] std::vector<Entre> RegistrosEntreCentrosSolares(const EscalaTiempo &escala);

} // namespace tesmo
