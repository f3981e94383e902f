#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace tesmo::cli {

/// Interpreta @p argumentos (sin el nombre del programa), hace lo que piden y devuelve el estado de salida:
/// 0 hecho, 2 uso incorrecto, 3 falta una entrada, 4 no se pudo escribir una salida. Los resultados van a
/// @p salida; errores, avisos y mensajes, a @p error.
int Ejecutar(const std::vector<std::string> &argumentos, std::ostream &salida, std::ostream &error);

} // namespace tesmo::cli
