#pragma once

namespace tesmo {

/// Correspondencia lineal entre un tramo del eje horizontal y los píxeles que ocupa.
struct Encuadre {
  double desde = 0.0;     ///< valor en el borde izquierdo
  double hasta = 1.0;     ///< valor en el borde derecho
  double izquierda = 0.0; ///< píxel del borde izquierdo
  double derecha = 1.0;   ///< píxel del borde derecho

  [[nodiscard]] constexpr double APixel(double valor) const {
    return hasta == desde ? izquierda : izquierda + (valor - desde) * (derecha - izquierda) / (hasta - desde);
  }
  [[nodiscard]] constexpr double AValor(double pixel) const {
    return derecha == izquierda ? desde
                                : desde + (pixel - izquierda) * (hasta - desde) / (derecha - izquierda);
  }
};

/// Lleva el tramo [@p desde, @p hasta] dentro de [@p minimo, @p maximo] sin cambiarle el ancho si cabe; un
/// tramo más estrecho que @p anchoMinimo se ensancha alrededor de su centro y uno más ancho que el todo es el
/// todo.
void AjustarTramo(double &desde, double &hasta, double minimo, double maximo, double anchoMinimo);

} // namespace tesmo
