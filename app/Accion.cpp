#include "app/Accion.h"

#include "app/Programa.h"
#include "core/Mensajes.h"

#include <algorithm>

namespace tesmo {

Accion::Accion(Programa &programa) : programa_(programa), esLaPrimera_(programa.DameAccion() == nullptr) {
  if (esLaPrimera_) programa_.PonAccion(this);
}

Accion::~Accion() {
  if (esLaPrimera_) programa_.PonAccion(nullptr);
}

void DecirUnaVez(const Programa &programa, int indice, const std::string &argumento) {
  if (Accion *accion = programa.DameAccion()) {
    const std::pair este(indice, argumento);
    if (std::ranges::find(accion->dichos, este) != accion->dichos.end()) return;
    accion->dichos.push_back(este);
  }
  DameMensajes().Mensaje(indice, argumento);
}

} // namespace tesmo
