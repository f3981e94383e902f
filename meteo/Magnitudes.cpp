#include "meteo/Magnitudes.h"

namespace tesmo {

namespace {

constexpr bool TablaEnOrden() {
  for (std::size_t i = 0; i < MAGNITUDES.size(); ++i) {
    if (static_cast<std::size_t>(MAGNITUDES[i].magnitud) != i) return false;
  }
  return true;
}
static_assert(TablaEnOrden(), "cada fila de la tabla va en la posición de su magnitud");

} // namespace

const FichaMagnitud *BuscarPorRotulo(std::string_view rotulo) {
  for (const Magnitud magnitud : ORDEN_DE_SERIES) {
    if (Ficha(magnitud).rotulo == rotulo) return &Ficha(magnitud);
  }
  return nullptr;
}

const FichaMagnitud *BuscarPorCodigo(std::string_view codigo) {
  for (const FichaMagnitud &ficha : MAGNITUDES) {
    if (ficha.codigo == codigo) return &ficha;
  }
  return nullptr;
}

} // namespace tesmo
