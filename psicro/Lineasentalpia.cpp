#include "psicro/Buscaraiz.h"
#include "psicro/Corrienteaire.h"
#include "psicro/Familiascarta.h"
#include "psicro/Recorrido.h"

namespace tesmo {

namespace {

constexpr float SATURADO = 100.0F; // [%]

struct Punto {
  float t; // [°C]
  float w; // [kg/kg]
};

/// Líneas de entalpía de un dibujo. La temperatura de arranque y el borde del que salen pasan de cada línea a
/// la siguiente.
class LineasEntalpia {
public:
  explicit LineasEntalpia(const Psicro &carta)
      : carta_(carta), presion_(carta.damePresion()), tMaxima_(carta.dameRango(Familia::T).maximo) {}

  void Dibujar(float h, Pluma &pluma) {
    const Punto inicio = Inicio(h);
    if (!(inicio.w <= carta_.dameRango(Familia::W).maximo)) return;
    const float ts = CorteConLaSaturacion(h);
    if (!(ts > carta_.dameRango(Familia::T).minimo)) return;
    aire_.pont_hr(ts, SATURADO, presion_);
    carta_.moverA(pluma, inicio.t, inicio.w);
    carta_.lineaA(pluma, ts, aire_.humedadAbsoluta());
  }

private:
  Punto Inicio(float h) {
    if (desdeAbajo_) t0_ = CorteConAireSeco(h);
    if (desdeAbajo_ && !(t0_ > tMaxima_)) return {t0_, 0.0F};
    desdeAbajo_ = false;
    aire_.pont_h(tMaxima_, h, presion_);
    return {tMaxima_, aire_.humedadAbsoluta()};
  }

  float CorteConAireSeco(float h) {
    return BuscarRaiz(t0_, TOLERANCIA_CARTA, ITERACIONES_CARTA, "No converge intersección H con W=0",
                      [&](float t) {
                        aire_.pont_w(t, 0.0F, presion_);
                        return static_cast<float>(h - aire_.entalpia());
                      });
  }

  float CorteConLaSaturacion(float h) {
    return BuscarRaiz(0.0F, TOLERANCIA_CARTA, ITERACIONES_CARTA, "No converge intersección H con HR=100%",
                      [&](float t) {
                        aire_.pont_hr(t, SATURADO, presion_);
                        return static_cast<float>(h - aire_.entalpia());
                      });
  }

  const Psicro &carta_;
  const float presion_;
  const float tMaxima_;
  CorrienteAire aire_;
  bool desdeAbajo_ = true;
  float t0_ = 0.0F;
};

} // namespace

void DibujarEntalpia(const Psicro &carta, Pluma &pluma) {
  const Rango &rango = carta.dameRango(Familia::H);
  LineasEntalpia lineas(carta);
  Recorrido recorrido;
  recorrido.Truncando(rango.minimo, rango.maximo, rango.paso, [&](float h) { lineas.Dibujar(h, pluma); });
}

} // namespace tesmo
