#include "vistas/sol/Escalasolar.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tesmo {

namespace {

constexpr double CENIT = 90.0;
constexpr double MEDIA_VUELTA = 180.0;
constexpr float HORAS = 24.0F;
/// Todos tienen rótulo en −180, −90, 0, 90 y 180 [°].
constexpr std::array<int, 3> PASOS_DE_ROTULOS{10, 30, 90};

bool EsPunto(const PuntoHorizonte &punto) {
  return std::isfinite(punto.acimut) && std::isfinite(punto.altura);
}

bool Salta(const PuntoSolar &antes, const PuntoSolar &ahora) {
  return std::fabs(static_cast<double>(antes.acimut) - ahora.acimut) > MEDIA_VUELTA;
}

} // namespace

AlcanceRaton EscalaSolar::Alcance(double pixeles) const {
  return {Acimut(pixeles) - Acimut(0.0), Altura(0.0) - Altura(pixeles)};
}

double AlturaDelEje(const PuntosHorizonte &horizonte) {
  const bool pasa = std::any_of(horizonte.begin(), horizonte.end(), [](const PuntoHorizonte &punto) {
    return EsPunto(punto) && punto.altura > CENIT;
  });
  return pasa ? static_cast<double>(EdicionHorizonte::ALTURA_MAXIMA) : CENIT;
}

int PasoDeRotulos(double anchoEje, double anchoRotulo) {
  for (const int paso : PASOS_DE_ROTULOS) {
    if (paso * anchoEje / (2.0 * EscalaSolar::ACIMUT_MAXIMO) >= anchoRotulo) return paso;
  }
  return PASOS_DE_ROTULOS.back();
}

std::vector<CurvaSolar> TramosDeCurva(const CurvaSolar &curva) {
  std::vector<CurvaSolar> tramos;
  bool seguido = false;
  for (const PuntoSolar &punto : curva) {
    if (EsDeNoche(punto)) {
      seguido = false;
      continue;
    }
    if (!seguido || Salta(tramos.back().back(), punto)) tramos.emplace_back();
    tramos.back().push_back(punto);
    seguido = true;
  }
  return tramos;
}

PuntosHorizonte AreaDeHorizonte(const PuntosHorizonte &horizonte) {
  PuntosHorizonte area;
  std::copy_if(horizonte.begin(), horizonte.end(), std::back_inserter(area), EsPunto);
  if (area.size() < 2) return {};
  const float ultimo = area.back().acimut;
  const float primero = area.front().acimut;
  area.push_back({ultimo, 0.0F});
  area.push_back({primero, 0.0F});
  return area;
}

float HoraDeCasilla(float hora) {
  const float resto = std::fmod(hora, HORAS);
  return resto < 0.0F ? resto + HORAS : resto;
}

} // namespace tesmo
