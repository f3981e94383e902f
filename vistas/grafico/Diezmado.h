#pragma once

#include <QPointF>
#include <QVector>

#include <span>
#include <vector>

namespace tesmo {

/// Lo que una polilínea hace dentro de una columna de píxeles.
struct ColumnaTrazo {
  qint64 columna = 0;   ///< número de columna: parte entera de x / ancho
  double minimo = 0.0;  ///< menor ordenada de sus puntos [px]
  double maximo = 0.0;  ///< mayor ordenada de sus puntos [px]
  double entrada = 0.0; ///< ordenada del primero [px]
  double salida = 0.0;  ///< ordenada del último [px]
  bool enlaza = false;  ///< le llega la línea desde la columna anterior de la lista
};

/// Reduce los puntos de una polilínea, de x creciente, a una entrada por columna de @p ancho píxeles. Ningún
/// pico se pierde: todo punto queda entre el mínimo y el máximo de su columna. Un punto que no es número
/// corta la línea; una ordenada infinita se queda fuera de la pantalla, sin desbordar.
[[nodiscard]] std::vector<ColumnaTrazo> DiezmarPorColumnas(std::span<const QPointF> puntos, double ancho);

/// Rectángulo relleno, en píxeles, que pinta una columna.
struct Barra {
  double x = 0.0;
  double y = 0.0;
  double ancho = 0.0;
  double alto = 0.0;
};

/// Barras de @p grosor píxeles que cubren @p columnas y sus enlaces entre columnas contiguas, y los segmentos
/// que unen las que no lo son.
struct TrazoPorColumnas {
  std::vector<Barra> barras;
  std::vector<QPointF> segmentos; ///< de dos en dos
};
[[nodiscard]] TrazoPorColumnas TrazarColumnas(std::span<const ColumnaTrazo> columnas, double ancho,
                                              double grosor);

/// La misma línea con cuatro puntos por columna como mucho (primero, extremos y último), para el dibujo
/// vectorial. Cada elemento es un tramo sin cortes.
[[nodiscard]] std::vector<QVector<QPointF>> PolilineaDiezmada(std::span<const QPointF> puntos, double ancho);

} // namespace tesmo
