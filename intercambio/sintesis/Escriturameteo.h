#pragma once

#include "intercambio/sintesis/Aniosintetico.h"

#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Con esto empieza la primera línea de los ficheros que hace la síntesis: así se los reconoce después.
inline constexpr std::string_view MARCA_SINTESIS = "Año sintético de Tesmo";

/// Texto del .met de quince columnas (mes, día, hora, diez magnitudes y dos ceros). La primera línea dice que
/// el año es sintético y qué cifras son estimadas; la segunda, latitud, longitud, altitud y meridiano de la
/// hora oficial.
[[nodiscard]] std::string TextoMetSintetico(const NormalesLocalidad &localidad, const AnioSintetico &anio);

/// Texto de LocalidadesCC: un bloque por provincia, en el orden en que aparecen.
[[nodiscard]] std::string TextoLocalidades(const std::vector<NormalesLocalidad> &localidades);

/// Texto de GDR.TXT: siete líneas por localidad, la cabecera con la altitud (ALT=) tras sus seis campos.
[[nodiscard]] std::string TextoGdr(const std::vector<NormalesLocalidad> &localidades);

/// Nombre del fichero climático de una localidad.
[[nodiscard]] std::string FicheroMet(const NormalesLocalidad &localidad);

} // namespace tesmo
