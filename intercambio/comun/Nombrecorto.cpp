#include "intercambio/comun/Nombrecorto.h"

namespace tesmo {

namespace {

/// Letras latinas de U+00C0 a U+00FF sin su acento; '?' en las que no son letra.
constexpr std::string_view SIN_ACENTO = "AAAAAAACEEEEIIIIDNOOOOO?OUUUUYTsaaaaaaaceeeeiiiidnooooo?ouuuuyty";
constexpr unsigned char PREFIJO_LATINO = 0xC3;
constexpr unsigned char PRIMERA_CONTINUACION = 0x80;

bool EsLetraOCifra(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

/// El carácter ASCII que sustituye al que empieza en @p i, que avanza hasta el siguiente; ' ' si ninguno.
char Sustituto(std::string_view texto, std::size_t &i) {
  const auto c = static_cast<unsigned char>(texto[i++]);
  if (c < PRIMERA_CONTINUACION) return static_cast<char>(c);
  if (c != PREFIJO_LATINO || i >= texto.size()) return ' ';
  const auto segundo = static_cast<unsigned char>(texto[i++]);
  const std::size_t posicion = static_cast<std::size_t>(segundo) - PRIMERA_CONTINUACION;
  return posicion < SIN_ACENTO.size() && SIN_ACENTO[posicion] != '?' ? SIN_ACENTO[posicion] : ' ';
}

} // namespace

std::string NombreCorto(std::string_view nombre) {
  std::string corto;
  bool empieza = true;
  bool algo = false;
  for (std::size_t i = 0; i < nombre.size();) {
    char c = Sustituto(nombre, i);
    const bool letra = EsLetraOCifra(c);
    if (empieza && c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    empieza = !letra;
    algo = algo || letra;
    if (letra || c == '.' || c == '-' || c == '_') corto += c;
  }
  return algo ? corto : std::string();
}

} // namespace tesmo
