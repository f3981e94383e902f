#include "tests/psicro/Buscaraizllana.h"

#include <cmath>

double BuscaRaizLlana(tesmo::EstadoBuscaRaiz &m, float xFloat, float fFloat, int k, bool &convergido) {
  const double x = xFloat;
  const double f = fFloat;
  double delta = 0.01 * m.tolerancia;
  if (std::abs(x) >= 0.01) delta = std::abs(x) * m.tolerancia;
  if (f == 0.0) {
    convergido = true;
    return x;
  }
  if (k > 0 && std::abs(x - m.x0) < delta) {
    convergido = true;
    return x;
  }
  convergido = false;

  int modo = k > 2 ? 2 : k;
  double siguiente = 0.0;
  for (bool dado = false; !dado;) {
    switch (modo) {
    case 0:
      siguiente = 1.1 * x;
      if (std::abs(x) <= 0.01) siguiente = 0.1;
      dado = true;
      break;
    case 1: {
      const double pendiente = (m.f0 - f) / (m.x0 - x);
      if (pendiente == 0.0) {
        modo = 0;
        break;
      }
      siguiente = x - f / pendiente;
      dado = true;
      break;
    }
    default: {
      modo = 1;
      if (xFloat == float(m.x0)) {
        m.x0 = m.x1;
        m.f0 = m.f1;
        break;
      }
      if (xFloat == float(m.x1)) break;
      const double cuerda0 = (m.f0 - f) / (m.x0 - x);
      const double a = ((m.f1 - f) / (m.x1 - x) - cuerda0) / (m.x1 - m.x0);
      const double b = cuerda0 - (m.x0 + x) * a;
      const double c = f - (a * x + b) * x;
      const double discriminante = b * b - 4.0 * a * c;
      if (!(std::abs(a) <= 1e-10)) break;
      if (!(std::abs(((a * m.x0 + b) * m.x0 + c - m.f0) / m.f0) <= 1e-4)) break;
      if (!(discriminante >= 0.0)) break;
      modo = 2;
      dado = true;
      if (discriminante > 0.0) {
        siguiente = ((-b + std::sqrt(discriminante)) / a) * 0.5;
        const double otra = -siguiente - b / a;
        if (std::abs(otra - x) < std::abs(siguiente - x)) siguiente = otra;
      } else {
        siguiente = -(b / a) * 0.5;
      }
    }
    }
  }

  bool correr = true;
  if (modo == 2) {
    const bool sinCambioDeSigno = m.f0 * f > 0.0 && m.f1 * f > 0.0;
    correr = sinCambioDeSigno ? std::abs(m.f0) < std::abs(m.f1) : m.f1 * f > 0.0;
  }
  if (correr) {
    m.x1 = m.x0;
    m.f1 = m.f0;
  }
  m.x0 = x;
  m.f0 = f;
  return siguiente;
}
