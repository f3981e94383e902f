#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tesmo {

/// Lector de textos de claves ("CLAVE = valor"): todo el fichero es un solo texto, los fines de línea son
/// blancos y los blancos seguidos cuentan como uno.
class LectorClaves {
public:
  LectorClaves() = default;
  /// @p contenido en UTF-8 o en Windows-1252.
  explicit LectorClaves(std::string_view contenido);

  /// Valor de @p clave, sin comillas, en @p destino. La clave se busca como subcadena desde el principio y
  /// gana la primera aparición; si está en el primer carácter cuenta como ausente (se conserva).
  /// Devuelve 0, o −1 si falta la clave o su '=', y entonces @p destino queda como estaba.
  int LeerClave(std::string_view clave, std::string &destino) const;
  /// Lo mismo con un número en punto decimal; −1 también si tras el '=' no hay un número.
  int LeerClaveReal(std::string_view clave, float &destino) const;

private:
  [[nodiscard]] std::size_t PosicionDelValor(std::string_view clave) const;
  std::string texto_;
};

/// Quien da los bytes de un fichero; vacío si no se puede leer.
using LeerBytes = std::function<std::optional<std::string>(const std::filesystem::path &)>;

/// Las claves de @p ruta; vacío si no hay un fichero que se pueda leer. Si no queda memoria para su texto
/// escribe "No hay suficiente memoria.\n" en la salida estándar y aborta el programa.
/// @param leer de dónde salen los bytes; sin ella, del disco (LeerFicheroEntero)
[[nodiscard]] std::optional<LectorClaves> LeerFicheroDeClaves(const std::filesystem::path &ruta,
                                                              const LeerBytes &leer = {});

} // namespace tesmo
