#pragma once

#include "extremos/Calculodias.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tesmo::extremos {

/// Fichero de un día de proyecto: localidad y provincia, encabezado y 24 filas, con el separador decimal de
/// la región en vigor y separadas por tabuladores. La fila de la hora h, de 0 a 23, va centrada en h + 0,5.
[[nodiscard]] std::string TextoDeDia(const DiaDeProyecto &dia, int mes, std::string_view localidad,
                                     std::string_view provincia);

/// Bloque que un cálculo añade al fichero de salida. La primera columna de los grados va uno por encima del
/// grado de la fila (se conserva).
[[nodiscard]] std::string TextoDeSalida(const ResultadoDias &resultado);

/// Una línea de la traza: nombre y valores.
using LineaDeTraza = std::pair<std::string, std::vector<double>>;

/// Los pasos intermedios, en el orden del cálculo, y las seis distribuciones acumuladas de −49 a 50 °C.
[[nodiscard]] std::vector<LineaDeTraza> LineasDeTraza(const ResultadoDias &resultado);

} // namespace tesmo::extremos
