#pragma once

#include <cstdint>
#include <string_view>

namespace tesmo {

/// Base en que está escrito un número, con la letra de su exponente: 'e' o 'p'.
enum class BaseReal { Decimal, Hexadecimal };

/// Valor del exponente @p texto (signo y cifras, tras su letra), saturado mucho más allá de las cifras que
/// caben en la memoria; 0 si no tiene cifras.
[[nodiscard]] std::int64_t LeerExponente(std::string_view texto);

/// Si un número que no cabe en un real desborda (cierto) o se queda en cero (falso): lo decide el orden de
/// magnitud de su primera cifra que no es cero.
/// @param numero cifras, punto y exponente, sin signo ni "0x"
[[nodiscard]] bool EsEnorme(std::string_view numero, BaseReal base);

} // namespace tesmo
