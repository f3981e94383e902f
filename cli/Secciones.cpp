#include "cli/Secciones.h"

#include <algorithm>

namespace tesmo::cli {

namespace {

std::string ConPrefijo(const Seccion &seccion) {
  const std::string lineas = seccion.tabla.ATexto();
  std::string texto;
  for (std::size_t inicio = 0; inicio < lineas.size();) {
    const std::size_t fin = std::min(lineas.find('\n', inicio), lineas.size() - 1) + 1;
    texto.append(seccion.prefijo).append("\t").append(lineas, inicio, fin - inicio);
    inicio = fin;
  }
  return texto;
}

/// La lista, sin el fin de línea con que acaba.
std::string Lista(const Seccion &seccion) {
  std::string lista = seccion.tabla.AJson();
  lista.pop_back();
  return lista;
}

} // namespace

std::string ComoSecciones(const std::vector<Seccion> &secciones, bool json) {
  std::string texto;
  for (const Seccion &seccion : secciones) {
    if (!json) {
      texto += ConPrefijo(seccion);
      continue;
    }
    texto += texto.empty() ? "{\"" : ",\n\"";
    texto.append(seccion.nombre).append("\":").append(Lista(seccion));
  }
  return json ? texto + "}\n" : texto;
}

} // namespace tesmo::cli
