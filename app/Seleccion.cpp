#include "app/Seleccion.h"

#include <utility>

namespace tesmo {

bool Seleccion::HayLocalidad() const { return localidad_ != SIN_LOCALIDAD; }

void Seleccion::PonProvincia(const std::string &provincia) {
  if (provincia == provincia_ && !HayLocalidad()) return;
  provincia_ = provincia;
  localidad_ = SIN_LOCALIDAD;
  altitud_.reset();
  Avisar(Cambio::Provincia);
}

void Seleccion::PonLocalidad(const std::string &localidad) {
  if (localidad == localidad_) return;
  localidad_ = localidad;
  altitud_.reset();
  Avisar(Cambio::Localidad);
}

void Seleccion::PonPeriodo(const Periodo &periodo) {
  Periodo valido = periodo;
  ValidarPeriodo(valido);
  if (std::exchange(periodo_, valido) != valido) Avisar(Cambio::Periodo);
}

void Seleccion::PonSuperficie(const Superficie &superficie) {
  if (std::exchange(superficie_, superficie) != superficie) Avisar(Cambio::Superficie);
}

void Seleccion::PonAltitudUsuario(std::optional<float> altitud) {
  if (std::exchange(altitud_, altitud) != altitud) Avisar(Cambio::Altitud);
}

void Seleccion::AlCambiar(std::function<void(Cambio)> aviso) { avisos_.push_back(std::move(aviso)); }

void Seleccion::AntesDeUsar(std::function<void()> entrega) { entregas_.push_back(std::move(entrega)); }

void Seleccion::PedirLoPendiente() const {
  for (std::size_t i = 0; i < entregas_.size(); ++i) {
    const auto entrega = entregas_[i];
    entrega();
  }
}

void Seleccion::Avisar(Cambio cambio) const {
  // Un aviso puede inscribir otros: se recorre por posición y se llama a una copia.
  for (std::size_t i = 0; i < avisos_.size(); ++i) {
    const auto aviso = avisos_[i];
    aviso(cambio);
  }
}

} // namespace tesmo
