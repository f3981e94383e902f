#include "intercambio/reloj/Muestrasreloj.h"

#include "core/Unidades.h"
#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/fisica/Solverdadero.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr double GRADOS_POR_MINUTO = 0.25;
/// Horas que dicen dónde está el sol: haz fuerte y no rasante [W/m²].
constexpr double DIRECTA_NORMAL_MINIMA = 150.0;
constexpr double HAZ_HORIZONTAL_MINIMO = 30.0;
/// Más abajo, la hora tiene noche y su cenit escrito no es el de su centro [°].
constexpr double CENIT_MAXIMO = 85.0;
constexpr double PARTE_BUENA = 0.8;

/// La geometría de la etiqueta del registro @p i; el dato lo pone quien llama.
MuestraReloj Geometria(const AnioCanonico &anio, const RelojFichero &reloj, std::size_t i) {
  const double etiqueta = static_cast<double>(i) + 1.0;
  const bool solar = reloj.tiempo == TiempoEtiqueta::SolarVerdadero;
  const double utc = etiqueta - (reloj.tiempo == TiempoEtiqueta::OficialEstandar ? reloj.husoHoras : 0.0);
  const SolDeInstante sol = SolVerdadero(anio.anios[i], utc / HORAS_DEL_DIA);
  const double hora =
      solar ? etiqueta : utc + anio.sitio.longitud / GRADOS_POR_HORA + sol.ecuacionMinutos / MINUTOS_POR_HORA;
  const double h = (hora - MEDIODIA) * GRADOS_POR_HORA * GRADO;
  const double latitud = anio.sitio.latitud * GRADO;
  MuestraReloj muestra;
  muestra.a = std::sin(latitud) * std::sin(sol.declinacion);
  muestra.b = std::cos(latitud) * std::cos(sol.declinacion);
  muestra.cosH = std::cos(h);
  muestra.senH = std::sin(h);
  muestra.mes = MesDe(i / HORAS_POR_DIA);
  return muestra;
}

/// Las muestras de las horas en que @p dato no da AUSENTE.
template <typename Dato>
std::vector<MuestraReloj> Muestras(const AnioCanonico &anio, const RelojFichero &reloj, Dato &&dato) {
  std::vector<MuestraReloj> muestras;
  if (!SitioBasta(anio, reloj.tiempo)) return muestras;
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double valor = dato(i);
    if (std::isnan(valor)) continue;
    muestras.push_back(Geometria(anio, reloj, i));
    muestras.back().dato = valor;
  }
  return muestras;
}

/// Los desvíos de la parte buena, en valor absoluto y sin orden.
std::vector<double> DesviosBuenos(std::span<const MuestraReloj> muestras, double minutos) {
  const double giro = minutos * GRADOS_POR_MINUTO * GRADO;
  const double cosGiro = std::cos(giro);
  const double senGiro = std::sin(giro);
  std::vector<double> desvios(muestras.size());
  std::ranges::transform(muestras, desvios.begin(), [=](const MuestraReloj &m) {
    return std::fabs(m.dato - m.a - m.b * (m.cosH * cosGiro - m.senH * senGiro));
  });
  const auto buenos =
      static_cast<std::ptrdiff_t>(std::ceil(PARTE_BUENA * static_cast<double>(desvios.size())));
  std::nth_element(desvios.begin(), desvios.begin() + std::max<std::ptrdiff_t>(buenos - 1, 0), desvios.end());
  desvios.resize(static_cast<std::size_t>(buenos));
  return desvios;
}

/// Media sobre la parte buena de @p potencia de cada desvío.
template <typename Potencia>
double MediaDeBuenos(std::span<const MuestraReloj> muestras, double minutos, Potencia &&potencia) {
  if (muestras.empty()) return AUSENTE;
  const std::vector<double> desvios = DesviosBuenos(muestras, minutos);
  double suma = 0.0;
  for (const double desvio : desvios) suma += potencia(desvio);
  return suma / static_cast<double>(desvios.size());
}

/// Falso si de la hora @p i se conoce alguna radiación solar y ninguna es positiva.
bool PuedeHaberSol(const AnioCanonico &anio, std::size_t i) {
  bool conocida = false;
  for (const Campo campo : {Campo::GlobalHorizontal, Campo::DirectaHorizontal, Campo::DifusaHorizontal}) {
    const double valor = anio[campo].valores[i];
    if (valor > 0.0) return true;
    conocida = conocida || !std::isnan(valor);
  }
  return !conocida;
}

} // namespace

bool SitioBasta(const AnioCanonico &anio, TiempoEtiqueta tiempo) {
  return std::isfinite(anio.sitio.latitud) &&
         (tiempo == TiempoEtiqueta::SolarVerdadero || std::isfinite(anio.sitio.longitud));
}

std::vector<MuestraReloj> MuestrasDeHaz(const AnioCanonico &anio, const RelojFichero &reloj) {
  const std::vector<double> &normal = anio[Campo::DirectaNormal].valores;
  const std::vector<double> &global = anio[Campo::GlobalHorizontal].valores;
  const std::vector<double> &difusa = anio[Campo::DifusaHorizontal].valores;
  return Muestras(anio, reloj, [&](std::size_t i) {
    const double haz = global[i] - difusa[i];
    return normal[i] > DIRECTA_NORMAL_MINIMA && haz > HAZ_HORIZONTAL_MINIMO ? haz / normal[i] : AUSENTE;
  });
}

std::vector<MuestraReloj> MuestrasDeCenit(const AnioCanonico &anio, const RelojFichero &reloj) {
  const std::vector<double> &cenit = anio[Campo::CenitSolar].valores;
  return Muestras(anio, reloj, [&](std::size_t i) {
    // Hay quien escribe un cenit 0 de noche.
    const bool vale = cenit[i] > 0.0 && cenit[i] < CENIT_MAXIMO && PuedeHaberSol(anio, i);
    return vale ? std::cos(cenit[i] * GRADO) : AUSENTE;
  });
}

double CosteDeDesfase(std::span<const MuestraReloj> muestras, double minutos) {
  return MediaDeBuenos(muestras, minutos, [](double desvio) { return desvio; });
}

double ResiduoDeDesfase(std::span<const MuestraReloj> muestras, double minutos) {
  return std::sqrt(MediaDeBuenos(muestras, minutos, [](double desvio) { return desvio * desvio; }));
}

double BuscarDesfase(std::span<const MuestraReloj> muestras, double centro, double semiancho) {
  double ancho = semiancho;
  for (const double paso : {5.0, 1.0, 0.1}) {
    double mejor = centro;
    double menor = CosteDeDesfase(muestras, centro);
    const int pasos = static_cast<int>(std::lround(ancho / paso));
    for (int k = -pasos; k <= pasos; ++k) {
      const double minutos = centro + k * paso;
      const double coste = CosteDeDesfase(muestras, minutos);
      if (coste < menor) {
        menor = coste;
        mejor = minutos;
      }
    }
    centro = mejor;
    ancho = paso;
  }
  return centro;
}

} // namespace tesmo
