#include "intercambio/reloj/Cortes.h"

#include "intercambio/comun/Perfilmensual.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr double HORAS_AL_ANIO = HORAS_DEL_ANIO;
constexpr double MEDIA_HORA = 0.5;
/// Por debajo, dos instantes son el mismo [h]: una diezmilésima de segundo.
constexpr double MISMO_INSTANTE = 1e-8;

std::size_t Cerrada(double hora) {
  const double resto = std::fmod(hora, HORAS_AL_ANIO);
  return static_cast<std::size_t>(resto < 0.0 ? resto + HORAS_AL_ANIO : resto) % HORAS;
}

/// El sitio de @p posicion, en unidades de la serie.
Entre Situar(double posicion) {
  const double entero = std::round(posicion);
  if (std::fabs(posicion - entero) < MISMO_INSTANTE) return {Cerrada(entero), Cerrada(entero), 0.0};
  const double izquierdo = std::floor(posicion);
  return {Cerrada(izquierdo), Cerrada(izquierdo + 1.0), posicion - izquierdo};
}

} // namespace

std::vector<Corte> CortesDelAnio(const EscalaTiempo &escala) {
  std::vector<Corte> cortes;
  cortes.reserve(3 * HORAS);
  double desde = escala.ASolar(escala.Centro(0) - MEDIA_HORA);
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double fin = escala.ASolar(escala.Centro(i) + MEDIA_HORA);
    const double medio = (desde + fin) / 2.0;
    while (fin - desde > MISMO_INSTANTE) {
      const double hora = std::floor(desde + MISMO_INSTANTE);
      const double hasta = std::min(fin, hora + 1.0);
      const double centro = (desde + hasta) / 2.0;
      cortes.push_back(
          {i, Cerrada(hora), std::max(desde, hora), hasta, centro - medio, centro - hora - MEDIA_HORA});
      desde = hasta;
    }
  }
  return cortes;
}

std::vector<Entre> CentrosSolaresEntreRegistros(const EscalaTiempo &escala) {
  std::vector<Entre> sitios(HORAS);
  const double primero = escala.Centro(0);
  for (std::size_t h = 0; h < HORAS; ++h) {
    sitios[h] = Situar(escala.DeSolar(static_cast<double>(h) + MEDIA_HORA) - primero);
  }
  return sitios;
}

std::vector<Entre> RegistrosEntreCentrosSolares(const EscalaTiempo &escala) {
  std::vector<Entre> sitios(HORAS);
  for (std::size_t i = 0; i < HORAS; ++i) sitios[i] = Situar(escala.ASolar(escala.Centro(i)) - MEDIA_HORA);
  return sitios;
}

} // namespace tesmo
