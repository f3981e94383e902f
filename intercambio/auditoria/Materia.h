#pragma once

#include "intercambio/comun/Aniocanonico.h"
#include "intercambio/formatos/Lectura.h"
#include "intercambio/reloj/Detectorreloj.h"
#include "intercambio/sintesis/Normales.h"

#include <string>
#include <vector>

namespace tesmo {

/// El sol en la hora que cubre cada registro.
struct SolDeRegistros {
  std::vector<double> cosenoCentro;   ///< coseno del cenit en el centro de la hora
  std::vector<double> cosenoMayor;    ///< el mayor en la hora
  std::vector<double> extraterrestre; ///< irradiancia normal fuera de la atmósfera [W/m²]
  [[nodiscard]] bool Hay() const { return !cosenoCentro.empty(); }
};

/// El sol (SolVerdadero) en las horas que cubren los registros de @p anio con @p reloj. Vacío sin latitud, o
/// sin longitud si las etiquetas no son solares.
[[nodiscard]] SolDeRegistros CalcularSolDeRegistros(const AnioCanonico &anio, const RelojFichero &reloj);

/// Todo lo que las comprobaciones pueden mirar.
struct MateriaAuditoria {
  AnioCanonico anio;
  std::vector<NotaLectura> errores; ///< los de la lectura
  std::vector<NotaLectura> avisos;  ///< los de la lectura
  int registros = HORAS_DEL_ANIO;   ///< líneas de datos del fichero
  VeredictoReloj reloj;
  SolDeRegistros sol; ///< con ElegirReloj; vacío si no se sabe dónde está el sitio
  const NormalesLocalidad *normales = nullptr; ///< las del lugar, si se conocen
};

/// Lo que se audita de una lectura hecha con OpcionesLectura::paraAuditar: detecta el reloj y pone el sol.
/// Sin año en @p lectura, el de la materia está vacío y los errores dicen por qué.
[[nodiscard]] MateriaAuditoria PrepararAuditoria(const ResultadoLectura &lectura,
                                                 const NormalesLocalidad *normales = nullptr);

/// Las normales de @p localidades que valen para @p sitio: las de la más cercana, si está a 15 km o menos y a
/// 150 m o menos de altura; ninguna si no se sabe dónde está el sitio.
[[nodiscard]] const NormalesLocalidad *NormalesDelSitio(const std::vector<NormalesLocalidad> &localidades,
                                                        const SitioClima &sitio);

} // namespace tesmo
