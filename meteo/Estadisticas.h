#pragma once

#include "meteo/Fecha.h"
#include "meteo/Magnitudes.h"
#include "meteo/Serieshorarias.h"

#include <optional>
#include <string>
#include <vector>

namespace tesmo {

/// Estadísticas de una magnitud en el período; las que su rutina no forma quedan en 0. Los valores de partida
/// del máximo y del mínimo se quedan si ninguna hora cuenta.
struct ResultadoEstadisticas {
  float maximo = -100.0F;
  float minimo = 500000.0F;
  float media = 0.0F;
  float gradosDiaCalefaccion = 0.0F;   ///< [Grados-día]
  float gradosDiaRefrigeracion = 0.0F; ///< [Grados-día]
  float tercerSumatorio = 0.0F;        ///< depresión respecto a la temperatura exterior [Grados-día]
  std::string unidad;                  ///< la del rótulo
  int horas = 0;                       ///< las que cuentan
  /// Primera hora en que se da cada extremo; vacía si ninguna mejora el valor de partida.
  std::optional<FechaHora> fechaMaximo;
  std::optional<FechaHora> fechaMinimo;
};

/// Estadísticas de las horas de un mes.
struct EstadisticasDelMes {
  int mes = 1;
  ResultadoEstadisticas resultado;
};

/// Temperaturas desde las que se forman los grados-día [°C]. Son horarios: cada hora que cuenta suma 1/24 de
/// lo que su temperatura queda por debajo (calefacción) o por encima (refrigeración) de la base, si no es
/// negativo.
struct BasesGradosDia {
  float calefaccion = 15.0F;
  float refrigeracion = 25.0F;
};

/// Qué horas cuentan y con qué bases se forman los grados-día.
struct CriterioEstadisticas {
  FechaHora inicio;          ///< fecha de la primera hora del tramo; de ahí se avanza hora a hora
  TramoHoras tramo;          ///< posiciones del período; lo que cae fuera de las series no cuenta
  int primeraHoraDelDia = 1; ///< horas del día que se tienen en cuenta, ambas incluidas
  int ultimaHoraDelDia = 1;
  BasesGradosDia bases;
};

/// Estadísticas de @p magnitud. Una magnitud derivada sin derivar no tiene horas que contar.
[[nodiscard]] ResultadoEstadisticas CalcularEstadisticas(Magnitud magnitud, const SeriesLeidas &leidas,
                                                         const SeriesDerivadas &derivadas,
                                                         const CriterioEstadisticas &criterio);
/// Las mismas estadísticas mes a mes: una entrada por cada mes con horas en el tramo, con las que caen en él.
[[nodiscard]] std::vector<EstadisticasDelMes>
CalcularEstadisticasPorMes(Magnitud magnitud, const SeriesLeidas &leidas, const SeriesDerivadas &derivadas,
                           const CriterioEstadisticas &criterio);

} // namespace tesmo
