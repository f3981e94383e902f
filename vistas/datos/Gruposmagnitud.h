#pragma once

#include "meteo/Magnitudes.h"

#include <QString>

#include <functional>
#include <span>

class QGroupBox;
class QWidget;

namespace tesmo {

/// Los grupos de magnitudes, en el orden en que se enseñan.
inline constexpr std::array<GrupoMagnitud, 3> GRUPOS{GrupoMagnitud::Basicas, GrupoMagnitud::Psicrometricas,
                                                     GrupoMagnitud::Radiacion};

/// La caja de un grupo ("gbBasicas", "gbPsicrometricas" o "gbRadiacion" y detrás @p sufijo) con los controles
/// que @p crear da para las magnitudes del grupo, en el orden de @p orden. La caja es de quien la recibe.
[[nodiscard]] QGroupBox *CrearGrupoMagnitudes(GrupoMagnitud grupo, const QString &sufijo,
                                              std::span<const Magnitud> orden,
                                              const std::function<QWidget *(const FichaMagnitud &)> &crear);

} // namespace tesmo
