#pragma once

#include <cmath>

namespace tesmo {

/// Recorridos de los valores de una familia de líneas o de los puntos de una línea. Con cualquier parámetro
/// terminan: un paso que no avanza deja sólo el primer valor, y una familia no da más de MAXIMO pasos. El
/// tope es uno para líneas y puntos, y no uno por recorrido, porque los recorridos van uno dentro de otro: un
/// millón de líneas de un millón de puntos no acabarían nunca. Es mil veces lo que gasta la carta de fábrica
/// y mucho más de lo que una pantalla distingue.
class Recorrido {
public:
  static constexpr int MAXIMO = 1'000'000;

  /// desde, desde + paso, … mientras no pasen de @p hasta, acumulando en float.
  template <typename Accion>
  void Acumulando(float desde, double hasta, float paso, Accion &&accion) {
    for (float v = desde; static_cast<double>(v) <= hasta && Gastar();) {
      accion(v);
      const float siguiente = v + paso;
      if (!(siguiente > v)) return;
      v = siguiente;
    }
  }

  /// Lo mismo truncando hacia cero el primer valor y cada suma.
  template <typename Accion>
  void Truncando(float desde, float hasta, float paso, Accion &&accion) {
    for (double v = std::trunc(desde); v <= static_cast<double>(hasta) && Gastar();) {
      accion(static_cast<float>(v));
      const double siguiente = std::trunc(v + paso);
      if (!(siguiente > v)) return;
      v = siguiente;
    }
  }

private:
  bool Gastar() { return restantes_-- > 0; }
  int restantes_ = MAXIMO;
};

} // namespace tesmo
