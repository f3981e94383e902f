#include "psicro/Buscaraiz.h"
#include "psicro/Constantes.h"
#include "psicro/Corrienteaire.h"
#include "psicro/Familiascarta.h"
#include "psicro/Recorrido.h"
#include "psicro/Saturacion.h"

namespace tesmo {

namespace {

float CorteConLaSaturacion(float v, float presion) {
  return BuscarRaiz(0.0F, TOLERANCIA_CARTA, ITERACIONES_CARTA, "No converge intersección VE con HR=100%",
                    [v, presion](float t) {
                      const double aireSeco = static_cast<double>(presion) - presionSaturacion(t);
                      return static_cast<float>(v - (t + aire::T0) * aire::RA_CARTA / aireSeco);
                    });
}

} // namespace

void DibujarVolumenEspecifico(const Psicro &carta, Pluma &pluma) {
  const Rango &rango = carta.dameRango(Familia::VE);
  const float presion = carta.damePresion();
  CorrienteAire aire;
  Recorrido recorrido;
  recorrido.Acumulando(rango.minimo, rango.maximo + VOLUMEN_DE_MAS, rango.paso, Recorrido::LINEA,
                       [&](float v) {
                         const double t0 = static_cast<double>(v) * presion / aire::RA_CARTA - aire::T0;
                         const float t = CorteConLaSaturacion(v, presion);
                         aire.pont_w(t, static_cast<float>(humedadSaturacion(t, presion)), presion);
                         carta.moverA(pluma, aire.temperatura(), aire.humedadAbsoluta());
                         carta.lineaA(pluma, t0, 0.0);
                       });
}

} // namespace tesmo
