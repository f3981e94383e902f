#pragma once

#include "solar/Curvassol.h"
#include "solar/Edicionhorizonte.h"

#include <array>
#include <optional>
#include <string>

namespace tesmo {

/// Qué caminos del sol se ven en la carta: cada dibujo enseña una sola cosa.
enum class DibujoSolar { Ninguno, Dia, Meses };

/// Las series de la carta solar.
struct ContenidoSolar {
  DibujoSolar dibujo = DibujoSolar::Ninguno;
  std::string titulo = {};
  CurvaSolar dia = {};
  std::array<CurvaSolar, MESES_DEL_ANIO> meses = {};
  std::array<CurvaSolar, HORAS_DEL_DIA> horas = {}; ///< los puntos de cada hora en punto sobre las curvas
  PuntosHorizonte horizonte = {};                   ///< por orden de acimut
  int elegido = EdicionHorizonte::NINGUNO;          ///< posición en el horizonte
  std::optional<PuntoSolar> momento = {};           ///< el último momento preguntado, si era de día
};

/// Sustituye los caminos por los de un día, o por los del mismo día de cada mes. El horizonte no cambia.
void PonCurvas(ContenidoSolar &contenido, const CurvasDelDia &curvas);
void PonCurvas(ContenidoSolar &contenido, const CurvasDeLosMeses &curvas);

} // namespace tesmo
