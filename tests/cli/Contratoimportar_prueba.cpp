#include "tests/cli/Proceso.h"
#include "tests/intercambio/formatos/Generadorclima.h"

#include <algorithm>
#include <filesystem>

namespace tesmo::prueba {
namespace {

class OrdenImportar : public LineaDeOrdenes {
protected:
  std::string Epw(const std::string &fichero, const std::string &ciudad) const {
    LineasFichero lineas = LineasEpw();
    CambiarCampo(lineas[0], 1, ciudad);
    return raiz_.Escribir(fichero, Unir(lineas));
  }
};

TEST_F(OrdenImportar, LaLocalidadSeListaYSeUsa) {
  const std::string epw = Epw("x.epw", "Baza");
  const Ejecucion e = ConBase({"importar", epw, "--provincia", "Granada", "--zona", "INTERIOR"});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_TRUE(e.salida.starts_with("x.epw: Baza (Granada), Baza.met\n")) << e.salida;
  EXPECT_NE(e.salida.find("Reloj: "), std::string::npos);
  EXPECT_NE(e.salida.find("De 8760 horas de temperatura seca: "), std::string::npos) << e.salida;
  EXPECT_TRUE(ConBase({"localidades", "--provincia", "Granada"})
                  .salida.starts_with("Granada\tBaza\tBaza\tBaza.met\t"));
  const Ejecucion serie = ConBase({"serie", "--localidad", "Baza", "TS", "G"});
  EXPECT_EQ(serie.estado, 0);
  EXPECT_EQ(serie.Lineas().size(), 8761U);
  const Ejecucion dias = ConBase({"dias-extremos", "--localidad", "Baza"});
  EXPECT_EQ(dias.estado, 0) << dias.error;
}

TEST_F(OrdenImportar, LaListaQueYaEstabaConservaSusBytes) {
  const std::string antes = Contenido(raiz_ / "base/Meteo/LocalidadesCC");
  ASSERT_EQ(ConBase({"importar", Epw("x.epw", "Baza"), "--provincia", "Granada"}).estado, 0);
  EXPECT_TRUE(Contenido(raiz_ / "base/Meteo/LocalidadesCC").starts_with(antes + "1\nBaza,Baza,Granada,"));
}

TEST_F(OrdenImportar, UnaCarpetaEnteraConSuMarcha) {
  static_cast<void>(Epw("c/B.epw", "Dos"));
  static_cast<void>(Epw("c/a.EPW", "Uno"));
  static_cast<void>(Epw("c/c.dat", "Tres"));
  raiz_.Escribir("c/normales.csv", "a,b\n1,2\n");
  raiz_.Escribir("c/LEEME.md", "nada");
  const Ejecucion e = ConBase({"importar", (raiz_ / "c").string(), "--provincia", "P", "--zona", "COSTA"});
  EXPECT_EQ(e.estado, 0) << e.error;
  EXPECT_NE(e.error.find("[1/4] a.EPW\n"), std::string::npos) << e.error;
  EXPECT_NE(e.error.find("Aviso: normales.csv: no es de ningún formato climático conocido; se salta\n"),
            std::string::npos)
      << e.error;
  EXPECT_EQ(ConBase({"localidades", "--provincia", "P"}).Lineas().size(), 3U);
}

TEST_F(OrdenImportar, UnFicheroDadoDosVecesSeImportaUna) {
  const std::string epw = Epw("c/a.epw", "Uno");
  const Ejecucion e = ConBase({"importar", (raiz_ / "c").string(), epw, (raiz_ / "c/../c/a.epw").string(),
                               "--provincia", "P", "--zona", "COSTA"});
  EXPECT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(ConBase({"localidades", "--provincia", "P"}).Lineas().size(), 1U);
}

TEST_F(OrdenImportar, SacarlaDeSuProvinciaSeDice) {
  const Ejecucion e = ConBase({"importar", Epw("x.epw", "Jaén"), "--provincia", "Clientes", "--reemplazar"});
  EXPECT_EQ(e.estado, 0) << e.error;
  EXPECT_NE(e.error.find("Aviso: x.epw: estaba en Jaén; pasa a Clientes\n"), std::string::npos) << e.error;
}

TEST_F(OrdenImportar, SinZonaSeTomaLaDeLasNormalesDelPrograma) {
  LineasFichero lineas = LineasEpw();
  lineas[0] = "LOCATION,Almerimar,AN,ESP,Mano,084870,36.8464,-2.3569,1.0,21.0";
  const Ejecucion e = ConBase({"importar", raiz_.Escribir("x.epw", Unir(lineas)), "--provincia", "Almería"});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_NE(Contenido(raiz_ / "base/Meteo/GDR.TXT").find("Almerimar COSTA "), std::string::npos) << e.error;
}

TEST_F(OrdenImportar, UnaQueYaEstaPideReemplazar) {
  const std::string epw = Epw("x.epw", "Rota");
  const Ejecucion e = ConBase({"importar", epw, "--provincia", "Cádiz"});
  EXPECT_EQ(e.estado, 4);
  EXPECT_EQ(e.salida, "");
  EXPECT_NE(e.error.find(
                "Error: x.epw: ya hay una localidad «Rota» en Cádiz; no se importa (véase --reemplazar)\n"),
            std::string::npos)
      << e.error;
  const Ejecucion otra = ConBase({"importar", epw, "--provincia", "Cádiz", "--reemplazar"});
  EXPECT_EQ(otra.estado, 0) << otra.error;
  EXPECT_TRUE(otra.salida.starts_with("x.epw: Rota (Cádiz), rota.met, reemplazada\n")) << otra.salida;
  EXPECT_TRUE(
      Contenido(raiz_ / "base/Meteo/rota.met").starts_with("Importado por Tesmo: Rota, Cádiz; de x.epw\n"));
}

TEST_F(OrdenImportar, ElRelojSePuedeElegir) {
  const std::string epw = Epw("x.epw", "Baza");
  const Ejecucion e =
      ConBase({"importar", epw, "--provincia", "Granada", "--reloj", "utc", "--desfase", "-50"});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_NE(e.salida.find("  Reloj: UTC, etiqueta − 50 min"), std::string::npos) << e.salida;
}

TEST_F(OrdenImportar, LaAltitudQueElFicheroNoSabeSeDice) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[0], 9, "");
  const std::string epw = raiz_.Escribir("x.epw", Unir(lineas));
  const Ejecucion e =
      ConBase({"importar", epw, "--provincia", "P", "--localidad", "Alta", "--altitud", "1500"});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.error.find("altitud"), std::string::npos) << e.error;
  EXPECT_NE(Contenido(raiz_ / "base/Meteo/LocalidadesCC").find(",Alta.met,37.18,-3.78,15,1500,0\n"),
            std::string::npos);
}

