#pragma once

namespace tesmo {

/// La caja del dibujo de un reloj [px], con y hacia abajo, y las horas que abarca.
struct CajaCurso {
  double x = 0, y = 0, ancho = 0, alto = 0;
  double primeraHora = 4, ultimaHora = 20;
  /// Píxel de un punto; el 0 está en la base y el 1 arriba.
  [[nodiscard]] double X(double hora) const {
    return x + ancho * (hora - primeraHora) / (ultimaHora - primeraHora);
  }
  [[nodiscard]] double Y(double valor) const { return y + alto * (1.0 - valor); }
};

/// Las horas que abarca la caja; de fábrica, las de un día del que no se sabe el sol.
struct HorasCurso {
  double primera = 4, ultima = 20;
};
/// Las horas en punto, pares, que caben entre la @p salida y la @p puesta [h] con una de margen; de 0 a 24.
[[nodiscard]] HorasCurso HorasDelCurso(double salida, double puesta);

} // namespace tesmo
