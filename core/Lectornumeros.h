#pragma once

#include "core/Flujoreales.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tesmo {

/// Recorre un texto corto con las reglas de la lectura con formato de C ("%d", "%f", "%s", blancos y
/// literales), sin mirar la región: lo que no encaja deja el lector donde falló.
class LectorNumeros {
public:
  explicit LectorNumeros(std::string_view texto) : texto_(texto), flujo_(texto_) {}
  LectorNumeros(const LectorNumeros &) = delete;
  LectorNumeros &operator=(const LectorNumeros &) = delete;

  /// "%d"; vacío si no hay un entero o no cabe en 32 bits.
  [[nodiscard]] std::optional<int> Entero();
  /// "%f", como FlujoReales::LeerReal.
  [[nodiscard]] std::optional<float> Real();
  /// El carácter @p c, sin saltar blancos antes.
  bool Literal(char c);
  void SaltarBlancos() { flujo_.SaltarBlancos(); }
  /// "%s": la palabra siguiente, tras los blancos que haya; vacía al final del texto. Vale lo que el lector.
  [[nodiscard]] std::string_view Palabra();
  /// Lo que queda de la línea, sin su fin, hasta @p maximo bytes; un resto más largo se queda por leer.
  std::string_view RestoDeLinea(std::size_t maximo = std::string_view::npos);
  /// Línea del texto, desde 1, en que está el lector.
  [[nodiscard]] int Linea() const;
  /// Bytes ya recorridos.
  [[nodiscard]] std::size_t Posicion() const { return flujo_.Posicion(); }
  [[nodiscard]] bool Final() const { return flujo_.AlFinal(); }

private:
  std::string texto_; ///< copia propia: el flujo necesita su terminador
  FlujoReales flujo_;
};

} // namespace tesmo
