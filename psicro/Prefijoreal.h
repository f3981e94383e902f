#pragma once

#include <string_view>

namespace tesmo {

/// El número con que empieza @p texto, como lo lee la biblioteca de C en la región C: blancos delante, signo,
/// decimal con punto y exponente, hexadecimal con 0x, inf y nan. 0 si no empieza por ninguno; lo que no cabe
/// en un real doble da infinito o 0.
[[nodiscard]] double PrefijoReal(std::string_view texto);

} // namespace tesmo
