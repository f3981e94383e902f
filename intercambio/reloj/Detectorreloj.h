#pragma once

#include "intercambio/comun/Aniocanonico.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tesmo {

/// Con qué datos del propio fichero se comprueba su reloj.
enum class MetodoReloj : std::uint8_t {
  Haz,      ///< (global − difusa) / directa normal, frente al coseno del cenit
  Cenit,    ///< el cenit que el fichero trae escrito, frente al del sol
  Simetria, ///< los días claros, simétricos respecto al mediodía solar
  Ninguno   ///< el fichero no tiene con qué
};

/// Cuánto se puede fiar uno del desfase hallado.
enum class ConfianzaReloj : std::uint8_t { Ninguna, Baja, Media, Alta };

/// Un reloj y lo mal que casa con los datos.
struct RelojMedido {
  RelojFichero reloj;
  /// Raíz de la media de los cuadrados de lo que el coseno del cenit se aparta de los datos [-], sin el
  /// quinto de horas que peor casan; con MetodoReloj::Simetria, dispersión típica del mediodía de los días
  /// claros [min]. AUSENTE si no se pudo medir.
  double residuo = AUSENTE;
};

/// Lo que el sol dice del reloj de un fichero.
struct VeredictoReloj {
  MetodoReloj metodo = MetodoReloj::Ninguno;
  RelojMedido declarado; ///< el del formato
  /// El mejor con los datos: el declarado si casa (a TOLERANCIA_RELOJ_MIN o menos; por simetría,
  /// TOLERANCIA_SIMETRIA_MIN) o si nada se puede medir.
  RelojMedido propuesto;
  /// El segundo: otro tiempo de etiqueta, o el declarado si se propone otro.
  std::optional<RelojMedido> alternativa;
  /// Desfase que mejor casa, en el tiempo de etiqueta del propuesto [min]; AUSENTE si no se pudo medir.
  double desfaseHallado = AUSENTE;
  /// Lo mismo con las horas de un solo mes, de enero a diciembre; AUSENTE en los meses con pocas.
  std::array<double, 12> desfasePorMes{};
  int horas = 0; ///< horas (o días claros) que se usaron
  ConfianzaReloj confianza = ConfianzaReloj::Ninguna;
  double grado = 0;                ///< la misma confianza, de 0 a 1
  bool concuerda = false;          ///< lo declarado casa con los datos
  std::string texto;               ///< el veredicto en una o dos frases, con sus cifras
  std::vector<std::string> avisos; ///< meses que no siguen el reloj de los demás, falta de datos…
};

/// Diferencia con lo declarado que se tiene por ninguna [min].
inline constexpr double TOLERANCIA_RELOJ_MIN = 3.0;
/// Lo mismo cuando sólo la simetría de los días claros juzga: con menos se dice, pero no se cambia [min].
inline constexpr double TOLERANCIA_SIMETRIA_MIN = 20.0;

/// Busca el desfase d, de −90 a 90 min, con que el sol casa con los datos de @p anio en el tiempo de etiqueta
/// que declara y en el otro (solar frente a civil), que sólo se propone si casa bastante mejor. Si lo mejor
/// está en el borde, el huso no es el suyo: se busca en el día entero y se avisa. Posición verdadera del sol
/// (SolVerdadero). Las horas sin dato no cuentan. Sin latitud, o sin longitud si la etiqueta no es solar, no
/// se mide nada. Sin estado: se puede llamar desde varios hilos.
[[nodiscard]] VeredictoReloj DetectarReloj(const AnioCanonico &anio);

/// Un reloj en palabras: "UTC, etiqueta − 50 min", "hora oficial (UTC+1), etiqueta − 30 min"…
[[nodiscard]] std::string TextoReloj(const RelojFichero &reloj);
/// "alta", "media", "baja" o "ninguna".
[[nodiscard]] std::string TextoConfianza(ConfianzaReloj confianza);

} // namespace tesmo
