#include "intercambio/comun/Perfilmensual.h"

#include <cmath>
#include <numeric>

namespace tesmo {

namespace {

double MitadDe(std::size_t mes) {
  return static_cast<double>(PrimerDiaDe(mes)) + static_cast<double>(DiasDe(mes)) / 2.0;
}

double MediaDeTramo(const std::vector<double> &serie, std::size_t primero, std::size_t numero) {
  const auto desde = serie.begin() + static_cast<std::ptrdiff_t>(primero);
  return std::accumulate(desde, desde + static_cast<std::ptrdiff_t>(numero), 0.0) /
         static_cast<double>(numero);
}

} // namespace

std::size_t MesDe(std::size_t dia) {
  std::size_t mes = MESES - 1;
  while (mes > 0 && dia < PrimerDiaDe(mes)) --mes;
  return mes;
}

double PerfilMensual::En(std::size_t dia) const {
  const double x = static_cast<double>(dia) + 0.5;
  const std::size_t mes = MesDe(dia);
  const std::size_t izquierdo = x < MitadDe(mes) ? (mes + MESES - 1) % MESES : mes;
  const std::size_t derecho = (izquierdo + 1) % MESES;
  const double anio = static_cast<double>(DIAS);
  const double ancho = std::fmod(MitadDe(derecho) - MitadDe(izquierdo) + anio, anio);
  const double avance = std::fmod(x - MitadDe(izquierdo) + anio, anio);
  return nodos[izquierdo] + (nodos[derecho] - nodos[izquierdo]) * avance / ancho;
}

double MediaDelMes(const SerieDias &serie, std::size_t mes) {
  return MediaDeTramo(serie, PrimerDiaDe(mes), DiasDe(mes));
}

double DesviacionDelMes(const SerieDias &serie, std::size_t mes) {
  const double media = MediaDelMes(serie, mes);
  double suma = 0.0;
  for (std::size_t dia = PrimerDiaDe(mes); dia < PrimerDiaDe(mes) + DiasDe(mes); ++dia) {
    suma += (serie[dia] - media) * (serie[dia] - media);
  }
  return std::sqrt(suma / static_cast<double>(DiasDe(mes) - 1));
}

double MediaHorariaDelMes(const SerieHoras &serie, std::size_t mes) {
  return MediaDeTramo(serie, PrimerDiaDe(mes) * HORAS_POR_DIA, DiasDe(mes) * HORAS_POR_DIA);
}

} // namespace tesmo
