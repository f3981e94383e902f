#include "localidades/Objetociudad.h"

#include "core/Configuracionregional.h"
#include "core/Formato.h"

namespace tesmo {

std::string ObjetoCiudad::DameTexto(std::string_view nombre) const {
  const char separador = Configuracionregional::SeparadorDecimal();
  if (nombre == "Ciudad" || nombre == "Localidad") return localidad;
  if (nombre == "Provincia") return provincia;
  if (nombre == "Localidad Corta") return localidadCorta;
  if (nombre == "LocalidadRef") return localidadRef;
  if (nombre == "Fichero") return fichero;
  if (nombre == "Latitud") return FormatearPatron(static_cast<double>(latitud), "0.00");
  if (nombre == "Longitud") return FormatoGeneral15(static_cast<double>(longitud), separador);
  if (nombre == "LongitudRef") return FormatoGeneral15(static_cast<double>(longitudRef), separador);
  if (nombre == "Zona") return zona;
  return {};
}

} // namespace tesmo
