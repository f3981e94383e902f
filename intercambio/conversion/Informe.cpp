#include "intercambio/conversion/Informe.h"

#include "intercambio/reloj/Soldereloj.h"
#include "intercambio/reloj/Soldereparto.h"
#include "intercambio/reloj/Textoreloj.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

namespace tesmo {

namespace {

constexpr double MEDIA_HORA = 0.5;
constexpr double VATIOS_POR_KILOVATIO = 1000.0;
constexpr double CIEN = 100.0;
/// Los días con menos energía no cuentan en el mayor desvío [Wh/m²].
constexpr double ENERGIA_DE_DIA_MINIMA = 100.0;
/// Sin tanto, la radiación fuera de sol no merece aviso [kWh/m² al año].
constexpr double NOCHE_NOTABLE = 1.0;

double Media(const SerieHoras &valores) {
  return std::accumulate(valores.begin(), valores.end(), 0.0) / static_cast<double>(valores.size());
}

CambioMagnitud Cambio(const SerieHoras &antes, const SerieHoras &despues) {
  const auto [menorAntes, mayorAntes] = std::ranges::minmax(antes);
  const auto [menorDespues, mayorDespues] = std::ranges::minmax(despues);
  return {{mayorAntes, mayorDespues}, {menorAntes, menorDespues}, {Media(antes), Media(despues)}};
}

SerieHoras Suma(const SerieHoras &a, const SerieHoras &b) {
  SerieHoras suma(HORAS);
  std::ranges::transform(a, b, suma.begin(), std::plus<>());
  return suma;
}

/// Energía de cada día [Wh/m²]; los de antes, de medianoche a medianoche solares.
SerieDias DiasAntes(const SerieHoras &valores, const EscalaTiempo &escala) {
  SerieDias dias(DIAS);
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double dia =
        std::floor(escala.ASolar(escala.Centro(i)) / HORAS_DEL_DIA) + static_cast<double>(DIAS);
    dias[static_cast<std::size_t>(dia) % DIAS] += valores[i];
  }
  return dias;
}

SerieDias DiasDespues(const SerieHoras &valores) {
  SerieDias dias(DIAS);
  for (std::size_t h = 0; h < HORAS; ++h) dias[h / HORAS_POR_DIA] += valores[h];
  return dias;
}

CambioRadiacion CambioDeRadiacion(const SerieHoras &antes, const SerieHoras &despues,
                                  const EscalaTiempo &escala) {
  const SerieDias diasAntes = DiasAntes(antes, escala);
  const SerieDias diasDespues = DiasDespues(despues);
  CambioRadiacion cambio;
  cambio.maxima = {std::ranges::max(antes), std::ranges::max(despues)};
  cambio.energia = {std::accumulate(antes.begin(), antes.end(), 0.0) / VATIOS_POR_KILOVATIO,
                    std::accumulate(despues.begin(), despues.end(), 0.0) / VATIOS_POR_KILOVATIO};
  for (std::size_t d = 0; d < DIAS; ++d) {
    if (diasAntes[d] < ENERGIA_DE_DIA_MINIMA) continue;
    cambio.mayorDesvioDiario =
        std::max(cambio.mayorDesvioDiario, std::fabs(diasDespues[d] / diasAntes[d] - 1.0));
  }
  return cambio;
}

void Contar(CuentaProcedencias &cuenta, const SerieCanonica &serie) {
  for (const Procedencia procedencia : serie.procedencias) {
    cuenta.copiadas += procedencia == Procedencia::Copiada ? 1 : 0;
    cuenta.calculadas += procedencia == Procedencia::Calculada ? 1 : 0;
    cuenta.inventadas += procedencia == Procedencia::Inventada ? 1 : 0;
  }
}

/// Raíz de la media de los cuadrados del desvío en las horas con directa normal; @p desvio da AUSENTE si
/// falta.
template <typename Desvio>
double Cierre(const SerieHoras &normal, Desvio &&desvio) {
  double suma = 0.0;
  int horas = 0;
  for (std::size_t i = 0; i < normal.size(); ++i) {
    if (!(normal[i] > 0.0)) continue;
    const double valor = desvio(i);
    if (std::isnan(valor)) continue;
    suma += valor * valor;
    ++horas;
  }
  return horas > 0 ? std::sqrt(suma / horas) : AUSENTE;
}

AntesDespues CierreDelHaz(const ConversionHecha &hecha) {
  const SerieHoras &global = hecha.anio[Campo::GlobalHorizontal].valores;
  const SerieHoras &difusa = hecha.anio[Campo::DifusaHorizontal].valores;
  const SerieHoras &normal = hecha.completo.normal.valores;
  const SerieHoras &directa = hecha.solar[SerieAlmacenada::RadiacionDirecta].valores;
  const SolDeReloj escrito(hecha.anio, hecha.escala);
  const SolDeReparto sol = SolDeReparto::Verdadero(hecha.anio.sitio.latitud);
  return {Cierre(normal,
                 [&](std::size_t i) {
                   const double coseno = std::max(0.0, escrito.Coseno(i));
                   return global[i] - difusa[i] - normal[i] * coseno;
                 }),
          Cierre(hecha.radiacion.normal, [&](std::size_t h) {
            const double coseno = std::max(0.0, sol.Coseno(static_cast<double>(h) + MEDIA_HORA));
            return directa[h] - hecha.radiacion.normal[h] * coseno;
          })};
}

void AvisarDeLaNoche(InformeConversion &informe) {
  if (informe.energiaDeNoche < NOCHE_NOTABLE) return;
  informe.avisos.push_back("El fichero da " + Cifra(informe.energiaDeNoche, "0.0") +
                           " kWh/m² al año lejos de todo sol: no pasan. Revise el reloj.");
}

/// De las nubes y las medias horarias no sale un cierre así [W/m²].
constexpr double CIERRE_NOTABLE = 50.0;

/// Parte de la radiación de fuera de la atmósfera que llega al suelo en un año: ni el cielo siempre cubierto
/// la deja en menos ni el limpio en más.
constexpr double CLARIDAD_MINIMA = 0.1;
constexpr double CLARIDAD_MAXIMA = 0.9;

/// @p extraterrestre, del año sobre la horizontal [kWh/m²].
void AvisarDeLaRadiacion(InformeConversion &informe, double extraterrestre) {
  const double claridad = informe.global.energia.antes / extraterrestre;
  if (claridad < CLARIDAD_MINIMA || claridad > CLARIDAD_MAXIMA) {
    informe.avisos.push_back("La global del año, " + Cifra(informe.global.energia.antes, "0.0") +
                             " kWh/m², es el " + Cifra(CIEN * claridad, "0.0") +
                             " % de la que llega fuera de la atmósfera, y eso no puede ser. Revise las "
                             "columnas de radiación y sus unidades.");
  }
  if (informe.cierre.antes > CIERRE_NOTABLE) {
    informe.avisos.push_back("La global no es la difusa más la directa: se apartan " +
                             Cifra(informe.cierre.antes, "0") +
                             " W/m² (media cuadrática). Revise las columnas de radiación y el reloj.");
  }
}

} // namespace

