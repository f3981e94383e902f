#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tesmo {

/// @p texto como campo de "LocalidadesCC": comas y caracteres de control pasan a blancos, los blancos
/// seguidos se juntan, los de los extremos se quitan, los acentos sueltos se unen a su letra
/// (ComponerAcentos) y se corta a 49 bytes sin partir un carácter.
[[nodiscard]] std::string TextoDeCampo(std::string_view texto);

/// Nombre corto para la localidad @p nombre, libre según @p ocupado: letras sin acento, cifras, punto, guion
/// y subrayado, sin punto ni guion delante, 40 bytes como mucho y nunca un nombre de dispositivo ("CON").
/// "Localidad" si de @p nombre no queda nada. Si está ocupado se le añade -2, -3… Con ".met" detrás es un
/// nombre de fichero que no sale de su directorio.
[[nodiscard]] std::string CortoLibre(std::string_view nombre,
                                     const std::function<bool(const std::string &)> &ocupado);

/// ¿Es @p texto el nombre de un fichero, sin directorio ni caracteres que algún sistema no admita?
[[nodiscard]] bool EsNombreDeFichero(std::string_view texto);

} // namespace tesmo
