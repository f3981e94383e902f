#include "intercambio/reloj/Repartoradiacion.h"

#include "intercambio/comun/Aniocanonico.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

/// Horas a cada lado en que se busca sol para lo que cae fuera de él.
constexpr std::size_t HORAS_DE_BUSQUEDA = 2;

/// Pendiente de Van Leer: media armónica doble de los dos saltos, nula en los extremos.
double PendienteLimitada(double antes, double despues) {
  return antes * despues > 0.0 ? 2.0 * antes * despues / (antes + despues) : 0.0;
}

} // namespace

RepartoRadiacion::RepartoRadiacion(const std::vector<Corte> &cortes, const SolDeReparto &sol,
                                   const std::vector<bool> &diurna) {
  trozos_.reserve(cortes.size());
  for (const Corte &corte : cortes) {
    const double energia = sol.Energia(corte.desde, corte.hasta);
    extraterrestre_[corte.registro] += energia;
    trozos_.push_back(
        {corte.registro, corte.horaSolar, diurna[corte.horaSolar] ? energia : 0.0, corte.enRegistro});
  }
  Sumar();
}

RepartoRadiacion::RepartoRadiacion(const std::vector<Corte> &cortes, const SolDeReparto &sol) {
  trozos_.reserve(cortes.size());
  for (const Corte &corte : cortes) {
    const double energia = sol.Energia(corte.desde, corte.hasta);
    extraterrestre_[corte.horaSolar] += energia;
    trozos_.push_back({corte.horaSolar, corte.registro, energia, corte.enHora});
  }
  Sumar();
}

void RepartoRadiacion::Sumar() {
  for (const Trozo &trozo : trozos_) pesoDeDestino_[trozo.destino] += trozo.peso;
}

std::size_t RepartoRadiacion::DestinoVecino(std::size_t destino) const {
  for (std::size_t k = 0; k <= HORAS_DE_BUSQUEDA; ++k) {
    for (const std::size_t vecino : {(destino + k) % HORAS, (destino + HORAS - k) % HORAS}) {
      if (pesoDeDestino_[vecino] > 0.0) return vecino;
    }
  }
  return HORAS;
}

std::vector<RepartoRadiacion::Recta> RepartoRadiacion::Rectas(const SerieHoras &cocientes) {
  std::vector<Recta> rectas(HORAS);
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double centro = cocientes[i];
    double antes = centro - cocientes[(i + HORAS - 1) % HORAS];
    double despues = cocientes[(i + 1) % HORAS] - centro;
    // A la salida y a la puesta falta un vecino: la recta sigue, sin bajar de cero.
    if (std::isnan(antes)) antes = std::min(despues, centro);
    if (std::isnan(despues)) despues = std::max(antes, -centro);
    rectas[i] = {centro, PendienteLimitada(antes, despues)};
  }
  return rectas;
}

SerieHoras RepartoRadiacion::Cocientes(const SerieHoras &valores) const {
  SerieHoras cocientes(HORAS);
  std::ranges::transform(valores, extraterrestre_, cocientes.begin(),
                         [](double valor, double fuera) { return fuera > 0.0 ? valor / fuera : AUSENTE; });
  return cocientes;
}

SerieHoras RepartoRadiacion::Repartir(const SerieHoras &valores, double &perdida) const {
  const std::vector<Recta> rectas = Rectas(Cocientes(valores));
  const auto parte = [&](const Trozo &trozo) {
    const Recta &recta = rectas[trozo.origen];
    return trozo.peso * (recta.cociente + recta.pendiente * trozo.centro);
  };
  SerieHoras sumas(HORAS);
  for (const Trozo &trozo : trozos_) sumas[trozo.origen] += trozo.peso > 0.0 ? parte(trozo) : 0.0;
  SerieHoras destinos(HORAS);
  std::vector<bool> resuelto(HORAS);
  for (const Trozo &trozo : trozos_) {
    const double valor = valores[trozo.origen];
    if (sumas[trozo.origen] > 0.0) {
      if (trozo.peso > 0.0) destinos[trozo.destino] += valor * parte(trozo) / sumas[trozo.origen];
      continue;
    }
    if (valor == 0.0 || resuelto[trozo.origen]) continue;
    resuelto[trozo.origen] = true;
    const std::size_t vecino = DestinoVecino(trozo.destino);
    (vecino < HORAS ? destinos[vecino] : perdida) += valor;
  }
  return destinos;
}

SerieHoras RepartoRadiacion::Promediar(const SerieHoras &valores) const {
  const std::vector<Recta> rectas = Rectas(valores);
  SerieHoras medias(HORAS);
  for (const Trozo &trozo : trozos_) {
    if (trozo.peso <= 0.0) continue;
    const Recta &recta = rectas[trozo.origen];
    medias[trozo.destino] +=
        (recta.cociente + recta.pendiente * trozo.centro) * trozo.peso / pesoDeDestino_[trozo.destino];
  }
  return medias;
}

} // namespace tesmo
