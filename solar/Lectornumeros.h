#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tesmo {

/// Recorre un texto con las reglas de la lectura con formato de C ("%d", "%f", blancos y literales), sin
/// mirar la región: lo que no encaja deja el lector donde falló y las piezas siguientes fallarán ahí.
class LectorNumeros {
public:
  explicit LectorNumeros(std::string_view texto) : texto_(texto) {}

  /// "%d"; vacío si no hay un entero o no cabe en 32 bits.
  [[nodiscard]] std::optional<int> Entero();
  /// "%f": decimal, hexadecimal, inf y nan. Un valor que no cabe da el infinito o el cero de su signo.
  [[nodiscard]] std::optional<float> Real();
  /// El carácter @p c, sin saltar blancos antes.
  bool Literal(char c);
  void SaltarBlancos();
  /// "%s": la palabra siguiente, tras los blancos que haya; vacía al final del texto.
  [[nodiscard]] std::string_view Palabra();
  /// Lo que queda de la línea, sin su fin, hasta @p maximo bytes; un resto más largo se queda por leer.
  std::string_view RestoDeLinea(std::size_t maximo = std::string_view::npos);
  /// Línea del texto, desde 1, en que está el lector.
  [[nodiscard]] int Linea() const;
  [[nodiscard]] bool Final() const { return posicion_ >= texto_.size(); }

private:
  bool Signo();
  std::size_t Cifras(bool hexadecimal);
  std::size_t LetrasDe(std::string_view palabra);
  std::optional<long> Exponente(char letra);
  std::optional<float> SinSigno();
  std::optional<float> Cifrado();

  std::string_view texto_;
  std::size_t posicion_ = 0;
};

} // namespace tesmo
