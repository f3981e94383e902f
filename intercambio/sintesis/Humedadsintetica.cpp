#include "intercambio/sintesis/Humedadsintetica.h"

#include "psicro/Constantes.h"
#include "psicro/Saturacion.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr double CIEN = 100.0;
/// Decimales de la humedad absoluta: la relativa se recupera de ella con más precisión que sus centésimas.
constexpr double DECIMALES_ABSOLUTA = 1e7;
/// Lo que cambia la presión de vapor por kelvin de rocío, en tanto por uno, cerca de los 10 °C.
constexpr double SENSIBILIDAD_ROCIO = 0.065;
constexpr int PASADAS = 60;
/// Distancia del rocío a la mínima [K]: más allá no hay clima que la pida.
constexpr double DISTANCIA_MINIMA = -12.0;
constexpr double DISTANCIA_MAXIMA = 30.0;

double PresionDeVapor(double rocio) { return presionSaturacion(static_cast<float>(rocio)); }

/// Rocío de cada hora: en línea recta de la salida del sol de un día a la del siguiente.
SerieHoras RocioHorario(const SerieDias &rocioDiario, const SolDelAnio &sol) {
  SerieHoras rocio(HORAS);
  for (std::size_t i = 0; i < HORAS; ++i) {
    const std::size_t hoy = i / HORAS_POR_DIA;
    const double hora = CentroDeHora(i % HORAS_POR_DIA);
    const bool antes = hora < sol.salida[hoy];
    const std::size_t desde = antes ? (hoy + DIAS - 1) % DIAS : hoy;
    const std::size_t hasta = (desde + 1) % DIAS;
    const double transcurrido = hora + (antes ? 24.0 : 0.0) - sol.salida[desde];
    const double parte = transcurrido / (24.0 - sol.salida[desde] + sol.salida[hasta]);
    rocio[i] = rocioDiario[desde] + (rocioDiario[hasta] - rocioDiario[desde]) * parte;
  }
  return rocio;
}

SerieHoras Relativa(const SerieHoras &rocio, const SerieHoras &saturacion) {
  SerieHoras relativa(HORAS);
  for (std::size_t i = 0; i < HORAS; ++i) {
    relativa[i] = std::min(HUMEDAD_MAXIMA, CIEN * PresionDeVapor(rocio[i]) / saturacion[i]);
  }
  return relativa;
}

SerieDias RocioDiario(const TemperaturasDiarias &dias, const PerfilMensual &distancia) {
  SerieDias rocio(DIAS);
  for (std::size_t dia = 0; dia < DIAS; ++dia) rocio[dia] = dias.minimas[dia] - distancia.En(dia);
  return rocio;
}

/// Acerca la distancia de cada mes a la que da su humedad media.
void Corregir(PerfilMensual &distancia, const SerieHoras &relativa, const NormalesLocalidad &localidad) {
  for (std::size_t mes = 0; mes < MESES; ++mes) {
    const double pedida = localidad.meses[mes].hrMedia;
    const double paso = (MediaHorariaDelMes(relativa, mes) - pedida) / (SENSIBILIDAD_ROCIO * pedida);
    distancia.nodos[mes] = std::clamp(distancia.nodos[mes] + paso, DISTANCIA_MINIMA, DISTANCIA_MAXIMA);
  }
}

/// Humedad absoluta [kg/kg] de una relativa, redondeada hacia abajo para no pasarla.
double Absoluta(double relativa, double saturacion, double presion) {
  const double vapor = relativa / CIEN * saturacion;
  return std::floor(aire::EPSILON * vapor / (presion - vapor) * DECIMALES_ABSOLUTA) / DECIMALES_ABSOLUTA;
}

} // namespace

HumedadHoraria GenerarHumedad(const SerieHoras &temperaturas, const TemperaturasDiarias &dias,
                              const NormalesLocalidad &localidad, const SolDelAnio &sol, double presion) {
  SerieHoras saturacion(HORAS);
  std::transform(temperaturas.begin(), temperaturas.end(), saturacion.begin(), PresionDeVapor);
  PerfilMensual distancia(ValoresPorMes{});
  HumedadHoraria humedad;
  for (int pasada = 0; pasada < PASADAS; ++pasada) {
    humedad.rocio = RocioHorario(RocioDiario(dias, distancia), sol);
    humedad.relativa = Relativa(humedad.rocio, saturacion);
    Corregir(distancia, humedad.relativa, localidad);
  }
  humedad.absoluta.resize(HORAS);
  for (std::size_t i = 0; i < HORAS; ++i) {
    humedad.relativa[i] = std::round(humedad.relativa[i] * CIEN) / CIEN;
    humedad.absoluta[i] = Absoluta(humedad.relativa[i], saturacion[i], presion);
    humedad.rocio[i] = std::min(humedad.rocio[i], temperaturas[i]);
  }
  return humedad;
}

} // namespace tesmo
