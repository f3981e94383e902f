#include "psicro/Prefijoreal.h"

#include <charconv>
#include <limits>
#include <optional>

namespace tesmo {

namespace {

bool EsBlanco(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// Lo que no cabe: 0 si el exponente es negativo o si la parte entera es nula, infinito si no.
double FueraDeAlcance(std::string_view numero, std::string_view marcasDeExponente) {
  const std::size_t exponente = numero.find_first_of(marcasDeExponente);
  if (exponente != std::string_view::npos && exponente + 1 < numero.size()) {
    return numero[exponente + 1] == '-' ? 0.0 : std::numeric_limits<double>::infinity();
  }
  const std::string_view entera = numero.substr(0, numero.find('.'));
  const bool nula = entera.find_first_not_of('0') == std::string_view::npos;
  return nula ? 0.0 : std::numeric_limits<double>::infinity();
}

/// Número sin signo al comienzo de @p texto; vacío si no lo hay.
std::optional<double> PrefijoSinSigno(std::string_view texto, std::chars_format formato,
                                      std::string_view marcasDeExponente) {
  double valor = 0.0;
  const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), valor, formato);
  if (error == std::errc::invalid_argument) return std::nullopt;
  if (error == std::errc::result_out_of_range) {
    return FueraDeAlcance(texto.substr(0, static_cast<std::size_t>(fin - texto.data())), marcasDeExponente);
  }
  return valor;
}

std::optional<double> PrefijoSinSigno(std::string_view texto) {
  // from_chars admitiría aquí un segundo signo.
  if (texto.starts_with('-')) return std::nullopt;
  const bool hexadecimal = texto.starts_with("0x") || texto.starts_with("0X");
  if (!hexadecimal) return PrefijoSinSigno(texto, std::chars_format::general, "eE");
  texto.remove_prefix(2);
  if (texto.starts_with('-')) return 0.0;
  return PrefijoSinSigno(texto, std::chars_format::hex, "pP").value_or(0.0);
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
