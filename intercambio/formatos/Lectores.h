#pragma once

#include "intercambio/formatos/Cuaderno.h"

#include <string_view>

namespace tesmo {

/// Un lector por formato: pone en @p anio el sitio, el reloj que propone el formato y los valores de
/// @p texto, y apunta lo que haya que decir. Ninguno tapa los huecos.

/// EPW de cualquier edición, y el que publica PVGIS (@p anio.formato dice cuál).
void LeerEpw(std::string_view texto, AnioCanonico &anio, Cuaderno &cuaderno);
/// CSV de año típico de PVGIS.
void LeerPvgisCsv(std::string_view texto, AnioCanonico &anio, Cuaderno &cuaderno);
/// TMY3 en CSV.
void LeerTmy3(std::string_view texto, AnioCanonico &anio, Cuaderno &cuaderno);
/// .met de trece columnas.
void LeerMetTrece(std::string_view texto, AnioCanonico &anio, Cuaderno &cuaderno);
/// .met de quince columnas, con las mismas reglas que LeerTextoMet pero anotando líneas y faltas.
void LeerMetQuince(std::string_view texto, AnioCanonico &anio, Cuaderno &cuaderno);
/// Texto delimitado cualquiera, según @p mapa.
void LeerDelimitado(std::string_view texto, const MapaColumnas &mapa, AnioCanonico &anio, Cuaderno &cuaderno);

} // namespace tesmo
