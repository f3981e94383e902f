#pragma once

namespace tesmo::extremos {

/// El sol del día 15 de un mes sobre el horizontal.
struct SolDelDia {
  long double ocaso = 0.0L;          ///< ángulo horario del ocaso [rad]
  long double extraterrestre = 0.0L; ///< radiación diaria fuera de la atmósfera [Wh/m²]
};

/// @param latitud [°, norte positivo]; @param mes 1 a 12.
/// El día del año es (mes − 1) × 30,4 + 15; declinación de Cooper (1969); constante solar 1353 W/m². El
/// factor de excentricidad toma el coseno de 360 n / 365 como si fuesen radianes (se conserva).
[[nodiscard]] SolDelDia CalcularSolDelDia(float latitud, int mes);

/// Índice de claridad diario al que no llega una fracción @p fraccion de los días de un mes de índice medio
/// @p claridadMensual: distribución exponencial truncada (Bendt, Collares-Pereira y Rabl, 1981), interpolada
/// entre cinco curvas de índice medio 0,3 a 0,7 y, fuera, la primera o la última.
[[nodiscard]] long double ClaridadDiaria(long double claridadMensual, long double fraccion);

/// Fracción difusa de la radiación diaria de un día de índice de claridad @p k: correlación por tramos de
/// Collares-Pereira y Rabl (1979), citada también con la de Erbs, Klein y Duffie (1982).
[[nodiscard]] long double FraccionDifusa(long double k);

} // namespace tesmo::extremos
