#pragma once

#include "intercambio/comun/Aniocanonico.h"
#include "intercambio/reloj/Escalatiempo.h"

#include <string>
#include <vector>

namespace tesmo {

/// Las magnitudes que pide un año de los motores, todavía en las etiquetas de su fichero y sin ningún hueco.
struct AnioCompleto {
  SerieCanonica seca;      ///< [°C]
  SerieCanonica presion;   ///< [Pa]
  SerieCanonica absoluta;  ///< [kg/kg]
  SerieCanonica relativa;  ///< [%]
  SerieCanonica cielo;     ///< [°C]
  SerieCanonica velocidad; ///< [m/s]
  SerieCanonica direccion; ///< [°]
  SerieCanonica directa;   ///< horizontal [W/m²]
  SerieCanonica difusa;    ///< horizontal [W/m²]
  /// La del fichero [W/m²], o AUSENTE: no es de las que piden los motores.
  SerieCanonica normal;
  std::string error; ///< en español, con la línea; vacío si no falta nada
  std::vector<std::string> avisos;
};

/// Saca de @p anio las magnitudes que hacen falta. @p escala dice cuándo fue cada hora, por si hay que pasar
/// una directa normal a la horizontal.
[[nodiscard]] AnioCompleto CompletarMagnitudes(const AnioCanonico &anio, const EscalaTiempo &escala);

} // namespace tesmo
