#pragma once

#include <cstddef>
#include <string_view>

namespace tesmo {

/// Recorre un texto línea a línea sin copiarlo; las líneas acaban en LF, CRLF o CR, mezclados o no. Salta la
/// marca de orden de bytes del principio.
class Lineas {
public:
  explicit Lineas(std::string_view texto);

  /// La línea siguiente, sin su fin, en @p linea; falso si no queda ninguna.
  bool Siguiente(std::string_view &linea);
  /// Número, desde 1, de la última línea que se dio.
  [[nodiscard]] int Numero() const { return numero_; }

private:
  std::string_view texto_;
  std::size_t posicion_ = 0;
  std::size_t proximoSalto_ = 0; ///< primer LF desde la posición, o el fin del texto
  int numero_ = 0;
};

/// ¿Sin nada que leer? Blancos, bytes nulos y la marca de fin de texto (0x1A) no son nada.
[[nodiscard]] bool EsLineaVacia(std::string_view linea);

/// La siguiente que no está vacía; vacía al acabarse.
[[nodiscard]] std::string_view SiguienteConTexto(Lineas &lineas);

} // namespace tesmo
