#include "vistas/carta/Bandaelastica.h"

#include "psicro/Psicrometrico.h"

namespace tesmo {

namespace {

constexpr ColorBgr NEGRO = 0x000000;

} // namespace

void SoltarBanda(BandaElastica &banda, ModoPluma modo, SuperficieBanda &superficie, Psicro &carta) {
  superficie.PonModo(modo);
  superficie.Rectangulo(NEGRO, banda.esquinas[0], banda.esquinas[1]);
  carta.ponVista(0, 0, 0, 0, 1);
  carta.dibujar(superficie.Trazos(), ANCHO_DE_BANDA, ALTO_DE_BANDA);
  superficie.PonModo(ModoPluma::Copia);
  carta.dibujar(superficie.Trazos(), ANCHO_DE_BANDA, ALTO_DE_BANDA);
  banda.activa = false;
}

} // namespace tesmo
