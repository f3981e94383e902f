#include "intercambio/formatos/Interpolacion.h"

#include "intercambio/formatos/Requisitos.h"

#include <cmath>

namespace tesmo {

namespace {

constexpr std::size_t HORAS = static_cast<std::size_t>(HORAS_DEL_ANIO);
constexpr std::size_t DIA = static_cast<std::size_t>(HORAS_DEL_DIA);
constexpr double VUELTA = 360.0;

/// @p a + parte · (b − a); los ángulos, por el arco menor y en [0, 360).
double EntreDos(Campo campo, double a, double b, double parte) {
  if (campo != Campo::DireccionViento) return a + parte * (b - a);
  const double angulo = std::fmod(a + parte * std::remainder(b - a, VUELTA), VUELTA);
  return angulo < 0 ? angulo + VUELTA : angulo;
}

/// De noche: la radiación es nula a la misma hora la víspera y al día siguiente.
bool EsDeNoche(const SerieCanonica &serie, std::size_t hora) {
  return serie.valores[(hora + HORAS - DIA) % HORAS] <= 0 && serie.valores[(hora + DIA) % HORAS] <= 0;
}

/// Los días que hay que andar en un sentido hasta una hora con dato propio; 0 si no se halla.
int DiasHastaDato(const SerieCanonica &serie, std::size_t hora, std::size_t paso) {
  std::size_t i = hora;
  for (int dias = 1; dias <= DIAS_VECINOS; ++dias) {
    i = (i + paso) % HORAS;
    const bool propio =
        serie.procedencias[i] == Procedencia::Copiada || serie.procedencias[i] == Procedencia::Calculada;
    if (propio) return dias;
  }
  return 0;
}

} // namespace

void InterpolarHueco(AnioCanonico &anio, Campo campo, const TramoSinDato &tramo) {
  SerieCanonica &serie = anio[campo];
  const double antes = serie.valores[(tramo.primera + HORAS - 1) % HORAS];
  const double despues = serie.valores[tramo.Hora(tramo.horas)];
  for (std::size_t k = 0; k < tramo.horas; ++k) {
    const std::size_t hora = tramo.Hora(k);
    const double parte = static_cast<double>(k + 1) / static_cast<double>(tramo.horas + 1);
    const bool nula = EsRadiacionSolar(campo) && EsDeNoche(serie, hora);
    serie.Poner(hora, nula ? 0.0 : EntreDos(campo, antes, despues, parte), Procedencia::Calculada);
  }
}

std::optional<double> DeDiasVecinos(const SerieCanonica &serie, Campo campo, std::size_t hora) {
  const int atras = DiasHastaDato(serie, hora, HORAS - DIA);
  const int adelante = DiasHastaDato(serie, hora, DIA);
  const auto valor = [&](std::size_t dias) { return serie.valores[(hora + dias * DIA) % HORAS]; };
  const auto deAtras = [&] { return valor(static_cast<std::size_t>(DIAS_DEL_ANIO - atras)); };
  if (atras == 0 && adelante == 0) return std::nullopt;
  if (adelante == 0) return deAtras();
  if (atras == 0) return valor(static_cast<std::size_t>(adelante));
  const double parte = static_cast<double>(atras) / static_cast<double>(atras + adelante);
  return EntreDos(campo, deAtras(), valor(static_cast<std::size_t>(adelante)), parte);
}

} // namespace tesmo
