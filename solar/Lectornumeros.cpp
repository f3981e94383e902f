#include "solar/Lectornumeros.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace tesmo {

namespace {

constexpr std::string_view BLANCOS = " \t\n\v\f\r";
/// Un exponente mayor ya no cabe en ningún real; acotarlo evita desbordar la cuenta.
constexpr long EXPONENTE_MAXIMO = 100'000'000;
constexpr long BITS_POR_CIFRA_HEXADECIMAL = 4;

constexpr char Minuscula(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
constexpr bool EsCifra(char c) { return c >= '0' && c <= '9'; }
constexpr bool EsCifraHexadecimal(char c) {
  return EsCifra(c) || (Minuscula(c) >= 'a' && Minuscula(c) <= 'f');
}

/// Las piezas de un número: @p cifras sin signo ni prefijo hexadecimal, y el valor de su exponente.
struct Piezas {
  std::string_view cifras;
  long exponente;
  bool hexadecimal;
};

/// ¿Es infinito, y no cero, un número que no cabe? Lo dice la posición de su primera cifra significativa.
bool SeSalePorArriba(const Piezas &piezas) {
  const std::size_t punto =
      std::min(piezas.cifras.find_first_of(piezas.hexadecimal ? ".pP" : ".eE"), piezas.cifras.size());
  const std::size_t primera = std::min(piezas.cifras.find_first_not_of("0."), piezas.cifras.size());
  const long orden = static_cast<long>(punto) - static_cast<long>(primera);
  return orden * (piezas.hexadecimal ? BITS_POR_CIFRA_HEXADECIMAL : 1L) + piezas.exponente > 0;
}

float Convertir(const Piezas &piezas) {
  float valor = 0.0F;
  const auto formato = piezas.hexadecimal ? std::chars_format::hex : std::chars_format::general;
  const char *const inicio = piezas.cifras.data();
  const auto resultado = std::from_chars(inicio, inicio + piezas.cifras.size(), valor, formato);
  if (resultado.ec != std::errc::result_out_of_range) return valor;
  return SeSalePorArriba(piezas) ? std::numeric_limits<float>::infinity() : 0.0F;
}

} // namespace

void LectorNumeros::SaltarBlancos() {
  posicion_ = std::min(texto_.find_first_not_of(BLANCOS, posicion_), texto_.size());
}

std::string_view LectorNumeros::Palabra() {
  SaltarBlancos();
  const std::size_t inicio = posicion_;
  posicion_ = std::min(texto_.find_first_of(BLANCOS, posicion_), texto_.size());
  return texto_.substr(inicio, posicion_ - inicio);
}

std::string_view LectorNumeros::RestoDeLinea(std::size_t maximo) {
  const std::string_view quedan = texto_.substr(posicion_);
  const std::size_t fin = std::min(quedan.find('\n'), quedan.size());
  const bool conRetorno = fin > 0 && fin < quedan.size() && quedan[fin - 1] == '\r';
  const std::string_view linea = quedan.substr(0, conRetorno ? fin - 1 : fin);
  if (linea.size() > maximo) {
    posicion_ += maximo;
    return linea.substr(0, maximo);
  }
  posicion_ += std::min(fin + 1, quedan.size());
  return linea;
}

int LectorNumeros::Linea() const {
  const std::string_view leido = texto_.substr(0, posicion_);
  return 1 + static_cast<int>(std::count(leido.begin(), leido.end(), '\n'));
}

bool LectorNumeros::Literal(char c) {
  if (Final() || texto_[posicion_] != c) return false;
  ++posicion_;
  return true;
}

bool LectorNumeros::Signo() {
  const bool negativo = Literal('-');
  if (!negativo) Literal('+');
  return negativo;
}

std::size_t LectorNumeros::Cifras(bool hexadecimal) {
  const std::size_t antes = posicion_;
  while (!Final() && (hexadecimal ? EsCifraHexadecimal(texto_[posicion_]) : EsCifra(texto_[posicion_]))) {
    ++posicion_;
  }
  return posicion_ - antes;
}

std::size_t LectorNumeros::LetrasDe(std::string_view palabra) {
  std::size_t n = 0;
  while (n < palabra.size() && !Final() && Minuscula(texto_[posicion_]) == palabra[n]) {
    ++n;
    ++posicion_;
  }
  return n;
}

std::optional<int> LectorNumeros::Entero() {
  SaltarBlancos();
  const bool negativo = Signo();
  const std::size_t inicio = posicion_;
  const std::size_t n = Cifras(false);
  int valor = 0;
  const char *const cifras = texto_.data() + inicio;
  if (n == 0 || std::from_chars(cifras, cifras + n, valor).ec != std::errc()) return std::nullopt;
  return negativo ? -valor : valor;
}

std::optional<float> LectorNumeros::SinSigno() {
  constexpr std::string_view INFINITO = "infinity";
  constexpr std::size_t INFINITO_CORTO = 3;
  if (const std::size_t n = LetrasDe(INFINITO); n > 0) {
    if (n != INFINITO_CORTO && n != INFINITO.size()) return std::nullopt;
    return std::numeric_limits<float>::infinity();
  }
  constexpr std::string_view NO_NUMERO = "nan";
  if (const std::size_t n = LetrasDe(NO_NUMERO); n > 0) {
    if (n != NO_NUMERO.size()) return std::nullopt;
    return std::numeric_limits<float>::quiet_NaN();
  }
  return Cifrado();
}

std::optional<long> LectorNumeros::Exponente(char letra) {
  if (Final() || Minuscula(texto_[posicion_]) != letra) return 0;
  ++posicion_;
  const bool negativo = Signo();
  const char *const inicio = texto_.data() + posicion_;
  const std::size_t n = Cifras(false);
  if (n == 0) return std::nullopt;
  long valor = 0;
  const bool cabe = std::from_chars(inicio, inicio + n, valor).ec == std::errc();
  valor = cabe ? std::min(valor, EXPONENTE_MAXIMO) : EXPONENTE_MAXIMO;
  return negativo ? -valor : valor;
}

std::optional<float> LectorNumeros::Cifrado() {
  const std::string_view resto = texto_.substr(posicion_);
  const bool hexadecimal = resto.size() > 1 && resto[0] == '0' && Minuscula(resto[1]) == 'x';
  if (hexadecimal) posicion_ += 2;
  const std::size_t inicio = posicion_;
  std::size_t cifras = Cifras(hexadecimal);
  if (Literal('.')) cifras += Cifras(hexadecimal);
  if (cifras == 0) return std::nullopt;
  const std::optional<long> exponente = Exponente(hexadecimal ? 'p' : 'e');
  if (!exponente) return std::nullopt;
  return Convertir({texto_.substr(inicio, posicion_ - inicio), *exponente, hexadecimal});
}

std::optional<float> LectorNumeros::Real() {
  SaltarBlancos();
  const bool negativo = Signo();
  const std::optional<float> valor = SinSigno();
  if (!valor) return std::nullopt;
  return negativo ? -*valor : *valor;
}

} // namespace tesmo
