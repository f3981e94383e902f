#pragma once

#include "meteo/Fecha.h"
#include "meteo/Magnitudes.h"
#include "meteo/Serieshorarias.h"

#include <string>

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
};

/// Qué horas cuentan y con qué bases se forman los grados-día.
struct CriterioEstadisticas {
  FechaHora inicio;          ///< fecha de la primera hora del tramo; de ahí se avanza hora a hora
  TramoHoras tramo;          ///< posiciones del período; lo que cae fuera de las series no cuenta
  int primeraHoraDelDia = 1; ///< horas del día que se tienen en cuenta, ambas incluidas
  int ultimaHoraDelDia = 1;
  float baseCalefaccion = 0;   ///< [°C]
  float baseRefrigeracion = 0; ///< [°C]
};

/// Estadísticas de @p magnitud. Una magnitud derivada sin derivar no tiene horas que contar.
[[nodiscard]] ResultadoEstadisticas CalcularEstadisticas(Magnitud magnitud, const SeriesLeidas &leidas,
                                                         const SeriesDerivadas &derivadas,
                                                         const CriterioEstadisticas &criterio);

} // namespace tesmo
