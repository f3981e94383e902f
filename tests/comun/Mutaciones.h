#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tesmo::prueba {

/// Cómo se estropea un texto: los bytes que se meten y cuánto, como mucho, se hace de una vez.
struct Estropicio {
  std::string_view bytes;
  std::uint64_t cambios;    ///< sitios tocados
  std::uint64_t borrados;   ///< bytes quitados de un sitio
  std::uint64_t repeticion; ///< menos de tantos bytes repetidos en su sitio
};

/// Estropea @p texto en unos pocos sitios: bytes cambiados, metidos, quitados, repetidos o un corte.
/// @param azar cada llamada da un entero sin signo
template <typename Azar>
[[nodiscard]] std::string Mutar(std::string texto, const Estropicio &estropicio, Azar &&azar) {
  const std::uint64_t cambios = 1 + azar() % estropicio.cambios;
  for (std::uint64_t i = 0; i < cambios && !texto.empty(); ++i) {
    const std::size_t donde = azar() % texto.size();
    const char byte = estropicio.bytes[azar() % estropicio.bytes.size()];
    switch (azar() % 5) {
    case 0:
      texto[donde] = byte;
      break;
    case 1:
      texto.insert(donde, 1, byte);
      break;
    case 2:
      texto.erase(donde, 1 + azar() % estropicio.borrados);
      break;
    case 3:
      texto.insert(donde, texto.substr(donde, azar() % estropicio.repeticion));
      break;
    default:
      if (azar() % 8 == 0) texto.resize(donde);
    }
  }
  return texto;
}

} // namespace tesmo::prueba
