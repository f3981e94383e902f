#include "intercambio/escritura/Listagdr.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

FichaGdr Ficha(const std::string &corto) {
  FichaGdr ficha;
  ficha.corto = corto;
  ficha.zona = "COSTA";
  ficha.latitud = 36.5;
  ficha.longitud = -6.25;
  ficha.meridiano = 15;
  ficha.altitud = 21;
  ficha.humedadCal = 5.25;
  ficha.humedadRef = 12.0;
  ficha.maxima.fill(20.5);
  ficha.minima.fill(10);
  ficha.desviacionMaxima.fill(2);
  ficha.desviacionMinima.fill(1.5);
  ficha.radiacion.fill(15000);
  ficha.sexta.fill(60);
  return ficha;
}

std::string Doce(const std::string &cifra, const std::string &fin = "\n") {
  std::string fila = cifra;
  for (int i = 1; i < 12; ++i) fila += " " + cifra;
  return fila + fin;
}

std::string Registro(const std::string &corto) {
  return corto + " COSTA 36.5 -6.25 15 10 ALT=21 WCAL=5.25 WREF=12\n" + Doce("20.5") + Doce("10") +
         Doce("2") + Doce("1.5") + Doce("15000") + Doce("60");
}

TEST(ListaDeGdr, SieteLineasAlFinal) {
  ListaGdr vacia("");
  EXPECT_EQ(vacia.Poner(Ficha("Rota")), VistaDeGdr::Encontrado);
  EXPECT_EQ(vacia.Contenido(), Registro("Rota"));
  ListaGdr sinFin(Registro("Otra").substr(0, Registro("Otra").size() - 1));
  EXPECT_EQ(sinFin.Poner(Ficha("Rota")), VistaDeGdr::Encontrado);
  EXPECT_EQ(sinFin.Contenido(), Registro("Otra") + Registro("Rota"));
}

TEST(ListaDeGdr, SeSustituyenSoloSusLineas) {
  const std::string viejo =
      "Rota INTERIOR 1 2 3 10\n" + Doce("1") + Doce("2") + Doce("3") + Doce("4") + Doce("5") + Doce("6");
  ListaGdr lista(Registro("Una") + viejo + "\n" + Registro("Dos"));
  EXPECT_EQ(lista.ZonaDe("Rota"), "INTERIOR");
  EXPECT_EQ(lista.ZonaDe("rota"), "");
  EXPECT_EQ(lista.Poner(Ficha("Rota")), VistaDeGdr::Encontrado);
  EXPECT_EQ(lista.Contenido(), Registro("Una") + Registro("Rota") + "\n" + Registro("Dos"));
}

TEST(ListaDeGdr, LosFinesDeLineaSonLosDelFichero) {
  ListaGdr lista("Una C 1 2 3 10\r\n" + Doce("1", "\r\n") + Doce("1", "\r\n") + Doce("1", "\r\n") +
                 Doce("1", "\r\n") + Doce("1", "\r\n") + Doce("1", "\r\n"));
  EXPECT_EQ(lista.Poner(Ficha("Rota")), VistaDeGdr::Encontrado);
  EXPECT_TRUE(lista.Contenido().ends_with(Doce("15000", "\r\n") + Doce("60", "\r\n")));
}

TEST(ListaDeGdr, LaClaveVaEnLaCodificacionDelFichero) {
  std::string viejo = Registro("Jaen");
  viejo.replace(0, 4, "Ja\xE9n");
  ListaGdr lista(viejo + Registro("Una"));
  FichaGdr nueva = Ficha("Jaén");
  nueva.altitud = 570;
  EXPECT_EQ(lista.Poner(nueva), VistaDeGdr::Encontrado);
  EXPECT_TRUE(lista.Contenido().starts_with("Ja\xE9n COSTA 36.5 -6.25 15 10 ALT=570"));
  EXPECT_EQ(lista.Registros().size(), 2U);
  EXPECT_EQ(lista.Poner(Ficha("Níjar")), VistaDeGdr::Encontrado);
  EXPECT_NE(lista.Contenido().find("N\xEDjar"), std::string::npos);
  ListaGdr utf8(Registro("Jaén"));
  EXPECT_EQ(utf8.Poner(Ficha("Níjar")), VistaDeGdr::Encontrado);
  EXPECT_EQ(utf8.Contenido(), Registro("Jaén") + Registro("Níjar"));
}

TEST(ListaDeGdr, ElRegistro177SeEncuentraYEl178No) {
  std::string contenido;
  for (int i = 0; i < 176; ++i) contenido += Registro("L" + std::to_string(i));
  ListaGdr lista(contenido);
  EXPECT_EQ(lista.Poner(Ficha("Rota")), VistaDeGdr::Encontrado);
  EXPECT_EQ(lista.Poner(Ficha("Tarifa")), VistaDeGdr::PasaDelLimite);
  EXPECT_EQ(lista.Registros().size(), 178U);
}

TEST(ListaDeGdr, UnRegistroDeMenosLineasSeComeElSiguienteYSeSabe) {
  ListaGdr lista("Una C 1 2 3 10\n" + Doce("1"));
  EXPECT_EQ(lista.Poner(Ficha("Rota")), VistaDeGdr::Desordenado);
}

TEST(ListaDeGdr, ElRegistroSeLeeComoSeEscribio) {
  ListaGdr lista("");
  ASSERT_EQ(lista.Poner(Ficha("Rota")), VistaDeGdr::Encontrado);
  extremos::RegistroGdr leido;
  ASSERT_EQ(extremos::LeerRegistroGdr(lista.Contenido(), "Rota", "GDR.TXT", leido),
            extremos::LecturaGdr::Leido);
  EXPECT_EQ(leido.factorDeCola, 10.0F);
  EXPECT_EQ(leido.altitud, 21.0F);
  EXPECT_EQ(leido.humedadCal, 5.25F);
  EXPECT_EQ(leido.humedadRef, 12.0F);
  EXPECT_EQ(leido.maxima[11], 20.5F);
  EXPECT_EQ(leido.radiacion[0], 15000.0F);
}

} // namespace
} // namespace tesmo
