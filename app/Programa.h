#pragma once

#include "core/Objetobase.h"

#include <memory>

namespace tesmo {

class BaseDeLocalidades;
class DiasExtremos;
class LeerMet;
class PosicionSolar;
class Psicro;

/// Los motores de una ventana de trabajo. Las copias comparten motores.
class Programa : public ObjetoBase {
public:
  Programa();
  [[nodiscard]] DiasExtremos *DameDiasExtremos() const;
  [[nodiscard]] PosicionSolar *DamePosicionSolar() const;
  [[nodiscard]] LeerMet *DameLeerMet() const;
  [[nodiscard]] Psicro *DamePsicro() const;
  [[nodiscard]] BaseDeLocalidades *DameLocalidades() const;
  /// Destruye los motores en su orden; las demás copias pasan a ver punteros nulos.
  void DestruirMotores();
};

} // namespace tesmo
