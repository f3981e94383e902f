#include "intercambio/conversion/Aniosolar.h"

#include "core/Unidades.h"
#include "intercambio/conversion/Informe.h"
#include "intercambio/conversion/Radiacionsolar.h"
#include "intercambio/magnitudes/Aniocompleto.h"
#include "intercambio/magnitudes/Humedad.h"
#include "intercambio/reloj/Interpolacion.h"
#include "solar/Geometria.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

/// El desfase de un fichero que ya está en la hora de los motores [min].
constexpr double DESFASE_DE_LOS_MOTORES = -30.0;

/// Qué le falta al año, antes de nada, para situar el sol.
std::string FaltaDeSitio(const AnioCanonico &anio, const RelojFichero &reloj) {
  const double latitud = anio.sitio.latitud;
  const double longitud = anio.sitio.longitud;
  const bool civil = reloj.tiempo != TiempoEtiqueta::SolarVerdadero;
  if (!(std::fabs(latitud) <= 90.0)) return "no se conoce la latitud del sitio, o no está entre −90 y 90";
  if (civil && !(std::fabs(longitud) <= 180.0))
    return "no se conoce la longitud del sitio, o no está entre −180 y 180";
  if (!std::isfinite(reloj.desfaseMin) || !std::isfinite(reloj.husoHoras)) return "el reloj no es un número";
  return {};
}

void PonerCalculada(SerieCanonica &serie, const SerieHoras &valores) {
  for (std::size_t h = 0; h < HORAS; ++h) serie.Poner(h, valores[h], Procedencia::Calculada);
}

/// La radiación repartida; inventada en las horas que salen de un registro que lo es.
void PonerRadiacion(SerieCanonica &serie, const SerieHoras &valores, const SerieCanonica &origen,
                    const std::vector<Corte> &cortes) {
  PonerCalculada(serie, valores);
  for (const Corte &corte : cortes) {
    if (origen.procedencias[corte.registro] == Procedencia::Inventada) {
      serie.procedencias[corte.horaSolar] = Procedencia::Inventada;
    }
  }
}

/// La absoluta interpolada, sin pasar de la saturación, y la relativa que le toca.
void PonerHumedad(AnioSolar &anio, const SerieCanonica &absoluta) {
  CorrienteAire aire;
  for (std::size_t h = 0; h < HORAS; ++h) {
    const HumedadDeHora humedad = HumedadDeAbsoluta(aire, anio[SerieAlmacenada::TemperaturaSeca].valores[h],
                                                    absoluta.valores[h], anio.presion.valores[h], false);
    const Procedencia procedencia = absoluta.procedencias[h];
    anio[SerieAlmacenada::HumedadAbsoluta].Poner(h, humedad.absoluta, procedencia);
    anio[SerieAlmacenada::HumedadRelativa].Poner(
        h, humedad.relativa, procedencia == Procedencia::Inventada ? procedencia : Procedencia::Calculada);
  }
}

void PonerSol(AnioSolar &anio, const SolDelAnio &sol) {
  PonerCalculada(anio[SerieAlmacenada::Acimut], sol.acimut);
  PonerCalculada(anio[SerieAlmacenada::Cenit], sol.cenit);
}

/// El sol de los motores en el centro de cada hora. El del cenit, que la posición da por noche, es aquí de
/// día: en el ecuador serían días enteros y no habría dónde poner su radiación.
SolDelAnio SolDeLosMotores(double latitud) {
  SolDelAnio sol = CalcularSolDelAnio(latitud);
  const auto f = static_cast<float>(latitud);
  for (std::size_t d = 0; d < DIAS; ++d) {
    const std::size_t mes = MesDe(d);
    const long double declinacion =
        DeclinacionSolar(static_cast<int>(mes) + 1, static_cast<int>(d - PrimerDiaDe(mes)) + 1);
    const SalidaPuesta luz = HorasDeSol(f, declinacion);
    for (std::size_t h = 0; h < HORAS_POR_DIA; ++h) {
      const std::size_t i = d * HORAS_POR_DIA + h;
      const auto hora = static_cast<float>(CentroDeHora(h));
      if (sol.diurna[i] || !EsHoraDeDia(luz, hora)) continue;
      const VectorSolar vector = VectorDeDia(f, declinacion, hora);
      sol.diurna[i] = true;
      sol.cenit[i] = std::acos(std::clamp(static_cast<double>(vector.z), 0.0, 1.0)) / GRADO;
      sol.acimut[i] = std::atan2(static_cast<double>(vector.w), static_cast<double>(vector.s)) / GRADO;
    }
  }
  return sol;
}

