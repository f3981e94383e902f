#pragma once

#include <optional>
#include <string_view>

namespace tesmo {

/// Sin blancos ni tabuladores alrededor.
[[nodiscard]] std::string_view Recortado(std::string_view texto);

/// Sin blancos ni la comilla con que empieza un campo entrecomillado.
[[nodiscard]] std::string_view SinComilla(std::string_view texto);

/// Un número con punto decimal que ocupa todo @p campo salvo blancos alrededor; signo y exponente admitidos.
/// Vacío si no lo es, si no es finito o si desborda. Redondeado al real doble más próximo.
[[nodiscard]] std::optional<double> LeerNumero(std::string_view campo);

/// Lo mismo con un entero de hasta nueve cifras; se admiten decimales si son ceros ("1.0").
[[nodiscard]] std::optional<int> LeerEntero(std::string_view campo);

} // namespace tesmo
