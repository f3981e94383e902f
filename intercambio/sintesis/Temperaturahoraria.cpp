#include "intercambio/sintesis/Temperaturahoraria.h"

#include "core/Unidades.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tesmo {

namespace {

/// La máxima va a esta distancia de la mínima y de medianoche [h], aunque las normales digan otra cosa.
constexpr double SEPARACION_MINIMA = 3.0;
/// Puntos de paso de un día: mínima, máxima y la medianoche que lo cierra.
constexpr std::size_t PUNTOS_POR_DIA = 3;

/// Un punto de la curva: instante [h desde el comienzo del año], temperatura [°C] y pendiente [K/h].
struct Punto {
  double instante;
  double temperatura;
  double pendiente;
};

double CentroMasCercano(double hora) { return std::floor(hora) + 0.5; }

double HoraDeMinima(const SolDelAnio &sol, std::size_t dia) { return CentroMasCercano(sol.salida[dia]); }

PerfilMensual HoraDeMaxima(const NormalesLocalidad &localidad) {
  ValoresPorMes horas{};
  for (std::size_t mes = 0; mes < MESES; ++mes) {
    const std::size_t mitad = PrimerDiaDe(mes) + DiasDe(mes) / 2;
    horas[mes] = HoraSolarDeUtc(localidad.meses[mes].horaTmax, localidad.longitud, mitad);
  }
  return PerfilMensual(horas);
}

/// Temperatura a medianoche entre @p dia y el siguiente.
double Medianoche(const TemperaturasDiarias &dias, std::size_t dia, double horaMaxima, double horaMinima) {
  const std::size_t siguiente = (dia + 1) % DIAS;
  const double noche = 24.0 - horaMaxima + horaMinima;
  const double parte = (1.0 + std::cos(std::numbers::pi * (24.0 - horaMaxima) / noche)) / 2.0;
  const double natural = dias.minimas[siguiente] + (dias.maximas[dia] - dias.minimas[siguiente]) * parte;
  const double suelo = std::max(dias.minimas[dia], dias.minimas[siguiente]);
  const double techo = std::min(dias.maximas[dia], dias.maximas[siguiente]);
  return suelo < techo ? std::clamp(natural, suelo, techo) : (suelo + techo) / 2.0;
}

std::vector<Punto> PuntosDePaso(const TemperaturasDiarias &dias, const NormalesLocalidad &localidad,
                                const SolDelAnio &sol) {
  const PerfilMensual horaMaxima = HoraDeMaxima(localidad);
  std::vector<Punto> puntos;
  puntos.reserve(DIAS * PUNTOS_POR_DIA);
  for (std::size_t dia = 0; dia < DIAS; ++dia) {
    const double comienzo = static_cast<double>(dia * HORAS_POR_DIA);
    const double minima = HoraDeMinima(sol, dia);
    const double maxima = CentroMasCercano(
        std::clamp(horaMaxima.En(dia), minima + SEPARACION_MINIMA, 24.0 - SEPARACION_MINIMA));
    puntos.push_back({comienzo + minima, dias.minimas[dia], 0.0});
    puntos.push_back({comienzo + maxima, dias.maximas[dia], 0.0});
    puntos.push_back(
        {comienzo + 24.0, Medianoche(dias, dia, maxima, HoraDeMinima(sol, (dia + 1) % DIAS)), 0.0});
  }
  return puntos;
}

double Inclinacion(const Punto &desde, const Punto &hasta) {
  return (hasta.temperatura - desde.temperatura) / (hasta.instante - desde.instante);
}

/// La pendiente es nula en los extremos; a medianoche, la media armónica que no deja pasarse a la cúbica.
void PonerPendientes(std::vector<Punto> &puntos) {
  for (std::size_t i = PUNTOS_POR_DIA - 1; i < puntos.size(); i += PUNTOS_POR_DIA) {
    Punto siguiente = puntos[(i + 1) % puntos.size()];
    if (i + 1 == puntos.size()) siguiente.instante += static_cast<double>(HORAS);
    const double antes = Inclinacion(puntos[i - 1], puntos[i]);
    const double despues = Inclinacion(puntos[i], siguiente);
    if (antes * despues <= 0.0) continue;
    const double ancho1 = puntos[i].instante - puntos[i - 1].instante;
    const double ancho2 = siguiente.instante - puntos[i].instante;
    const double peso = (ancho1 + 2.0 * ancho2) / (3.0 * (ancho1 + ancho2));
    puntos[i].pendiente = antes * despues / (peso * despues + (1.0 - peso) * antes);
  }
}

double Hermite(const Punto &a, const Punto &b, double instante) {
  const double ancho = b.instante - a.instante;
  const double s = (instante - a.instante) / ancho;
  const double cubo = s * s * (3.0 - 2.0 * s);
  return a.temperatura + (b.temperatura - a.temperatura) * cubo +
         ancho * s * (1.0 - s) * (a.pendiente * (1.0 - s) - b.pendiente * s);
}

} // namespace

double HoraSolarDeUtc(double horaUtc, double longitud, std::size_t dia) {
  return horaUtc + longitud / GRADOS_POR_HORA + EcuacionDelTiempoEnHoras(static_cast<double>(dia));
}

SerieHoras GenerarTemperaturasHorarias(const TemperaturasDiarias &dias, const NormalesLocalidad &localidad,
                                       const SolDelAnio &sol) {
  constexpr double CENTESIMAS = 100.0;
  std::vector<Punto> puntos = PuntosDePaso(dias, localidad, sol);
  PonerPendientes(puntos);
  // La medianoche del 31 de diciembre abre también el año.
  Punto apertura = puntos.back();
  apertura.instante = 0.0;
  puntos.insert(puntos.begin(), apertura);
  SerieHoras temperaturas(HORAS);
  std::size_t tramo = 0;
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double instante = CentroDeHora(i);
    while (puntos[tramo + 1].instante < instante) ++tramo;
    temperaturas[i] =
        std::round(Hermite(puntos[tramo], puntos[tramo + 1], instante) * CENTESIMAS) / CENTESIMAS;
  }
  return temperaturas;
}

} // namespace tesmo
