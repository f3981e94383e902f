#include "intercambio/formatos/Columnasporrotulo.h"

#include "core/Codificacion.h"

#include <string>

namespace tesmo {

std::vector<ColumnaClima> ColumnasPorRotulo(std::string_view cabecera, char separador,
                                            const std::vector<ColumnaRotulada> &rotulos, int linea,
                                            Cuaderno &cuaderno) {
  constexpr std::size_t COLUMNAS_MAXIMAS = 200;
  CamposLinea campos;
  PartirLinea(cabecera, separador, COLUMNAS_MAXIMAS, campos);
  std::vector<ColumnaClima> columnas;
  for (const ColumnaRotulada &rotulada : rotulos) {
    const std::string buscado = PlegarMinusculas(rotulada.rotulo);
    std::size_t i = 0;
    while (i < campos.size() && PlegarMinusculas(campos[i]) != buscado) ++i;
    if (i < campos.size()) {
      columnas.push_back({i, rotulada.campo, rotulada.factor, 0.0, rotulada.ausente});
      continue;
    }
    cuaderno.Aviso({.clase = ClaseNota::Cabecera,
                    .campo = rotulada.campo,
                    .linea = linea,
                    .texto = "línea " + std::to_string(linea) + ": no hay columna «" +
                             std::string(rotulada.rotulo) + "» (" + std::string(NombreCampo(rotulada.campo)) +
                             ")"});
  }
  return columnas;
}

} // namespace tesmo
