#include "extremos/Cursotemperatura.h"

#include <cmath>

namespace tesmo::extremos {

namespace {

/// Temperatura relativa a la media, de −1 a 1, en la hora @p t.
long double Onda(long double t, long double salida, long double horaMaxima) {
  const long double bajada = HORAS_DEL_DIA - horaMaxima + salida;
  if (t <= salida) return std::cos((t - horaMaxima + HORAS_DEL_DIA) * PI_DE_LA_ONDA / bajada);
  if (t <= horaMaxima) return -std::cos((t - salida) * PI_DE_LA_ONDA / (horaMaxima - salida));
  return std::cos((t - horaMaxima) * PI_DE_LA_ONDA / bajada);
}

} // namespace

ValoresHorarios CursoDeTemperatura(long double minima, long double maxima, float salida, int horaMaxima) {
  constexpr long double MEDIA_HORA = 0.5L;
  const long double media = (maxima + minima) / 2.0L;
  const long double semiamplitud = (maxima - minima) / 2.0L;
  ValoresHorarios temperaturas{};
  for (std::size_t h = 0; h < temperaturas.size(); ++h) {
    const long double t = static_cast<long double>(h) + MEDIA_HORA;
    temperaturas[h] = static_cast<float>(media + semiamplitud * Onda(t, salida, horaMaxima));
  }
  return temperaturas;
}

} // namespace tesmo::extremos
