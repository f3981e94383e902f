#include "vistas/grafico/Recorte.h"

#include <array>

namespace tesmo {

namespace {

/// Lo de @p poligono que queda a un lado de un borde: donde @p distancia, con signo, no es negativa.
template <typename Distancia>
QVector<QPointF> AUnLado(const QVector<QPointF> &poligono, Distancia distancia) {
  QVector<QPointF> dentro;
  for (qsizetype i = 0; i < poligono.size(); ++i) {
    const QPointF &a = poligono[i];
    const QPointF &b = poligono[(i + 1) % poligono.size()];
    const double da = distancia(a);
    const double db = distancia(b);
    if (da >= 0.0) dentro.push_back(a);
    if ((da >= 0.0) != (db >= 0.0)) dentro.push_back(a + (b - a) * (da / (da - db)));
  }
  return dentro;
}

} // namespace

std::optional<std::pair<QPointF, QPointF>> RecortarSegmento(const QPointF &a, const QPointF &b,
                                                            const QRectF &marco) {
  const QPointF paso = b - a;
  // Cada borde exige direccion · t ≤ distancia, con t de 0 (en a) a 1 (en b).
  const std::array<std::pair<double, double>, 4> bordes{{{-paso.x(), a.x() - marco.left()},
                                                         {paso.x(), marco.right() - a.x()},
                                                         {-paso.y(), a.y() - marco.top()},
                                                         {paso.y(), marco.bottom() - a.y()}}};
  double entra = 0.0;
  double sale = 1.0;
  for (const auto &[direccion, distancia] : bordes) {
    if (direccion == 0.0) {
      if (distancia < 0.0) return std::nullopt;
      continue;
    }
    const double t = distancia / direccion;
    if (direccion < 0.0) {
      entra = std::max(entra, t);
    } else {
      sale = std::min(sale, t);
    }
  }
  if (!(entra <= sale)) return std::nullopt;
  return std::pair{a + entra * paso, sale == 1.0 ? b : a + sale * paso};
}

std::vector<QVector<QPointF>> RecortarPolilinea(const QVector<QPointF> &linea, const QRectF &marco) {
  std::vector<QVector<QPointF>> tramos;
  bool sigue = false;
  for (qsizetype i = 0; i + 1 < linea.size(); ++i) {
    const auto dentro = RecortarSegmento(linea[i], linea[i + 1], marco);
    if (!dentro) {
      sigue = false;
      continue;
    }
    if (!sigue || tramos.back().back() != dentro->first) tramos.push_back({dentro->first});
    tramos.back().push_back(dentro->second);
    sigue = dentro->second == linea[i + 1];
  }
  return tramos;
}

QVector<QPointF> RecortarPoligono(const QVector<QPointF> &poligono, const QRectF &marco) {
  QVector<QPointF> dentro = AUnLado(poligono, [&](const QPointF &p) { return p.x() - marco.left(); });
  dentro = AUnLado(dentro, [&](const QPointF &p) { return marco.right() - p.x(); });
  dentro = AUnLado(dentro, [&](const QPointF &p) { return p.y() - marco.top(); });
  return AUnLado(dentro, [&](const QPointF &p) { return marco.bottom() - p.y(); });
}

} // namespace tesmo
