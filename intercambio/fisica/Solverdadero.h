#pragma once

namespace tesmo {

/// Declinación del sol y ecuación del tiempo en un instante.
struct SolDeInstante {
  double declinacion;     ///< [rad]
  double ecuacionMinutos; ///< tiempo solar verdadero menos tiempo solar medio [min]
};

/// Posición del sol del almanaque astronómico en su forma abreviada (Michalsky, 1988): 0,01° de 1950 a 2050.
/// Es la del sol que se midió; la de los motores (Cooper, 1969) se aparta hasta un grado.
/// @param anio de calendario, de 1950 a 2050; 0 o fuera de ahí vale por uno medio (2002)
/// @param diaUtc días desde el 1 de enero a las 0 h UTC del año de 365 días, con su fracción
[[nodiscard]] SolDeInstante SolVerdadero(int anio, double diaUtc);

} // namespace tesmo
