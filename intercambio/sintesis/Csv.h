#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Un registro y la línea del fichero (desde 1) en que empieza.
struct RegistroCsv {
  std::size_t linea = 0;
  std::vector<std::string> campos;
};

/// Parte @p texto en registros separados por comas (RFC 4180: un campo entre comillas puede llevar comas,
/// fines de línea y comillas dobladas). Salta las líneas en blanco y las que empiezan por '#', un CR de fin
/// de línea y la marca de orden de bytes; quita blancos alrededor de los campos sin comillas. Unas comillas
/// sin cerrar llegan hasta el fin del texto.
[[nodiscard]] std::vector<RegistroCsv> PartirCsv(std::string_view texto);

} // namespace tesmo
