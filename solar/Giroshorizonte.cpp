#include "solar/Giroshorizonte.h"

#include "solar/Puntoshorizonte.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace tesmo {

namespace {

constexpr double VUELTA = 360.0;
constexpr double MEDIA_VUELTA = 180.0;
constexpr double CUARTO_DE_VUELTA = 90.0;
constexpr int CUARTOS_DE_LA_VUELTA = 4;
constexpr auto NORTE = static_cast<float>(MEDIA_VUELTA);

PuntosHorizonte PuntosFinitosDe(const PerfilHorizonte &perfil) {
  PuntosHorizonte puntos = PuntosDe(perfil);
  std::erase_if(puntos, [](const PuntoHorizonte &punto) {
    return !std::isfinite(punto.acimut) || !std::isfinite(punto.altura);
  });
  return puntos;
}

void Ordenar(PuntosHorizonte &puntos) {
  std::stable_sort(puntos.begin(), puntos.end(),
                   [](const PuntoHorizonte &a, const PuntoHorizonte &b) { return a.acimut < b.acimut; });
}

/// Ordena y quita los puntos repetidos, que salen de un perfil que traía el norte por los dos lados.
PerfilHorizonte Recolocar(PuntosHorizonte puntos) {
  Ordenar(puntos);
  puntos.erase(std::unique(puntos.begin(), puntos.end()), puntos.end());
  return PerfilDe(puntos);
}

double MayorHueco(const PuntosHorizonte &puntos) {
  double mayor = 0.0;
  for (std::size_t i = 1; i < puntos.size(); ++i) {
    mayor = std::max(mayor, static_cast<double>(puntos[i].acimut) - puntos[i - 1].acimut);
  }
  return mayor;
}

} // namespace

PerfilHorizonte GirarPerfil(const PerfilHorizonte &perfil, int cuartos) {
  PuntosHorizonte puntos = PuntosFinitosDe(perfil);
  const double giro = cuartos % CUARTOS_DE_LA_VUELTA * CUARTO_DE_VUELTA;
  for (PuntoHorizonte &punto : puntos)
    punto.acimut = static_cast<float>(DentroDeLaVuelta(punto.acimut + giro));
  return Recolocar(std::move(puntos));
}

PerfilHorizonte ReflejarPerfil(const PerfilHorizonte &perfil) {
  PuntosHorizonte puntos = PuntosFinitosDe(perfil);
  std::reverse(puntos.begin(), puntos.end()); // una pared vertical conserva su lado
  for (PuntoHorizonte &punto : puntos) punto.acimut = 0.0F - punto.acimut;
  return Recolocar(std::move(puntos));
}

PerfilHorizonte CerrarVuelta(const PerfilHorizonte &perfil) {
  constexpr double HOLGURA = 2.0;
  PuntosHorizonte puntos = PuntosFinitosDe(perfil);
  Ordenar(puntos);
  if (puntos.size() < 2) return perfil;
  const auto [xUltimo, yUltimo] = puntos.back();
  const auto [xPrimero, yPrimero] = puntos.front();
  const double hueco = static_cast<double>(xPrimero) + VUELTA - xUltimo;
  if (xPrimero < -NORTE || xUltimo > NORTE || !(hueco < HOLGURA * MayorHueco(puntos))) return perfil;
  const double parte = hueco > 0.0 ? (MEDIA_VUELTA - xUltimo) / hueco : 0.0;
  const auto alNorte = static_cast<float>(yUltimo + parte * (static_cast<double>(yPrimero) - yUltimo));
  if (xPrimero > -NORTE) puntos.insert(puntos.begin(), PuntoHorizonte{-NORTE, alNorte});
  if (xUltimo < NORTE) puntos.push_back({NORTE, alNorte});
  return PerfilDe(puntos);
}

double DesdeElSur(double acimutNorte) { return DentroDeLaVuelta(acimutNorte - MEDIA_VUELTA); }

double DentroDeLaVuelta(double acimut) {
  if (std::fabs(acimut) <= MEDIA_VUELTA) return acimut;
  return std::remainder(acimut, VUELTA);
}

PerfilHorizonte PorAcimut(const PerfilHorizonte &perfil) {
  PuntosHorizonte puntos = PuntosFinitosDe(perfil);
  Ordenar(puntos);
  return PerfilDe(puntos);
}

} // namespace tesmo
