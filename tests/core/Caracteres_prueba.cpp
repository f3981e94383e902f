#include "core/Caracteres.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tesmo {
namespace {

/// Los 256 bytes, uno a uno, frente a la lista de los que son.
template <typename Clase>
void SoloSon(Clase clase, std::string_view lista) {
  for (int byte = -128; byte < 128; ++byte) {
    const char c = static_cast<char>(byte);
    EXPECT_EQ(clase(c), lista.find(c) != std::string_view::npos) << "byte " << byte;
  }
}

TEST(Caracteres, CifrasYBlancosSonLosDeAsciiYNingunoMas) {
  SoloSon(EsCifra, "0123456789");
  SoloSon(EsBlanco, " \t\n\v\f\r");
}

TEST(Caracteres, LaMinusculaSoloCambiaLas26Letras) {
  constexpr std::string_view MAYUSCULAS = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  constexpr std::string_view MINUSCULAS = "abcdefghijklmnopqrstuvwxyz";
  for (int byte = -128; byte < 128; ++byte) {
    const char c = static_cast<char>(byte);
    const std::size_t letra = MAYUSCULAS.find(c);
    EXPECT_EQ(Minuscula(c), letra == std::string_view::npos ? c : MINUSCULAS[letra]) << "byte " << byte;
  }
}

} // namespace
} // namespace tesmo
