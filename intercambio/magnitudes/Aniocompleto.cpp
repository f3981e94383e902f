#include "intercambio/magnitudes/Aniocompleto.h"

#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/magnitudes/Cielo.h"
#include "intercambio/magnitudes/Humedad.h"
#include "intercambio/magnitudes/Radiacion.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

bool EsAusente(double valor) { return std::isnan(valor); }

/// Dice, si a @p serie le falta una hora, en qué línea del fichero es la primera y cuántas son.
bool Completa(const SerieCanonica &serie, const char *nombre, const AnioCanonico &anio, std::string &error) {
  const auto primera = std::ranges::find_if(serie.valores, EsAusente);
  if (primera == serie.valores.end()) return true;
  const int linea = anio.lineas[static_cast<std::size_t>(primera - serie.valores.begin())];
  const auto faltan = std::ranges::count_if(serie.valores, EsAusente);
  error = std::string("falta ") + nombre + " en " + std::to_string(faltan) + " horas" +
          (linea > 0 ? ", la primera en la línea " + std::to_string(linea) : std::string());
  return false;
}

/// Una dirección que falta es la última que se conoce: suele faltar con el aire en calma.
void CompletarDireccion(const AnioCanonico &anio, AnioCompleto &completo) {
  completo.direccion = anio[Campo::DireccionViento];
  std::vector<double> &valores = completo.direccion.valores;
  const auto alguna = std::find_if_not(valores.rbegin(), valores.rend(), EsAusente);
  double ultima = alguna == valores.rend() ? 0.0 : *alguna;
  int inventadas = 0;
  for (std::size_t i = 0; i < HORAS; ++i) {
    if (!std::isnan(valores[i])) {
      ultima = valores[i];
      continue;
    }
    completo.direccion.Poner(i, ultima, Procedencia::Inventada);
    ++inventadas;
  }
  if (inventadas == 0) return;
  completo.avisos.push_back("La dirección del viento falta en " + std::to_string(inventadas) +
                            " horas: se toma la última que se conoce.");
}

} // namespace

AnioCompleto CompletarMagnitudes(const AnioCanonico &anio, const EscalaTiempo &escala) {
  AnioCompleto completo;
  completo.seca = anio[Campo::TemperaturaSeca];
  completo.velocidad = anio[Campo::VelocidadViento];
  if (!Completa(completo.seca, "la temperatura seca", anio, completo.error)) return completo;
  if (!Completa(completo.velocidad, "la velocidad del viento", anio, completo.error)) return completo;
  CompletarHumedad(anio, completo);
  if (!Completa(completo.absoluta, "la humedad", anio, completo.error)) return completo;
  CompletarRadiacion(anio, escala, completo);
  if (!Completa(completo.directa, "la radiación (dos entre global, directa y difusa)", anio,
                completo.error) ||
      !Completa(completo.difusa, "la radiación (dos entre global, directa y difusa)", anio, completo.error)) {
    return completo;
  }
  CompletarCielo(anio, completo);
  CompletarDireccion(anio, completo);
  return completo;
}

} // namespace tesmo
