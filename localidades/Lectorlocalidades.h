#pragma once

#include "localidades/Objetociudad.h"

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Destino de los avisos sobre líneas defectuosas del fichero, uno por llamada y sin fin de línea.
using AvisoLocalidades = std::function<void(const std::string &)>;

/// Campos de una línea de localidad, por su orden en el fichero: nombre, nombre corto, provincia, cuarto,
/// localidad de referencia, fichero, latitud, longitud, longitud de referencia, décimo y undécimo.
inline constexpr std::size_t CAMPOS_LOCALIDAD = 11;
using CamposLocalidad = std::array<std::string, CAMPOS_LOCALIDAD>;

/// Registro hecho con los textos de una línea. Los números admiten punto o coma; lo que no es un número da 0
/// y se dice a @p malo con la posición (desde 0) del campo.
[[nodiscard]] ObjetoCiudad CrearObjetoCiudad(const CamposLocalidad &campos,
                                             const std::function<void(std::size_t)> &malo);

/// Lee el texto de un fichero de localidades: bloques de una línea con su cuenta y otras tantas localidades.
/// UTF-8 o Windows-1252, según lo que sea el fichero entero; los límites son bytes del fichero: 299 por línea
/// (lo que pase es la línea siguiente) y 49 por campo (lo que pase se pierde). Al último bloque, si es corto,
/// se le repite la última línea, 10 000 veces como mucho. No rechaza nada: avisa con fichero, línea y campo.
/// @param fichero nombre que llevan los avisos
[[nodiscard]] std::vector<std::unique_ptr<ObjetoCiudad>>
LeerLocalidades(std::string_view contenido, const std::string &fichero, const AvisoLocalidades &aviso);

} // namespace tesmo
