#include "core/Formato.h"

#include "core/Configuracionregional.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace tesmo {

namespace {

/// Caben el mayor real doble con seis decimales y su signo (309 + 1 + 6 + 1).
constexpr std::size_t ANCHO_FIJO = 400;

std::string NoFinito(double valor, std::string_view nan, std::string_view inf) {
  if (std::isnan(valor)) return std::string(nan);
  return (valor < 0 ? "-" : "") + std::string(inf);
}

template <std::size_t N, typename... Forma>
std::string ConvertirA(double valor, Forma... forma) {
  std::array<char, N> bufer{};
  const auto [fin, error] = std::to_chars(bufer.data(), bufer.data() + bufer.size(), valor, forma...);
  return {bufer.data(), fin};
}

} // namespace

std::string FormatoF(double valor) {
  if (!std::isfinite(valor)) return NoFinito(valor, std::signbit(valor) ? "-nan" : "nan", "inf");
  return ConvertirA<ANCHO_FIJO>(valor, std::chars_format::fixed, 6);
}

std::string FormatoG9(double valor) {
  if (!std::isfinite(valor)) return NoFinito(valor, "nan", "inf");
  return ConvertirA<32>(valor, std::chars_format::general, 9);
}

std::string FormatoGeneral15(double valor, char separador) {
  if (!std::isfinite(valor)) return NoFinito(valor, "NAN", "INF");
  if (valor == 0.0) return "0";
  std::string texto = ConvertirA<32>(valor, std::chars_format::general, 15);
  const std::size_t punto = texto.find('.');
  if (punto != std::string::npos) texto[punto] = separador;
  return texto;
}

namespace {

constexpr int DECIMALES_MAXIMOS = 9;
constexpr std::array<double, DECIMALES_MAXIMOS + 1> POTENCIAS_DE_10{1e0, 1e1, 1e2, 1e3, 1e4,
                                                                    1e5, 1e6, 1e7, 1e8, 1e9};
/// Hasta aquí un real doble representa todos los enteros y sus mitades.
constexpr double MAYOR_MITAD_EXACTA = 4503599627370496.0; // 2^52

/// Valor absoluto en unidades del último decimal, redondeada la mitad hacia fuera. Un real de 32 bits tiene
/// 24 bits y 10^9 aporta 21 más: el producto y la suma de la mitad son exactos en un real doble.
bool EscalarExacto(double absoluto, int decimales, std::uint64_t &unidades) {
  const double escalado = absoluto * POTENCIAS_DE_10[static_cast<std::size_t>(decimales)];
  if (static_cast<double>(static_cast<float>(absoluto)) != absoluto) return false;
  if (!(escalado < MAYOR_MITAD_EXACTA)) return false;
  unidades = static_cast<std::uint64_t>(escalado + 0.5); // NOLINT(bugprone-incorrect-roundings): suma exacta
  return true;
}

/// Cifras de @p absoluto con @p decimales, redondeadas sobre su desarrollo decimal exacto.
std::string CifrasExactas(double absoluto, int decimales) {
  constexpr int DECIMALES_DE_UN_DOBLE = 1074;
  std::string exacto = ConvertirA<DECIMALES_DE_UN_DOBLE + ANCHO_FIJO>(absoluto, std::chars_format::fixed,
                                                                      DECIMALES_DE_UN_DOBLE);
  const std::size_t punto = exacto.find('.');
  const std::size_t corte = punto + 1 + static_cast<std::size_t>(decimales);
  const bool haciaFuera = exacto[corte] >= '5';
  std::string cifras =
      exacto.substr(0, punto) + exacto.substr(punto + 1, static_cast<std::size_t>(decimales));
  if (!haciaFuera) return cifras;
  for (std::size_t i = cifras.size(); i-- > 0;) {
    if (cifras[i] != '9') {
      ++cifras[i];
      return cifras;
    }
    cifras[i] = '0';
  }
  return '1' + cifras;
}

} // namespace

void PatronNumero::Escribir(std::string &salida, double valor, char separador) const {
  if (!std::isfinite(valor)) {
    salida += NoFinito(valor, "NAN", "INF");
    return;
  }
  std::uint64_t unidades = 0;
  if (EscalarExacto(std::fabs(valor), decimalesMaximos_, unidades)) {
    EscribirUnidades(salida, unidades, valor < 0, separador);
  } else {
    EscribirCifras(salida, CifrasExactas(std::fabs(valor), decimalesMaximos_), valor < 0, separador);
  }
}

void PatronNumero::EscribirUnidades(std::string &salida, std::uint64_t unidades, bool negativo,
                                    char separador) const {
  std::array<char, 40> bufer; // se llena de atrás adelante y sólo se copia lo escrito
  char *const fin = bufer.data() + bufer.size();
  char *p = fin;
  const bool conSigno = negativo && unidades != 0;
  for (int d = decimalesMaximos_; d > 0; --d, unidades /= 10) {
    const auto cifra = static_cast<char>('0' + unidades % 10);
    if (cifra != '0' || d <= decimalesMinimos_ || p != fin) *--p = cifra;
  }
  if (p != fin) *--p = separador;
  for (int e = enteros_; unidades != 0 || e > 0; --e, unidades /= 10) {
    *--p = static_cast<char>('0' + unidades % 10);
  }
  if (conSigno) *--p = '-';
  salida.append(p, fin);
}

void PatronNumero::EscribirCifras(std::string &salida, std::string cifras, bool negativo,
                                  char separador) const {
  const auto minimo = static_cast<std::size_t>(decimalesMaximos_) + static_cast<std::size_t>(enteros_);
  const std::size_t ceros = cifras.find_first_not_of('0');
  const bool esCero = ceros == std::string::npos;
  cifras.erase(0, esCero ? cifras.size() : ceros);
  if (cifras.size() < minimo) cifras.insert(0, minimo - cifras.size(), '0');
  if (negativo && !esCero) salida += '-';
  const std::size_t enteros = cifras.size() - static_cast<std::size_t>(decimalesMaximos_);
  salida.append(cifras, 0, enteros);
  auto decimales = static_cast<std::size_t>(decimalesMaximos_);
  while (decimales > static_cast<std::size_t>(decimalesMinimos_) && cifras[enteros + decimales - 1] == '0') {
    --decimales;
  }
  if (decimales == 0) return;
  salida += separador;
  salida.append(cifras, enteros, decimales);
}

std::string FormatearPatron(double valor, std::string_view patron) {
  std::string texto;
  PatronNumero(patron).Escribir(texto, valor, Configuracionregional::SeparadorDecimal());
  return texto;
}

} // namespace tesmo
