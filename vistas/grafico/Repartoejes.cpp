#include "vistas/grafico/Repartoejes.h"

#include "meteo/Magnitudes.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

struct GrupoUnidad {
  std::string_view unidad;
  double mayor = 0.0;
};

std::vector<GrupoUnidad> AgruparUnidades(std::span<const SerieReparto> series) {
  std::vector<GrupoUnidad> grupos;
  for (const SerieReparto &serie : series) {
    const auto grupo = std::ranges::find(grupos, serie.unidad, &GrupoUnidad::unidad);
    if (grupo == grupos.end()) {
      grupos.push_back({serie.unidad, serie.mayor});
    } else {
      grupo->mayor = std::max(grupo->mayor, serie.mayor);
    }
  }
  return grupos;
}

/// Orden de magnitud; lo que no llega a una milésima no necesita escala aparte.
double OrdenDe(double mayor) { return std::log10(std::max(mayor, 1.0e-3)); }

/// Cuántos de los grupos, ordenados de menor a mayor, quedan a este lado del mayor salto.
std::size_t PosicionDelCorte(const std::vector<GrupoUnidad> &ordenados) {
  std::size_t corte = 1;
  double salto = -1.0;
  for (std::size_t i = 1; i < ordenados.size(); ++i) {
    const double este = OrdenDe(ordenados[i].mayor) - OrdenDe(ordenados[i - 1].mayor);
    if (este > salto) {
      salto = este;
      corte = i;
    }
  }
  return corte;
}

/// Aire a cada lado de los valores, en fracción de su recorrido.
constexpr double AIRE = 0.05;

} // namespace

std::vector<LadoEje> RepartirPorUnidad(std::span<const SerieReparto> series) {
  std::vector<LadoEje> lados(series.size(), LadoEje::Izquierdo);
  std::vector<GrupoUnidad> grupos = AgruparUnidades(series);
  if (grupos.size() < 2) return lados;
  const std::string_view primera = grupos.front().unidad;
  std::ranges::stable_sort(grupos, {}, &GrupoUnidad::mayor);
  const std::size_t corte = PosicionDelCorte(grupos);
  const auto esMenor = [&](std::string_view unidad) {
    const auto sitio = std::ranges::find(grupos, unidad, &GrupoUnidad::unidad) - grupos.begin();
    return static_cast<std::size_t>(sitio) < corte;
  };
  for (std::size_t i = 0; i < series.size(); ++i) {
    const bool conLaPrimera = esMenor(series[i].unidad) == esMenor(primera);
    lados[i] = conLaPrimera ? LadoEje::Izquierdo : LadoEje::Derecho;
  }
  return lados;
}

std::string TituloDeEje(std::span<const std::string> rotulos) {
  if (rotulos.size() == 1) return rotulos.front();
  std::vector<std::string_view> unidades;
  std::string titulo;
  for (const std::string &rotulo : rotulos) {
    const std::string_view unidad = UnidadDeRotulo(rotulo);
    if (std::ranges::find(unidades, unidad) != unidades.end()) continue;
    unidades.push_back(unidad);
    if (!titulo.empty()) titulo += " · ";
    titulo += unidad;
  }
  return titulo;
}

LimitesEje LimitesConAire(double minimo, double maximo) {
  if (!(minimo <= maximo)) return {};
  const double recorrido = maximo - minimo;
  const double aire = recorrido > 0.0 ? AIRE * recorrido : std::max(AIRE * std::abs(minimo), 1.0);
  return {minimo - aire, maximo + aire};
}

} // namespace tesmo
