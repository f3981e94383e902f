#include "core/Ordenmagnitud.h"

#include <algorithm>

namespace tesmo {

namespace {

constexpr std::int64_t BITS_POR_CIFRA_HEXADECIMAL = 4;

/// Lugar de la primera cifra que no es cero respecto al punto: 1 para las unidades, 0 para la primera cifra
/// de la fracción.
std::int64_t LugarDeLaPrimeraCifra(std::string_view mantisa) {
  const auto punto = static_cast<std::int64_t>(std::min(mantisa.find('.'), mantisa.size()));
  const auto primera = static_cast<std::int64_t>(std::min(mantisa.find_first_not_of("0."), mantisa.size()));
  return primera < punto ? punto - primera : punto + 1 - primera;
}

} // namespace

std::int64_t LeerExponente(std::string_view texto) {
  constexpr std::int64_t TOPE = 100'000'000'000'000'000;
  const bool negativo = texto.starts_with('-');
  if (negativo || texto.starts_with('+')) texto.remove_prefix(1);
  std::int64_t exponente = 0;
  for (const char c : texto) exponente = std::min(TOPE, exponente * 10 + (c - '0'));
  return negativo ? -exponente : exponente;
}

bool EsEnorme(std::string_view numero, BaseReal base) {
  const bool hexadecimal = base == BaseReal::Hexadecimal;
  const std::size_t marca = std::min(numero.find_first_of(hexadecimal ? "pP" : "eE"), numero.size());
  const std::int64_t lugar = LugarDeLaPrimeraCifra(numero.substr(0, marca));
  const std::int64_t orden = hexadecimal ? lugar * BITS_POR_CIFRA_HEXADECIMAL : lugar;
  if (marca == numero.size()) return orden > 0;
  return orden + LeerExponente(numero.substr(marca + 1)) > 0;
}

} // namespace tesmo
