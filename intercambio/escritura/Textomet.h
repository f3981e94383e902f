#pragma once

#include "intercambio/conversion/Aniosolar.h"

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace tesmo {

/// Columnas 4 a 13 de un .met, en su orden: temperatura seca y de cielo [°C], radiación directa y difusa
/// horizontales [W/m²], humedad absoluta [kg/kg] y relativa [%], velocidad [m/s] y dirección [° desde el
/// norte] del viento, acimut [°, 0 al sur, oeste positivo] y cenit solares [°]. Cada una, de 8.760 valores.
inline constexpr std::size_t COLUMNAS_MET = 10;
using ColumnasMet = std::array<std::span<const double>, COLUMNAS_MET>;

/// Las diez de @p anio, que ha de vivir tanto como ellas.
[[nodiscard]] ColumnasMet ColumnasDe(const AnioSolar &anio);

/// Las dos líneas que encabezan un .met.
struct CabeceraMet {
  std::string primera;  ///< texto libre; sin fin de línea
  double latitud = 0;   ///< [°, norte positivo]
  double longitud = 0;  ///< [°, este positivo]
  double altitud = 0;   ///< [m]
  double meridiano = 0; ///< el de la hora oficial [°, este positivo]
};

/// El texto entero de un .met de quince columnas: mes, día, hora, las diez de @p columnas y dos ceros, con
/// fines de línea LF. La segunda línea lleva cuatro números: con tres, el lector perdería el primer registro.
[[nodiscard]] std::string TextoMet(const CabeceraMet &cabecera, const ColumnasMet &columnas);

/// Un número con las cifras que hagan falta, quince como mucho, y punto decimal.
[[nodiscard]] std::string NumeroDeFichero(double valor);

} // namespace tesmo
