#include "intercambio/escritura/Composicion.h"

#include <array>

namespace tesmo {

namespace {

/// Acentos que se combinan con la letra anterior (U+0300 a U+033F): su segundo byte, tras 0xCC, las
/// mayúsculas que los llevan en Latin-1 y el segundo byte de cada resultado, tras 0xC3.
struct Acento {
  unsigned char segundo;
  std::string_view letras;
  std::string_view compuestas;
};
constexpr unsigned char PRIMERO_ACENTO = 0xCC;
constexpr char PRIMERO_LATINO = '\xC3';
constexpr std::array<Acento, 7> ACENTOS{{{0x80, "AEIOU", "\x80\x88\x8C\x92\x99"},
                                         {0x81, "AEIOUY", "\x81\x89\x8D\x93\x9A\x9D"},
                                         {0x82, "AEIOU", "\x82\x8A\x8E\x94\x9B"},
                                         {0x83, "ANO", "\x83\x91\x95"},
                                         {0x88, "AEIOUY", "\x84\x8B\x8F\x96\x9C\x9F"},
                                         {0x8A, "A", "\x85"},
                                         {0xA7, "C", "\x87"}}};

/// La Y con diéresis no está entre las mayúsculas: en su sitio va la ß, pero la minúscula sale de él.
constexpr char SITIO_DE_Y_CON_DIERESIS = '\x9F';

/// El segundo byte de @p letra con el acento @p segundo; 0 si no hay tal letra.
char Compuesta(char letra, unsigned char segundo) {
  constexpr int A_MINUSCULA = 'a' - 'A'; // la misma distancia que en Latin-1
  const bool minuscula = letra >= 'a' && letra <= 'z';
  const char mayuscula = minuscula ? static_cast<char>(letra - A_MINUSCULA) : letra;
  for (const Acento &acento : ACENTOS) {
    const std::size_t sitio = acento.segundo == segundo ? acento.letras.find(mayuscula) : std::string::npos;
    if (sitio == std::string::npos) continue;
    if (!minuscula && acento.compuestas[sitio] == SITIO_DE_Y_CON_DIERESIS) return 0;
    return static_cast<char>(acento.compuestas[sitio] + (minuscula ? A_MINUSCULA : 0));
  }
  return 0;
}

} // namespace

std::string ComponerAcentos(std::string_view texto) {
  std::string compuesto;
  for (std::size_t i = 0; i < texto.size(); ++i) {
    const bool hayAcento = i + 1 < texto.size() && static_cast<unsigned char>(texto[i]) == PRIMERO_ACENTO;
    const char segundo = hayAcento && !compuesto.empty()
                             ? Compuesta(compuesto.back(), static_cast<unsigned char>(texto[i + 1]))
                             : '\0';
    if (segundo == '\0') {
      compuesto += texto[i];
      continue;
    }
    compuesto.back() = PRIMERO_LATINO;
    compuesto += segundo;
    ++i;
  }
  return compuesto;
}

} // namespace tesmo
