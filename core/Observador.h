#pragma once

namespace tesmo {

class ObjetoBase;

/// Quien mira un objeto de cálculo (una vista, la línea de órdenes, una prueba) y quiere saber que cambió.
class Observador {
public:
  virtual ~Observador() = default;
  /// Se llama cuando @p objeto cambia de estado; no puede lanzar.
  virtual void ObjetoCambiado(const ObjetoBase &objeto) = 0;
};

} // namespace tesmo
