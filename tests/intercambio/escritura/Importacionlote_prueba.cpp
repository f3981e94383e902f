#include "intercambio/Ficheroimportable.h"
#include "intercambio/Importacionlote.h"
#include "tests/comun/Apoyos.h"
#include "tests/intercambio/formatos/Generadorclima.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tesmo {
namespace {

namespace fs = std::filesystem;

class ImportacionDeUnLote : public ::testing::Test {
protected:
  /// Un EPW de prueba cuya ciudad se llama @p ciudad.
  std::string Epw(const std::string &fichero, const std::string &ciudad) const {
    prueba::LineasFichero lineas = prueba::LineasEpw();
    prueba::CambiarCampo(lineas[0], 1, ciudad);
    return raiz_.Escribir(fichero, prueba::Unir(lineas));
  }
  void Importar(const std::vector<std::string> &rutas, unsigned hilos, const std::string &destino = "m") {
    OpcionesLote opciones;
    opciones.peticion.provincia = "P";
    opciones.peticion.zona = zona_;
    opciones.normales = normales_;
    opciones.hilos = hilos;
    opciones.saltarDesconocidos = saltar_;
    hechos_.clear();
    ImportarLote((raiz_ / destino).string(), rutas, opciones,
                 [this](std::size_t i, const FicheroDeLote &uno) {
                   EXPECT_EQ(i, hechos_.size());
                   hechos_.push_back(uno);
                 });
  }

