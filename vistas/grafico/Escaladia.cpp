#include "vistas/grafico/Escaladia.h"

#include "core/Calendario.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tesmo {

namespace {

constexpr int ULTIMA_HORA = HORAS_DEL_DIA - 1;
/// Anchura [px] de "23" con su hueco, a los tamaños de letra habituales.
constexpr double ANCHO_MARCA = 28.0;
/// Divisores de 24, para que las marcas no dependan de por dónde empiece el tramo.
constexpr std::array<int, 6> PASOS{1, 2, 3, 4, 6, 12};

int PasoPara(double desde, double hasta, double ancho) {
  const double porHora = hasta > desde ? ancho / (hasta - desde) : ancho;
  for (const int paso : PASOS) {
    if (paso * porHora >= ANCHO_MARCA) return paso;
  }
  return PASOS.back();
}

std::vector<int> Horas(int paso, double desde, double hasta) {
  std::vector<int> horas;
  for (int h = 0; h <= ULTIMA_HORA; h += paso) {
    if (h >= desde && h <= hasta) horas.push_back(h);
  }
  return horas;
}

} // namespace

std::string EscalaDia::Titulo() const { return "Hora solar (h)"; }

double EscalaDia::Ultimo() const { return ULTIMA_HORA; }

std::vector<MarcaEje> EscalaDia::Marcas(double desde, double hasta, double ancho) const {
  std::vector<MarcaEje> marcas;
  for (const int h : Horas(PasoPara(desde, hasta, ancho), desde, hasta)) {
    marcas.push_back({static_cast<double>(h), std::to_string(h)});
  }
  return marcas;
}

std::vector<double> EscalaDia::Submarcas(double desde, double hasta, double ancho) const {
  if (PasoPara(desde, hasta, ancho) == 1) return {};
  const std::vector<int> horas = Horas(1, desde, hasta);
  return {horas.begin(), horas.end()};
}

double EscalaDia::Ajustar(double x) const {
  return std::isfinite(x) ? std::clamp(std::round(x), 0.0, static_cast<double>(ULTIMA_HORA)) : 0.0;
}

std::string EscalaDia::Nombrar(double x) const {
  const int h = static_cast<int>(Ajustar(x));
  return "Hora " + std::to_string(h) + " (de " + std::to_string(h) + " a " + std::to_string(h + 1) +
         " h solares)";
}

std::vector<std::string> EscalaDia::Encabezamientos() const { return {"hora"}; }

std::vector<std::string> EscalaDia::Campos(double x) const {
  return {std::to_string(static_cast<int>(Ajustar(x)))};
}

} // namespace tesmo
