#include "meteo/Fecha.h"

#include <algorithm>

namespace tesmo {

namespace {

void LimitarDia(FechaHora &fecha) { fecha.dia = std::min(fecha.dia, DiasDelMes(fecha.mes)); }

void AplicarReglas(Periodo &periodo) {
  FechaHora &inicio = periodo.inicio;
  FechaHora &fin = periodo.fin;
  LimitarDia(inicio);
  LimitarDia(fin);
  if (inicio.mes == fin.mes) {
    if (fin.dia == inicio.dia && fin.hora < inicio.hora) {
      fin.hora = inicio.hora;
    } else if (fin.dia < inicio.dia) {
      fin.dia = inicio.dia;
    }
  }
  if (inicio.mes > fin.mes) fin.mes = inicio.mes;
}

} // namespace

void ValidarPeriodo(Periodo &periodo) {
  Periodo anterior;
  do { // cada corrección puede pedir otra: al cambiar el mes final, su día o su hora
    anterior = periodo;
    AplicarReglas(periodo);
  } while (!(periodo == anterior));
}

} // namespace tesmo
