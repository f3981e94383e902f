#include "solar/Alturashorizonte.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr float CUARTO_DE_VUELTA = 90.0F;
constexpr float VUELTA = 360.0F;
constexpr float MEDIA_VUELTA = 180.0F;

bool EsPunto(float x, float y) { return std::isfinite(x) && std::isfinite(y); }

/// Posición de la que la suma del factor de cielo toma la altura del grado @p a: para un grado negativo no es
/// la suya, sino la de su valor absoluto (se conserva).
int PosicionEnLaSuma(int a) { return a >= 0 ? a + AlturasDeHorizonte::ACIMUT_MAXIMO : -a; }

} // namespace

AlturasDeHorizonte::AlturasDeHorizonte(const std::vector<float> &x, const std::vector<float> &y) {
  const std::size_t n = std::min(x.size(), y.size());
  Marcas puestos{};
  for (std::size_t i = 1; i < n; ++i) TenderTramo(x[i - 1], y[i - 1], x[i], y[i], puestos);
  for (std::size_t i = 0; i < n; ++i) PonerPunto(x[i], y[i], puestos);
}

void AlturasDeHorizonte::TenderTramo(float x0, float y0, float x1, float y1, Marcas &puestos) {
  if (!EsPunto(x0, y0) || !EsPunto(x1, y1) || x1 <= x0) return;
  const double pendiente = (static_cast<double>(y1) - y0) / (static_cast<double>(x1) - x0);
  const double limite = ACIMUT_MAXIMO;
  const auto primero = static_cast<int>(std::clamp(std::ceil(static_cast<double>(x0)), -limite, limite + 1));
  const auto ultimo = static_cast<int>(std::clamp(std::floor(static_cast<double>(x1)), -limite - 1, limite));
  for (int grado = primero; grado <= ultimo; ++grado) {
    const std::size_t k = Posicion(grado);
    if (puestos[k]) continue;
    puestos[k] = true;
    alturas_[k] = static_cast<float>(y0 + pendiente * (grado - static_cast<double>(x0)));
  }
}

void AlturasDeHorizonte::PonerPunto(float x, float y, Marcas &puestos) {
  if (!EsPunto(x, y) || std::fabs(x) > MEDIA_VUELTA || x != std::trunc(x)) return;
  const std::size_t k = Posicion(static_cast<int>(x));
  if (puestos[k]) return;
  puestos[k] = true;
  alturas_[k] = y;
}

bool AlturasDeHorizonte::Tapa(float acimut, float altura) const {
  if (!(std::fabs(std::trunc(acimut)) <= MEDIA_VUELTA)) return false;
  return altura < EnGrado(static_cast<int>(acimut));
}

float AlturasDeHorizonte::FactorDeCielo(float orientacion) const {
  const float gamma = std::isnan(orientacion) ? 0.0F : std::clamp(orientacion, -MEDIA_VUELTA, MEDIA_VUELTA);
  float inferior = gamma - CUARTO_DE_VUELTA;
  if (inferior < -MEDIA_VUELTA) inferior += VUELTA;
  float superior = gamma + CUARTO_DE_VUELTA;
  if (superior > MEDIA_VUELTA) superior -= VUELTA;
  // Con orientaciones de más de 90° un límite da la vuelta y la suma recorre la mitad de atrás: se conserva.
  const float hasta = std::max(inferior, superior);
  double suma = 0.0;
  for (int a = static_cast<int>(std::min(inferior, superior)); static_cast<float>(a) < hasta; ++a) {
    const float altura = alturas_[static_cast<std::size_t>(PosicionEnLaSuma(a))];
    suma += 1.0 - std::sin(altura * RADIANES_DE_SERIES);
  }
  return static_cast<float>(suma * (1.0 / VUELTA));
}

} // namespace tesmo
