#include "core/Cerrojo.h"
#include "core/Codificacion.h"
#include "extremos/Registrogdr.h"
#include "intercambio/escritura/Importacion.h"
#include "localidades/Lectorlocalidades.h"
#include "meteo/Lectormet.h"
#include "tests/comun/Apoyos.h"
#include "tests/intercambio/escritura/Apoyosescritura.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace tesmo {
namespace {

namespace fs = std::filesystem;

class Importacion : public ::testing::Test {
protected:
  ResultadoImportacion Importar(const std::string &nombre, const std::string &provincia = "Granada",
                                bool reemplazar = false, const std::string &zona = "INTERIOR") const {
    return ImportarLocalidad(raiz_.Ruta().string(), {nombre, provincia, zona, "x.epw", reemplazar}, anio_);
  }
  [[nodiscard]] std::string Leer(const std::string &nombre) const {
    return prueba::Contenido(raiz_ / nombre);
  }
  [[nodiscard]] std::vector<std::string> EnElDirectorio() const {
    std::vector<std::string> nombres;
    for (const auto &entrada : fs::directory_iterator(raiz_.Ruta()))
      nombres.push_back(TextoDeRuta(entrada.path().filename()));
    std::ranges::sort(nombres);
    return nombres;
  }

  prueba::DirectorioTemporal raiz_;
  AnioSolar anio_ = prueba::AnioAMano();
};

TEST_F(Importacion, EscribeElMetSuRegistroYSuLinea) {
  const ResultadoImportacion hecho = Importar("Sierra Nevada");
  EXPECT_EQ(hecho.error, "");
  EXPECT_TRUE(hecho.avisos.empty());
  EXPECT_EQ(EnElDirectorio(), (std::vector<std::string>{"GDR.TXT", "LocalidadesCC", "SierraNevada.met"}));
  EXPECT_EQ(Leer("LocalidadesCC"),
            "1\nSierra Nevada,SierraNevada,Granada,,Sierra Nevada,SierraNevada.met,37.25,"
            "-3.5,15,680,0\n");
  EXPECT_TRUE(Leer("GDR.TXT").starts_with("SierraNevada INTERIOR 37.25 -3.5 15 10 ALT=680 WCAL=1 WREF=9\n"
                                          "6.03 "))
      << Leer("GDR.TXT");
  EXPECT_TRUE(Leer("SierraNevada.met")
                  .starts_with("Importado por Tesmo: Sierra Nevada, Granada; de x.epw\n"
                               "37.25 -3.5 680 15.0\n"));
  ASSERT_EQ(hecho.ficheros.size(), 3U);
  EXPECT_TRUE(hecho.ficheros[2].ends_with("LocalidadesCC"));
  EXPECT_EQ(hecho.registro.localidad, "Sierra Nevada");
  EXPECT_EQ(hecho.registro.fichero, "SierraNevada.met");
  EXPECT_EQ(hecho.registro.latitud, 37.25F);
}

TEST_F(Importacion, LoEscritoLoLeenLosMotores) {
  ASSERT_EQ(Importar("Rota", "Cádiz", false, "COSTA").error, "");
  const auto lista =
      LeerLocalidades(Leer("LocalidadesCC"), "f", [](const std::string &a) { ADD_FAILURE() << a; });
  ASSERT_EQ(lista.size(), 1U);
  extremos::RegistroGdr registro;
  ASSERT_EQ(extremos::LeerRegistroGdr(Leer("GDR.TXT"), lista[0]->localidadCorta, "GDR.TXT", registro),
            extremos::LecturaGdr::Leido);
  EXPECT_EQ(registro.zona, "COSTA");
  SitioMet sitio;
  SeriesLeidas series;
  EXPECT_TRUE(LeerTextoMet(Leer(lista[0]->fichero), sitio, series).Completa());
}

TEST_F(Importacion, UnNombreMaliciosoSeQuedaEnSuDirectorio) {
  fs::create_directories(raiz_ / "a/b/Meteo");
  const ResultadoImportacion hecho =
      ImportarLocalidad((raiz_ / "a/b/Meteo").string(), {"../../x", "P", "COSTA", "", false}, anio_);
  EXPECT_EQ(hecho.error, "");
  EXPECT_TRUE(fs::exists(raiz_ / "a/b/Meteo/X.met"));
  EXPECT_FALSE(fs::exists(raiz_ / "x.met"));
  EXPECT_EQ(hecho.registro.localidad, "../../x");
}

TEST_F(Importacion, UnaQueYaEstaSoloSeReemplazaSiSePide) {
  ASSERT_EQ(Importar("Rota", "Cádiz", false, "COSTA").error, "");
  const std::string lista = Leer("LocalidadesCC");
  const std::string gdr = Leer("GDR.TXT");
  const ResultadoImportacion negado = Importar("Rota", "Cádiz");
  EXPECT_EQ(negado.fallo, FalloImportacion::Existe);
  EXPECT_EQ(negado.error, "ya hay una localidad «Rota» en Cádiz");
  for (double &t : anio_[SerieAlmacenada::TemperaturaSeca].valores) t += 1.0;
  const ResultadoImportacion hecho = Importar("Rota", "Cádiz", true, "");
  EXPECT_EQ(hecho.error, "");
  EXPECT_TRUE(hecho.reemplazada);
  EXPECT_TRUE(hecho.avisos.empty()); // la zona es la que tenía
  EXPECT_EQ(Leer("LocalidadesCC"), lista);
  EXPECT_TRUE(Leer("GDR.TXT").starts_with("Rota COSTA ")) << Leer("GDR.TXT");
  EXPECT_NE(Leer("GDR.TXT"), gdr);
  EXPECT_NE(Leer("Rota.met").find("\n1 1 1 -2.00 "), std::string::npos);
  EXPECT_EQ(EnElDirectorio().size(), 3U);
}

TEST_F(Importacion, LaReemplazadaConservaSusNombresSiSonSuyos) {
  raiz_.Escribir("LocalidadesCC",
                 "2\nRota,rt,Cádiz,c,r,OTRO.MET,1,2,3,4,7\nJerez,jz,Cádiz,c,r,j.met,1,2,3,4,0\n");
  ASSERT_EQ(Importar("Rota", "Cádiz", true).error, "");
  EXPECT_EQ(EnElDirectorio(), (std::vector<std::string>{"GDR.TXT", "LocalidadesCC", "OTRO.MET"}));
  EXPECT_TRUE(Leer("GDR.TXT").starts_with("rt "));
  EXPECT_TRUE(Leer("LocalidadesCC").starts_with("2\nRota,rt,Cádiz,c,r,OTRO.MET,37.25,-3.5,15,680,7\n"))
      << Leer("LocalidadesCC");
}

TEST_F(Importacion, ReemplazarUnaDeOtraProvinciaLoDice) {
  ASSERT_EQ(Importar("Rota", "Cádiz").error, "");
  EXPECT_EQ(Importar("Rota", "Clientes").error, "ya hay una localidad «Rota» en Cádiz");
  const ResultadoImportacion hecho = Importar("Rota", "Clientes", true);
  EXPECT_EQ(hecho.avisos, std::vector<std::string>{"estaba en Cádiz; pasa a Clientes"});
  EXPECT_EQ(hecho.registro.provincia, "Clientes");
}

TEST_F(Importacion, LaZonaEsLaDichaLaQueTeniaOLaPropuesta) {
  PeticionImportacion peticion{"Rota", "Cádiz", "", "", true};
  peticion.zonaPropuesta = ZONA_COSTA;
  const ResultadoImportacion nueva = ImportarLocalidad(raiz_.Ruta().string(), peticion, anio_);
  EXPECT_EQ(nueva.avisos,
            std::vector<std::string>{"no se ha dicho la zona: se toma COSTA, la de las normales del lugar"});
  EXPECT_TRUE(Leer("GDR.TXT").starts_with("Rota COSTA ")) << Leer("GDR.TXT");
  peticion.zonaPropuesta = ZONA_INTERIOR;
  EXPECT_TRUE(ImportarLocalidad(raiz_.Ruta().string(), peticion, anio_).avisos.empty());
  EXPECT_TRUE(Leer("GDR.TXT").starts_with("Rota COSTA ")) << Leer("GDR.TXT");
  peticion.zona = ZONA_INTERIOR;
  static_cast<void>(ImportarLocalidad(raiz_.Ruta().string(), peticion, anio_));
  EXPECT_TRUE(Leer("GDR.TXT").starts_with("Rota INTERIOR ")) << Leer("GDR.TXT");
}

TEST_F(Importacion, SiSeLeyoElMetQueSeEscribeElOriginalQuedaASuLado) {
  ASSERT_EQ(Importar("Rota").error, "");
  raiz_.Escribir("Rota.met", "trece columnas");
  PeticionImportacion peticion{"Rota", "Granada", "", "", true};
  peticion.fuente = (raiz_ / "ROTA.MET").string(); // se lee sin mirar mayúsculas
  const ResultadoImportacion hecho = ImportarLocalidad(raiz_.Ruta().string(), peticion, anio_);
  EXPECT_EQ(hecho.avisos,
            std::vector<std::string>{
                "el fichero leído es el que se escribe: el original queda en Rota.met.original"});
  EXPECT_EQ(Leer("Rota.met.original"), "trece columnas");
  const std::string importado = Leer("Rota.met");
  EXPECT_TRUE(importado.starts_with("Importado por Tesmo: "));
  EXPECT_EQ(ImportarLocalidad(raiz_.Ruta().string(), peticion, anio_).error, "");
  EXPECT_EQ(Leer("Rota.met.original"), "trece columnas");
  EXPECT_EQ(Leer("Rota.met.original-2"), importado);
  peticion.fuente = raiz_.Escribir("otro.met", "otro");
  EXPECT_TRUE(ImportarLocalidad(raiz_.Ruta().string(), peticion, anio_).avisos.empty());
}

TEST_F(Importacion, SiNoSePuedeEscribirNoQuedaNiLaCopiaDelOriginal) {
  raiz_.Escribir("LocalidadesCC", "1\nRota,Rota,Cádiz,,Rota,Rota.met,1,2,3,4,0\n");
  fs::create_directory(raiz_ / "GDR.TXT");
  PeticionImportacion peticion{"Rota", "Cádiz", "", "", true};
  peticion.fuente = raiz_.Escribir("Rota.met", "trece columnas");
  EXPECT_EQ(ImportarLocalidad(raiz_.Ruta().string(), peticion, anio_).fallo, FalloImportacion::Salida);
  EXPECT_EQ(EnElDirectorio(), (std::vector<std::string>{"GDR.TXT", "LocalidadesCC", "Rota.met"}));
  EXPECT_EQ(Leer("Rota.met"), "trece columnas");
}

/// Pone en lugar del fichero @p ruta un directorio con algo dentro: ni se puede cambiar ni escribir.
void HacerDirectorio(const fs::path &ruta) {
  fs::remove(ruta);
  fs::create_directories(ruta / "algo");
}

/// El .met de la base que se importa sobre sí mismo.
class ImportacionSobreSi : public Importacion {
protected:
  void SetUp() override {
    ASSERT_EQ(Importar("Rota").error, "");
    peticion_.fuente = raiz_.Escribir("Rota.met", FUENTE);
  }
  ResultadoImportacion ConEstropicio(const TrasPaso &tras) {
    return ImportarLocalidad(raiz_.Ruta().string(), peticion_, anio_, tras);
  }
  static constexpr const char *FUENTE = "trece columnas";
  static constexpr const char *DIARIO = ".tesmo-importacion";
  PeticionImportacion peticion_{"Rota", "Granada", "", "", true};
};

TEST_F(ImportacionSobreSi, SiNoSePuedeReponerLaFuenteSuCopiaSeQueda) {
  const ResultadoImportacion hecho = ConEstropicio([this] {
    if (Leer("Rota.met") == FUENTE || fs::is_directory(raiz_ / "GDR.TXT")) return;
    HacerDirectorio(raiz_ / "GDR.TXT");
    HacerDirectorio(raiz_ / DIARIO);
  });
  EXPECT_EQ(hecho.fallo, FalloImportacion::Salida);
  ASSERT_NE(Leer("Rota.met"), FUENTE);
  EXPECT_EQ(Leer("Rota.met.original"), FUENTE);
  ASSERT_EQ(hecho.avisos.size(), 1U);
  EXPECT_NE(hecho.avisos[0].find("el original queda en Rota.met.original"), std::string::npos);
}

TEST_F(ImportacionSobreSi, ConUnDiarioPendienteLaCopiaSeQueda) {
  const ResultadoImportacion hecho = ConEstropicio([this] {
    if (!fs::is_regular_file(raiz_ / DIARIO)) return;
    HacerDirectorio(raiz_ / (std::string(DIARIO) + "-0.nuevo"));
    HacerDirectorio(raiz_ / DIARIO);
  });
  EXPECT_EQ(hecho.fallo, FalloImportacion::Salida);
  ASSERT_EQ(Leer("Rota.met"), FUENTE);
  EXPECT_EQ(Leer("Rota.met.original"), FUENTE); // lo pendiente puede acabar y cambiar la fuente
}

TEST_F(ImportacionSobreSi, RepuestaLaFuenteSobranLaCopiaYSuAviso) {
  const ResultadoImportacion hecho = ConEstropicio([this] {
    if (Leer("Rota.met") != FUENTE && !fs::is_directory(raiz_ / "GDR.TXT"))
      HacerDirectorio(raiz_ / "GDR.TXT");
  });
  EXPECT_EQ(hecho.fallo, FalloImportacion::Salida);
  EXPECT_EQ(Leer("Rota.met"), FUENTE);
  EXPECT_EQ(EnElDirectorio(), (std::vector<std::string>{"GDR.TXT", "LocalidadesCC", "Rota.met"}));
  EXPECT_TRUE(hecho.avisos.empty());
}

TEST_F(Importacion, LaReemplazadaNoPisaElFicheroQueComparte) {
  raiz_.Escribir("LocalidadesCC",
                 "2\nRota,rt,Cádiz,c,r,j.met,1,2,3,4,0\nJerez,jz,Cádiz,c,r,J.met,1,2,3,4,0\n");
  raiz_.Escribir("j.met", "de las dos");
  const ResultadoImportacion hecho = Importar("Rota", "Cádiz", true);
  EXPECT_EQ(hecho.registro.fichero, "Rota.met");
  EXPECT_EQ(Leer("j.met"), "de las dos");
}

TEST_F(Importacion, LaReemplazadaNoEscribeFueraAunqueLaListaLoDiga) {
  raiz_.Escribir("m/LocalidadesCC", "1\nRota,rt,Cádiz,c,r,../fuera.met,1,2,3,4,0\n");
  const ResultadoImportacion hecho =
      ImportarLocalidad((raiz_ / "m").string(), {"Rota", "Cádiz", "COSTA", "", true}, anio_);
  EXPECT_EQ(hecho.registro.fichero, "Rota.met");
  EXPECT_FALSE(fs::exists(raiz_ / "fuera.met"));
}

TEST_F(Importacion, DosNombresQueSeAcortanIgualNoSePisan) {
  ASSERT_EQ(Importar("Mojácar").error, "");
  const ResultadoImportacion segunda = Importar("Mojacar");
  EXPECT_EQ(segunda.registro.localidadCorta, "Mojacar-2");
  EXPECT_EQ(segunda.avisos,
            std::vector<std::string>{"el nombre corto «Mojacar» ya está ocupado: se usa «Mojacar-2»"});
  EXPECT_EQ(Importar("MOJACAR").registro.fichero, "MOJACAR-3.met"); // hay discos sin mayúsculas
  EXPECT_EQ(EnElDirectorio().size(), 5U);
}

TEST_F(Importacion, ElMismoNombreConElAcentoSueltoEsLaMisma) {
  ASSERT_EQ(Importar("Motril", "Almería").error, "");
  ASSERT_TRUE(Importar("Almería", "Almeri\u0301a").avisos.empty());
  EXPECT_EQ(Importar("Almeri\u0301a", "Almería").fallo, FalloImportacion::Existe);
  EXPECT_TRUE(Leer("LocalidadesCC").starts_with("2\nMotril,")) << Leer("LocalidadesCC");
}

TEST_F(Importacion, UnNombreQueNoSePodraElegirSeAvisa) {
  EXPECT_EQ(Importar("Localidad").avisos.size(), 1U);
  EXPECT_TRUE(Importar("Localidades").avisos.empty());
}

TEST_F(Importacion, UnMetQueNoEstaEnLaListaNoSePisa) {
  raiz_.Escribir("rota.MET", "de alguien");
  EXPECT_EQ(Importar("Rota").registro.fichero, "Rota-2.met");
  EXPECT_EQ(Leer("rota.MET"), "de alguien");
}

TEST_F(Importacion, LosDemasBytesDeLasListasQuedanComoEstaban) {
  const std::string lista = "1\r\n\xDA"
                            "beda,U,Ja\xE9n , c,r ,u.met,1,2,3,4,0\r\n\r\n";
  const std::string gdr = "U C 1 2 3 10 ALT=5\r\n1 1 1 1 1 1 1 1 1 1 1 1\r\n1 1 1 1 1 1 1 1 1 1 1 1\r\n"
                          "1 1 1 1 1 1 1 1 1 1 1 1\r\n1 1 1 1 1 1 1 1 1 1 1 1\r\n"
                          "1 1 1 1 1 1 1 1 1 1 1 1\r\n1 1 1 1 1 1 1 1 1 1 1 1\r\n";
  raiz_.Escribir("localidadescc", lista);
  raiz_.Escribir("gdr.txt", gdr);
  ASSERT_EQ(Importar("Níjar", "Almería").error, "");
  EXPECT_EQ(Leer("localidadescc"),
            lista + AWindows1252("1\r\nNíjar,Nijar,Almería,,Níjar,Nijar.met,37.25,-3.5,15,"
                                 "680,0\r\n"));
  EXPECT_TRUE(Leer("gdr.txt").starts_with(gdr + "Nijar INTERIOR "));
  EXPECT_EQ(EnElDirectorio(), (std::vector<std::string>{"Nijar.met", "gdr.txt", "localidadescc"}));
}

TEST_F(Importacion, ElRegistro178SeAvisaTambienAlReemplazarlo) {
  std::string gdr;
  for (int i = 0; i < 177; ++i) {
    gdr += "L" + std::to_string(i) + " C 1 2 3 10\n";
    for (int fila = 0; fila < 6; ++fila) gdr += "1 1 1 1 1 1 1 1 1 1 1 1\n";
  }
  raiz_.Escribir("GDR.TXT", gdr);
  const std::vector<std::string> aviso{
      "los días extremos no encontrarán esta localidad: sólo se miran los 177 "
      "primeros registros de GDR.TXT y el suyo es el 178"};
  EXPECT_EQ(Importar("Rota").avisos, aviso);
  EXPECT_EQ(Importar("Rota", "Granada", true).avisos, aviso);
}

TEST_F(Importacion, SinZonaSeDiceQueEsDelInterior) {
  EXPECT_EQ(Importar("Rota", "Cádiz", false, "").avisos.size(), 1U);
}

TEST_F(Importacion, LoQueFaltaSeDiceYNoSeEscribeNada) {
  EXPECT_EQ(Importar(" , ").fallo, FalloImportacion::Peticion);
  EXPECT_EQ(Importar("Rota", "").fallo, FalloImportacion::Peticion);
  anio_[SerieAlmacenada::DireccionViento].valores[7] = AUSENTE;
  EXPECT_EQ(Importar("Rota").error, "la columna 11 del año no está entera");
  anio_ = prueba::AnioAMano();
  anio_.sitio.latitud = AUSENTE;
  EXPECT_EQ(Importar("Rota").error, "no se conoce la latitud");
  EXPECT_TRUE(EnElDirectorio().empty());
}

TEST_F(Importacion, SinAltitudSeTomaElNivelDelMarYSeDice) {
  anio_.sitio.altitud = AUSENTE;
  const ResultadoImportacion hecho = Importar("Rota");
  EXPECT_EQ(hecho.avisos, std::vector<std::string>{"no se conoce la altitud: se toma el nivel del mar"});
  EXPECT_EQ(hecho.registro.decimo, 0.0F);
}

TEST_F(Importacion, OtraImportacionEnMarchaNoSeMezclaConEsta) {
  const CerrojoDirectorio otro(raiz_.Ruta());
  ASSERT_TRUE(otro.Tomado());
  EXPECT_EQ(Importar("Rota").fallo, FalloImportacion::Ocupado);
  EXPECT_TRUE(EnElDirectorio().empty());
}

TEST_F(Importacion, MuertaEnCualquierPasoElCatalogoQuedaComoAntesOComoDespues) {
  ASSERT_EQ(Importar("Otra").error, "");
  for (const bool reemplazar : {false, true}) {
    const std::string nombre = reemplazar ? "Otra" : "Nueva";
    if (reemplazar)
      for (double &t : anio_[SerieAlmacenada::TemperaturaSeca].valores) t += 1.0;
    const std::string lista = Leer("LocalidadesCC");
    const std::string gdr = Leer("GDR.TXT");
    const std::string met = Leer("Otra.met");
    bool acabo = false;
    int antes = 0;
    for (int pasos = 1; !acabo; ++pasos) {
      ASSERT_LT(pasos, 50);
      acabo = prueba::MuereTras(pasos, [&](const auto &tras) {
        static_cast<void>(ImportarLocalidad(raiz_.Ruta().string(),
                                            {nombre, "Granada", "COSTA", "", reemplazar}, anio_, tras));
      });
      const std::string hecho = RecuperarImportacion(raiz_.Ruta().string());
      EXPECT_EQ(RecuperarImportacion(raiz_.Ruta().string()), "");
      const bool comoAntes = Leer("GDR.TXT") == gdr;
      antes += comoAntes ? 1 : 0;
      EXPECT_EQ(Leer("LocalidadesCC") == lista, comoAntes || reemplazar) << pasos;
      EXPECT_EQ(Leer("Otra.met") == met, comoAntes || !reemplazar) << pasos;
      EXPECT_EQ(fs::exists(raiz_ / "Nueva.met"), !comoAntes || reemplazar) << pasos;
      EXPECT_EQ(EnElDirectorio().size(), comoAntes && !reemplazar ? 3U : 4U) << pasos;
      if (!comoAntes) break; // el resto de pasos se prueba en la sustitución conjunta
      EXPECT_TRUE(hecho.ends_with("se ha deshecho una importación que quedó a medias")) << hecho;
    }
    EXPECT_GE(antes, 3);
  }
}

} // namespace
} // namespace tesmo
