#pragma once

#include <string>
#include <string_view>

namespace tesmo {

/// Nombre de una localidad en una sola palabra ASCII: letras sin acento, cifras, punto, guion y subrayado;
/// cada palabra empieza con mayúscula ("Morón de la Frontera" da "MoronDeLaFrontera"). Sirve de clave en
/// GDR.TXT y de nombre de fichero, así que nada de lo que queda puede salir de un directorio.
/// Vacío si @p nombre no tiene ninguna letra ni cifra.
[[nodiscard]] std::string NombreCorto(std::string_view nombre);

} // namespace tesmo
