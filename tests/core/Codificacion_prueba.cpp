#include "core/Codificacion.h"

#include <gtest/gtest.h>

using namespace tesmo;

TEST(Codificacion, DistingueUtf8BienFormado) {
  EXPECT_TRUE(EsUtf8("Almería ¡Es de día! 30 €"));
  EXPECT_TRUE(EsUtf8(""));
  EXPECT_FALSE(EsUtf8("Almer\xED"
                      "a"));
  EXPECT_FALSE(EsUtf8("\xC0\xAF")) << "forma más larga de lo debido";
  EXPECT_FALSE(EsUtf8("\xED\xA0\x80")) << "medio par sustituto";
  EXPECT_FALSE(EsUtf8("\xF4\x90\x80\x80")) << "más allá del último carácter";
  EXPECT_FALSE(EsUtf8("\xE2\x82")) << "carácter cortado";
}

TEST(Codificacion, Windows1252VaYVuelve) {
  EXPECT_EQ(DesdeWindows1252("Almer\xED"
                             "a \x80"),
            "Almería €");
  EXPECT_EQ(AWindows1252("Configuración €"), "Configuraci\xF3n \x80");
  EXPECT_EQ(AWindows1252("日"), "?");
  for (int byte = 0; byte < 256; ++byte) {
    if (byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D) continue;
    const std::string uno(1, static_cast<char>(byte));
    EXPECT_EQ(AWindows1252(DesdeWindows1252(uno)), uno) << byte;
  }
  EXPECT_EQ(DesdeWindows1252("\x81"), "\xEF\xBF\xBD");
}

TEST(Codificacion, AUtf8DetectaYQuitaLaMarca) {
  EXPECT_EQ(AUtf8("\xEF\xBB\xBFJaén"), "Jaén");
  EXPECT_EQ(AUtf8("Ja\xE9n"), "Jaén");
  EXPECT_EQ(AUtf8("Jaén"), "Jaén");
}

TEST(Codificacion, PlegarMinusculasEntiendeLasLetrasDelEspanol) {
  EXPECT_EQ(PlegarMinusculas("CÁDIZ Ñ Ü Écija 3×4"), "cádiz ñ ü écija 3×4");
  EXPECT_EQ(PlegarMinusculas("\xFF\xC1"), "\xFF\xC1") << "lo que no es UTF-8 queda como está";
}

TEST(Codificacion, RecortarNoParteUnCaracter) {
  EXPECT_EQ(RecortarUtf8("añb", 2), "a");
  EXPECT_EQ(RecortarUtf8("añb", 3), "añ");
  EXPECT_EQ(RecortarUtf8("añb", 99), "añb");
  EXPECT_EQ(RecortarUtf8("ñ", 0), "");
}
