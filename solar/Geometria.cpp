#include "solar/Geometria.h"

#include "core/Calendario.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr long double INCLINACION_ECLIPTICA = 23.45L; ///< [°]
constexpr long double MEDIODIA = 12.0L;
constexpr long double GRADOS_POR_HORA = 15.0L;
constexpr long double TOLERANCIA_SALIDA = 1.0001L;
constexpr long double TOLERANCIA_PUESTA = 0.99999L;
constexpr SalidaPuesta SIEMPRE_DE_DIA{-1.0F, 25.0F};
constexpr SalidaPuesta SIEMPRE_DE_NOCHE{-1.0F, -1.0F};
/// Por debajo, una componente horizontal cuenta como nula.
constexpr float COMPONENTE_NULA = 0.0001F;
constexpr long double ANGULO_RECTO = 90.0L;

/// El redondeo puede dejar el radicando por debajo de cero.
long double RaizSegura(long double radicando) { return std::sqrt(std::max(radicando, 0.0L)); }

float EnGrados(long double radianes) { return static_cast<float>(radianes / GRADO_EN_RADIANES); }

AngulosSolares ConCenit(float acimut, float altura) {
  return {acimut, altura, static_cast<float>(ANGULO_RECTO - altura)};
}

/// Una latitud de −0° vale como 0°.
float CocienteDeTangentes(long double phi, long double delta) {
  return static_cast<float>(std::tan(delta) / (std::tan(phi) + 0.0L));
}

} // namespace

long double DeclinacionSolar(int mes, int dia) {
  const long double n = static_cast<long double>(DiaDelAnio(mes, 0)) + dia;
  return INCLINACION_ECLIPTICA * std::sin(PI_SOLAR * 2.0L * (284.0L + n) * (1.0L / DIAS_DEL_ANIO));
}

SalidaPuesta HorasDeSol(float latitud, long double declinacion) {
  const auto coseno =
      static_cast<float>(-std::tan(latitud * GRADO_EN_RADIANES) * std::tan(declinacion * GRADO_EN_RADIANES));
  if (coseno <= -1.0F) return SIEMPRE_DE_DIA;
  if (coseno >= 1.0F) return SIEMPRE_DE_NOCHE;
  const auto omega = static_cast<float>(std::acos(static_cast<long double>(coseno)));
  const auto salida = static_cast<float>(MEDIODIA - omega * MEDIODIA / PI_SOLAR);
  return {salida, static_cast<float>(2.0L * MEDIODIA - salida)};
}

bool EsHoraDeDia(const SalidaPuesta &sol, float hora) {
  return sol.salida * TOLERANCIA_SALIDA < hora && sol.puesta * TOLERANCIA_PUESTA > hora;
}

SolSobreElLugar::SolSobreElLugar(float latitud, long double declinacion) {
  const long double phi = latitud * GRADO_EN_RADIANES;
  const long double delta = declinacion * GRADO_EN_RADIANES;
  cosDelta_ = std::cos(delta);
  cosenos_ = std::cos(phi) * cosDelta_;
  senos_ = std::sin(phi) * std::sin(delta);
  cociente_ = CocienteDeTangentes(phi, delta);
}

VectorSolar SolSobreElLugar::Vector(float hora) const {
  const auto omega = static_cast<float>((hora - MEDIODIA) * GRADOS_POR_HORA);
  const long double horario = omega * GRADO_EN_RADIANES;
  const long double cosHora = std::cos(horario);
  VectorSolar sol{};
  sol.z = cosenos_ * cosHora + senos_;
  sol.w = cosDelta_ * std::sin(horario);
  sol.s = RaizSegura(1.0L - sol.w * sol.w - sol.z * sol.z);
  // Con declinación y latitud nulas el cociente no es número y cuenta como el sol al norte.
  const bool alNorte = !(cosHora >= cociente_);
  if (alNorte) sol.s = -sol.s;
  return sol;
}

PosicionDeVector PosicionDesdeVector(const VectorSolar &sol) {
  const long double h = std::atan(sol.z / RaizSegura(1.0L - sol.z * sol.z));
  const long double seno = sol.w / std::cos(h);
  if (seno * seno >= 1.0L) return {ConCenit(0.0F, 0.0F), false};
  long double acimut = std::atan(seno / std::sqrt(1.0L - seno * seno));
  if (sol.s < 0.0L) acimut = (acimut >= 0.0L ? PI_SOLAR : -PI_SOLAR) - acimut;
  const AngulosSolares angulos = ConCenit(EnGrados(acimut), EnGrados(h));
  return {angulos, angulos.acimut != 0.0F || angulos.altura != 0.0F};
}

void AngulosDeVector(float x, float y, float z, AngulosSolares &angulos) {
  const long double sur = std::fabs(x) < COMPONENTE_NULA ? 0.0L : x;
  const long double oeste = std::fabs(y) < COMPONENTE_NULA ? 0.0L : y;
  const long double altura = std::atan(z / RaizSegura(1.0L - static_cast<long double>(z) * z));
  long double acimut = angulos.acimut;
  if (sur == 0.0L) {
    acimut = oeste == 0.0L ? 0.0L : std::copysign(PI_SOLAR / 2.0L, oeste);
  } else if (oeste != 0.0L) {
    acimut = std::atan(oeste / sur);
    if (sur < 0.0L) acimut += std::copysign(PI_SOLAR, oeste);
  }
  angulos = ConCenit(EnGrados(acimut), EnGrados(altura));
}

} // namespace tesmo
