#include "meteo/Derivacionespsicrometricas.h"

#include "meteo/Derivacionesrecorrido.h"
#include "psicro/Corrienteaire.h"

namespace tesmo {

namespace {

constexpr float ANGULO_RECTO = 90.0F;

float DameReal(const CorrienteAire &aire, Magnitudaire magnitud) {
  return static_cast<float>(aire.dame(magnitud));
}

} // namespace

float CalorEspecifico(float entalpia, float t) {
  return t == 0.0F ? 0.0F : static_cast<float>(static_cast<double>(entalpia) / t);
}

void DerivarPsicrometricas(const SeriesLeidas &leidas, SeriesDerivadas &derivadas, TramoHoras tramo,
                           float presion) {
  derivadas.Reservar(HORAS_DEL_ANIO);
  const SerieHoraria &seca = leidas[SerieAlmacenada::TemperaturaSeca];
  const SerieHoraria &humedad = leidas[SerieAlmacenada::HumedadAbsoluta];
  const SerieHoraria &cenit = leidas[SerieAlmacenada::Cenit];
  CorrienteAire aire;
  RecorrerHoras(tramo, {}, seca.size(), [&](std::size_t i, const FechaHora &) {
    aire.pont_w(seca[i], humedad[i], presion);
    derivadas[SerieDerivada::Rocio][i] = DameReal(aire, Magnitudaire::TemperaturaRocio);
    derivadas[SerieDerivada::Humeda][i] = DameReal(aire, Magnitudaire::TemperaturaHumeda);
    const float entalpia = DameReal(aire, Magnitudaire::Entalpia);
    derivadas[SerieDerivada::Entalpia][i] = entalpia;
    derivadas[SerieDerivada::VolumenEspecifico][i] =
        static_cast<float>(1.0L / aire.dame(Magnitudaire::Densidad));
    derivadas[SerieDerivada::CalorEspecifico][i] = CalorEspecifico(entalpia, seca[i]);
    derivadas[SerieDerivada::Altura][i] = ANGULO_RECTO - cenit[i];
  });
}

} // namespace tesmo
