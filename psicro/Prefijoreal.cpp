#include "psicro/Prefijoreal.h"

#include "core/Caracteres.h"
#include "core/Ordenmagnitud.h"

#include <charconv>
#include <limits>
#include <optional>

namespace tesmo {

namespace {

/// Número sin signo al comienzo de @p texto; vacío si no lo hay.
std::optional<double> PrefijoSinSigno(std::string_view texto, BaseReal base) {
  const auto formato = base == BaseReal::Hexadecimal ? std::chars_format::hex : std::chars_format::general;
  double valor = 0.0;
  const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), valor, formato);
  if (error == std::errc::invalid_argument) return std::nullopt;
  if (error == std::errc::result_out_of_range) {
    const std::string_view numero = texto.substr(0, static_cast<std::size_t>(fin - texto.data()));
    return EsEnorme(numero, base) ? std::numeric_limits<double>::infinity() : 0.0;
  }
  return valor;
}

std::optional<double> PrefijoSinSigno(std::string_view texto) {
  // from_chars admitiría aquí un segundo signo.
  if (texto.starts_with('-')) return std::nullopt;
  const bool hexadecimal = texto.starts_with("0x") || texto.starts_with("0X");
  if (!hexadecimal) return PrefijoSinSigno(texto, BaseReal::Decimal);
  texto.remove_prefix(2);
  if (texto.starts_with('-')) return 0.0;
  return PrefijoSinSigno(texto, BaseReal::Hexadecimal).value_or(0.0);
}

} // namespace

double PrefijoReal(std::string_view texto) {
  while (!texto.empty() && EsBlanco(texto.front())) texto.remove_prefix(1);
  const bool negativo = texto.starts_with('-');
  if (negativo || texto.starts_with('+')) texto.remove_prefix(1);
  const std::optional<double> valor = PrefijoSinSigno(texto);
  if (!valor) return 0.0;
  return negativo ? -*valor : *valor;
}

} // namespace tesmo
