#include "core/Mensajes.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

using namespace tesmo;
using namespace tesmo::prueba;

TEST(Mensajes, ElCeroSinArgumentoDejaElHuecoVacio) {
  MensajesApuntados mensajes;
  DameMensajes().Mensaje(0);
  ASSERT_EQ(mensajes.apuntes.size(), 1U);
  EXPECT_EQ(mensajes.apuntes[0].texto, "No se puede abrir el fichero: .\n");
  EXPECT_EQ(mensajes.apuntes[0].titulo, "Información");
  EXPECT_EQ(mensajes.apuntes[0].icono, Icono::Informacion);
}

TEST(Mensajes, UnaFilaQueNoExisteEnsenaUnaCajaVacia) {
  MensajesApuntados mensajes;
  for (int indice : {20, 21, 56, 63, 1000, -1}) DameMensajes().Mensaje(indice, "x");
  ASSERT_EQ(mensajes.apuntes.size(), 6U);
  for (const auto &apunte : mensajes.apuntes) {
    EXPECT_EQ(apunte.texto, "");
    EXPECT_EQ(apunte.titulo, "");
  }
}

TEST(Mensajes, LosTextosDeLaTablaSonLosSuyos) {
  MensajesApuntados mensajes;
  for (int indice : {57, 58, 59, 60, 62}) DameMensajes().Mensaje(indice, "Albedo");
  ASSERT_EQ(mensajes.apuntes.size(), 5U);
  EXPECT_EQ(mensajes.apuntes[0].texto, "Seleccione variables para poder continuar.\n ");
  EXPECT_EQ(mensajes.apuntes[1].texto, "La casilla de Albedo no tiene ningún valor. Introduzca uno.\n ");
  EXPECT_EQ(mensajes.apuntes[2].texto,
            "El fichero meteorológico asociado a la ciudad Albedo no se ha podido abrir.\n ");
  EXPECT_EQ(mensajes.apuntes[3].texto, "El fichero de resultado Albedo no se ha podido abrir.\n ");
  EXPECT_EQ(mensajes.apuntes[4].texto, "La casilla \"Albedo\" contiene un valor incorrecto.\n ");
}

TEST(Mensajes, UnArgumentoLarguisimoSeRecortaSinPartirUnaLetra) {
  MensajesApuntados mensajes;
  std::string largo;
  for (int i = 0; i < 300; ++i) largo += "ñ";
  DameMensajes().Mensaje(0, largo);
  const std::string &texto = mensajes.apuntes.at(0).texto;
  EXPECT_LE(texto.size(), 249U);
  EXPECT_GE(texto.size(), 248U);
  EXPECT_EQ(texto.substr(texto.size() - 2), "ñ");
}

TEST(Mensajes, UnArgumentoConMarcaDeFormatoEntraTalCual) {
  MensajesApuntados mensajes;
  DameMensajes().Mensaje(0, "%s%n");
  EXPECT_EQ(mensajes.apuntes.at(0).texto, "No se puede abrir el fichero: %s%n.\n");
}