TEST_F(OrdenImportar, LoDesconocidoSeSaltaEnUnaCarpetaYNoSiSeNombra) {
  static_cast<void>(Epw("c/a.epw", "Uno"));
  raiz_.Escribir("c/normales.csv", "a,b\n1,2\n");
  const std::string suelto = raiz_.Escribir("suelto.csv", "a,b\n1,2\n");
  const Ejecucion e = ConBase({"importar", (raiz_ / "c").string(), suelto, "--provincia", "P"});
  EXPECT_EQ(e.estado, 3);
  EXPECT_NE(e.error.find("Aviso: normales.csv: no es de ningún"), std::string::npos) << e.error;
  EXPECT_NE(e.error.find("Error: suelto.csv: "), std::string::npos) << e.error;
}

TEST_F(OrdenImportar, UsoIncorrectoEstado2) {
  const std::string epw = Epw("x.epw", "Baza");
  const std::vector<std::vector<std::string>> malas{
      {"importar", epw},
      {"importar", "--provincia", "P"},
      {"importar", epw, "--provincia", "P", "--zona", "costa"},
      {"importar", epw, "--provincia", "P", "--reloj", "local"},
      {"importar", epw, "--provincia", "P", "--desfase", "91"},
      {"importar", epw, "--provincia", "P", "--altitud", "-501"},
      {"importar", epw, "--provincia", "P", "--altitud", "alta"},
      {"importar", epw, Epw("y.epw", "Otra"), "--provincia", "P", "--altitud", "5"},
      {"importar", epw, Epw("y.epw", "Otra"), "--provincia", "P", "--localidad", "L"}};
  for (const auto &mala : malas) EXPECT_EQ(ConBase(mala).estado, 2) << mala.back();
}

TEST_F(OrdenImportar, LoQueNoSePuedeLeerEstado3YLosDemasSeImportan) {
  const Ejecucion e =
      ConBase({"importar", (raiz_ / "nohay.epw").string(), Epw("x.epw", "Baza"), "--provincia", "P"});
  EXPECT_EQ(e.estado, 3);
  EXPECT_NE(e.error.find("Error: nohay.epw: "), std::string::npos) << e.error;
  EXPECT_EQ(ConBase({"localidades", "--provincia", "P"}).Lineas().size(), 1U);
}

TEST_F(OrdenImportar, UnaListaQueNoSePuedeLeerEstado4YNadaCambia) {
  const std::string epw = Epw("x.epw", "Baza");
  for (const char *lista : {"GDR.TXT", "LocalidadesCC"}) {
    const std::string destino = std::string(lista) + "-base";
    std::filesystem::create_directories(raiz_ / destino / "Meteo" / lista);
    raiz_.Escribir(destino + "/config.ini", "Directorios de prueba\nMET = Meteo\\\n");
    const Ejecucion e = Orden({"importar", epw, "--provincia", "P", "--base", (raiz_ / destino).string()});
    EXPECT_EQ(e.estado, 4) << lista << e.error;
    EXPECT_NE(e.error.find(std::string(lista) + ": no se puede escribir en "), std::string::npos) << e.error;
    EXPECT_FALSE(std::filesystem::exists(raiz_ / destino / "Meteo/Baza.met")) << lista;
    const std::filesystem::directory_iterator meteo(raiz_ / destino / "Meteo");
    EXPECT_EQ(std::distance(meteo, std::filesystem::directory_iterator()), 1) << lista;
  }
}

TEST_F(OrdenImportar, UnaImportacionAMediasSeTerminaAlEmpezar) {
  raiz_.Escribir("base/Meteo/.tesmo-importacion-0.nuevo", "a medias");
  const Ejecucion e = ConBase({"localidades"});
  EXPECT_EQ(e.estado, 0);
  EXPECT_NE(e.error.find("se ha deshecho una importación que quedó a medias"), std::string::npos) << e.error;
  EXPECT_EQ(ConBase({"localidades"}).error, "");
}

} // namespace
} // namespace tesmo::prueba
