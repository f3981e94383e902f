#include "core/Varios.h"

#include "core/Caracteres.h"
#include "core/Configuracionregional.h"
#include "core/Lectornumeros.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace tesmo {

namespace {

std::string_view SinBlancos(std::string_view texto) {
  while (!texto.empty() && EsBlanco(texto.front())) texto.remove_prefix(1);
  while (!texto.empty() && EsBlanco(texto.back())) texto.remove_suffix(1);
  return texto;
}

std::size_t ContarCifras(std::string_view texto, std::size_t desde) {
  std::size_t n = 0;
  while (desde + n < texto.size() && EsCifra(texto[desde + n])) ++n;
  return n;
}

/// Copia un número bien formado con punto decimal y sin '+'; vacío si no lo es.
std::string NumeroEnPunto(std::string_view texto) {
  const char separador = Configuracionregional::SeparadorDecimal();
  std::size_t i = 0;
  std::string limpio;
  if (i < texto.size() && (texto[i] == '+' || texto[i] == '-')) {
    if (texto[i] == '-') limpio += '-';
    ++i;
  }
  std::size_t cifras = ContarCifras(texto, i);
  limpio += texto.substr(i, cifras);
  i += cifras;
  if (i < texto.size() && texto[i] == separador) {
    const std::size_t decimales = ContarCifras(texto, ++i);
    limpio.append(".").append(texto.substr(i, decimales));
    i += decimales;
    cifras += decimales;
  }
  if (cifras == 0) return {};
  if (i < texto.size() && (texto[i] == 'e' || texto[i] == 'E')) {
    limpio += 'e';
    ++i;
    if (i < texto.size() && (texto[i] == '+' || texto[i] == '-')) limpio += texto[i++];
    const std::size_t exponente = ContarCifras(texto, i);
    if (exponente == 0) return {};
    limpio += texto.substr(i, exponente);
    i += exponente;
  }
  return i == texto.size() ? limpio : std::string();
}

} // namespace

void AjustarSeparador(std::string &texto) {
  const char bueno = Configuracionregional::SeparadorDecimal();
  const char otro = bueno == '.' ? ',' : '.';
  for (std::size_t i = 0; i + 1 < texto.size(); ++i) {
    if (texto[i] == otro) texto[i] = bueno;
  }
}

std::optional<double> TextoAReal(std::string_view texto) {
  std::string numero = NumeroEnPunto(SinBlancos(texto));
  if (numero.empty()) return std::nullopt;
  const std::size_t signo = numero.find("e+");
  if (signo != std::string::npos) numero.erase(signo + 1, 1);
  double valor = 0.0;
  const auto [fin, error] = std::from_chars(numero.data(), numero.data() + numero.size(), valor);
  if (error != std::errc::result_out_of_range) return valor;
  return LectorNumeros(numero).Real(); // infinito o cero, con su signo
}

std::optional<double> RealTecleado(std::string_view texto) {
  std::string copia(texto);
  AjustarSeparador(copia);
  return TextoAReal(copia);
}

float TextoARealOCero(std::string_view texto, bool &correcto) {
  const std::optional<double> valor = RealTecleado(texto);
  correcto = valor.has_value();
  return static_cast<float>(valor.value_or(0.0));
}

int PrefijoEntero(std::string_view texto) {
  while (!texto.empty() && EsBlanco(texto.front())) texto.remove_prefix(1);
  bool negativo = false;
  if (!texto.empty() && (texto.front() == '+' || texto.front() == '-')) {
    negativo = texto.front() == '-';
    texto.remove_prefix(1);
  }
  constexpr long long TOPE = std::numeric_limits<int>::max();
  long long valor = 0;
  for (std::size_t i = 0; i < texto.size() && EsCifra(texto[i]); ++i) {
    valor = std::min(valor * 10 + (texto[i] - '0'), TOPE + 1);
  }
  return static_cast<int>(negativo ? -valor : std::min(valor, TOPE));
}

} // namespace tesmo
