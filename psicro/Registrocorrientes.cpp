#include "psicro/Registrocorrientes.h"

#include "psicro/Corrienteaire.h"

#include <mutex>

namespace tesmo {

namespace {

struct Extremos {
  InscripcionCorriente *primera = nullptr;
  InscripcionCorriente *ultima = nullptr;
};

/// Sin destructor: las corrientes estáticas se pueden borrar de aquí hasta el final del programa.
constinit Extremos extremos;
constinit std::mutex cerrojo;

} // namespace

// La lista se enlaza por dentro de las propias corrientes para que crear una no pida memoria.
InscripcionCorriente::InscripcionCorriente(CorrienteAire &corriente) : corriente_(corriente) {
  const std::lock_guard guarda(cerrojo);
  anterior_ = extremos.ultima;
  (anterior_ != nullptr ? anterior_->siguiente_ : extremos.primera) = this;
  extremos.ultima = this;
}

InscripcionCorriente::~InscripcionCorriente() {
  const std::lock_guard guarda(cerrojo);
  (anterior_ != nullptr ? anterior_->siguiente_ : extremos.primera) = siguiente_;
  (siguiente_ != nullptr ? siguiente_->anterior_ : extremos.ultima) = anterior_;
}

InscripcionCorriente *InscripcionCorriente::Primera() { return extremos.primera; }

CorrienteAire *BuscarCorriente(std::string_view nombre) {
  const std::lock_guard guarda(cerrojo);
  for (auto *i = InscripcionCorriente::Primera(); i != nullptr; i = i->Siguiente()) {
    if (i->Corriente().Nombre() == nombre) return &i->Corriente();
  }
  return nullptr;
}

} // namespace tesmo
