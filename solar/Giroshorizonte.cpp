#include "solar/Giroshorizonte.h"

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

using Punto = std::pair<float, float>; ///< acimut y altura
using Puntos = std::vector<Punto>;

Puntos PuntosDe(const PerfilHorizonte &perfil) {
  Puntos puntos;
  for (std::size_t i = 0; i < perfil.X().size(); ++i) {
    if (!std::isfinite(perfil.X()[i]) || !std::isfinite(perfil.Y()[i])) continue;
    puntos.emplace_back(perfil.X()[i], perfil.Y()[i]);
  }
  return puntos;
}

PerfilHorizonte PerfilDe(const Puntos &puntos) {
  PerfilHorizonte perfil;
  perfil.PonTamano(static_cast<float>(puntos.size()));
  for (std::size_t i = 0; i < puntos.size(); ++i) {
    perfil.PonPunto(static_cast<int>(i), puntos[i].first, puntos[i].second);
  }
  return perfil;
}

void Ordenar(Puntos &puntos) {
  std::stable_sort(puntos.begin(), puntos.end(),
                   [](const Punto &a, const Punto &b) { return a.first < b.first; });
}

/// Ordena y quita los puntos repetidos, que salen de un perfil que traía el norte por los dos lados.
PerfilHorizonte Recolocar(Puntos puntos) {
  Ordenar(puntos);
  puntos.erase(std::unique(puntos.begin(), puntos.end()), puntos.end());
  return PerfilDe(puntos);
}

double MayorHueco(const Puntos &puntos) {
  double mayor = 0.0;
  for (std::size_t i = 1; i < puntos.size(); ++i) {
    mayor = std::max(mayor, static_cast<double>(puntos[i].first) - puntos[i - 1].first);
  }
  return mayor;
}

} // namespace

PerfilHorizonte GirarPerfil(const PerfilHorizonte &perfil, int cuartos) {
  Puntos puntos = PuntosDe(perfil);
  const double giro = cuartos % CUARTOS_DE_LA_VUELTA * CUARTO_DE_VUELTA;
  for (Punto &punto : puntos) punto.first = static_cast<float>(DentroDeLaVuelta(punto.first + giro));
  return Recolocar(std::move(puntos));
}

PerfilHorizonte ReflejarPerfil(const PerfilHorizonte &perfil) {
  Puntos puntos = PuntosDe(perfil);
  std::reverse(puntos.begin(), puntos.end()); // una pared vertical conserva su lado
  for (Punto &punto : puntos) punto.first = 0.0F - punto.first;
  return Recolocar(std::move(puntos));
}

PerfilHorizonte CerrarVuelta(const PerfilHorizonte &perfil) {
  constexpr double HOLGURA = 2.0;
  Puntos puntos = PuntosDe(perfil);
  Ordenar(puntos);
  if (puntos.size() < 2) return perfil;
  const auto [xUltimo, yUltimo] = puntos.back();
  const auto [xPrimero, yPrimero] = puntos.front();
  const double hueco = static_cast<double>(xPrimero) + VUELTA - xUltimo;
  if (xPrimero < -NORTE || xUltimo > NORTE || !(hueco < HOLGURA * MayorHueco(puntos))) return perfil;
  const double parte = hueco > 0.0 ? (MEDIA_VUELTA - xUltimo) / hueco : 0.0;
  const auto alNorte = static_cast<float>(yUltimo + parte * (static_cast<double>(yPrimero) - yUltimo));
  if (xPrimero > -NORTE) puntos.insert(puntos.begin(), {-NORTE, alNorte});
  if (xUltimo < NORTE) puntos.emplace_back(NORTE, alNorte);
  return PerfilDe(puntos);
}

double DesdeElSur(double acimutNorte) { return DentroDeLaVuelta(acimutNorte - MEDIA_VUELTA); }

double DentroDeLaVuelta(double acimut) {
  if (std::fabs(acimut) <= MEDIA_VUELTA) return acimut;
  return std::remainder(acimut, VUELTA);
}

PerfilHorizonte PorAcimut(const PerfilHorizonte &perfil) {
  Puntos puntos = PuntosDe(perfil);
  Ordenar(puntos);
  return PerfilDe(puntos);
}

} // namespace tesmo
