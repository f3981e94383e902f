#pragma once

#include "intercambio/comun/Aniocanonico.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace tesmo {

/// Un punto del curso de un día: el haz o el sol.
struct PuntoCurso {
  double hora = 0;  ///< solar verdadera, de 0 a 24
  double valor = 0; ///< coseno del cenit
};

/// Un día visto con un reloj. Con el reloj bueno los puntos caen sobre el curso del sol; con otro, corridos.
struct CursoReloj {
  std::vector<PuntoCurso> haz; ///< coseno del cenit que dicen los datos, a la hora que dice el reloj
  std::vector<PuntoCurso> sol; ///< el del sol verdadero, cada PASO_CURSO_MIN
  /// Lo que los puntos se apartan del curso, en media cuadrática; AUSENTE sin puntos.
  double desviacion = AUSENTE;
};
inline constexpr double PASO_CURSO_MIN = 10.0;

/// El día (0 a 364) con más haz de los que más luce el sol; vacío si el año no trae ninguna radiación ni
/// cenit.
[[nodiscard]] std::optional<std::size_t> DiaMasClaro(const AnioCanonico &anio);

/// El @p dia (0 a 364) de @p anio con @p reloj. El coseno de los datos es (global − difusa)/directa normal;
/// sin directa normal, el cenit escrito; sin él, la directa horizontal o la global a la escala del sol. Sin
/// latitud, o sin longitud si la etiqueta no es solar, no hay curso.
[[nodiscard]] CursoReloj CursoDelDia(const AnioCanonico &anio, const RelojFichero &reloj, std::size_t dia);

} // namespace tesmo
