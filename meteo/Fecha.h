#pragma once

#include "core/Calendario.h"

namespace tesmo {

/// Posición de una hora en toda serie horaria: (días antes del mes + día − 1) × 24 + (hora − 1), horas 1
/// a 24. Un mes fuera de 1..12 da hora − 1, sea cual sea el día.
[[nodiscard]] int IndiceHora(int mes, int dia, int hora);
/// Avanza la fecha una hora en su sitio; del 31 de diciembre a las 24 pasa al mes 13.
void SiguienteHora(int &mes, int &dia, int &hora);
/// Días del mes de un año de 365; 30 para un mes que no es de 31 ni febrero.
[[nodiscard]] int DiasDelMes(int mes);

/// Un instante del año: mes 1..12, día 1..31, hora 1..24.
struct FechaHora {
  int mes = 1;
  int dia = 1;
  int hora = 1;
  bool operator==(const FechaHora &) const = default;
};

/// La fecha de la posición @p indice (0..8759) de una serie horaria.
[[nodiscard]] FechaHora FechaDeIndice(int indice);

/// Período elegido, ambos extremos incluidos; de fábrica el 1 de enero, horas 1 a 24.
struct Periodo {
  FechaHora inicio{1, 1, 1};
  FechaHora fin{1, 1, 24};
  bool operator==(const Periodo &) const = default;
};

/// Aplica las reglas del período hasta que nada cambia: día dentro de su mes y fin no anterior al inicio.
void ValidarPeriodo(Periodo &periodo);

} // namespace tesmo
