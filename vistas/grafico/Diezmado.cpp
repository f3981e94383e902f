#include "vistas/grafico/Diezmado.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

/// Muy fuera de cualquier pantalla y muy dentro de lo que el trazador de mapas de bits sabe recortar [px].
constexpr double FUERA_DE_PANTALLA = 1.0e5;

bool EsPunto(const QPointF &p) { return std::isfinite(p.x()) && !std::isnan(p.y()); }

double Ordenada(const QPointF &p) { return std::clamp(p.y(), -FUERA_DE_PANTALLA, FUERA_DE_PANTALLA); }

qint64 NumeroDeColumna(double x, double ancho) {
  return static_cast<qint64>(std::floor(std::clamp(x, -FUERA_DE_PANTALLA, FUERA_DE_PANTALLA) / ancho));
}

void AnadirPunto(std::vector<QPointF> &tramo, double x, double y) {
  if (tramo.empty() || tramo.back() != QPointF(x, y)) tramo.emplace_back(x, y);
}

/// Puntos consecutivos de una misma columna, por posición en la lista.
struct Corrida {
  std::size_t primero = 0;
  std::size_t menor = 0;
  std::size_t mayor = 0;
  std::size_t ultimo = 0;
};

Corrida CorridaDesde(std::span<const QPointF> puntos, std::size_t i, double ancho) {
  Corrida corrida{i, i, i, i};
  const qint64 columna = NumeroDeColumna(puntos[i].x(), ancho);
  for (std::size_t k = i + 1; k < puntos.size() && EsPunto(puntos[k]); ++k) {
    if (NumeroDeColumna(puntos[k].x(), ancho) != columna) break;
    if (puntos[k].y() < puntos[corrida.menor].y()) corrida.menor = k;
    if (puntos[k].y() > puntos[corrida.mayor].y()) corrida.mayor = k;
    corrida.ultimo = k;
  }
  return corrida;
}

} // namespace

std::vector<ColumnaTrazo> DiezmarPorColumnas(std::span<const QPointF> puntos, double ancho) {
  std::vector<ColumnaTrazo> columnas;
  columnas.reserve(std::min<std::size_t>(puntos.size(), 4096));
  bool enlaza = false;
  for (const QPointF &p : puntos) {
    if (!EsPunto(p)) {
      enlaza = false;
      continue;
    }
    const qint64 columna = NumeroDeColumna(p.x(), ancho);
    const double y = Ordenada(p);
    if (!enlaza || columnas.back().columna != columna) {
      columnas.push_back({columna, y, y, y, y, enlaza});
    } else {
      ColumnaTrazo &actual = columnas.back();
      actual.minimo = std::min(actual.minimo, y);
      actual.maximo = std::max(actual.maximo, y);
      actual.salida = y;
    }
    enlaza = true;
  }
  return columnas;
}

TrazoPorColumnas TrazarColumnas(std::span<const ColumnaTrazo> columnas, double ancho, double grosor) {
  TrazoPorColumnas trazo;
  trazo.barras.reserve(columnas.size());
  const double medio = 0.5 * grosor;
  for (std::size_t i = 0; i < columnas.size(); ++i) {
    const ColumnaTrazo &c = columnas[i];
    double arriba = c.minimo;
    double abajo = c.maximo;
    if (c.enlaza) {
      const ColumnaTrazo &anterior = columnas[i - 1];
      if (c.columna == anterior.columna + 1) {
        arriba = std::min(arriba, anterior.salida);
        abajo = std::max(abajo, anterior.salida);
      } else {
        trazo.segmentos.emplace_back((static_cast<double>(anterior.columna) + 0.5) * ancho, anterior.salida);
        trazo.segmentos.emplace_back((static_cast<double>(c.columna) + 0.5) * ancho, c.entrada);
      }
    }
    const double centro = (static_cast<double>(c.columna) + 0.5) * ancho;
    trazo.barras.push_back({centro - medio, arriba - medio, grosor, abajo - arriba + grosor});
  }
  return trazo;
}

std::vector<QVector<QPointF>> PolilineaDiezmada(std::span<const QPointF> puntos, double ancho) {
  std::vector<QVector<QPointF>> tramos;
  std::vector<QPointF> tramo;
  const auto cerrar = [&] {
    if (!tramo.empty()) tramos.emplace_back(tramo.begin(), tramo.end());
    tramo.clear();
  };
  for (std::size_t i = 0; i < puntos.size();) {
    if (!EsPunto(puntos[i])) {
      cerrar();
      ++i;
      continue;
    }
    const Corrida corrida = CorridaDesde(puntos, i, ancho);
    const auto [antes, despues] = std::minmax(corrida.menor, corrida.mayor);
    for (const std::size_t k : {corrida.primero, antes, despues, corrida.ultimo}) {
      AnadirPunto(tramo, puntos[k].x(), Ordenada(puntos[k]));
    }
    i = corrida.ultimo + 1;
  }
  cerrar();
  return tramos;
}

} // namespace tesmo
