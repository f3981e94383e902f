#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tesmo {

/// Números a texto sin mirar la región del proceso.

/// Lo que printf escribe con "%f" en la región C: seis decimales y punto.
[[nodiscard]] std::string FormatoF(double valor);
/// Lo que printf escribe con "%.9g" en la región C; un valor que no es número da siempre "nan".
[[nodiscard]] std::string FormatoG9(double valor);
/// Quince cifras significativas sin ceros finales, con @p separador decimal.
[[nodiscard]] std::string FormatoGeneral15(double valor, char separador);

/// Un patrón de cifras ya descompuesto: enteros obligatorios, decimales obligatorios y decimales posibles.
/// "0.0##" tiene 1, 1 y 3; "#0.##" tiene 1, 0 y 2.
class PatronNumero {
public:
  /// Admite '0' y '#' con un punto como mucho; hasta 9 decimales.
  explicit constexpr PatronNumero(std::string_view patron) {
    bool decimales = false;
    for (char c : patron) {
      if (c == '.') {
        decimales = true;
      } else if (!decimales) {
        enteros_ += c == '0' ? 1 : 0;
      } else {
        ++decimalesMaximos_;
        if (c == '0') decimalesMinimos_ = decimalesMaximos_;
      }
    }
  }
  /// Añade @p valor a @p salida. Redondea la mitad alejándose de cero sobre el valor exacto; el cero nunca
  /// lleva signo; lo que no es número y los infinitos dan NAN, INF y -INF.
  void Escribir(std::string &salida, double valor, char separador) const;

private:
  void EscribirUnidades(std::string &salida, std::uint64_t unidades, bool negativo, char separador) const;
  void EscribirCifras(std::string &salida, std::string cifras, bool negativo, char separador) const;

  int enteros_ = 0;
  int decimalesMinimos_ = 0;
  int decimalesMaximos_ = 0;
};

/// Texto de @p valor con el patrón y el separador decimal regional en vigor.
[[nodiscard]] std::string FormatearPatron(double valor, std::string_view patron);

} // namespace tesmo
