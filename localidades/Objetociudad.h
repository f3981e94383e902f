#pragma once

#include <string>
#include <string_view>

namespace tesmo {

/// Una localidad de la base de datos, tal como se leyó. Textos en UTF-8.
struct ObjetoCiudad {
  std::string provincia, localidad, localidadCorta, cuarto, localidadRef, fichero;
  float latitud = 0.0F;     ///< [°, norte positivo]
  float longitud = 0.0F;    ///< [°, este positivo]
  float longitudRef = 0.0F; ///< [°]
  float decimo = 0.0F;      ///< sin uso; se guarda como se leyó
  float undecimo = 0.0F;    ///< sin uso; se guarda como se leyó
  std::string zona;         ///< siempre vacía

  /// Atributo por su nombre: "Ciudad" y "Localidad" (el mismo campo), "Provincia", "Localidad Corta",
  /// "LocalidadRef", "Fichero", "Zona", "Latitud" con dos decimales, "Longitud" y "LongitudRef" con quince
  /// cifras; los números, con el separador decimal regional. Vacío si el nombre no se conoce.
  [[nodiscard]] std::string DameTexto(std::string_view nombre) const;
};

} // namespace tesmo
