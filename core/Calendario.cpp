#include "core/Calendario.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace tesmo {

namespace {

using Nombres = std::array<std::string_view, MESES_DEL_ANIO>;

constexpr Nombres NOMBRES{"enero", "febrero", "marzo",      "abril",   "mayo",      "junio",
                          "julio", "agosto",  "septiembre", "octubre", "noviembre", "diciembre"};
constexpr Nombres CORTOS{"ene", "feb", "mar", "abr", "may", "jun", "jul", "ago", "sep", "oct", "nov", "dic"};

bool EsDelAnio(int mes) { return mes >= 1 && mes <= static_cast<int>(MESES_DEL_ANIO); }

std::string_view De(const Nombres &nombres, int mes) {
  return EsDelAnio(mes) ? nombres[static_cast<std::size_t>(mes - 1)] : std::string_view{};
}

} // namespace

int DiasDelMes(int mes) {
  constexpr int DIAS_SIN_MES = 30;
  return EsDelAnio(mes) ? DIAS_DEL_MES[static_cast<std::size_t>(mes - 1)] : DIAS_SIN_MES;
}

int IndiceHora(int mes, int dia, int hora) {
  if (!EsDelAnio(mes)) return hora > std::numeric_limits<int>::min() ? hora - 1 : hora;
  const std::int64_t dias = std::int64_t{DIAS_ANTES_DEL_MES[static_cast<std::size_t>(mes - 1)]} + dia - 1;
  const std::int64_t indice = dias * HORAS_DEL_DIA + hora - 1;
  return static_cast<int>(
      std::clamp<std::int64_t>(indice, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

FechaHora FechaDeIndice(int indice) {
  indice = std::clamp(indice, 0, HORAS_DEL_ANIO - 1);
  const int diaDelAnio = indice / HORAS_DEL_DIA; // desde 0
  const auto siguiente = std::upper_bound(DIAS_ANTES_DEL_MES.begin(), DIAS_ANTES_DEL_MES.end(), diaDelAnio);
  return {static_cast<int>(siguiente - DIAS_ANTES_DEL_MES.begin()), diaDelAnio - *(siguiente - 1) + 1,
          indice % HORAS_DEL_DIA + 1};
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

std::string_view NombreMes(int mes) { return De(NOMBRES, mes); }
std::string_view MesCorto(int mes) { return De(CORTOS, mes); }

std::string ConMayuscula(std::string_view nombre) {
  std::string texto(nombre);
  if (!texto.empty() && texto[0] >= 'a' && texto[0] <= 'z')
    texto[0] = static_cast<char>(texto[0] - 'a' + 'A');
  return texto;
}

std::string TextoHora(int indice) {
  const FechaHora fecha = FechaDeIndice(indice);
  return std::to_string(fecha.dia) + " de " + std::string(NombreMes(fecha.mes)) + " a la hora " +
         std::to_string(fecha.hora);
}

} // namespace tesmo
