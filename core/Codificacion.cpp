#include "core/Codificacion.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tesmo {

namespace {

/// Windows-1252 entre 0x80 y 0x9F (tabla CP1252 del consorcio Unicode); 0xFFFD donde no hay carácter.
constexpr std::array<char16_t, 32> CP1252_ALTOS{
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

constexpr std::string_view MARCA_UTF8 = "\xEF\xBB\xBF";

void AnadirUtf8(std::string &salida, char32_t punto) {
  if (punto < 0x80) {
    salida += static_cast<char>(punto);
  } else if (punto < 0x800) {
    salida += static_cast<char>(0xC0 | (punto >> 6));
    salida += static_cast<char>(0x80 | (punto & 0x3F));
  } else {
    salida += static_cast<char>(0xE0 | (punto >> 12));
    salida += static_cast<char>(0x80 | ((punto >> 6) & 0x3F));
    salida += static_cast<char>(0x80 | (punto & 0x3F));
  }
}

/// Bytes del carácter UTF-8 que empieza en @p i y su punto de código; 0 si no está bien formado.
std::size_t LeerCaracter(std::string_view texto, std::size_t i, char32_t &punto) {
  const auto primero = static_cast<unsigned char>(texto[i]);
  if (primero < 0x80) {
    punto = primero;
    return 1;
  }
  const std::size_t largo = primero >= 0xF0 ? 4 : primero >= 0xE0 ? 3 : primero >= 0xC2 ? 2 : 0;
  if (largo == 0 || primero > 0xF4 || i + largo > texto.size()) return 0;
  punto = primero & (0xFFU >> (largo + 1));
  for (std::size_t k = 1; k < largo; ++k) {
    const auto byte = static_cast<unsigned char>(texto[i + k]);
    if ((byte & 0xC0) != 0x80) return 0;
    punto = (punto << 6) | (byte & 0x3F);
  }
  constexpr std::array<char32_t, 5> MENOR{0, 0, 0x80, 0x800, 0x10000};
  const bool sustituto = punto >= 0xD800 && punto <= 0xDFFF;
  return punto < MENOR[largo] || punto > 0x10FFFF || sustituto ? 0 : largo;
}

char ByteDe1252(char32_t punto) {
  if (punto < 0x80 || (punto >= 0xA0 && punto <= 0xFF)) return static_cast<char>(punto);
  const auto *hallado = std::find(CP1252_ALTOS.begin(), CP1252_ALTOS.end(), static_cast<char16_t>(punto));
  if (punto > 0xFFFF || punto == 0xFFFD || hallado == CP1252_ALTOS.end()) return '?';
  return static_cast<char>(0x80 + (hallado - CP1252_ALTOS.begin()));
}

} // namespace

bool EsUtf8(std::string_view bytes) {
  char32_t punto = 0;
  for (std::size_t i = 0; i < bytes.size();) {
    const std::size_t largo = LeerCaracter(bytes, i, punto);
    if (largo == 0) return false;
    i += largo;
  }
  return true;
}

std::string DesdeWindows1252(std::string_view bytes) {
  std::string texto;
  texto.reserve(bytes.size() + bytes.size() / 8);
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    const bool alto = byte >= 0x80 && byte <= 0x9F;
    AnadirUtf8(texto, alto ? CP1252_ALTOS[byte - 0x80U] : byte);
  }
  return texto;
}

std::string AWindows1252(std::string_view texto) {
  std::string bytes;
  char32_t punto = 0;
  for (std::size_t i = 0; i < texto.size();) {
    const std::size_t largo = LeerCaracter(texto, i, punto);
    bytes += largo == 0 ? texto[i] : ByteDe1252(punto);
    i += std::max<std::size_t>(largo, 1);
  }
  return bytes;
}

std::string AUtf8(std::string_view bytes) {
  if (bytes.substr(0, MARCA_UTF8.size()) == MARCA_UTF8) bytes.remove_prefix(MARCA_UTF8.size());
  return EsUtf8(bytes) ? std::string(bytes) : DesdeWindows1252(bytes);
}

std::string PlegarMinusculas(std::string_view texto) {
  std::string plegado;
  char32_t punto = 0;
  for (std::size_t i = 0; i < texto.size();) {
    const std::size_t largo = LeerCaracter(texto, i, punto);
    // De 0xC0 a 0xDE están las mayúsculas de Latin-1, salvo el signo de multiplicar (0xD7).
    const bool mayuscula =
        (punto >= 'A' && punto <= 'Z') || (punto >= 0xC0 && punto <= 0xDE && punto != 0xD7);
    if (largo != 0 && mayuscula) {
      AnadirUtf8(plegado, punto + 0x20);
    } else {
      plegado.append(texto, i, std::max<std::size_t>(largo, 1));
    }
    i += std::max<std::size_t>(largo, 1);
  }
  return plegado;
}

std::string_view RecortarUtf8(std::string_view texto, std::size_t maximo) {
  if (texto.size() <= maximo) return texto;
  while (maximo > 0 && (static_cast<unsigned char>(texto[maximo]) & 0xC0) == 0x80) --maximo;
  return texto.substr(0, maximo);
}

} // namespace tesmo
