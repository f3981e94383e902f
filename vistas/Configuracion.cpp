#include "vistas/Configuracion.h"

#include <memory>

namespace tesmo {

namespace {

std::unique_ptr<Configuracion> &Compartida() {
  static std::unique_ptr<Configuracion> tabla;
  return tabla;
}

bool EsIndice(int i) { return i >= 0 && i < static_cast<int>(NUMERO_MAGNITUDES_VISOR); }

} // namespace

Configuracion::Configuracion() {
  for (std::size_t i = 0; i < colores_.size(); ++i) colores_[i] = MAGNITUDES[i].color;
}

std::uint32_t Configuracion::dameColor(int i, std::uint32_t porDefecto) const {
  return EsIndice(i) ? colores_[static_cast<std::size_t>(i)] : porDefecto;
}

void Configuracion::ponColor(int i, std::uint32_t color) {
  if (EsIndice(i)) colores_[static_cast<std::size_t>(i)] = color;
}

Configuracion &DameTablaDeColores() {
  if (!Compartida()) Compartida() = std::make_unique<Configuracion>();
  return *Compartida();
}

void LiberarTablaDeColores() { Compartida().reset(); }

} // namespace tesmo
