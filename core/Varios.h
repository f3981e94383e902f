#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tesmo {

/// Reescribe el separador decimal al regional: con punto, cada coma pasa a punto; si no, cada punto a coma.
/// El último carácter no se examina (se conserva así).
void AjustarSeparador(std::string &texto);

/// Convierte un número tecleado con el separador regional: blancos alrededor, signo, cifras, un separador y
/// exponente. Ni nan, ni inf, ni separadores de millares. Vacío si @p texto no es exactamente eso.
[[nodiscard]] std::optional<double> TextoAReal(std::string_view texto);

/// AjustarSeparador y TextoAReal: el número que alguien tecleó, con cualquiera de los dos separadores.
[[nodiscard]] std::optional<double> RealTecleado(std::string_view texto);

/// RealTecleado; lo que no es un número da 0 y pone @p correcto a falso.
[[nodiscard]] float TextoARealOCero(std::string_view texto, bool &correcto);

/// El prefijo entero de @p texto (blancos, signo, cifras), saturado a 32 bits; 0 si no lo hay.
[[nodiscard]] int PrefijoEntero(std::string_view texto);

} // namespace tesmo
