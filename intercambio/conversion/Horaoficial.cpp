#include "intercambio/conversion/Aniosolar.h"

#include "core/Unidades.h"
#include "intercambio/magnitudes/Cielo.h"
#include "intercambio/magnitudes/Humedad.h"
#include "intercambio/reloj/Interpolacion.h"
#include "intercambio/reloj/Repartoradiacion.h"
#include "psicro/Atmosfera.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr double MEDIA_HORA = 0.5;
/// Con menos sol que éste en la hora, la directa normal no se puede deducir [h].
constexpr double SOL_MINIMO = 0.02;
/// La mayor parte de la extraterrestre que llega como directa normal: la de un cielo de alta montaña.
constexpr double COCIENTE_MAXIMO = 0.85;

void PonerSerie(SerieCanonica &serie, std::size_t i, double valor) {
  serie.Poner(i, valor, Procedencia::Calculada);
}

/// Directa normal [W/m²] de la hora centrada en @p centro solar cuya directa horizontal es @p directa: entre
/// el coseno de su centro si el sol luce toda la hora y, si sale o se pone en ella, entre el coseno medio del
/// rato que luce y por la parte que es ese rato.
double NormalDeHorizontal(const SolDeReparto &sol, double centro, double directa) {
  const double desde = centro - MEDIA_HORA;
  const double hasta = centro + MEDIA_HORA;
  const double normal = sol.Normal(centro);
  const double luz = sol.HorasDeSol(desde, hasta);
  if (directa <= 0.0 || luz < SOL_MINIMO) return 0.0;
  const double coseno = luz < 1.0 ? sol.Energia(desde, hasta) / (normal * luz * luz) : sol.Coseno(centro);
  return std::min(directa / coseno, COCIENTE_MAXIMO * normal);
}

void PonerRadiacion(const AnioSolar &solar, const EscalaTiempo &escala, AnioCanonico &oficial) {
  const SolDeReparto sol = SolDeReparto::Verdadero(oficial.sitio.latitud);
  const RepartoRadiacion reparto(CortesDelAnio(escala), sol);
  double perdida = 0.0;
  const SerieHoras directa = reparto.Repartir(solar[SerieAlmacenada::RadiacionDirecta].valores, perdida);
  const SerieHoras difusa = reparto.Repartir(solar[SerieAlmacenada::RadiacionDifusa].valores, perdida);
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double centro = escala.ASolar(escala.Centro(i));
    PonerSerie(oficial[Campo::DirectaHorizontal], i, directa[i]);
    PonerSerie(oficial[Campo::DifusaHorizontal], i, difusa[i]);
    PonerSerie(oficial[Campo::GlobalHorizontal], i, directa[i] + difusa[i]);
    PonerSerie(oficial[Campo::DirectaNormal], i, NormalDeHorizontal(sol, centro, directa[i]));
  }
}

void PonerAire(const AnioSolar &solar, const std::vector<Entre> &sitios, AnioCanonico &oficial) {
  oficial[Campo::TemperaturaSeca] = Interpolar(solar[SerieAlmacenada::TemperaturaSeca], sitios);
  oficial[Campo::TemperaturaCielo] = Interpolar(solar[SerieAlmacenada::TemperaturaCielo], sitios);
  oficial[Campo::Presion] = Interpolar(solar.presion, sitios);
  oficial[Campo::VelocidadViento] = Interpolar(solar[SerieAlmacenada::VelocidadViento], sitios);
  oficial[Campo::DireccionViento] = InterpolarDireccion(solar[SerieAlmacenada::DireccionViento],
                                                        solar[SerieAlmacenada::VelocidadViento], sitios);
  const SerieCanonica absoluta = Interpolar(solar[SerieAlmacenada::HumedadAbsoluta], sitios);
  CorrienteAire aire;
  for (std::size_t i = 0; i < HORAS; ++i) {
    const HumedadDeHora humedad =
        HumedadDeAbsoluta(aire, oficial[Campo::TemperaturaSeca].valores[i], absoluta.valores[i],
                          oficial[Campo::Presion].valores[i], true);
    PonerSerie(oficial[Campo::HumedadAbsoluta], i, humedad.absoluta);
    PonerSerie(oficial[Campo::HumedadRelativa], i, humedad.relativa);
    PonerSerie(oficial[Campo::TemperaturaRocio], i, humedad.rocio);
    PonerSerie(oficial[Campo::InfrarrojaHorizontal], i,
               InfrarrojaDeTemperatura(oficial[Campo::TemperaturaCielo].valores[i]));
  }
}

/// Los ángulos del sol verdadero en el centro de cada hora; de noche, acimut 0 y cenit 90.
void PonerSol(const EscalaTiempo &escala, double latitud, AnioCanonico &oficial) {
  const SolDeReparto sol = SolDeReparto::Verdadero(latitud);
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double centro = escala.ASolar(escala.Centro(i));
    const double coseno = sol.Coseno(centro);
    const double h = (centro - MEDIODIA) * GIRO_POR_HORA;
    const double delta = sol.Declinacion(centro);
    const double oeste = std::cos(delta) * std::sin(h);
    const double sur = std::sin(latitud * GRADO) * std::cos(delta) * std::cos(h) -
                       std::cos(latitud * GRADO) * std::sin(delta);
    PonerSerie(oficial[Campo::CenitSolar], i, coseno > 0.0 ? std::acos(std::min(coseno, 1.0)) / GRADO : 90.0);
    PonerSerie(oficial[Campo::AcimutSolar], i, coseno > 0.0 ? std::atan2(oeste, sur) / GRADO : 0.0);
  }
}

} // namespace

AnioSolar AnioSolarDeSeries(const SitioClima &sitio, double husoHoras, const SeriesLeidas &series) {
  AnioSolar solar;
  solar.sitio = sitio;
  solar.husoHoras = husoHoras;
  const double presion = PresionEnAltitud(std::isfinite(sitio.altitud) ? sitio.altitud : 0.0);
  for (std::size_t h = 0; h < HORAS; ++h) {
    for (std::size_t s = 0; s < NUMERO_SERIES_LEIDAS; ++s) {
      const auto serie = static_cast<SerieAlmacenada>(s);
      solar[serie].Poner(h, static_cast<double>(series[serie][h]), Procedencia::Copiada);
    }
    solar.presion.Poner(h, presion, Procedencia::Inventada);
  }
  return solar;
}

AnioCanonico AHoraOficial(const AnioSolar &anio, double husoHoras, double desfaseMin) {
  AnioCanonico oficial;
  oficial.sitio = anio.sitio;
  if (!std::isfinite(oficial.sitio.latitud)) oficial.sitio.latitud = 0.0;
  if (!std::isfinite(oficial.sitio.longitud)) oficial.sitio.longitud = 0.0;
  oficial.reloj = {TiempoEtiqueta::OficialEstandar, husoHoras, desfaseMin};
  const EscalaTiempo escala(oficial.reloj, oficial.sitio.longitud);
  PonerAire(anio, RegistrosEntreCentrosSolares(escala), oficial);
  PonerRadiacion(anio, escala, oficial);
  PonerSol(escala, oficial.sitio.latitud, oficial);
  return oficial;
}

} // namespace tesmo
