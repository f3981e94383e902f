#include "intercambio/reloj/Escalatiempo.h"

#include "core/Unidades.h"
#include "intercambio/fisica/Soldelanio.h"

#include <cmath>

namespace tesmo {

namespace {

constexpr double HORAS_AL_DIA = HORAS_DEL_DIA;

} // namespace

EscalaTiempo::EscalaTiempo(const RelojFichero &reloj, double longitud)
    : esSolar_(reloj.tiempo == TiempoEtiqueta::SolarVerdadero), desfase_(reloj.desfaseMin / MINUTOS_POR_HORA),
      huso_(reloj.tiempo == TiempoEtiqueta::OficialEstandar ? reloj.husoHoras : 0.0),
      desdeCivil_(esSolar_ ? 0.0 : std::remainder(longitud / GRADOS_POR_HORA - huso_, HORAS_AL_DIA)) {}

double EscalaTiempo::DiaUtc(double instante) const { return (instante - huso_) / HORAS_AL_DIA; }

double EscalaTiempo::ASolar(double instante) const {
  return esSolar_ ? instante : instante + desdeCivil_ + EcuacionDelTiempoEnHoras(DiaUtc(instante));
}

double EscalaTiempo::DeSolar(double solar) const {
  if (esSolar_) return solar;
  // La ecuación del tiempo cambia medio minuto al día: dos vueltas la dejan exacta.
  double instante = solar - desdeCivil_;
  for (int vuelta = 0; vuelta < 2; ++vuelta) {
    instante = solar - desdeCivil_ - EcuacionDelTiempoEnHoras(DiaUtc(instante));
  }
  return instante;
}

} // namespace tesmo
