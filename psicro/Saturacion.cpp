#include "psicro/Saturacion.h"

#include "psicro/Buscaraiz.h"
#include "psicro/Constantes.h"

#include <cmath>

namespace tesmo {

namespace {

// Coeficientes de Hyland y Wexler, en la precisión simple con que los usa el modelo.
constexpr float C1 = -5674.5359F;
constexpr float C2 = 6.3925247F;
constexpr float C3 = -0.009677843F;
constexpr float C4 = 6.2215701e-7F;
constexpr float C5 = 2.0747825e-9F;
constexpr float C6 = -9.484024e-13F;
constexpr float C7 = 4.1635019F;
constexpr float C8 = -5800.2206F;
constexpr float C9 = 1.3914993F;
constexpr float C10 = -0.048640239F;
constexpr float C11 = 4.1764768e-5F;
constexpr float C12 = -1.4452093e-8F;
constexpr float C13 = 6.5459673F;

double LogaritmoSobreAgua(double t) {
  return C8 / t + C9 + C10 * t + C11 * (t * t) + C12 * (t * t * t) + C13 * std::log(t);
}

double LogaritmoSobreHielo(double t) {
  return C1 / t + C2 + C3 * t + C4 * (t * t) + C5 * std::pow(t, 3.0) + C6 * std::pow(t, 4.0) +
         C7 * std::log(t);
}

constexpr double TOLERANCIA_SATURACION = 1e-5;
constexpr float X_INICIAL_SATURACION = 100.0F;
constexpr float TOLERANCIA_BULBO_HUMEDO = 0.001F;
/// La búsqueda del bulbo húmedo se queda así de lejos de la ebullición [K].
constexpr double MARGEN_EBULLICION = 0.1;
/// Distancia a la ebullición [K] desde la que se la hace retroceder.
constexpr double BORDE_EBULLICION = 0.09;

float TemperaturaEbullicion() {
  static const float ebullicion = tSatVap(aire::PRESION_NORMAL);
  return ebullicion;
}

} // namespace

float presionSaturacion(float t) {
  const float absoluta = t + aire::T0_FLOAT;
  // Se compara con la misma precisión simple de la suma: 0 °C es agua líquida.
  const double logaritmo =
      absoluta >= aire::T0_FLOAT ? LogaritmoSobreAgua(absoluta) : LogaritmoSobreHielo(absoluta);
  return static_cast<float>(std::exp(logaritmo));
}

double humedadSaturacion(float t, float p) {
  const double ps = presionSaturacion(t);
  return aire::EPSILON * ps / (p - ps);
}

float tSatVap(float p) {
  return BuscarRaiz(X_INICIAL_SATURACION, TOLERANCIA_SATURACION, ITERACIONES_AIRE,
                    "CorrienteAire::tSatVap(float p_)", [p](float x) { return p - presionSaturacion(x); });
}

double humedadDeBulboHumedo(float t, float th, float p) {
  const double x = th;
  const double saturacion = humedadSaturacion(th, p);
  return ((aire::H0 - aire::PENDIENTE_BULBO_HUMEDO * x) * saturacion - (t - x) * aire::CPA) /
         (static_cast<double>(aire::CPV) * t + aire::H0 - aire::CW * x);
}

float tBulboHumedo(float t, float w) {
  const double ebullicion = TemperaturaEbullicion();
  float x = ebullicion - MARGEN_EBULLICION <= t ? static_cast<float>(ebullicion - MARGEN_EBULLICION) : t;
  if (x < 0.0F) x = 0.0F;
  return BuscarRaiz(x, TOLERANCIA_BULBO_HUMEDO, ITERACIONES_AIRE,
                    "CorrienteAire::tBulboHumedo(float t_,float w_)", [t, w, ebullicion](float &estimacion) {
                      if (ebullicion - BORDE_EBULLICION <= estimacion)
                        estimacion = static_cast<float>(ebullicion - MARGEN_EBULLICION);
                      return static_cast<float>(w -
                                                humedadDeBulboHumedo(t, estimacion, aire::PRESION_NORMAL));
                    });
}

} // namespace tesmo