void Informar(InformeConversion &informe, const ConversionHecha &hecha) {
  const AnioCompleto &antes = hecha.completo;
  const AnioSolar &despues = hecha.solar;
  for (std::size_t s = 0; s < NUMERO_SERIES_LEIDAS; ++s) Contar(informe.cuentas[s], despues.series[s]);
  informe.temperatura = Cambio(antes.seca.valores, despues[SerieAlmacenada::TemperaturaSeca].valores);
  informe.humedadRelativa = Cambio(antes.relativa.valores, despues[SerieAlmacenada::HumedadRelativa].valores);
  informe.viento = Cambio(antes.velocidad.valores, despues[SerieAlmacenada::VelocidadViento].valores);
  const SerieHoras &directa = despues[SerieAlmacenada::RadiacionDirecta].valores;
  const SerieHoras &difusa = despues[SerieAlmacenada::RadiacionDifusa].valores;
  informe.directa = CambioDeRadiacion(antes.directa.valores, directa, hecha.escala);
  informe.difusa = CambioDeRadiacion(antes.difusa.valores, difusa, hecha.escala);
  informe.global = CambioDeRadiacion(Suma(antes.directa.valores, antes.difusa.valores), Suma(directa, difusa),
                                     hecha.escala);
  informe.energiaDeNoche = hecha.radiacion.perdida / VATIOS_POR_KILOVATIO;
  informe.cierre = CierreDelHaz(hecha);
  AvisarDeLaNoche(informe);
  AvisarDeLaRadiacion(informe,
                      std::accumulate(hecha.sol.extraterrestre.begin(), hecha.sol.extraterrestre.end(), 0.0));
}

} // namespace tesmo
