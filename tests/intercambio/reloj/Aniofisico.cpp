#include "tests/intercambio/reloj/Aniofisico.h"

#include "intercambio/sintesis/Azar.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tesmo::prueba {

namespace {

using std::numbers::pi;
constexpr std::size_t HORAS_ANIO = HORAS_DEL_ANIO;

/// Sol de bolsillo, distinto del que se prueba: longitud eclíptica con la excentricidad a primer orden, y la
/// ecuación del tiempo de la diferencia con la ascensión recta.
struct Sol {
  double declinacion;
  double ecuacionHoras;
};
Sol SolDe(double dia) {
  constexpr double OBLICUIDAD = 23.44 * pi / 180.0;
  const double media = 2.0 * pi * (dia - 79.27) / 365.2422; // del equinoccio de marzo de 2002
  const double anomalia = 2.0 * pi * (dia - 2.6) / 365.2596;
  const double verdadera = media +
                           0.0334 * (std::sin(anomalia) - std::sin(2.0 * pi * (79.27 - 2.6) / 365.2596)) +
                           0.00035 * std::sin(2.0 * anomalia);
  const double ascension = std::atan2(std::cos(OBLICUIDAD) * std::sin(verdadera), std::cos(verdadera));
  // El sol medio pasa por el equinoccio unos siete minutos y medio antes que el verdadero.
  const double solMedio = media - 0.0334 * std::sin(2.0 * pi * (79.27 - 2.6) / 365.2596);
  return {std::asin(std::sin(OBLICUIDAD) * std::sin(verdadera)),
          std::remainder(solMedio - ascension, 2.0 * pi) * 12.0 / pi};
}

double Claridad(std::size_t dia) {
  Azar azar("cielo" + std::to_string(dia));
  return azar.Uniforme() < 0.4 ? 0.75 : 0.75 * azar.Uniforme();
}

} // namespace

AnioCanonico AnioFisico(const PeticionAnio &p) {
  AnioCanonico anio;
  anio.sitio.latitud = p.latitud;
  anio.sitio.longitud = p.longitud;
  anio.sitio.altitud = p.altitud;
  anio.reloj = p.reloj;
  Azar azar("ruido");
  const double f = p.latitud * pi / 180.0;
  const bool solar = p.reloj.tiempo == TiempoEtiqueta::SolarVerdadero;
  const double huso = p.reloj.tiempo == TiempoEtiqueta::OficialEstandar ? p.reloj.husoHoras : 0.0;
  for (std::size_t i = 0; i < HORAS_ANIO; ++i) {
    const double centro = static_cast<double>(i) + 1.0 + p.reloj.desfaseMin / 60.0;
    const double utc = centro - huso;
    const Sol sol = SolDe(utc / 24.0);
    const double hora =
        solar ? centro : utc + std::remainder(p.longitud / 15.0 - huso, 24.0) + huso + sol.ecuacionHoras;
    const double h = (hora - 12.0) * pi / 12.0;
    const double coseno = std::max(0.0, std::sin(f) * std::sin(sol.declinacion) +
                                            std::cos(f) * std::cos(sol.declinacion) * std::cos(h));
    const auto dia = static_cast<std::size_t>(std::clamp(std::floor(hora / 24.0), 0.0, 364.0));
    const double masa = coseno > 0.0 ? 1.0 / (coseno + 0.05) : 0.0;
    const double normal = coseno > 0.0 ? 1367.0 * Claridad(dia) * std::exp(-0.12 * masa) : 0.0;
    const double difusa = 120.0 * coseno;
    const Procedencia c = Procedencia::Copiada;
    anio[Campo::DirectaNormal].Poner(i, normal * (1.0 + p.ruido * (2.0 * azar.Uniforme() - 1.0)), c);
    anio[Campo::DifusaHorizontal].Poner(i, difusa, c);
    anio[Campo::GlobalHorizontal].Poner(i, normal * coseno + difusa, c);
    const double diario = std::cos((hora - 15.0) * pi / 12.0);
    const double anual = -std::cos(2.0 * pi * (utc / 24.0 - 15.0) / 365.0);
    anio[Campo::TemperaturaSeca].Poner(i, 14.0 + 8.0 * anual + 5.0 * diario, c);
    anio[Campo::HumedadRelativa].Poner(i, 60.0 - 20.0 * diario, c);
    anio[Campo::Presion].Poner(i, 94000.0 + 300.0 * anual, c);
    anio[Campo::InfrarrojaHorizontal].Poner(i, 320.0 + 40.0 * anual, c);
    anio[Campo::VelocidadViento].Poner(i, 3.0 + 2.0 * diario, c);
    anio[Campo::DireccionViento].Poner(i, std::fmod(15.0 * hora + 360.0, 360.0), c);
    anio.anios[i] = p.anioCalendario;
    anio.lineas[i] = static_cast<int>(i) + 9;
  }
  return anio;
}

void Quitar(AnioCanonico &anio, Campo campo) { anio[campo] = SerieCanonica(); }

AnioCanonico Corrido(const AnioCanonico &anio, int horas) {
  AnioCanonico corrido = anio;
  const auto paso = static_cast<std::ptrdiff_t>((HORAS_DEL_ANIO - horas) % HORAS_DEL_ANIO);
  for (SerieCanonica &serie : corrido.series) {
    std::rotate(serie.valores.begin(), serie.valores.begin() + paso, serie.valores.end());
    std::rotate(serie.procedencias.begin(), serie.procedencias.begin() + paso, serie.procedencias.end());
  }
  return corrido;
}

double Separacion(const std::vector<double> &a, const std::vector<double> &b) {
  double suma = 0.0;
  for (std::size_t i = 0; i < a.size(); ++i) suma += (a[i] - b[i]) * (a[i] - b[i]);
  return std::sqrt(suma / static_cast<double>(a.size()));
}

double MayorDiferencia(const std::vector<double> &a, const std::vector<double> &b) {
  double mayor = 0.0;
  for (std::size_t i = 0; i < a.size(); ++i) mayor = std::max(mayor, std::fabs(a[i] - b[i]));
  return mayor;
}

} // namespace tesmo::prueba
