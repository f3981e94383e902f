#pragma once

#include "core/Error.h"

#include <string>
#include <string_view>

namespace tesmo {

/// Recoge el último diagnóstico del cálculo, el que lo detuvo: con la ventana no suele haber registro.
class UltimoDiagnostico {
public:
  UltimoDiagnostico() : propio_(!RegistroAbierto()) {
    if (propio_) AbrirRegistroEn([this](std::string_view texto) { texto_ = texto; });
  }
  ~UltimoDiagnostico() {
    if (propio_) CerrarRegistro();
  }
  UltimoDiagnostico(const UltimoDiagnostico &) = delete;
  UltimoDiagnostico &operator=(const UltimoDiagnostico &) = delete;
  [[nodiscard]] const std::string &Texto() const { return texto_; }

private:
  bool propio_;
  std::string texto_;
};

} // namespace tesmo