  prueba::DirectorioTemporal raiz_;
  std::vector<FicheroDeLote> hechos_;
  std::vector<bool> saltar_;
  std::string zona_ = ZONA_COSTA;
  std::vector<NormalesLocalidad> normales_;
};

TEST_F(ImportacionDeUnLote, ElCatalogoNoDependeDeLosHilos) {
  std::vector<std::string> rutas;
  for (int i = 0; i < 7; ++i)
    rutas.push_back(Epw(std::to_string(i) + ".epw", "Sitio " + std::to_string(9 - i)));
  Importar(rutas, 1, "uno");
  for (const FicheroDeLote &uno : hechos_) EXPECT_EQ(uno.importacion.error, "") << uno.ruta;
  Importar(rutas, 3, "tres");
  ASSERT_EQ(hechos_.size(), 7U);
  EXPECT_EQ(hechos_[0].nombre, "Sitio 9");
  for (const char *nombre : {"LocalidadesCC", "GDR.TXT", "Sitio9.met", "Sitio3.met"}) {
    const std::string uno = prueba::Contenido(raiz_ / (std::string("uno/") + nombre));
    EXPECT_FALSE(uno.empty()) << nombre;
    EXPECT_TRUE(uno == prueba::Contenido(raiz_ / (std::string("tres/") + nombre))) << nombre;
  }
}

TEST_F(ImportacionDeUnLote, UnFicheroMaloNoDetieneALosDemas) {
  const std::string basura = raiz_.Escribir("basura.epw", "LOCATION,x\nnada\n");
  Importar({basura, Epw("a.epw", "A"), raiz_.Ruta().string() + "/nohay.epw"}, 2);
  ASSERT_EQ(hechos_.size(), 3U);
  EXPECT_FALSE(hechos_[0].anio.errores.empty());
  EXPECT_EQ(hechos_[1].importacion.registro.localidad, "A");
  EXPECT_FALSE(hechos_[2].anio.errores.empty());
}

TEST_F(ImportacionDeUnLote, DosDelMismoNombreNoSePisan) {
  Importar({Epw("a.epw", "A"), Epw("b.epw", "A")}, 2);
  EXPECT_EQ(hechos_[0].importacion.error, "");
  EXPECT_EQ(hechos_[1].importacion.error,
            "otro fichero de los dados da también «A»; impórtelo aparte con otro nombre");
}

TEST_F(ImportacionDeUnLote, LoQueNoEsClimaSeSaltaSiSePide) {
  const std::string otro = raiz_.Escribir("normales.csv", "a;b\n1;2\n");
  Importar({otro}, 1);
  EXPECT_FALSE(hechos_[0].saltado);
  saltar_ = {true};
  Importar({otro, otro}, 1);
  EXPECT_TRUE(hechos_[0].saltado);
  EXPECT_FALSE(hechos_[1].saltado);
  EXPECT_FALSE(fs::exists(raiz_ / "m"));
}

TEST_F(ImportacionDeUnLote, UnMetSeLlamaComoSuFichero) {
  Importar({raiz_.Escribir("Baza.met", prueba::Unir(prueba::LineasMetTrece()))}, 1);
  EXPECT_EQ(hechos_[0].nombre, "Baza");
}

TEST_F(ImportacionDeUnLote, SinZonaSeTomaLaDeLasNormalesDelLugar) {
  NormalesLocalidad normales;
  normales.latitud = 37.18, normales.longitud = -3.78, normales.altitud = 567.0; // el sitio del EPW
  normales.zona = ZONA_COSTA;
  normales_ = {normales};
  zona_.clear();
  Importar({Epw("a.epw", "A")}, 1);
  EXPECT_TRUE(prueba::Contenido(raiz_ / "m/GDR.TXT").starts_with("A COSTA "));
  normales_[0].latitud = 40.0;
  Importar({Epw("b.epw", "B")}, 1);
  EXPECT_NE(prueba::Contenido(raiz_ / "m/GDR.TXT").find("\nB INTERIOR "), std::string::npos);
}

TEST_F(ImportacionDeUnLote, UnMetDeLaPropiaBaseDejaSuOriginal) {
  const std::string met = raiz_.Escribir("m/Baza.met", prueba::Unir(prueba::LineasMetTrece()));
  raiz_.Escribir("m/LocalidadesCC", "1\nBaza,Baza,P,,Baza,Baza.met,37.18,-3.78,15,567,0\n");
  const std::string original = prueba::Contenido(met);
  FicheroImportable fichero = PrepararFichero(met, {});
  fichero.peticion.provincia = "P";
  fichero.peticion.reemplazar = true;
  EXPECT_EQ(ImportarFichero((raiz_ / "m").string(), fichero).resultado.error, "");
  EXPECT_EQ(prueba::Contenido(raiz_ / "m/Baza.met.original"), original);
}

TEST(NombreDeUnaLocalidad, ElDelSitioOElDelFichero) {
  SitioClima sitio;
  sitio.nombre = "Baza";
  EXPECT_EQ(NombreDeLocalidad("/x/b.epw", sitio), "Baza");
  for (const char *nadie : {"", "unknown", "Unknown", " ", "-"}) {
    sitio.nombre = nadie;
    EXPECT_EQ(NombreDeLocalidad("/x/b.c.epw", sitio), "b.c") << nadie;
  }
}

TEST(EleccionDeReloj, MandanLosDatosSiSonDeFiarYSiempreQuienElige) {
  VeredictoReloj veredicto;
  veredicto.declarado.reloj = {TiempoEtiqueta::OficialEstandar, 1.0, 0.0};
  veredicto.propuesto.reloj = {TiempoEtiqueta::Utc, 1.0, -50.0};
  veredicto.confianza = ConfianzaReloj::Baja;
  EXPECT_EQ(ElegirReloj(veredicto, {}).tiempo, TiempoEtiqueta::OficialEstandar);
  veredicto.confianza = ConfianzaReloj::Media;
  EXPECT_EQ(ElegirReloj(veredicto, {}).desfaseMin, -50.0);
  const RelojFichero declarado = ElegirReloj(veredicto, {TiempoEtiqueta::OficialEstandar, {}});
  EXPECT_EQ(declarado.desfaseMin, 0.0);
  EXPECT_EQ(declarado.husoHoras, 1.0);
  EXPECT_EQ(ElegirReloj(veredicto, {TiempoEtiqueta::SolarVerdadero, {}}).desfaseMin, -30.0);
  EXPECT_EQ(ElegirReloj(veredicto, {{}, 12.0}).desfaseMin, 12.0);
  EXPECT_EQ(ElegirReloj(veredicto, {{}, 12.0}).tiempo, TiempoEtiqueta::Utc);
}

TEST_F(ImportacionDeUnLote, ElHusoEsElDelSitioOElQueSeDiga) {
  prueba::LineasFichero lineas = prueba::LineasMetTrece();
  lineas[1] = "37.18 -3.78 567 -3.78"; // el meridiano del propio sitio
  const std::string met = raiz_.Escribir("a.met", prueba::Unir(lineas));
  EXPECT_EQ(LeerAnioDeFichero(met, {}).conversion.anio->husoHoras, 0.0);
  EXPECT_EQ(PrepararFichero(met, {}).reloj.husoHoras, 0.0);
  EXPECT_EQ(LeerAnioDeFichero(met, {.husoHoras = 1.0}).conversion.anio->husoHoras, 1.0);
}

TEST_F(ImportacionDeUnLote, ElHusoAdivinadoDeUnCsvDePvgisSeAvisa) {
  const std::string csv = raiz_.Escribir("a.csv", prueba::Unir(prueba::LineasPvgisCsv()));
  const AnioDeFichero adivinado = LeerAnioDeFichero(csv, {});
  ASSERT_EQ(adivinado.lectura.avisos.size(), 1U);
  EXPECT_NE(adivinado.lectura.avisos[0].texto.find("huso"), std::string::npos);
  EXPECT_EQ(adivinado.conversion.anio->husoHoras, 0.0); // el de 3,78° O
  EXPECT_TRUE(LeerAnioDeFichero(csv, {.husoHoras = 1.0}).lectura.avisos.empty());
}

TEST(AnioDeUnFichero, LosErroresDeLecturaSonLosSuyos) {
  const AnioDeFichero leido = LeerAnioDeFichero("/no/hay.epw", {});
  ASSERT_EQ(leido.errores.size(), 1U);
  EXPECT_FALSE(leido.conversion.anio);
}

} // namespace
} // namespace tesmo
