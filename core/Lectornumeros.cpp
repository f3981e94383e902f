#include "core/Lectornumeros.h"

#include <algorithm>
#include <charconv>

namespace tesmo {

namespace {

constexpr std::string_view BLANCOS = " \t\n\v\f\r";

} // namespace

std::string_view LectorNumeros::Palabra() {
  SaltarBlancos();
  const std::string_view resto = flujo_.Resto();
  const std::string_view palabra = resto.substr(0, resto.find_first_of(BLANCOS));
  flujo_.Avanzar(palabra.size());
  return palabra;
}

std::string_view LectorNumeros::RestoDeLinea(std::size_t maximo) {
  const std::string_view resto = flujo_.Resto();
  const std::size_t fin = std::min(resto.find('\n'), resto.size());
  const bool conRetorno = fin > 0 && fin < resto.size() && resto[fin - 1] == '\r';
  const std::string_view linea = resto.substr(0, conRetorno ? fin - 1 : fin);
  flujo_.Avanzar(linea.size() > maximo ? maximo : fin + 1);
  return linea.substr(0, maximo);
}

int LectorNumeros::Linea() const {
  const auto posicion = static_cast<std::ptrdiff_t>(flujo_.Posicion());
  return 1 + static_cast<int>(std::count(texto_.begin(), texto_.begin() + posicion, '\n'));
}

bool LectorNumeros::Literal(char c) {
  const std::string_view resto = flujo_.Resto();
  if (resto.empty() || resto.front() != c) return false;
  flujo_.Avanzar(1);
  return true;
}

std::optional<int> LectorNumeros::Entero() {
  SaltarBlancos();
  const bool negativo = Literal('-');
  if (!negativo) Literal('+');
  const std::string_view resto = flujo_.Resto();
  const std::size_t n = std::min(resto.find_first_not_of("0123456789"), resto.size());
  flujo_.Avanzar(n);
  int valor = 0;
  if (n == 0 || std::from_chars(resto.data(), resto.data() + n, valor).ec != std::errc()) return std::nullopt;
  return negativo ? -valor : valor;
}

std::optional<float> LectorNumeros::Real() {
  float valor = 0.0F;
  return flujo_.LeerReal(valor) ? std::optional<float>(valor) : std::nullopt;
}

} // namespace tesmo
