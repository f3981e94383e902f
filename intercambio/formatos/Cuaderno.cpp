#include "intercambio/formatos/Cuaderno.h"

#include "core/Codificacion.h"

#include <utility>

namespace tesmo {

void Cuaderno::Apuntar(NotaLectura nota, std::vector<NotaLectura> &notas, CalladosPorClase &callados) {
  if (nota.ultimaLinea == 0) nota.ultimaLinea = nota.linea;
  Callados &clase = callados[static_cast<std::size_t>(nota.clase)];
  if (++clase.notas <= NOTAS_POR_CLASE) {
    notas.push_back(std::move(nota));
  } else {
    ++clase.calladas;
    clase.ultimaLinea = nota.ultimaLinea;
  }
}

void Cuaderno::Cerrar() {
  const auto cerrar = [](std::vector<NotaLectura> &notas, CalladosPorClase &callados) {
    for (std::size_t clase = 0; clase < callados.size(); ++clase) {
      const Callados &c = callados[clase];
      if (c.calladas == 0) continue;
      NotaLectura nota{.clase = static_cast<ClaseNota>(clase), .linea = c.ultimaLinea};
      nota.ultimaLinea = c.ultimaLinea;
      nota.veces = c.calladas;
      nota.texto = (c.calladas == 1 ? std::string("y otra vez más por lo mismo, en la ")
                                    : "y otras " + std::to_string(c.calladas) +
                                          " veces más por lo mismo, la última en la ") +
                   TextoLineas(c.ultimaLinea, c.ultimaLinea);
      notas.push_back(std::move(nota));
    }
    callados = {};
  };
  cerrar(resultado_.avisos, callados_[0]);
  cerrar(resultado_.errores, callados_[1]);
}

std::string TextoLineas(int primera, int ultima) {
  if (primera == 0) return {};
  if (primera == ultima || ultima == 0) return "línea " + std::to_string(primera);
  return "líneas " + std::to_string(primera) + " a " + std::to_string(ultima) +
         (ultima < primera ? ", dando la vuelta al año" : "");
}

std::string Citado(std::string_view texto) {
  constexpr std::size_t BYTES_CITADOS = 40;
  std::string limpio;
  for (const char c : texto.substr(0, 2 * BYTES_CITADOS))
    limpio += static_cast<unsigned char>(c) < ' ' || c == '\x7F' ? '?' : c;
  limpio = AUtf8(limpio);
  const std::string_view corto = RecortarUtf8(limpio, BYTES_CITADOS);
  return "«" + std::string(corto) + (corto.size() < texto.size() ? "…»" : "»");
}

} // namespace tesmo
