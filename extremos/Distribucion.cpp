#include "extremos/Distribucion.h"

#include <algorithm>
#include <cmath>

namespace tesmo::extremos {

namespace {

bool EsGrado(int grado) { return grado >= GRADO_MINIMO && grado <= GRADO_MAXIMO; }

std::size_t Elemento(int grado) {
  const int elemento = grado - GRADO_MINIMO;
  return static_cast<std::size_t>(elemento);
}

} // namespace

void Distribucion::Anadir(int grado, long double valor) {
  valores_[Elemento(grado)] += valor;
  menor_ = std::min(menor_, grado);
  mayor_ = std::max(mayor_, grado);
}

void Distribucion::Anadir(const Distribucion &otra) {
  for (int grado = otra.menor_; grado <= otra.mayor_; ++grado) Anadir(grado, otra[grado]);
}

long double Distribucion::operator[](int grado) const {
  return EsGrado(grado) ? valores_[Elemento(grado)] : 0.0L;
}

void Distribucion::DividirPor(long double divisor) {
  for (int grado = menor_; grado <= mayor_; ++grado) valores_[Elemento(grado)] /= divisor;
}

void Distribucion::Acumular() {
  for (int grado = menor_ + 1; grado <= mayor_; ++grado) valores_[Elemento(grado)] += (*this)[grado - 1];
}

void Distribucion::Normalizar() {
  const long double mayor = *std::max_element(valores_.begin(), valores_.end());
  if (mayor > 0.0L) DividirPor(mayor);
}

long double Distribucion::Buscar(long double p) const {
  for (int k = menor_; k <= mayor_; ++k) {
    if (!((*this)[k] > p)) continue;
    const long double anterior = (*this)[k - 1];
    return (p - anterior) / ((*this)[k] - anterior) + (k - 1) + 1.0L;
  }
  return Valor(p);
}

long double Distribucion::Valor(long double t) const {
  const long double grado = std::trunc(t);
  if (!(grado >= GRADO_MINIMO && grado <= GRADO_MAXIMO)) return 0.0L;
  return (*this)[static_cast<int>(grado)];
}

DistribucionGuardada Distribucion::Guardada() const {
  DistribucionGuardada guardada;
  std::transform(valores_.begin(), valores_.end(), guardada.valores.begin(),
                 [](long double valor) { return static_cast<float>(valor); });
  guardada.menor = menor_;
  guardada.mayor = mayor_;
  return guardada;
}

} // namespace tesmo::extremos
