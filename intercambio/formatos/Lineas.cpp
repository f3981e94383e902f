#include "intercambio/formatos/Lineas.h"

#include <algorithm>

namespace tesmo {

namespace {

constexpr std::string_view MARCA_ORDEN_BYTES = "\xEF\xBB\xBF";

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
  linea = linea.substr(0, linea.find('\r'));
  posicion_ += linea.size();
  posicion_ += texto_.substr(posicion_).starts_with("\r\n") ? 2 : 1;
  return true;
}

bool EsLineaVacia(std::string_view linea) {
  constexpr std::string_view NADA(" \t\v\f\r\0\x1A", 7);
  return linea.find_first_not_of(NADA) == std::string_view::npos;
}

} // namespace tesmo
