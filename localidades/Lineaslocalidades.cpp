#include "localidades/Lineaslocalidades.h"

#include "core/Codificacion.h"
#include "core/Varios.h"

#include <algorithm>

namespace tesmo {

namespace {

constexpr std::string_view MARCA_UTF8 = "\xEF\xBB\xBF";

} // namespace

LineasLocalidades::LineasLocalidades(std::string_view contenido)
    : contenido_(contenido), posicion_(contenido.starts_with(MARCA_UTF8) ? MARCA_UTF8.size() : 0),
      utf8_(EsUtf8(contenido.substr(posicion_))) {}

std::string_view LineasLocalidades::Siguiente() {
  if (!partida_) ++numero_;
  // No se mira más allá de una línea con su CR LF: así el coste no depende de lo que quede por leer.
  const std::string_view cerca = contenido_.substr(posicion_, BYTES_LINEA_LOCALIDADES + 2);
  const std::size_t fin = std::min(cerca.find('\n'), cerca.size());
  std::string_view linea = cerca.substr(0, fin);
  if (linea.ends_with('\r')) linea.remove_suffix(1);
  partida_ = linea.size() > BYTES_LINEA_LOCALIDADES;
  if (partida_) {
    linea = utf8_ ? RecortarUtf8(linea, BYTES_LINEA_LOCALIDADES) : linea.substr(0, BYTES_LINEA_LOCALIDADES);
  }
  posicion_ = std::min(posicion_ + (partida_ ? linea.size() : fin + 1), contenido_.size());
  return linea.substr(0, linea.find('\0'));
}

std::vector<std::string_view> TrocearLineaDeLocalidades(std::string_view linea) {
  std::vector<std::string_view> trozos;
  while (true) {
    const std::size_t coma = linea.find(',');
    trozos.push_back(linea.substr(0, coma));
    if (coma == std::string_view::npos) return trozos;
    linea.remove_prefix(coma + 1);
    linea.remove_prefix(std::min(linea.find_first_not_of(" \t"), linea.size()));
  }
}

std::optional<int> CuentaDeLocalidades(std::string_view linea) {
  const std::string_view campo = TrocearLineaDeLocalidades(linea).front();
  const std::size_t cifra = campo.find_first_not_of(" \t");
  if (cifra == std::string_view::npos) return 0;
  if (campo[cifra] < '0' || campo[cifra] > '9') return std::nullopt;
  return PrefijoEntero(campo);
}

std::string CampoDeLocalidades(std::string_view bytes, bool utf8) {
  if (!utf8) return DesdeWindows1252(bytes.substr(0, BYTES_CAMPO_LOCALIDADES));
  return std::string(RecortarUtf8(bytes, BYTES_CAMPO_LOCALIDADES));
}

} // namespace tesmo
