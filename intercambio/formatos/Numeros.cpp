#include "intercambio/formatos/Numeros.h"

#include "core/Caracteres.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace tesmo {

namespace {

/// Con quince cifras la mantisa y la potencia de diez son dobles exactos, y su cociente sale bien redondeado.
constexpr int CIFRAS_EXACTAS = 15;
constexpr std::array<double, CIFRAS_EXACTAS + 1> POTENCIAS_DE_10{
    1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

std::optional<double> LeerGeneral(const char *p, const char *fin) {
  double valor = 0.0;
  const auto [resto, error] = std::from_chars(p, fin, valor);
  if (error != std::errc() || resto != fin || !std::isfinite(valor)) return std::nullopt;
  return valor;
}

} // namespace

std::string_view Recortado(std::string_view texto) {
  const auto esBlanco = [](char c) { return c == ' ' || c == '\t'; };
  while (!texto.empty() && esBlanco(texto.front())) texto.remove_prefix(1);
  while (!texto.empty() && esBlanco(texto.back())) texto.remove_suffix(1);
  return texto;
}

std::string_view SinComilla(std::string_view texto) {
  texto = Recortado(texto);
  if (texto.starts_with('"')) texto.remove_prefix(1);
  return texto;
}

std::optional<double> LeerNumero(std::string_view campo) {
  campo = Recortado(campo);
  const char *p = campo.data();
  const char *const fin = p + campo.size();
  const bool negativo = p != fin && *p == '-';
  if (p != fin && (*p == '-' || *p == '+')) ++p;
  if (p == fin || !(EsCifra(*p) || *p == '.')) return std::nullopt; // ni "nan", ni "inf", ni otro signo
  const char *const inicio = p;
  std::uint64_t mantisa = 0;
  int cifras = 0;
  int decimales = 0;
  for (; p != fin && EsCifra(*p) && cifras <= CIFRAS_EXACTAS; ++p, ++cifras)
    mantisa = mantisa * 10 + static_cast<std::uint64_t>(*p - '0');
  if (p != fin && *p == '.') {
    for (++p; p != fin && EsCifra(*p) && cifras <= CIFRAS_EXACTAS; ++p, ++cifras, ++decimales)
      mantisa = mantisa * 10 + static_cast<std::uint64_t>(*p - '0');
  }
  const bool exacto = p == fin && cifras > 0 && cifras <= CIFRAS_EXACTAS;
  const std::optional<double> valor =
      exacto ? static_cast<double>(mantisa) / POTENCIAS_DE_10[static_cast<std::size_t>(decimales)]
             : LeerGeneral(inicio, fin);
  return valor && negativo ? -*valor : valor;
}

std::optional<int> LeerEntero(std::string_view campo) {
  constexpr double MAYOR = 999'999'999.0;
  const std::optional<double> valor = LeerNumero(campo);
  if (!valor || *valor != std::floor(*valor) || std::fabs(*valor) > MAYOR) return std::nullopt;
  return static_cast<int>(*valor);
}

} // namespace tesmo
