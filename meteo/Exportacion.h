#pragma once

#include "meteo/Fecha.h"
#include "meteo/Magnitudes.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Una columna del fichero de exportación: su nombre y sus valores ya en texto, uno por hora del período.
class ColumnaExportacion {
public:
  /// Da forma a @p valores con el patrón de @p ficha y el separador decimal @p decimal.
  ColumnaExportacion(const FichaMagnitud &ficha, std::span<const float> valores, char decimal);

  [[nodiscard]] std::string_view Nombre() const { return nombre_; }
  [[nodiscard]] std::size_t Horas() const { return fines_.size(); }
  /// Texto de la hora @p k del período; vacío si no la hay.
  [[nodiscard]] std::string_view Valor(std::size_t k) const;

private:
  std::string_view nombre_;
  std::string texto_;                ///< los valores, uno tras otro
  std::vector<std::uint32_t> fines_; ///< dónde acaba cada uno
};

/// Lo que precede a las columnas en el fichero.
struct EncabezamientoExportacion {
  bool cabecera = true;  ///< si se escriben las dos líneas de la localidad y el sitio
  std::string localidad; ///< vacía: su línea queda en blanco
  float latitud = 0;     ///< [°]
  float longitud = 0;    ///< [°]
  float tercerDato = 0;  ///< altitud [m]
  float orientacion = 0; ///< [°]
  float inclinacion = 0; ///< [°]
  float albedo = 0;      ///< 0 a 1
  std::string separador; ///< entre campos, y también tras el último (se conserva)
};

/// El texto entero del fichero de exportación: encabezamiento, línea de nombres y una línea por hora desde
/// @p inicio, avanzando hora a hora.
[[nodiscard]] std::string TextoExportacion(const EncabezamientoExportacion &encabezamiento,
                                           const std::vector<ColumnaExportacion> &columnas, FechaHora inicio,
                                           std::size_t horas);

/// Líneas de ese texto.
[[nodiscard]] constexpr std::size_t LineasDeExportacion(bool cabecera, std::size_t horas) {
  constexpr std::size_t LINEAS_DE_LA_LOCALIDAD = 2;
  constexpr std::size_t LINEAS_DE_SUPERFICIE_Y_NOMBRES = 2;
  return (cabecera ? LINEAS_DE_LA_LOCALIDAD : 0) + LINEAS_DE_SUPERFICIE_Y_NOMBRES + horas;
}

} // namespace tesmo
