#pragma once

#include "meteo/Magnitudes.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tesmo {

class LectorClaves;

/// La configuración que se guarda es la de los colores: los de las 21 magnitudes del visor, en su orden,
/// enteros 0x00BBGGRR. Empieza con los de fábrica.
class Configuracion {
public:
  Configuracion();

  /// Color de la magnitud @p i, o @p porDefecto si @p i no es de 0 a 20.
  [[nodiscard]] std::uint32_t dameColor(int i, std::uint32_t porDefecto) const;
  /// Otro índice que 0 a 20 se ignora.
  void ponColor(int i, std::uint32_t color);

  /// Toma los colores de "tesmo.inp", en el directorio del programa; si falta, la tabla queda como está. Una
  /// clave ausente da a su color el de la clave anterior: como la de la altura se escribe de otro modo, tras
  /// guardar y leer la altura queda del color del cénit (se conserva). Tras una escritura fallida no lee
  /// nada: el fichero tiene los colores de antes y valen los de la tabla.
  void leer();
  /// Lo mismo con el contenido de un fichero.
  void leerTexto(std::string_view contenido);
  /// Escribe "tesmo.inp" entero. Si no se puede devuelve falso y no dice nada.
  bool escribirConfiguracion();
  /// Los bytes de ese fichero, en Windows-1252.
  [[nodiscard]] std::string Bytes() const;

private:
  void Tomar(const LectorClaves &lector);

  std::array<std::uint32_t, NUMERO_MAGNITUDES_VISOR> colores_{};
  bool sinGuardar_ = false; ///< la última escritura falló
};

/// La tabla compartida, creada la primera vez que se pide.
Configuracion &DameTablaDeColores();
/// La olvida; la próxima petición la crea otra vez con los colores de fábrica.
void LiberarTablaDeColores();

} // namespace tesmo
