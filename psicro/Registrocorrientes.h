#pragma once

#include <string_view>

namespace tesmo {

class CorrienteAire;

/// Inscripción de una corriente en el registro de corrientes vivas, en orden de creación. Dura lo que la
/// corriente que la lleva dentro. El registro es único; crear, destruir y buscar corrientes se puede desde
/// varios hilos, pero una corriente es de un solo hilo.
class InscripcionCorriente {
public:
  explicit InscripcionCorriente(CorrienteAire &corriente);
  ~InscripcionCorriente();
  InscripcionCorriente(const InscripcionCorriente &) = delete;
  InscripcionCorriente &operator=(const InscripcionCorriente &) = delete;

  [[nodiscard]] CorrienteAire &Corriente() const { return corriente_; }
  [[nodiscard]] InscripcionCorriente *Siguiente() const { return siguiente_; }
  /// La corriente viva más antigua; nulo si no hay ninguna. Recorrer la lista es de un solo hilo.
  [[nodiscard]] static InscripcionCorriente *Primera();

private:
  CorrienteAire &corriente_;
  InscripcionCorriente *anterior_ = nullptr;
  InscripcionCorriente *siguiente_ = nullptr;
};

/// La corriente viva más antigua que se llama exactamente @p nombre; nulo si ninguna.
[[nodiscard]] CorrienteAire *BuscarCorriente(std::string_view nombre);

} // namespace tesmo
