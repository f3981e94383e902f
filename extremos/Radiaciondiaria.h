#pragma once

namespace tesmo::extremos {

/// El sol de un día de proyecto, el 15 de un mes, sobre la horizontal.
struct SolDeProyecto {
  long double ocaso = 0.0L;          ///< ángulo horario del ocaso [rad]
  long double extraterrestre = 0.0L; ///< radiación diaria fuera de la atmósfera [Wh/m²]
};

/// @param latitud [°, norte positivo]; @param mes 1 a 12.
/// Radiación extraterrestre diaria de Duffie y Beckman (1980), con la declinación de Cooper (1969) y la
/// constante solar de Thekaekara (1973), 1353 W/m²; el día del año es n = (mes − 1) × 30,4 + 15. El factor de
/// excentricidad toma el coseno de 360 n / 365 como si fuesen radianes (se conserva).
[[nodiscard]] SolDeProyecto CalcularSolDeProyecto(float latitud, int mes);

/// Índice de claridad diario al que no llega una fracción @p fraccion de los días de un mes de índice medio
/// @p claridadMensual: distribución exponencial truncada (Bendt, Collares-Pereira y Rabl, 1981), interpolada
/// entre cinco curvas de índice medio 0,3 a 0,7 y, fuera, la primera o la última.
[[nodiscard]] long double ClaridadDiaria(long double claridadMensual, long double fraccion);

/// Fracción difusa de la radiación diaria de un día de índice de claridad @p k: correlación por tramos de
/// Collares-Pereira y Rabl (1979), con −21,856 donde ellos dan −21,865 (se conserva). No es la de Erbs, Klein
/// y Duffie (1982) con que se hacen los años sintéticos.
[[nodiscard]] long double FraccionDifusa(long double k);

} // namespace tesmo::extremos
