#pragma once

#include "solar/Perfilhorizonte.h"
#include "solar/Tablanumerica.h"

#include <string>
#include <string_view>

namespace tesmo {

/// Clases de listado de horizonte que escriben otros programas.
enum class ClaseListado {
  Pvgis,   ///< horizonte de PVGIS: acimut, altura y, si acaso, las columnas del sol, que no se miran
  Tabla,   ///< acimut y altura
  Alturas, ///< sólo alturas, equidistantes desde el norte hacia el este
};

/// Un listado ya llevado a acimutes desde el sur, oeste positivo, y ordenado por ellos.
struct ListadoHorizonte {
  ClaseListado clase = ClaseListado::Tabla;
  /// El fichero no decía desde dónde cuenta los acimutes: se dedujo de sus valores o de su forma.
  bool origenSupuesto = false;
  PerfilHorizonte perfil;
};

/// Lee un listado de horizonte de @p texto (UTF-8). De dónde se cuentan los acimutes lo dicen las líneas de
/// texto (norte o sur, en español o en inglés, o los títulos de PVGIS); si no lo dicen, un acimut negativo
/// es de un listado desde el sur y uno mayor de 180, desde el norte. Sin línea de texto, seis columnas son la
/// salida básica de PVGIS. Los acimutes van de −360 a 360 y las alturas de −100 a 100.
/// Falso y @p fallo si no es un listado de horizonte.
[[nodiscard]] bool LeerListado(std::string_view texto, ListadoHorizonte &listado, FalloLectura &fallo);

/// ¿Es @p texto una lista de números sueltos con punto decimal, uno por línea, de tres o más? Con una coma
/// no: tras un entero solo, "50,5" es el punto de un perfil nativo, de acimut 50 y altura 5.
[[nodiscard]] bool EsListaDeAlturas(std::string_view texto);

/// @p perfil con las columnas "A" y "H_hor" de PVGIS, desde el sur.
[[nodiscard]] std::string TextoPvgis(const PerfilHorizonte &perfil);
/// @p perfil como tabla de acimut desde el norte hacia el este y altura, por orden de acimut.
[[nodiscard]] std::string TextoTabla(const PerfilHorizonte &perfil);
/// Treinta y seis alturas de @p perfil, cada diez grados desde el norte hacia el este, en una línea separada
/// por comas, como las pide PVGIS. Lo que hay entre ellas se pierde.
[[nodiscard]] std::string TextoAlturas(const PerfilHorizonte &perfil);

} // namespace tesmo
