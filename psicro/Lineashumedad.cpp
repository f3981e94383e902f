#include "psicro/Corrienteaire.h"
#include "psicro/Familiascarta.h"
#include "psicro/Recorrido.h"

namespace tesmo {

namespace {

constexpr double MAS_ALLA_DE_TMAX = 30.0;    // [°C], líneas de humedad absoluta
constexpr double MAS_ALLA_DE_TMAX_HR = 10.0; // [°C], curvas de humedad relativa
constexpr float PRIMERA_T = 1.0F;
constexpr float PASO_T = 1.0F;

/// El primer punto no sigue la regla de los demás: con aumento 1 prescinde de los desplazamientos y con otro
/// usa el auxiliar y el desplazamiento de las equis en las dos coordenadas. Se conserva.
void MoverAlPrimerPunto(const Psicro &carta, Pluma &pluma, double w) {
  const double y = carta.y(w);
  const VistaCarta &vista = carta.dameVista();
  if (vista.zoom == 1) {
    pluma.MoverA(0.0, y);
  } else {
    pluma.MoverA((vista.vista3 - static_cast<double>(carta.dameAncho())) * vista.zoom,
                 (y - vista.desplazamientoX) * vista.zoom);
  }
}

} // namespace

void DibujarHumedadConstante(const Psicro &carta, Pluma &pluma) {
  const Rango &rangoW = carta.dameRango(Familia::W);
  const Rango &rangoT = carta.dameRango(Familia::T);
  const double tFinal = rangoT.maximo + MAS_ALLA_DE_TMAX;
  CorrienteAire aire;
  Recorrido recorrido;
  recorrido.Acumulando(rangoW.minimo, rangoW.maximo, rangoW.paso, Recorrido::LINEA, [&](float w) {
    aire.pont_w(rangoT.maximo, w, carta.damePresion());
    const float rocio = aire.temperaturaRocio();
    carta.moverA(pluma, rocio, w);
    recorrido.Acumulando(rocio, tFinal, rangoT.paso, Recorrido::PUNTO,
                         [&](float t) { carta.lineaA(pluma, t, w); });
  });
}

void DibujarHumedadRelativa(const Psicro &carta, Pluma &pluma) {
  const Rango &rango = carta.dameRango(Familia::HR);
  const double tFinal = carta.dameRango(Familia::T).maximo + MAS_ALLA_DE_TMAX_HR;
  CorrienteAire aire;
  Recorrido recorrido;
  recorrido.Truncando(rango.minimo, rango.maximo, rango.paso, [&](float hr) {
    aire.pont_hr(0.0F, hr, carta.damePresion());
    MoverAlPrimerPunto(carta, pluma, aire.humedadAbsoluta());
    recorrido.Acumulando(PRIMERA_T, tFinal, PASO_T, Recorrido::PUNTO, [&](float t) {
      aire.pont_hr(t, hr, carta.damePresion());
      carta.lineaA(pluma, t, aire.humedadAbsoluta());
    });
  });
}

} // namespace tesmo
