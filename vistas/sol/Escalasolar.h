#pragma once

#include "solar/Curvassol.h"
#include "solar/Edicionhorizonte.h"
#include "vistas/grafico/Encuadre.h"

#include <QPointF>
#include <QRectF>

#include <vector>

namespace tesmo {

/// Correspondencia entre los grados de la carta solar y los píxeles de su marco: acimut de −180 a 180 hacia
/// la derecha y altura de 0 a un máximo hacia arriba. Fuera del marco sigue en línea recta.
class EscalaSolar {
public:
  static constexpr double ACIMUT_MAXIMO = 180.0;

  /// @param marco rectángulo de los ejes [px]; @param alturaMaxima [°], la de AlturaDelEje
  EscalaSolar(const QRectF &marco, double alturaMaxima)
      : acimutes_{-ACIMUT_MAXIMO, ACIMUT_MAXIMO, marco.left(), marco.right()}, alturas_{0.0, alturaMaxima,
                                                                                        marco.bottom(),
                                                                                        marco.top()} {}

  [[nodiscard]] double X(double acimut) const { return acimutes_.APixel(acimut); }
  [[nodiscard]] double Y(double altura) const { return alturas_.APixel(altura); }
  [[nodiscard]] QPointF Sitio(double acimut, double altura) const { return {X(acimut), Y(altura)}; }
  [[nodiscard]] float Acimut(double x) const { return static_cast<float>(acimutes_.AValor(x)); }
  [[nodiscard]] float Altura(double y) const { return static_cast<float>(alturas_.AValor(y)); }
  /// Grados que ocupan @p pixeles alrededor de un punto.
  [[nodiscard]] AlcanceRaton Alcance(double pixeles) const;

private:
  Encuadre acimutes_;
  Encuadre alturas_;
};

/// Altura en que acaba el eje [°]: 90, o 100 si el horizonte pasa de ahí.
[[nodiscard]] double AlturaDelEje(const PuntosHorizonte &horizonte);

/// Grados entre dos rótulos del eje de acimutes: el menor múltiplo de 10 que reparte el eje entre sus puntos
/// cardinales y en que cabe un rótulo de @p anchoRotulo [px] si el eje mide @p anchoEje [px].
[[nodiscard]] int PasoDeRotulos(double anchoEje, double anchoRotulo);

/// Los trozos de una curva que se pueden unir con una línea: sin los puntos de noche y cortada donde el
/// acimut salta de un lado al otro del norte.
[[nodiscard]] std::vector<CurvaSolar> TramosDeCurva(const CurvaSolar &curva);

/// Contorno del área bajo el horizonte, de su primer punto a su último y cerrado por abajo; vacío con menos
/// de dos puntos que sean números.
[[nodiscard]] PuntosHorizonte AreaDeHorizonte(const PuntosHorizonte &horizonte);

/// Una hora solar de reloj, que de madrugada puede ser negativa, llevada a 0..24.
[[nodiscard]] float HoraDeCasilla(float hora);

} // namespace tesmo
