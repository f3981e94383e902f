#include "intercambio/escritura/Nombrescatalogo.h"

#include <gtest/gtest.h>

#include <set>

namespace tesmo {
namespace {

bool Libre(const std::string &) { return false; }

TEST(NombresDelCatalogo, NingunNombreSaleDeSuDirectorio) {
  for (const char *nombre : {"../../x", "/etc/passwd", "..\\..\\x", "C:\\x", "..", ".", "-rf x", "a/../../b",
                             "x\ny", "...oculto", "~root", "Níjar", "ñ", "東京", "", "con", "NUL.txt"}) {
    const std::string corto = CortoLibre(nombre, Libre);
    EXPECT_FALSE(corto.empty()) << nombre;
    EXPECT_TRUE(EsNombreDeFichero(corto + ".met")) << nombre << " → " << corto;
    EXPECT_EQ(corto.find_first_of("/\\: \t\n"), std::string::npos) << corto;
    EXPECT_NE(corto[0], '-') << corto;
  }
}

TEST(NombresDelCatalogo, LetrasSinAcentoYCadaPalabraConMayuscula) {
  EXPECT_EQ(CortoLibre("Morón de la Frontera", Libre), "MoronDeLaFrontera");
  EXPECT_EQ(CortoLibre("../../x", Libre), "X");
  EXPECT_EQ(CortoLibre("東京", Libre), "Localidad");
  EXPECT_EQ(CortoLibre("con", Libre), "_Con");
  EXPECT_EQ(CortoLibre(std::string(80, 'a'), Libre).size(), 40U);
}

TEST(NombresDelCatalogo, UnNombreOcupadoLlevaNumero) {
  const std::set<std::string> ocupados{"Rota", "Rota-2"};
  EXPECT_EQ(CortoLibre("Rota", [&](const std::string &corto) { return ocupados.contains(corto); }), "Rota-3");
}

TEST(NombresDelCatalogo, LosCamposNoLlevanComasNiSaltosNiPasanDe49Bytes) {
  EXPECT_EQ(TextoDeCampo("  Palma,\tde\r\nMallorca "), "Palma de Mallorca");
  EXPECT_EQ(TextoDeCampo(std::string(47, 'a') + "ñññ"), std::string(47, 'a') + "ñ");
  EXPECT_EQ(TextoDeCampo(std::string(48, 'a') + "ñ"), std::string(48, 'a'));
  EXPECT_EQ(TextoDeCampo(" , "), "");
}

TEST(NombresDelCatalogo, UnAcentoSueltoSeUneASuLetra) {
  EXPECT_EQ(TextoDeCampo("Almeri\u0301a"), "Almería");
  EXPECT_EQ(TextoDeCampo("A\u0301vila, Logron\u0303o, Gu\u0308ejar, Ve\u0300nec\u0327"),
            "Ávila Logroño Güejar Vèneç");
  EXPECT_EQ(TextoDeCampo("L'Hay\u0308-les-Roses"), "L'Haÿ-les-Roses");
  EXPECT_EQ(TextoDeCampo("Y\u0308"), "Y\u0308");                 // la mayúscula no es Latin-1
  EXPECT_EQ(TextoDeCampo("b\u0301 \u0301a"), "b\u0301 \u0301a"); // sin letra que lo lleve
}

TEST(NombresDelCatalogo, NoTodoTextoEsNombreDeFichero) {
  for (const char *malo : {"", ".", "..", "a/b", "a\\b", "C:x", "a*", "nul", "COM1.met", ".oculto", "a\nb"})
    EXPECT_FALSE(EsNombreDeFichero(malo)) << malo;
  for (const char *bueno : {"Almería.met", "a b.met", "GDR.TXT", "LocalidadesCC", "Como.met"})
    EXPECT_TRUE(EsNombreDeFichero(bueno)) << bueno;
}

} // namespace
} // namespace tesmo
