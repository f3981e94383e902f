#pragma once

#include "core/Error.h"

#include <cmath>

namespace tesmo {

/// Recorridos de los valores de una familia de líneas o de los puntos de una línea. Con cualquier parámetro
/// terminan: un paso que no avanza deja sólo el primer valor, y una familia no gasta más de MAXIMO puntos. El
/// tope es uno para líneas y puntos, y no uno por recorrido, porque los recorridos van uno dentro de otro: un
/// millón de líneas de un millón de puntos no acabarían nunca. Pasa con mucho de lo que una pantalla
/// distingue; la familia que lo agota queda a medias y lo dice en el registro.
class Recorrido {
public:
  static constexpr int MAXIMO = 200'000'000;
  /// Lo que gastan un punto y una línea, cuyos extremos hay que buscar.
  static constexpr int PUNTO = 1;
  static constexpr int LINEA = 100;

  explicit Recorrido(int maximo = MAXIMO) : restantes_(maximo) {}

  /// desde, desde + paso, … mientras no pasen de @p hasta, acumulando en float; cada valor gasta @p coste.
  template <typename Accion>
  void Acumulando(float desde, double hasta, float paso, int coste, Accion &&accion) {
    for (float v = desde; static_cast<double>(v) <= hasta && Gastar(coste);) {
      accion(v);
      const float siguiente = v + paso;
      if (!(siguiente > v)) return;
      v = siguiente;
    }
  }

  /// Lo mismo truncando hacia cero el primer valor y cada suma; cada valor es una línea.
  template <typename Accion>
  void Truncando(float desde, float hasta, float paso, Accion &&accion) {
    for (double v = std::trunc(desde); v <= static_cast<double>(hasta) && Gastar(LINEA);) {
      accion(static_cast<float>(v));
      const double siguiente = std::trunc(v + paso);
      if (!(siguiente > v)) return;
      v = siguiente;
    }
  }

private:
  bool Gastar(int coste) {
    if (restantes_ >= coste) {
      restantes_ -= coste;
      return true;
    }
    if (!agotado_) EscribirRegistro("Una familia de líneas pide demasiados puntos y queda a medias: Psicro");
    agotado_ = true;
    restantes_ = 0;
    return false;
  }

  int restantes_;
  bool agotado_ = false;
};

} // namespace tesmo
