#include "vistas/grafico/Lectura.h"

#include "core/Configuracionregional.h"
#include "core/Formato.h"
#include "meteo/Magnitudes.h"

#include <algorithm>

namespace tesmo {

namespace {

void AnadirCampo(std::string &linea, std::string_view campo) {
  if (!linea.empty()) linea += '\t';
  linea += campo;
}

std::string NumeroRegional(double valor) {
  std::string texto = FormatoG9(valor);
  std::ranges::replace(texto, '.', Configuracionregional::SeparadorDecimal());
  return texto;
}

} // namespace

std::string LineaDeLectura(std::string_view rotulo, double valor, std::string_view patron) {
  const std::string_view unidad = UnidadDeRotulo(rotulo);
  std::string_view nombre = rotulo.substr(0, rotulo.find('('));
  while (nombre.ends_with(' ')) nombre.remove_suffix(1);
  std::string linea(nombre);
  linea += ": " + FormatearPatron(valor, patron);
  if (!unidad.empty()) linea.append(" ").append(unidad);
  return linea;
}

std::string TablaDeTexto(const EscalaX &escala, std::span<const double> x,
                         std::span<const ColumnaTexto> columnas) {
  std::string linea;
  for (const std::string &campo : escala.Encabezamientos()) AnadirCampo(linea, campo);
  for (const ColumnaTexto &columna : columnas) AnadirCampo(linea, columna.rotulo);
  std::string tabla = linea + "\n";
  for (std::size_t k = 0; k < x.size(); ++k) {
    linea.clear();
    for (const std::string &campo : escala.Campos(x[k])) AnadirCampo(linea, campo);
    for (const ColumnaTexto &columna : columnas) AnadirCampo(linea, NumeroRegional(columna.y[k]));
    tabla += linea + "\n";
  }
  return tabla;
}

} // namespace tesmo
