#include "intercambio/sintesis/Vientosintetico.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tesmo {

namespace {

constexpr double AUTOCORRELACION = 0.85;
constexpr double AMPLITUD_DIARIA = 0.25;
constexpr double HORA_DEL_MAXIMO = 15.0;
/// Giro típico de la dirección de una hora a la siguiente [°].
constexpr double GIRO_HORARIO = 12.0;
constexpr double VUELTA = 360.0;
constexpr double DECIMAS = 10.0;
/// Un viento mayor no es de este mundo; acota la cola de la distribución.
constexpr double PROBABILIDAD_MAXIMA = 1.0 - 1e-7;

SerieHoras Velocidad(const NormalesLocalidad &localidad, Azar &azar) {
  const SerieHoras normal = SerieAutorregresiva(azar, HORAS, AUTOCORRELACION);
  SerieHoras velocidad(HORAS);
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double media = localidad.meses[MesDe(i / HORAS_POR_DIA)].viento;
    const double f = std::min(ProbabilidadNormal(normal[i]), PROBABILIDAD_MAXIMA);
    velocidad[i] =
        CuantilWeibull(f, FormaWeibull(media)) * CursoDiarioDelViento(CentroDeHora(i % HORAS_POR_DIA));
  }
  for (std::size_t mes = 0; mes < MESES; ++mes) {
    const double factor = localidad.meses[mes].viento / MediaHorariaDelMes(velocidad, mes);
    const std::size_t primera = PrimerDiaDe(mes) * HORAS_POR_DIA;
    for (std::size_t i = primera; i < primera + DiasDe(mes) * HORAS_POR_DIA; ++i) {
      velocidad[i] = std::round(velocidad[i] * factor * DECIMAS) / DECIMAS;
    }
  }
  return velocidad;
}

SerieHoras Direccion(Azar &azar) {
  SerieHoras direccion(HORAS);
  double angulo = azar.Uniforme() * VUELTA;
  const double inicial = angulo;
  for (double &d : direccion) {
    d = angulo;
    angulo += GIRO_HORARIO * azar.Normal();
  }
  // Se reparte por todo el año lo que falta para volver, en vueltas enteras, a la dirección de partida.
  const double resto = std::remainder(angulo - inicial, VUELTA);
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double corregida = direccion[i] - resto * static_cast<double>(i) / static_cast<double>(HORAS);
    const double entera = std::fmod(std::round(corregida), VUELTA);
    direccion[i] = entera < 0.0 ? entera + VUELTA : entera;
  }
  return direccion;
}

} // namespace

double FormaWeibull(double media) {
  constexpr double FORMA_MINIMA = 1.1;
  constexpr double FORMA_MAXIMA = 3.5;
  return std::clamp(0.94 * std::sqrt(media), FORMA_MINIMA, FORMA_MAXIMA);
}

double CuantilWeibull(double f, double forma) {
  return std::pow(-std::log1p(-f), 1.0 / forma) / std::tgamma(1.0 + 1.0 / forma);
}

double CursoDiarioDelViento(double hora) {
  return 1.0 + AMPLITUD_DIARIA * std::cos(2.0 * std::numbers::pi * (hora - HORA_DEL_MAXIMO) / 24.0);
}

VientoHorario GenerarViento(const NormalesLocalidad &localidad, Azar &velocidad, Azar &direccion) {
  return {Velocidad(localidad, velocidad), Direccion(direccion)};
}

} // namespace tesmo
