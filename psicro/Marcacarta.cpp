#include "psicro/Marcacarta.h"

#include "psicro/Psicrometrico.h"

#include <cmath>

namespace tesmo {

namespace {

/// Falso también para lo que no es número: más lejos, los brazos de la cruz podrían no caber en un entero.
bool CabeEnPixel(float valor) {
  constexpr float LEJOS = 1e9F;
  return std::abs(valor) < LEJOS;
}

} // namespace

void MarcarPunto(Lienzo &lienzo, const Psicro &carta, float t, float w, ColorBgr color) {
  const float px = carta.x(t);
  const float py = carta.y(w);
  if (!CabeEnPixel(px) || !CabeEnPixel(py)) return;
  const int x = static_cast<int>(px);
  const int y = static_cast<int>(py);
  lienzo.PonColor(color);
  lienzo.PonGrueso(GRUESO_MARCA);
  lienzo.MoverA(x - BRAZO_MARCA, y);
  lienzo.LineaA(x + BRAZO_MARCA, y);
  lienzo.MoverA(x, y - BRAZO_MARCA);
  lienzo.LineaA(x, y + BRAZO_MARCA);
  lienzo.PonGrueso(1);
}

} // namespace tesmo
