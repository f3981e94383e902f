#pragma once

#include "solar/Geometria.h"

namespace tesmo {

/// El sol de un día en una latitud: lo que no cambia de una hora a otra se calcula una vez. Da lo mismo, bit
/// a bit, que PosicionSolar::CalcularPosicion, sin tocar ningún objeto.
class SolDelDia {
public:
  /// @param latitud [°, norte positivo]; @param mes 1 a 12; @param dia día del mes, año de 365 días
  SolDelDia(float latitud, int mes, int dia) : SolDelDia(latitud, DeclinacionSolar(mes, dia)) {}

  [[nodiscard]] const SalidaPuesta &Horas() const { return horas_; }
  /// Posición a la @p hora solar; de noche, acimut 0, altura 0 y cenit 90.
  [[nodiscard]] PosicionDeVector En(float hora) const {
    return EsHoraDeDia(horas_, hora) ? PosicionDesdeVector(lugar_.Vector(hora)) : POSICION_DE_NOCHE;
  }

private:
  SolDelDia(float latitud, long double declinacion)
      : horas_(HorasDeSol(latitud, declinacion)), lugar_(latitud, declinacion) {}

  SalidaPuesta horas_;
  SolSobreElLugar lugar_;
};

} // namespace tesmo
