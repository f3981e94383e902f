#pragma once

#include "core/Objetobase.h"

namespace tesmo {

/// Modelo de la carta psicrométrica.
class Psicro : public ObjetoBase {
public:
  Psicro();
  void ponAltitud(float z);
  void ponPresion(float presion);
  [[nodiscard]] float dameParametro(int i) const;
};

} // namespace tesmo
