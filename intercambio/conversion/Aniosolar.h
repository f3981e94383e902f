#pragma once

#include "intercambio/comun/Aniocanonico.h"
#include "meteo/Serieshorarias.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace tesmo {

/// El año tal como lo leen los motores: tiempo solar verdadero, la hora h (1 a 24) centrada en h − 0,5, 8760
/// horas, el año cerrado sobre sí mismo. Las diez series son las columnas 4 a 13 de un .met, con todas sus
/// cifras; la presión no se escribe en él. Con el centro de la hora en la noche de los motores no hay
/// radiación, el acimut es 0 y el cenit, 90; un año que ya venía en esta hora lleva los ángulos de su
/// fichero.
struct AnioSolar {
  SitioClima sitio;
  double husoHoras = 0; ///< de la hora oficial de invierno del sitio [h, este positivo]; meridiano entre 15
  std::array<SerieCanonica, NUMERO_SERIES_LEIDAS> series; ///< indizadas por SerieAlmacenada
  SerieCanonica presion;                                  ///< [Pa]

  [[nodiscard]] SerieCanonica &operator[](SerieAlmacenada serie) {
    return series[static_cast<std::size_t>(serie)];
  }
  [[nodiscard]] const SerieCanonica &operator[](SerieAlmacenada serie) const {
    return series[static_cast<std::size_t>(serie)];
  }
};

/// De dónde salen las 8760 horas de una serie.
struct CuentaProcedencias {
  int copiadas = 0;
  int calculadas = 0;
  int inventadas = 0;
};

/// Una cifra del año antes de cambiar de hora y después.
struct AntesDespues {
  double antes = AUSENTE;
  double despues = AUSENTE;
};

/// Lo que el cambio de hora hizo con una magnitud.
struct CambioMagnitud {
  AntesDespues maxima;
  AntesDespues minima;
  AntesDespues media;
};

/// Lo que el cambio de hora hizo con una radiación horizontal.
struct CambioRadiacion {
  AntesDespues maxima;  ///< [W/m²]
  AntesDespues energia; ///< del año [kWh/m²]
  /// Mayor diferencia entre la energía de un día antes y después, en tanto por uno de la de antes. Un día va
  /// de medianoche a medianoche solares; cuentan los de 100 Wh/m² o más.
  double mayorDesvioDiario = 0;
};

/// Qué se hizo con un año para llevarlo a hora solar.
struct InformeConversion {
  RelojFichero reloj;   ///< con el que se convirtió
  bool intacto = false; ///< ya estaba en la hora de los motores y pasó como estaba
  std::array<CuentaProcedencias, NUMERO_SERIES_LEIDAS> cuentas; ///< indizadas por SerieAlmacenada
  CambioMagnitud temperatura;                                   ///< seca [°C]
  CambioMagnitud humedadRelativa;                               ///< [%]
  CambioMagnitud viento;                                        ///< velocidad [m/s]
  CambioRadiacion global;
  CambioRadiacion directa; ///< sobre la horizontal
  CambioRadiacion difusa;
  double energiaDeNoche = 0; ///< global que el fichero da lejos de todo sol y que no pasa [kWh/m²]
  /// Raíz de la media de los cuadrados de global − difusa − directa normal · cos z en las horas con directa
  /// normal [W/m²]; antes, en las etiquetas del fichero; después, en las horas solares con la directa normal
  /// pasada con el mismo reparto. AUSENTE si el fichero no trae directa normal.
  AntesDespues cierre;
  std::vector<std::string> avisos; ///< en español, sin fin de línea
};

/// Un año convertido, o por qué no.
struct ResultadoConversion {
  std::optional<AnioSolar> anio;
  InformeConversion informe;
  std::string error; ///< en español, con la línea del fichero si la hay; vacío si hay año
};

/// Lleva @p anio a la hora de los motores con @p reloj, que sustituye al suyo. La radiación se reparte entre
/// las horas solares por su cociente con la extraterrestre, de modo que cada día conserva su energía y nada
/// aparece antes de la salida del sol; temperatura, humedad absoluta, presión y velocidad del viento se
/// interpolan entre los centros; la humedad relativa se rehace; la dirección del viento va por su vector. Un
/// año que ya está en hora solar con desfase −30 pasa como está.
/// Hacen falta la temperatura seca, una humedad, la velocidad del viento, dos de las tres radiaciones y la
/// posición en todas las horas: si no, error. Sin estado: se puede llamar desde varios hilos.
[[nodiscard]] ResultadoConversion LlevarAHoraSolar(const AnioCanonico &anio, const RelojFichero &reloj);

/// El informe en frases, para enseñarlo tal cual.
[[nodiscard]] std::vector<std::string> TextoInforme(const InformeConversion &informe);

/// El año de un .met ya leído. @p sitio con su latitud, longitud y altitud; @p husoHoras de su hora oficial.
/// Presión de la atmósfera normal a su altitud (0 si no se conoce).
[[nodiscard]] AnioSolar AnioSolarDeSeries(const SitioClima &sitio, double husoHoras,
                                          const SeriesLeidas &series);

/// El camino de vuelta: @p anio en la hora oficial de invierno de @p husoHoras [h, este positivo], la
/// etiqueta h centrada en h + @p desfaseMin. Da temperaturas seca, de rocío y de cielo, humedades, presión,
/// global, directa normal y horizontal, difusa, infrarroja del cielo, viento y ángulos del sol verdadero. Lo
/// que el año no sabe (nubosidad) queda ausente. Sitio sin latitud o longitud: como si fueran 0.
[[nodiscard]] AnioCanonico AHoraOficial(const AnioSolar &anio, double husoHoras, double desfaseMin = -30.0);

} // namespace tesmo
