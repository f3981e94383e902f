#pragma once

#include "intercambio/comun/Perfilmensual.h"
#include "localidades/Objetociudad.h"

#include <optional>
#include <string>

namespace tesmo {

/// Una localidad tal como se escribe en "LocalidadesCC". Textos sin comas ni saltos de línea.
struct FichaLocalidad {
  std::string nombre;
  std::string corto; ///< clave en "GDR.TXT": una palabra
  std::string provincia;
  std::string cuarto; ///< cuarto campo, que nadie lee
  std::string referencia;
  std::string fichero;
  double latitud = 0;         ///< [°, norte positivo]
  double longitud = 0;        ///< [°, este positivo]
  double meridiano = 0;       ///< el de la hora oficial [°, este positivo]
  double altitud = 0;         ///< [m]
  std::string undecimo = "0"; ///< último número, que nadie lee
};

/// La línea de @p ficha, sin su fin.
[[nodiscard]] std::string LineaDeLocalidad(const FichaLocalidad &ficha);

/// Las estadísticas mensuales de una localidad, tal como se escriben en "GDR.TXT".
struct FichaGdr {
  std::string corto; ///< una palabra
  std::string zona;  ///< "COSTA" o "INTERIOR"
  double latitud = 0;
  double longitud = 0;
  double meridiano = 0;
  double altitud = 0;
  std::optional<double> humedadCal; ///< "WCAL=" [g/kg]
  std::optional<double> humedadRef; ///< "WREF=" [g/kg]
  ValoresPorMes maxima{};           ///< media de las máximas diarias [°C]
  ValoresPorMes minima{};
  ValoresPorMes desviacionMaxima{}; ///< desviación típica de las máximas diarias [K]
  ValoresPorMes desviacionMinima{};
  ValoresPorMes radiacion{}; ///< global horizontal diaria [kJ/m²]
  ValoresPorMes sexta{};     ///< humedad relativa media [%]; el cálculo no la usa
};

/// Las siete líneas de @p ficha, con fines de línea @p fin. El factor de cola es 10.
[[nodiscard]] std::string TextoRegistroGdr(const FichaGdr &ficha, std::string_view fin = "\n");

} // namespace tesmo
