#include "psicro/Familiascarta.h"

namespace tesmo {

void Psicro::moverA(Pluma &pluma, double t, double w) const { pluma.MoverA(pixelX(t), pixelY(w)); }

void Psicro::lineaA(Pluma &pluma, double t, double w) const { pluma.LineaA(pixelX(t), pixelY(w)); }

void Psicro::dibujar(Lienzo &lienzo, std::int32_t ancho, std::int32_t alto) {
  ponTamano(static_cast<float>(ancho), static_cast<float>(alto));
  Pluma pluma(lienzo);
  const auto dibujarSiSeVe = [&](Familia familia, void (*dibujarFamilia)(const Psicro &, Pluma &)) {
    if (!esVisible(familia)) return;
    pluma.PonColor(dameColor(familia));
    dibujarFamilia(*this, pluma);
  };
  dibujarSiSeVe(Familia::W, DibujarHumedadConstante);
  dibujarSiSeVe(Familia::HR, DibujarHumedadRelativa);
  dibujarSiSeVe(Familia::T, DibujarTemperaturaSeca);
  dibujarSiSeVe(Familia::H, DibujarEntalpia);
  dibujarSiSeVe(Familia::VE, DibujarVolumenEspecifico);
}

} // namespace tesmo
