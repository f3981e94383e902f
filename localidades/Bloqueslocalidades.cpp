#include "localidades/Bloqueslocalidades.h"

#include "localidades/Lineaslocalidades.h"

#include <algorithm>

namespace tesmo {

namespace {

/// Sitio de las cifras de la cuenta, que empieza en @p inicio.
void SituarCuenta(std::string_view linea, std::size_t inicio, BloqueDeLocalidades &bloque) {
  const std::size_t primera = std::min(linea.find_first_of("0123456789"), linea.size());
  const std::size_t ultima = std::min(linea.find_first_not_of("0123456789", primera), linea.size());
  bloque.inicioCuenta = inicio + primera;
  bloque.finCuenta = inicio + ultima;
}

LineaDeBloque LeerLinea(LineasLocalidades &lineas) {
  LineaDeBloque leida;
  leida.inicio = lineas.Posicion();
  const std::vector<std::string_view> trozos = TrocearLineaDeLocalidades(lineas.Siguiente());
  leida.fin = lineas.Posicion();
  for (std::size_t i = 0; i < std::min(trozos.size(), CAMPOS_LOCALIDAD); ++i)
    leida.campos[i] = CampoDeLocalidades(trozos[i], lineas.Utf8());
  return leida;
}

} // namespace

std::vector<BloqueDeLocalidades> BloquesDeLocalidades(std::string_view contenido) {
  std::vector<BloqueDeLocalidades> bloques;
  LineasLocalidades lineas(contenido);
  while (lineas.Quedan()) {
    BloqueDeLocalidades bloque;
    const std::size_t inicio = lineas.Posicion();
    const std::string_view linea = lineas.Siguiente();
    bloque.cuenta = CuentaDeLocalidades(linea).value_or(0);
    if (bloque.cuenta <= 0) continue;
    SituarCuenta(linea, inicio, bloque);
    for (int i = 0; i < bloque.cuenta && lineas.Quedan(); ++i) bloque.lineas.push_back(LeerLinea(lineas));
    bloque.fin = lineas.Posicion();
    bloques.push_back(std::move(bloque));
  }
  return bloques;
}

} // namespace tesmo
