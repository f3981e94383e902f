#include "intercambio/magnitudes/Humedad.h"

#include "intercambio/comun/Perfilmensual.h"
#include "psicro/Atmosfera.h"
#include "psicro/Saturacion.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr double HR_MAXIMA = 100.0;
/// Por debajo, el aire se tiene por seco del todo y su rocío no se busca [kg/kg].
constexpr double ABSOLUTA_SECA = 1e-6;
constexpr double ROCIO_DEL_AIRE_SECO = aire::T_MINIMA;

/// CorrienteAire deja en el registro lo que acota, y aquí no hay registro que valga: se acota antes.
float Temperatura(double t) { return std::clamp(static_cast<float>(t), aire::T_MINIMA, aire::T_MAXIMA); }

float Presion(double p) { return std::clamp(static_cast<float>(p), aire::P_MINIMA, aire::P_MAXIMA); }

HumedadDeHora Leer(const CorrienteAire &aire) {
  HumedadDeHora humedad;
  humedad.absoluta = aire.humedadAbsoluta();
  humedad.relativa = std::min(static_cast<double>(aire.humedadRelativa()), HR_MAXIMA);
  return humedad;
}

void CompletarPresion(const AnioCanonico &anio, AnioCompleto &completo) {
  completo.presion = anio[Campo::Presion];
  const double altitud = std::isfinite(anio.sitio.altitud) ? anio.sitio.altitud : 0.0;
  int supuestas = 0;
  for (std::size_t i = 0; i < HORAS; ++i) {
    if (!std::isnan(completo.presion.valores[i])) continue;
    completo.presion.Poner(i, PresionEnAltitud(altitud), Procedencia::Inventada);
    ++supuestas;
  }
  if (supuestas == 0) return;
  completo.avisos.push_back("La presión falta en " + std::to_string(supuestas) +
                            " horas: se toma la de la atmósfera normal a " +
                            std::to_string(std::lround(altitud)) + " m" +
                            (std::isfinite(anio.sitio.altitud) ? "." : ", que es la altitud que se supone."));
}

} // namespace

HumedadDeHora HumedadDeAbsoluta(CorrienteAire &aire, double seca, double absoluta, double presion,
                                bool conRocio) {
  const float t = Temperatura(seca);
  const float p = Presion(presion);
  const auto saturada = static_cast<float>(humedadSaturacion(t, p));
  aire.pont_w(t, std::clamp(static_cast<float>(absoluta), 0.0F, std::max(saturada, 0.0F)), p);
  HumedadDeHora humedad = Leer(aire);
  if (conRocio) {
    humedad.rocio = humedad.absoluta > ABSOLUTA_SECA ? aire.temperaturaRocio() : ROCIO_DEL_AIRE_SECO;
    humedad.rocio = std::min(humedad.rocio, seca);
  }
  return humedad;
}

HumedadDeHora HumedadDeRelativa(CorrienteAire &aire, double seca, double relativa, double presion) {
  const float acotada = std::clamp(static_cast<float>(relativa), 0.0F, static_cast<float>(HR_MAXIMA));
  aire.pont_hr(Temperatura(seca), acotada, Presion(presion));
  HumedadDeHora humedad = Leer(aire);
  humedad.relativa = static_cast<double>(acotada);
  return humedad;
}

HumedadDeHora HumedadDeRocio(CorrienteAire &aire, double seca, double rocio, double presion) {
  const float t = Temperatura(seca);
  aire.pont_tr(t, std::min(Temperatura(rocio), t), Presion(presion));
  HumedadDeHora humedad = Leer(aire);
  humedad.rocio = std::min(rocio, seca);
  return humedad;
}

void CompletarHumedad(const AnioCanonico &anio, AnioCompleto &completo) {
  CompletarPresion(anio, completo);
  completo.absoluta = anio[Campo::HumedadAbsoluta];
  completo.relativa = anio[Campo::HumedadRelativa];
  const std::vector<double> &rocio = anio[Campo::TemperaturaRocio].valores;
  CorrienteAire aire;
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double absoluta = completo.absoluta.valores[i];
    const double relativa = completo.relativa.valores[i];
    const double seca = completo.seca.valores[i];
    const double presion = completo.presion.valores[i];
    if (!std::isnan(absoluta) && !std::isnan(relativa)) continue;
    const HumedadDeHora humedad = !std::isnan(absoluta)
                                      ? HumedadDeAbsoluta(aire, seca, absoluta, presion, false)
                                  : !std::isnan(relativa) ? HumedadDeRelativa(aire, seca, relativa, presion)
                                  : !std::isnan(rocio[i]) ? HumedadDeRocio(aire, seca, rocio[i], presion)
                                                          : HumedadDeHora{};
    if (std::isnan(absoluta)) completo.absoluta.Poner(i, humedad.absoluta, Procedencia::Calculada);
    if (std::isnan(relativa)) completo.relativa.Poner(i, humedad.relativa, Procedencia::Calculada);
  }
}

} // namespace tesmo
