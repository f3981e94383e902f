#include "intercambio/formatos/Lineas.h"

#include <algorithm>

namespace tesmo {

namespace {

constexpr std::string_view MARCA_ORDEN_BYTES = "\xEF\xBB\xBF";
/// CR que valen con su LF por un solo fin de línea.
constexpr std::size_t RETORNOS_SEGUIDOS = 2;

} // namespace

Lineas::Lineas(std::string_view texto) : texto_(texto) {
  if (texto_.starts_with(MARCA_ORDEN_BYTES)) texto_.remove_prefix(MARCA_ORDEN_BYTES.size());
  proximoSalto_ = std::min(texto_.find('\n'), texto_.size());
}

bool Lineas::Siguiente(std::string_view &linea) {
  if (posicion_ >= texto_.size()) return false;
  ++numero_;
  // El salto se recuerda: buscarlo de nuevo en cada línea acabada en CR sería cuadrático.
  if (proximoSalto_ < posicion_) proximoSalto_ = std::min(texto_.find('\n', posicion_), texto_.size());
  linea = texto_.substr(posicion_, proximoSalto_ - posicion_);
  const std::size_t retorno = linea.find('\r');
  // Un CRLF escrito dos veces por un programa en modo texto es CR CR LF, y no una línea en blanco de más.
  const bool soloRetornos = retorno != std::string_view::npos &&
                            linea.size() - retorno <= RETORNOS_SEGUIDOS && proximoSalto_ < texto_.size() &&
                            linea.find_first_not_of('\r', retorno) == std::string_view::npos;
  linea = linea.substr(0, retorno);
  posicion_ = soloRetornos ? proximoSalto_ + 1 : posicion_ + linea.size() + 1;
  return true;
}

bool EsLineaVacia(std::string_view linea) {
  constexpr std::string_view NADA(" \t\v\f\r\0\x1A", 7);
  return linea.find_first_not_of(NADA) == std::string_view::npos;
}

std::string_view SiguienteConTexto(Lineas &lineas) {
  for (std::string_view linea; lineas.Siguiente(linea);) {
    if (!EsLineaVacia(linea)) return linea;
  }
  return {};
}

} // namespace tesmo
