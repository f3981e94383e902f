#include "psicro/Corrienteaire.h"
#include "psicro/Familiascarta.h"
#include "psicro/Recorrido.h"

namespace tesmo {

namespace {

constexpr float SATURADO = 100.0F; // [%]

/// Con aumento 1 el primer punto sólo cuenta el desplazamiento vertical, y no antes del aumento. Se conserva.
void MoverALaSaturacion(const Psicro &carta, Pluma &pluma, double t, double w) {
  const VistaCarta &vista = carta.dameVista();
  if (vista.zoom == 1) {
    pluma.MoverA(carta.x(t), static_cast<double>(carta.y(w)) - vista.desplazamientoY);
  } else {
    carta.moverA(pluma, t, w);
  }
}

} // namespace

void DibujarTemperaturaSeca(const Psicro &carta, Pluma &pluma) {
  const Rango &rango = carta.dameRango(Familia::T);
  const float wPaso = carta.dameRango(Familia::W).paso;
  CorrienteAire aire;
  Recorrido recorrido;
  recorrido.Truncando(rango.minimo, rango.maximo, rango.paso, [&](float t) {
    aire.pont_hr(t, SATURADO, carta.damePresion());
    const float ws = aire.humedadAbsoluta();
    MoverALaSaturacion(carta, pluma, t, ws);
    recorrido.Acumulando(0.0F, ws, wPaso, Recorrido::PUNTO, [&](float w) { carta.lineaA(pluma, t, w); });
  });
}

} // namespace tesmo
