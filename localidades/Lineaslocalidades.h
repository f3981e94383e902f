#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Bytes que caben en una línea del fichero de localidades, sin su fin, y en uno de sus campos.
inline constexpr std::size_t BYTES_LINEA_LOCALIDADES = 299;
inline constexpr std::size_t BYTES_CAMPO_LOCALIDADES = 49;

/// Va dando las líneas de un fichero de localidades en bytes, sin su fin de línea. La que pasa de 299 bytes
/// sigue en la próxima.
class LineasLocalidades {
public:
  /// @p contenido, el fichero entero, ha de vivir tanto como el objeto; una marca de orden de bytes se salta.
  explicit LineasLocalidades(std::string_view contenido);

  [[nodiscard]] bool Quedan() const { return posicion_ < contenido_.size(); }
  /// Número, desde 1, de la última línea dada.
  [[nodiscard]] int Numero() const { return numero_; }
  /// ¿Sigue en la próxima la última línea dada?
  [[nodiscard]] bool Partida() const { return partida_; }
  /// Dónde empieza en el contenido la próxima línea.
  [[nodiscard]] std::size_t Posicion() const { return posicion_; }
  [[nodiscard]] bool Utf8() const { return utf8_; }
  [[nodiscard]] std::string_view Siguiente();

private:
  std::string_view contenido_;
  std::size_t posicion_ = 0;
  bool utf8_; ///< una línea larga no se parte entonces en medio de un carácter
  int numero_ = 0;
  bool partida_ = false;
};

/// Los trozos de una línea entre comas; tras cada coma se saltan los blancos y las tabulaciones.
[[nodiscard]] std::vector<std::string_view> TrocearLineaDeLocalidades(std::string_view linea);

/// Número de localidades del bloque que encabeza @p linea: las cifras de su primer campo; 0 en una línea en
/// blanco y vacío si no empieza por una cifra.
[[nodiscard]] std::optional<int> CuentaDeLocalidades(std::string_view linea);

/// Texto en UTF-8 de un campo, cortado a 49 bytes del fichero.
[[nodiscard]] std::string CampoDeLocalidades(std::string_view bytes, bool utf8);

} // namespace tesmo
