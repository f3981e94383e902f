#include "extremos/Humedad.h"

#include <algorithm>
#include <cmath>

namespace tesmo::extremos {

namespace {

constexpr long double ATMOSFERA = 29.921L; ///< [pulgadas de mercurio]
constexpr long double PULGADAS_POR_METRO = 0.00322L;
constexpr long double RAZON_DE_MASAS = 0.62198L;      ///< agua / aire seco
constexpr long double RELATIVA_CASI_SATURADA = 90.0L; ///< [%]
constexpr long double MARGEN_DE_ROCIO = 1.0L;         ///< [°C]
constexpr long double GRAMOS = 1000.0L;
constexpr long double CIEN = 100.0L;
constexpr float MINIMA_DE_BUSQUEDA = -1000.0F;
constexpr long double PUNTO_TRIPLE = 273.16L;      ///< [K]
constexpr long double PRESION_TRIPLE = 0.0060273L; ///< [atm]

long double Fahrenheit(long double t) { return t * 1.8L + 32.0L; }
long double Celsius(long double t) { return (t - 32.0L) * 5.0L / 9.0L; }

/// log10 de la presión de saturación [atm] sobre hielo y sobre agua; @p theta = 273,16 / T.
long double LogSobreHielo(long double theta) {
  return -9.09718L * (theta - 1.0L) - 3.56654L * std::log10(theta) + 0.876793L * (1.0L - 1.0L / theta) +
         std::log10(PRESION_TRIPLE);
}
long double LogSobreAgua(long double theta) {
  return 10.79586L * (1.0L - theta) + 5.02808L * std::log10(theta) +
         1.50474e-4L * (1.0L - std::pow(10.0L, -8.29692L * (1.0L / theta - 1.0L))) +
         4.2873e-4L * (std::pow(10.0L, 4.76955L * (1.0L - theta)) - 1.0L) + std::log10(PRESION_TRIPLE);
}

EstadoDeAire EstadoDeHora(long double t, const EstadoDeAire &dia, long double p) {
  if (dia.rocio + MARGEN_DE_ROCIO >= t) return EstadoConRelativa(t, RELATIVA_CASI_SATURADA, p);
  return {EstadoConHumedad(t, dia.absoluta, p).relativa, dia.absoluta, dia.rocio};
}

} // namespace

long double PresionBarometrica(long double altitud) { return ATMOSFERA - altitud * PULGADAS_POR_METRO; }

long double PresionDeSaturacion(long double t) {
  const long double kelvin = (Fahrenheit(t) + 459.688L) * 5.0L / 9.0L;
  const long double theta = PUNTO_TRIPLE / kelvin;
  const long double logaritmo = kelvin < PUNTO_TRIPLE ? LogSobreHielo(theta) : LogSobreAgua(theta);
  return std::pow(10.0L, logaritmo) * ATMOSFERA;
}

long double RocioDePresion(long double pw) {
  constexpr long double CAMBIO_DE_RAMA = 0.18063L; // saturación a 0 °C
  // Sin vapor el logaritmo no existe; se toma el mínimo de la rama seca, su rocío más frío.
  constexpr long double ALFA_MAS_SECA = -24.873L / (2.0L * 0.8927L);
  const long double alfa = pw > 0.0L ? std::log(pw) : ALFA_MAS_SECA;
  if (pw >= CAMBIO_DE_RAMA) return Celsius(79.05L + 30.579L * alfa + 1.8893L * alfa * alfa);
  return Celsius(71.98L + 24.873L * alfa + 0.8927L * alfa * alfa);
}

EstadoDeAire EstadoConHumedad(long double t, long double w, long double p) {
  const long double pw = w * p / (w + RAZON_DE_MASAS);
  return {pw / PresionDeSaturacion(t), w, RocioDePresion(pw)};
}

EstadoDeAire EstadoConRelativa(long double t, long double hr, long double p) {
  const long double pw = PresionDeSaturacion(t) * hr * 0.01L;
  return {hr * 0.01L, RAZON_DE_MASAS * pw / (p - pw), RocioDePresion(pw)};
}

float HumedadSupuesta(float minimaMedia, std::string_view zona, float altitud) {
  constexpr long double SEQUEDAD_DEL_INTERIOR = 2.0L; // [K]
  const long double rocio = zona == "COSTA" ? minimaMedia : minimaMedia - SEQUEDAD_DEL_INTERIOR;
  return static_cast<float>(EstadoConRelativa(rocio, CIEN, PresionBarometrica(altitud)).absoluta * GRAMOS);
}

HumedadDelDia HumedadHoraria(const ValoresHorarios &exterior, float humedad, float altitud) {
  const long double p = PresionBarometrica(altitud);
  const float maxima = std::max(MINIMA_DE_BUSQUEDA, *std::max_element(exterior.begin(), exterior.end()));
  const EstadoDeAire dia = EstadoConHumedad(maxima, humedad * 0.001L, p);
  HumedadDelDia resultado;
  for (std::size_t h = 0; h < exterior.size(); ++h) {
    const EstadoDeAire hora = EstadoDeHora(exterior[h], dia, p);
    resultado.rocio[h] = static_cast<float>(hora.rocio);
    resultado.absoluta[h] = static_cast<float>(hora.absoluta * GRAMOS);
    resultado.relativa[h] = static_cast<float>(hora.relativa * CIEN);
  }
  return resultado;
}

} // namespace tesmo::extremos
