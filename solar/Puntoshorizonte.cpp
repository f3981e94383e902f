#include "solar/Puntoshorizonte.h"

namespace tesmo {

PuntosHorizonte PuntosDe(const PerfilHorizonte &perfil) {
  PuntosHorizonte puntos;
  puntos.reserve(perfil.X().size());
  for (std::size_t i = 0; i < perfil.X().size(); ++i) puntos.push_back({perfil.X()[i], perfil.Y()[i]});
  return puntos;
}

PerfilHorizonte PerfilDe(const PuntosHorizonte &puntos) {
  PerfilHorizonte perfil;
  perfil.PonTamano(static_cast<float>(puntos.size()));
  for (std::size_t i = 0; i < puntos.size(); ++i) {
    perfil.PonPunto(static_cast<int>(i), puntos[i].acimut, puntos[i].altura);
  }
  return perfil;
}

} // namespace tesmo