/// Un año que ya está en la hora de los motores.
AnioSolar Pasar(const AnioCanonico &anio, const AnioCompleto &completo, const SolDelAnio &sol) {
  AnioSolar solar;
  solar[SerieAlmacenada::TemperaturaSeca] = completo.seca;
  solar[SerieAlmacenada::TemperaturaCielo] = completo.cielo;
  solar[SerieAlmacenada::RadiacionDirecta] = completo.directa;
  solar[SerieAlmacenada::RadiacionDifusa] = completo.difusa;
  solar[SerieAlmacenada::HumedadAbsoluta] = completo.absoluta;
  solar[SerieAlmacenada::HumedadRelativa] = completo.relativa;
  solar[SerieAlmacenada::VelocidadViento] = completo.velocidad;
  solar[SerieAlmacenada::DireccionViento] = completo.direccion;
  solar.presion = completo.presion;
  PonerSol(solar, sol);
  for (std::size_t h = 0; h < HORAS; ++h) {
    const double acimut = anio[Campo::AcimutSolar].valores[h];
    const double cenit = anio[Campo::CenitSolar].valores[h];
    if (std::isnan(acimut) || std::isnan(cenit)) continue;
    solar[SerieAlmacenada::Acimut].Poner(h, acimut, anio[Campo::AcimutSolar].procedencias[h]);
    solar[SerieAlmacenada::Cenit].Poner(h, cenit, anio[Campo::CenitSolar].procedencias[h]);
  }
  return solar;
}

AnioSolar Mover(const AnioCompleto &completo, const EscalaTiempo &escala, const SolDelAnio &sol,
                const std::vector<Corte> &cortes, const RadiacionEnHoraSolar &radiacion) {
  const std::vector<Entre> sitios = CentrosSolaresEntreRegistros(escala);
  AnioSolar solar;
  solar[SerieAlmacenada::TemperaturaSeca] = Interpolar(completo.seca, sitios);
  solar[SerieAlmacenada::TemperaturaCielo] = Interpolar(completo.cielo, sitios);
  PonerRadiacion(solar[SerieAlmacenada::RadiacionDirecta], radiacion.directa, completo.directa, cortes);
  PonerRadiacion(solar[SerieAlmacenada::RadiacionDifusa], radiacion.difusa, completo.difusa, cortes);
  solar.presion = Interpolar(completo.presion, sitios);
  PonerHumedad(solar, Interpolar(completo.absoluta, sitios));
  solar[SerieAlmacenada::VelocidadViento] = Interpolar(completo.velocidad, sitios);
  solar[SerieAlmacenada::DireccionViento] =
      InterpolarDireccion(completo.direccion, completo.velocidad, sitios);
  PonerSol(solar, sol);
  return solar;
}

bool YaEstaEnHora(const RelojFichero &reloj) {
  return reloj.tiempo == TiempoEtiqueta::SolarVerdadero && reloj.desfaseMin == DESFASE_DE_LOS_MOTORES;
}

} // namespace

ResultadoConversion LlevarAHoraSolar(const AnioCanonico &anio, const RelojFichero &reloj) {
  ResultadoConversion resultado;
  InformeConversion &informe = resultado.informe;
  informe.reloj = reloj;
  resultado.error = FaltaDeSitio(anio, reloj);
  if (!resultado.error.empty()) return resultado;
  const EscalaTiempo escala(reloj, anio.sitio.longitud);
  const AnioCompleto completo = CompletarMagnitudes(anio, escala);
  resultado.error = completo.error;
  if (!resultado.error.empty()) return resultado;

  const SolDelAnio sol = SolDeLosMotores(anio.sitio.latitud);
  informe.intacto = YaEstaEnHora(reloj);
  informe.avisos = completo.avisos;
  RadiacionEnHoraSolar radiacion;
  if (informe.intacto) {
    resultado.anio = Pasar(anio, completo, sol);
    radiacion.normal = completo.normal.valores;
  } else {
    const std::vector<Corte> cortes = CortesDelAnio(escala);
    radiacion = RadiacionAHoraSolar(completo, cortes, anio.sitio.latitud, sol);
    resultado.anio = Mover(completo, escala, sol, cortes, radiacion);
  }
  resultado.anio->sitio = anio.sitio;
  resultado.anio->husoHoras = reloj.husoHoras;
  Informar(informe, {anio, completo, escala, *resultado.anio, radiacion, sol});
  return resultado;
}

} // namespace tesmo
