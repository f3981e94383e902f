#include "core/Flujoreales.h"

#include "core/Caracteres.h"
#include "core/Ordenmagnitud.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace tesmo {

namespace {

constexpr bool EsCifraHexadecimal(char c) {
  return EsCifra(c) || (Minuscula(c) >= 'a' && Minuscula(c) <= 'f');
}
constexpr int ValorHexadecimal(char c) { return EsCifra(c) ? c - '0' : Minuscula(c) - 'a' + 10; }

/// Con quince cifras la mantisa es menor que 2^53 y 10^15 también es exacto en un real doble.
constexpr int CIFRAS_EXACTAS = 15;
constexpr std::array<double, CIFRAS_EXACTAS + 1> POTENCIAS_DE_10{
    1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

/// Los 29 bits de un real doble que no caben en uno de 32 bits, y su punto medio.
constexpr std::uint64_t BITS_SOBRANTES = (std::uint64_t{1} << 29) - 1;
constexpr std::uint64_t PUNTO_MEDIO = std::uint64_t{1} << 28;

/// Redondea mantisa / 10^decimales a 32 bits. El cociente de dos dobles exactos sale bien redondeado, y
/// redondearlo otra vez sólo puede fallar si cayó justo en el punto medio de dos reales de 32 bits: el primer
/// redondeo es monótono y los puntos medios son dobles, así que en otro caso no cambia de lado. Falso
/// entonces.
bool CocienteExacto(std::uint64_t mantisa, int decimales, float &valor) {
  const double cociente = static_cast<double>(mantisa) / POTENCIAS_DE_10[static_cast<std::size_t>(decimales)];
  if ((std::bit_cast<std::uint64_t>(cociente) & BITS_SOBRANTES) == PUNTO_MEDIO) return false;
  valor = static_cast<float>(cociente);
  return true;
}

} // namespace

FlujoReales::FlujoReales(const std::string &texto)
    : inicio_(texto.data()), cursor_(texto.data()), fin_(texto.data() + texto.size()) {}

void FlujoReales::DescartarLinea(std::size_t maximo) {
  const std::size_t quedan = std::min(maximo, static_cast<std::size_t>(fin_ - cursor_));
  const void *fin = std::memchr(cursor_, '\n', quedan);
  cursor_ = fin != nullptr ? static_cast<const char *>(fin) + 1 : cursor_ + quedan;
}

void FlujoReales::SaltarBlancos() {
  while (EsBlanco(*cursor_)) ++cursor_;
}

bool FlujoReales::LeerReal(float &valor) {
  SaltarBlancos();
  const char *p = cursor_;
  const bool negativo = *p == '-';
  if (negativo) ++p;
  const char *cifras = p;
  std::uint64_t mantisa = 0;
  for (; EsCifra(*p); ++p) mantisa = mantisa * 10 + static_cast<std::uint64_t>(*p - '0');
  std::ptrdiff_t decimales = 0;
  std::ptrdiff_t total = p - cifras;
  if (*p == '.') {
    const char *fraccion = ++p;
    for (; EsCifra(*p); ++p) mantisa = mantisa * 10 + static_cast<std::uint64_t>(*p - '0');
    decimales = p - fraccion;
    total += decimales;
  }
  float leido = 0.0F;
  const bool terminado = EsBlanco(*p) || p == fin_;
  if (!terminado || total == 0 || total > CIFRAS_EXACTAS ||
      !CocienteExacto(mantisa, static_cast<int>(decimales), leido)) {
    return LeerRealGeneral(valor);
  }
  valor = negativo ? -leido : leido;
  cursor_ = p;
  return true;
}

namespace {

/// Lo que "%f" reconoce como número, antes de convertirlo.
struct CampoReal {
  const char *fin = nullptr; ///< primer carácter que queda en el flujo
  bool reconocido = false;
  bool hexadecimal = false;
};

/// Consume @p palabra, sin distinguir mayúsculas; el primer carácter que difiere también se pierde.
bool ConsumirPalabra(const char *&p, const char *final, const char *palabra) {
  for (; *palabra != '\0'; ++palabra) {
    if (p == final) return false;
    if (Minuscula(*p++) != *palabra) return false;
  }
  return true;
}

CampoReal ReconocerPalabra(const char *p, const char *final) {
  if (Minuscula(*p) == 'n') {
    const bool esNan = ConsumirPalabra(p, final, "nan");
    return {p, esNan, false};
  }
  bool reconocido = ConsumirPalabra(p, final, "inf");
  if (reconocido && Minuscula(*p) == 'i') reconocido = ConsumirPalabra(p, final, "inity");
  return {p, reconocido, false};
}

/// Avanza por las cifras, el punto y el exponente de un número; sin ninguna cifra no hay exponente.
const char *RecorrerNumero(const char *p, bool hexadecimal) {
  const char marca = hexadecimal ? 'p' : 'e';
  bool hayCifra = false;
  bool hayPunto = false;
  for (;; ++p) {
    if (EsCifra(*p) || (hexadecimal && EsCifraHexadecimal(*p))) {
      hayCifra = true;
    } else if (*p == '.' && !hayPunto) {
      hayPunto = true;
    } else {
      break;
    }
  }
  if (!hayCifra || Minuscula(*p) != marca) return p;
  ++p;
  if (*p == '+' || *p == '-') ++p;
  while (EsCifra(*p)) ++p;
  return p;
}

/// El alcance de un número a partir de @p p, que va tras el signo.
CampoReal Reconocer(const char *p, const char *final) {
  if (Minuscula(*p) == 'n' || Minuscula(*p) == 'i') return ReconocerPalabra(p, final);
  const bool hexadecimal = *p == '0' && Minuscula(p[1]) == 'x';
  const char *cuerpo = hexadecimal ? p + 2 : p;
  const char *fin = RecorrerNumero(cuerpo, hexadecimal);
  // "0x." se reconoce (vale cero: el número es el 0 de delante); un punto solo, no.
  const bool soloPunto = fin == cuerpo + 1 && *cuerpo == '.';
  return {fin, fin != cuerpo && (hexadecimal || !soloPunto), hexadecimal};
}

float ConvertirDecimal(const char *inicio, const char *fin) {
  float valor = 0.0F;
  const auto [resto, error] = std::from_chars(inicio, fin, valor);
  if (error != std::errc::result_out_of_range) return valor;
  const bool enorme = EsEnorme({inicio, static_cast<std::size_t>(fin - inicio)}, BaseReal::Decimal);
  return enorme ? std::numeric_limits<float>::infinity() : 0.0F;
}

/// Mantisa de hasta 64 bits por 2^exponente, con un último bit pegajoso que recuerda lo perdido.
struct MantisaBinaria {
  std::uint64_t bits = 0;
  std::int64_t exponente = 0;
  void Anadir(int cifra, bool fraccion) {
    constexpr std::uint64_t SITIO = std::uint64_t{1} << 60;
    if (bits < SITIO) {
      bits = bits * 16 + static_cast<std::uint64_t>(cifra);
      exponente -= fraccion ? 4 : 0;
    } else {
      bits |= cifra != 0 ? 1U : 0U;
      exponente += fraccion ? 0 : 4;
    }
  }
};

/// Redondea una sola vez a 32 bits: al pasar a doble se redondea a impar, que no se confunde con un empate.
float RedondearBinario(MantisaBinaria mantisa) {
  if (mantisa.bits == 0) return 0.0F;
  constexpr int BITS_DE_UN_DOBLE = 53;
  const int sobran = std::max(0, static_cast<int>(std::bit_width(mantisa.bits)) - BITS_DE_UN_DOBLE);
  const std::uint64_t perdidos = mantisa.bits & ((std::uint64_t{1} << sobran) - 1);
  mantisa.bits = (mantisa.bits >> sobran) | (perdidos != 0 ? 1U : 0U);
  constexpr std::int64_t EXPONENTE_SOBRADO = 300; // 2^±300 por 53 bits cae fuera de los 32 bits y cabe en 64
  const std::int64_t exponente =
      std::clamp(mantisa.exponente + sobran, -EXPONENTE_SOBRADO, EXPONENTE_SOBRADO);
  const double exacto = std::ldexp(static_cast<double>(mantisa.bits), static_cast<int>(exponente));
  // A partir del punto medio entre el mayor real de 32 bits y 2^128 se redondea a infinito.
  constexpr double DESBORDA = 0x1.ffffffp127;
  return exacto >= DESBORDA ? std::numeric_limits<float>::infinity() : static_cast<float>(exacto);
}

float ConvertirHexadecimal(const char *p, const char *fin) {
  MantisaBinaria mantisa;
  bool fraccion = false;
  for (; p != fin && Minuscula(*p) != 'p'; ++p) {
    if (*p == '.') {
      fraccion = true;
    } else {
      mantisa.Anadir(ValorHexadecimal(*p), fraccion);
    }
  }
  if (p == fin) return RedondearBinario(mantisa);
  ++p;
  mantisa.exponente += LeerExponente({p, static_cast<std::size_t>(fin - p)});
  return RedondearBinario(mantisa);
}

} // namespace

bool FlujoReales::LeerRealGeneral(float &valor) {
  const bool negativo = *cursor_ == '-';
  if (negativo || *cursor_ == '+') ++cursor_;
  const char *inicio = cursor_;
  const CampoReal campo = Reconocer(inicio, fin_);
  cursor_ = campo.fin;
  if (!campo.reconocido) return false;
  const float leido =
      campo.hexadecimal ? ConvertirHexadecimal(inicio + 2, campo.fin) : ConvertirDecimal(inicio, campo.fin);
  valor = negativo ? -leido : leido;
  return true;
}

} // namespace tesmo
