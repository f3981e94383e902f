#include "intercambio/reloj/Soldereparto.h"

#include "core/Unidades.h"
#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/fisica/Soldelanio.h"
#include "intercambio/fisica/Solverdadero.h"
#include "solar/Geometria.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr double HORAS_AL_DIA = HORAS_DEL_DIA;

double MediaNoche(double instante) { return std::floor(instante / HORAS_AL_DIA) * HORAS_AL_DIA; }

} // namespace

void SolDeReparto::Anadir(double latitud, double declinacion, double semidia) {
  const double f = latitud * GRADO;
  const double normal = IrradianciaExtraterrestre(dias_.size());
  dias_.push_back({declinacion, std::sin(f) * std::sin(declinacion), std::cos(f) * std::cos(declinacion),
                   normal, std::clamp(semidia, 0.0, MEDIODIA)});
}

SolDeReparto SolDeReparto::DeLosMotores(double latitud) {
  SolDeReparto sol;
  for (std::size_t d = 0; d < DIAS; ++d) {
    const std::size_t mes = MesDe(d);
    const long double declinacion =
        DeclinacionSolar(static_cast<int>(mes) + 1, static_cast<int>(d - PrimerDiaDe(mes)) + 1);
    const SalidaPuesta horas = tesmo::HorasDeSol(static_cast<float>(latitud), declinacion);
    // Sin noche la puesta es 25 y sin sol −1: se recortan a un día entero y a nada.
    sol.Anadir(latitud, static_cast<double>(declinacion) * GRADO,
               static_cast<double>(horas.puesta) - MEDIODIA);
  }
  return sol;
}

SolDeReparto SolDeReparto::Verdadero(double latitud) {
  SolDeReparto sol;
  for (std::size_t d = 0; d < DIAS; ++d) {
    const double delta = SolVerdadero(0, static_cast<double>(d) + 0.5).declinacion;
    const double coseno = -std::tan(latitud * GRADO) * std::tan(delta);
    sol.Anadir(latitud, delta, std::acos(std::clamp(coseno, -1.0, 1.0)) / GIRO_POR_HORA);
  }
  return sol;
}

double SolDeReparto::Declinacion(double instante) const { return En(instante).declinacion; }

const SolDeReparto::Dia &SolDeReparto::En(double instante) const {
  const double dia = std::fmod(std::floor(instante / HORAS_AL_DIA), static_cast<double>(DIAS));
  return dias_[static_cast<std::size_t>(dia < 0.0 ? dia + static_cast<double>(DIAS) : dia)];
}

SolDeReparto::Tramo SolDeReparto::ConSol(double desde, double hasta) const {
  const Dia &dia = En(desde);
  const double mediodia = MediaNoche(desde) + MEDIODIA;
  return {&dia, std::max(desde - mediodia, -dia.semidia), std::min(hasta - mediodia, dia.semidia)};
}

double SolDeReparto::Energia(double desde, double hasta) const {
  const Tramo t = ConSol(desde, hasta);
  if (t.hasta <= t.desde) return 0.0;
  const double arco = (std::sin(t.hasta * GIRO_POR_HORA) - std::sin(t.desde * GIRO_POR_HORA)) / GIRO_POR_HORA;
  return std::max(0.0, t.dia->normal * (t.dia->senos * (t.hasta - t.desde) + t.dia->cosenos * arco));
}

double SolDeReparto::HorasDeSol(double desde, double hasta) const {
  const Tramo t = ConSol(desde, hasta);
  return std::max(0.0, t.hasta - t.desde);
}

double SolDeReparto::Coseno(double instante) const {
  const Dia &dia = En(instante);
  return dia.senos + dia.cosenos * std::cos((instante - MediaNoche(instante) - MEDIODIA) * GIRO_POR_HORA);
}

double SolDeReparto::Normal(double instante) const { return En(instante).normal; }

} // namespace tesmo
