#include "meteo/Fecha.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace tesmo {

int IndiceHora(int mes, int dia, int hora) {
  if (mes < 1 || mes > 12) return hora > std::numeric_limits<int>::min() ? hora - 1 : hora;
  const std::int64_t dias = std::int64_t{DIAS_ANTES_DEL_MES[static_cast<std::size_t>(mes - 1)]} + dia - 1;
  const std::int64_t indice = dias * HORAS_DEL_DIA + hora - 1;
  return static_cast<int>(
      std::clamp<std::int64_t>(indice, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

int DiasDelMes(int mes) {
  constexpr int DIAS_SIN_MES = 30;
  return mes >= 1 && mes <= 12 ? DIAS_DEL_MES[static_cast<std::size_t>(mes - 1)] : DIAS_SIN_MES;
}

void SiguienteHora(int &mes, int &dia, int &hora) {
  if (hora < HORAS_DEL_DIA) {
    ++hora;
    return;
  }
  hora = 1;
  if (dia < DiasDelMes(mes)) {
    ++dia;
    return;
  }
  dia = 1;
  ++mes; // de diciembre pasa al mes 13: el año típico no da la vuelta
}

FechaHora FechaDeIndice(int indice) {
  indice = std::clamp(indice, 0, HORAS_DEL_ANIO - 1);
  const int diaDelAnio = indice / HORAS_DEL_DIA; // desde 0
  const auto siguiente = std::upper_bound(DIAS_ANTES_DEL_MES.begin(), DIAS_ANTES_DEL_MES.end(), diaDelAnio);
  return {static_cast<int>(siguiente - DIAS_ANTES_DEL_MES.begin()), diaDelAnio - *(siguiente - 1) + 1,
          indice % HORAS_DEL_DIA + 1};
}

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
