#include "intercambio/escritura/Listalocalidades.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

FichaLocalidad Ficha(const std::string &nombre, const std::string &provincia) {
  FichaLocalidad ficha;
  ficha.nombre = nombre;
  ficha.corto = "corto";
  ficha.provincia = provincia;
  ficha.referencia = "ref";
  ficha.fichero = "f.met";
  ficha.latitud = 37.25;
  ficha.longitud = -3.5;
  ficha.meridiano = 15;
  ficha.altitud = 680;
  return ficha;
}

/// La línea de Ficha(@p nombre, @p provincia).
std::string Linea(const std::string &nombre, const std::string &provincia) {
  return nombre + ",corto," + provincia + ",,ref,f.met,37.25,-3.5,15,680,0";
}

std::string Poner(const std::string &contenido, const FichaLocalidad &ficha) {
  ListaLocalidades lista(contenido);
  EXPECT_TRUE(lista.Poner(ficha));
  return lista.Contenido();
}

TEST(ListaDeLocalidades, VaTrasLaUltimaDeSuProvinciaYSubeLaCuenta) {
  EXPECT_EQ(Poner("2 x\nA,a,P\nB,b,P\n\n1\nC,c,Q\n", Ficha("D", "P")),
            "3 x\nA,a,P\nB,b,P\n" + Linea("D", "P") + "\n\n1\nC,c,Q\n");
}

TEST(ListaDeLocalidades, UnaProvinciaNuevaEstrenaBloqueAlFinal) {
  EXPECT_EQ(Poner("1\nA,a,P\n", Ficha("D", "Q")), "1\nA,a,P\n1\n" + Linea("D", "Q") + "\n");
  EXPECT_EQ(Poner("", Ficha("D", "Q")), "1\n" + Linea("D", "Q") + "\n");
  EXPECT_EQ(Poner("1\nA,a,P", Ficha("D", "Q")), "1\nA,a,P\n1\n" + Linea("D", "Q") + "\n");
}

TEST(ListaDeLocalidades, LosFinesDeLineaYLaCodificacionSonLosDelFichero) {
  const std::string antes = "9\r\nA,a,Ja\xE9n\r\n" + std::string("B,b,Q\r\n") +
                            "C,c,Q\r\nD,d,Q\r\nE,e,Q\r\n" + "F,f,Q\r\nG,g,Q\r\nH,h,Q\r\nI,i,Q\r\n";
  std::string linea = Linea("\xDA"
                            "beda",
                            "Ja\xE9n");
  std::string despues = antes;
  despues.replace(0, 1, "10");
  despues.insert(despues.find("B,b"), linea + "\r\n");
  EXPECT_EQ(Poner(antes, Ficha("Úbeda", "Jaén")), despues);
}

TEST(ListaDeLocalidades, LaMarcaDeOrdenDeBytesSigueEnSuSitio) {
  EXPECT_EQ(Poner("\xEF\xBB\xBF"
                  "1\nA,a,Jaén\n",
                  Ficha("Úbeda", "Jaén")),
            "\xEF\xBB\xBF"
            "2\nA,a,Jaén\n" +
                Linea("Úbeda", "Jaén") + "\n");
}

TEST(ListaDeLocalidades, LaQueYaEstaCambiaEnSuSitio) {
  EXPECT_EQ(Poner("2\r\nA,a,P,vieja\r\nB,b,P\r\n", Ficha("A", "P")),
            "2\r\n" + Linea("A", "P") + "\r\nB,b,P\r\n");
  EXPECT_EQ(Poner("1\nA,a,P", Ficha("A", "P")), "1\n" + Linea("A", "P"));
}

TEST(ListaDeLocalidades, LaQueCambiaDeProvinciaPasaDeUnBloqueAOtro) {
  EXPECT_EQ(Poner("2\nA,a,P\nB,b,P\n1\nC,c,Q\n", Ficha("A", "Q")),
            "1\nB,b,P\n2\nC,c,Q\n" + Linea("A", "Q") + "\n");
  EXPECT_EQ(Poner("1\nA,a,P\n", Ficha("A", "Q")), "0\n1\n" + Linea("A", "Q") + "\n");
}

TEST(ListaDeLocalidades, UnUltimoBloqueCortoRecibeSuCuentaParaNoComerseLaNueva) {
  ListaLocalidades lista("5\nA,a,P\nB,b,P\n");
  ASSERT_TRUE(lista.Poner(Ficha("D", "Q")));
  EXPECT_TRUE(lista.CuentaCorregida());
  EXPECT_EQ(lista.Contenido(), "2\nA,a,P\nB,b,P\n1\n" + Linea("D", "Q") + "\n");
  bool repetida = false;
  const auto leidas = LeerLocalidades(lista.Contenido(), "f", [&](const std::string &aviso) {
    repetida = repetida || aviso.find("se repite") != std::string::npos;
  });
  EXPECT_FALSE(repetida);
  EXPECT_EQ(leidas.size(), 3U);
}

TEST(ListaDeLocalidades, LoQueNoCabeEnLaCodificacionSeSabeAntes) {
  const ListaLocalidades lista("1\nA,a,Ja\xE9n\n");
  EXPECT_EQ(lista.ComoSeLeera("Úbeda Ł"), "Úbeda ?");
  EXPECT_EQ(ListaLocalidades("1\nA,a,P\n").ComoSeLeera("Úbeda Ł"), "Úbeda Ł");
}

TEST(ListaDeLocalidades, UnaLineaQueNoCabeNoCambiaNada) {
  ListaLocalidades lista("1\nA,a,P\n");
  FichaLocalidad ficha = Ficha("D", "P");
  ficha.cuarto.assign(260, 'x');
  EXPECT_FALSE(lista.Poner(ficha));
  EXPECT_EQ(lista.Contenido(), "1\nA,a,P\n");
}

TEST(ListaDeLocalidades, SeLeeLoQueSePuso) {
  ListaLocalidades lista("x\n1\nA,a,P\n\n");
  ASSERT_TRUE(lista.Poner(Ficha("D", "P")));
  const auto leidas = LeerLocalidades(lista.Contenido(), "f", {});
  ASSERT_EQ(leidas.size(), 2U);
  EXPECT_EQ(leidas[1]->localidad, "D");
  EXPECT_EQ(leidas[1]->fichero, "f.met");
  EXPECT_EQ(leidas[1]->latitud, 37.25F);
  EXPECT_EQ(leidas[1]->longitudRef, 15.0F);
  EXPECT_EQ(leidas[1]->decimo, 680.0F);
  EXPECT_EQ(lista.Buscar("D")->at(1), "corto");
  EXPECT_FALSE(lista.Buscar("d"));
}

} // namespace
} // namespace tesmo
