#include "vistas/grafico/Encuadre.h"

#include <algorithm>

namespace tesmo {

void AjustarTramo(double &desde, double &hasta, double minimo, double maximo, double anchoMinimo) {
  const double todo = maximo - minimo;
  const double ancho = std::clamp(hasta - desde, std::min(anchoMinimo, todo), todo);
  const double centro = 0.5 * (desde + hasta);
  if (ancho != hasta - desde) desde = centro - 0.5 * ancho;
  desde = std::clamp(desde, minimo, maximo - ancho);
  hasta = desde + ancho;
}

} // namespace tesmo
