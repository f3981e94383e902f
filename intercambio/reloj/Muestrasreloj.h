#pragma once

#include "intercambio/comun/Aniocanonico.h"

#include <cstddef>
#include <span>
#include <vector>

namespace tesmo {

/// Una hora que dice algo del reloj: lo que el fichero da por coseno del cenit, y con qué el sol lo daría si
/// el centro de la hora estuviera d minutos después de la etiqueta: a + b·cos(h + d).
struct MuestraReloj {
  double dato = 0;
  double a = 0;    ///< producto de los senos de latitud y declinación
  double b = 0;    ///< producto de sus cosenos
  double cosH = 0; ///< del ángulo horario en la etiqueta
  double senH = 0;
  std::size_t mes = 0; ///< de 0 a 11
};

/// Las horas con directa normal de más de 150 W/m² y más de 30 sobre la horizontal, con las etiquetas leídas
/// en el tiempo de @p reloj (su desfase no cuenta). Vacío si falta la posición que ese tiempo pide.
[[nodiscard]] std::vector<MuestraReloj> MuestrasDeHaz(const AnioCanonico &anio, const RelojFichero &reloj);
/// Lo mismo con el cenit escrito en el fichero, en las horas en que no llega a 85°.
[[nodiscard]] std::vector<MuestraReloj> MuestrasDeCenit(const AnioCanonico &anio, const RelojFichero &reloj);

/// ¿Se puede situar el sol de @p anio con las etiquetas en @p tiempo?
[[nodiscard]] bool SitioBasta(const AnioCanonico &anio, TiempoEtiqueta tiempo);

/// Media de lo que el coseno se aparta de los datos, en valor absoluto, con un desfase de @p minutos: sin el
/// quinto de horas que peor casan, que son nubes, sombras o errores.
[[nodiscard]] double CosteDeDesfase(std::span<const MuestraReloj> muestras, double minutos);
/// Raíz de la media de los cuadrados de lo mismo, también sin el peor quinto; AUSENTE sin muestras.
[[nodiscard]] double ResiduoDeDesfase(std::span<const MuestraReloj> muestras, double minutos);
/// El desfase de menor coste a @p semiancho minutos o menos de @p centro, con una décima de minuto.
[[nodiscard]] double BuscarDesfase(std::span<const MuestraReloj> muestras, double centro, double semiancho);

} // namespace tesmo
