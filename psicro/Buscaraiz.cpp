#include "psicro/Buscaraiz.h"

#include <cmath>
#include <optional>

namespace tesmo {

namespace {

constexpr double X_PEQUENA = 0.01; // por debajo, tolerancia y primer paso dejan de ser relativos
constexpr double PRIMER_PASO_DESDE_CERO = 0.1;
constexpr double PRIMER_PASO_RELATIVO = 1.1;
constexpr double CURVATURA_MAXIMA = 1e-10;
constexpr double DESAJUSTE_MAXIMO = 1e-4;

enum Modo : int { INCREMENTO = 0, SECANTE = 1, PARABOLA = 2 };

double PasoIncremento(double x) {
  return std::fabs(x) <= X_PEQUENA ? PRIMER_PASO_DESDE_CERO : PRIMER_PASO_RELATIVO * x;
}

std::optional<double> PasoSecante(const EstadoBuscaRaiz &e, double x, double f) {
  const double s = (e.f0 - f) / (e.x0 - x);
  if (s != 0.0) return x - f / s;
  return std::nullopt;
}

/// Raíz, la más próxima a @p x, de la parábola por los tres puntos. La prueba de curvatura admite sólo las
/// casi rectas: es al revés de lo que se esperaría y se conserva.
std::optional<double> PasoParabola(const EstadoBuscaRaiz &e, double x, double f) {
  const double a = ((e.f1 - f) / (e.x1 - x) - (e.f0 - f) / (e.x0 - x)) / (e.x1 - e.x0);
  const double b = (e.f0 - f) / (e.x0 - x) - (e.x0 + x) * a;
  const double c = f - (a * x + b) * x;
  const double d = b * b - 4.0 * a * c;
  const bool vale = std::fabs(a) <= CURVATURA_MAXIMA &&
                    std::fabs(((a * e.x0 + b) * e.x0 + c - e.f0) / e.f0) <= DESAJUSTE_MAXIMO && d >= 0.0;
  if (!vale) return std::nullopt;
  if (d <= 0.0) return -(b / a) * 0.5;
  const double r1 = ((-b + std::sqrt(d)) / a) * 0.5;
  const double r2 = -r1 - b / a;
  return std::fabs(r2 - x) < std::fabs(r1 - x) ? r2 : r1;
}

/// Da el paso según @p modo, que baja a otro más sencillo cuando el suyo no se puede dar.
double DarPaso(EstadoBuscaRaiz &e, float x, float f, int &modo) {
  if (modo >= PARABOLA) {
    if (x == static_cast<float>(e.x0)) {
      e.x0 = e.x1;
      e.f0 = e.f1;
    } else if (x != static_cast<float>(e.x1)) {
      if (const auto siguiente = PasoParabola(e, x, f)) return *siguiente;
    }
    modo = SECANTE;
  }
  if (modo == SECANTE) {
    if (const auto siguiente = PasoSecante(e, x, f)) return *siguiente;
    modo = INCREMENTO;
  }
  return PasoIncremento(x);
}

/// ¿Deja el punto más viejo su sitio al anterior? Tras una parábola sólo si así se conserva el mejor cerco.
bool RelevaAlMasViejo(const EstadoBuscaRaiz &e, double f, int modo) {
  if (modo < PARABOLA) return true;
  if (e.f0 * f > 0.0 && e.f1 * f > 0.0) return std::fabs(e.f0) < std::fabs(e.f1);
  return e.f1 * f > 0.0;
}

} // namespace

double BuscaRaiz(EstadoBuscaRaiz &estado, float x, float f, int k, bool &convergido) {
  const double magnitud = std::fabs(static_cast<double>(x));
  const double delta = (magnitud >= X_PEQUENA ? magnitud : X_PEQUENA) * estado.tolerancia;
  convergido = (std::fabs(x - estado.x0) < delta && k > 0) || f == 0.0F;
  if (convergido) return x;
  int modo = k;
  const double siguiente = DarPaso(estado, x, f, modo);
  if (RelevaAlMasViejo(estado, f, modo)) {
    estado.x1 = estado.x0;
    estado.f1 = estado.f0;
  }
  estado.x0 = x;
  estado.f0 = f;
  return siguiente;
}

} // namespace tesmo
