#include "intercambio/Sintesis.h"

#include "core/Rutas.h"
#include "intercambio/sintesis/Azar.h"
#include "localidades/Ciudad.h"
#include "meteo/Lectormet.h"
#include "tests/comun/Apoyos.h"
#include "tests/comun/Lugares.h"
#include "tests/intercambio/sintesis/Apoyosintesis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <clocale>
#include <filesystem>
#include <sstream>

#ifdef __GLIBC__
#include <gnu/libc-version.h>
#endif

namespace tesmo {
namespace {

namespace fs = std::filesystem;
using prueba::Contenido;
using prueba::DirectorioTemporal;

class Sintesis : public ::testing::Test {
protected:
  bool Hacer(const std::string &normales = prueba::RutaNormales()) {
    return Sintetizar(normales, TextoDeRuta(directorio_.Ruta()), resultado_);
  }
  [[nodiscard]] std::string Meteo(const std::string &nombre) const {
    return Contenido(directorio_ / ("Meteo/" + nombre));
  }
  /// Las normales de las @p numero primeras localidades: para lo que no necesita el año de todas.
  [[nodiscard]] std::string Primeras(int numero) const {
    const std::string entero = Contenido(RutaDesdeTexto(prueba::RutaNormales()));
    std::size_t fin = 0;
    for (int linea = 0; linea < 2 + 12 * numero; ++linea) fin = entero.find('\n', fin) + 1;
    return directorio_.Escribir("primeras.csv", entero.substr(0, fin));
  }

  DirectorioTemporal directorio_;
  ResultadoSintesis resultado_;
};

TEST_F(Sintesis, EscribeUnMetPorLocalidadYLasDosListas) {
  ASSERT_TRUE(Hacer());
  EXPECT_EQ(resultado_.fallo, FalloSintesis::Ninguno);
  EXPECT_EQ(resultado_.localidades, 19U);
  EXPECT_EQ(resultado_.ficheros.size(), 21U);
  EXPECT_TRUE(resultado_.errores.empty());
  EXPECT_TRUE(resultado_.avisos.empty());
  EXPECT_TRUE(resultado_.ficheros.front().ends_with("Meteo/Almeria.met"));
  EXPECT_TRUE(resultado_.ficheros.back().ends_with("Meteo/LocalidadesCC"));
  for (const std::string &fichero : resultado_.ficheros)
    EXPECT_TRUE(fs::is_regular_file(RutaDesdeTexto(fichero)));
}

TEST_F(Sintesis, DaLosMismosBytesCadaVezYEnCualquierSubconjunto) {
  ASSERT_TRUE(Hacer(Primeras(2)));
  const std::string primero = Meteo("Cadiz.met");
  const DirectorioTemporal otro;
  ResultadoSintesis resultado;
  ASSERT_TRUE(Sintetizar(Primeras(3), TextoDeRuta(otro.Ruta()), resultado));
  EXPECT_GT(primero.size(), 500000U);
  EXPECT_TRUE(primero == Contenido(otro / "Meteo/Cadiz.met"));
}

/// Temperatura seca [°C], global horizontal [W/m²], humedad absoluta [g/kg] y viento [m/s], medias de un año.
struct MediasDelAnio {
  const char *localidad;
  double temperatura, global, humedad, viento;
};

/// Las de los ficheros de la suma de comprobación de abajo. Otra biblioteca matemática puede cambiar la
/// última cifra de algunas horas, pero no las medias: esta prueba corre en todas partes.
TEST(SintesisMedias, LasDelAnioSonLasDeSiempreEnCualquierSistema) {
  const std::array ESPERADAS{MediasDelAnio{"Almería", 19.0026, 213.0243, 9.03135, 4.31506},
                             MediasDelAnio{"Antequera", 15.3550, 201.5079, 6.61659, 3.85800},
                             MediasDelAnio{"Baza", 14.1357, 210.0754, 5.94481, 4.31548},
                             MediasDelAnio{"Cádiz", 18.6569, 205.2088, 9.80887, 4.04084},
                             MediasDelAnio{"Córdoba", 18.1772, 201.1006, 7.51513, 2.66840},
                             MediasDelAnio{"Granada", 15.5756, 210.2242, 6.45809, 2.60355},
                             MediasDelAnio{"Huelva", 18.0908, 211.5604, 8.32147, 3.26008},
                             MediasDelAnio{"Jaén", 17.1004, 204.9545, 8.00289, 2.16734},
                             MediasDelAnio{"Málaga", 18.4415, 201.1710, 8.64078, 3.85787},
                             MediasDelAnio{"Ronda", 14.9055, 207.5488, 6.56191, 3.85741},
                             MediasDelAnio{"Sevilla", 19.1649, 199.9282, 7.90049, 2.99086},
                             MediasDelAnio{"Tarifa", 17.2347, 195.3764, 9.46286, 8.38193}};
  for (const MediasDelAnio &esperada : ESPERADAS) {
    const auto &anios = prueba::AniosDelPrograma();
    const auto anio = std::find_if(anios.begin(), anios.end(), [&](const prueba::AnioDePrueba &a) {
      return a.normales.nombre == esperada.localidad;
    });
    ASSERT_NE(anio, anios.end()) << esperada.localidad;
    const auto media = [&](prueba::Columna columna) {
      std::vector<double> valores;
      for (const auto &registro : anio->met.registros) valores.push_back(registro[columna]);
      return prueba::Media(valores);
    };
    EXPECT_NEAR(media(prueba::TS), esperada.temperatura, 0.001) << esperada.localidad;
    EXPECT_NEAR(media(prueba::RDIR) + media(prueba::RDIF), esperada.global, 0.01) << esperada.localidad;
    EXPECT_NEAR(media(prueba::W) * 1000.0, esperada.humedad, 0.0005) << esperada.localidad;
    EXPECT_NEAR(media(prueba::VV), esperada.viento, 0.0005) << esperada.localidad;
  }
}

TEST_F(Sintesis, LaSumaDeComprobacionEnDebian12EsLaFijada) {
#if defined(__x86_64__) && defined(__GLIBC__)
  if (std::string(gnu_get_libc_version()) != "2.36")
    GTEST_SKIP() << "la suma vale con la glibc 2.36 de Debian 12";
#else
  GTEST_SKIP() << "la suma vale en x86-64 con glibc";
#endif
  ASSERT_TRUE(Hacer());
  std::string todo;
  for (const std::string &fichero : resultado_.ficheros) todo += Contenido(RutaDesdeTexto(fichero));
  EXPECT_EQ(ResumenFnv(todo), 0xb649fccf325c5689U);
}

TEST_F(Sintesis, ElLectorDelProgramaLeeElAnioEnteroSinPerderNingunaLinea) {
  ASSERT_TRUE(Hacer(Primeras(1)));
  SitioMet sitio;
  SeriesLeidas series;
  const ResumenLectura resumen = LeerTextoMet(Meteo("Almeria.met"), sitio, series);
  EXPECT_TRUE(resumen.Completa());
  EXPECT_FLOAT_EQ(sitio.latitud, 36.8464F);
  EXPECT_FLOAT_EQ(sitio.longitud, -2.3569F);
  EXPECT_FLOAT_EQ(sitio.tercerDato, 21.0F);
  const prueba::MetLeido met = prueba::LeerMetDePrueba(TextoDeRuta(directorio_ / "Meteo/Almeria.met"));
  for (std::size_t columna = 0; columna < 10; ++columna) {
    const SerieHoraria &serie = series[static_cast<SerieAlmacenada>(columna)];
    EXPECT_FLOAT_EQ(serie[0], static_cast<float>(met.registros[0][columna + 3])) << columna;
    EXPECT_FLOAT_EQ(serie[8759], static_cast<float>(met.registros[8759][columna + 3])) << columna;
  }
}

TEST_F(Sintesis, LaBaseDeLocalidadesLeeLaListaSinAvisos) {
  ASSERT_TRUE(Hacer());
  const fs::path antes = fs::current_path();
  std::vector<std::string> avisos;
  const auto anterior = PonAvisoLocalidades([&](const std::string &aviso) { avisos.push_back(aviso); });
  directorio_.Escribir("config.ini", Contenido(RutaDesdeTexto(tesmo::prueba::Raiz() + "/datos/config.ini")));
  IniciarConfiguracion(TextoDeRuta(directorio_.Ruta()));
  LiberarBaseDeLocalidades();
  const BaseDeLocalidades &base = DameBaseDeLocalidades();
  std::vector<std::string> provincias;
  base.ListaDe("Provincias", provincias);
  EXPECT_EQ(provincias, (std::vector<std::string>{"Almería", "Cádiz", "Córdoba", "Granada", "Huelva", "Jaén",
                                                  "Málaga", "Sevilla"}));
  EXPECT_EQ(base.Registros().size(), 19U);
  EXPECT_EQ(base.DameTextoDe("Morón de la Frontera", "Localidad Corta"), "MoronDeLaFrontera");
  EXPECT_EQ(base.DameTextoDe("Morón de la Frontera", "Provincia"), "Sevilla");
  EXPECT_EQ(base.DameTextoDe("Morón de la Frontera", "LocalidadRef"), "Sevilla");
  for (const auto &registro : base.Registros()) {
    EXPECT_FALSE(Meteo(base.DameTextoDe(registro->DameTexto("Ciudad"), "Fichero")).empty());
  }
  EXPECT_TRUE(avisos.empty());
  PonAvisoLocalidades(anterior);
  LiberarBaseDeLocalidades();
  LiberarConfiguracion();
  fs::current_path(antes);
}

TEST_F(Sintesis, CadaBloqueDeLaListaDiceCuantasLineasTiene) {
  ASSERT_TRUE(Hacer(Primeras(2)));
  EXPECT_EQ(Meteo("LocalidadesCC"),
            "1\nAlmería,Almeria,Almería,Almería,Almería,Almeria.met,36.8464,-2.3569,15,21,0\n"
            "1\nCádiz,Cadiz,Cádiz,Cádiz,Cádiz,Cadiz.met,36.4997,-6.2578,15,2,0\n");
}

TEST_F(Sintesis, CadaRegistroDeGdrTieneSieteLineasYDoceCifras) {
  ASSERT_TRUE(Hacer());
  std::istringstream texto(Meteo("GDR.TXT"));
  std::string linea;
  int registros = 0;
  while (std::getline(texto, linea)) {
    std::istringstream cabecera(linea);
    std::string corto;
    std::string zona;
    std::string cola;
    double latitud = 0.0;
    double longitud = 0.0;
    double meridiano = 0.0;
    double factor = 0.0;
    ASSERT_TRUE(cabecera >> corto >> zona >> latitud >> longitud >> meridiano >> factor >> cola) << linea;
    EXPECT_TRUE(zona == "COSTA" || zona == "INTERIOR") << linea;
    EXPECT_EQ(factor, 10.0);
    EXPECT_TRUE(cola.starts_with("ALT=")) << linea;
    for (int fila = 0; fila < 6; ++fila) {
      ASSERT_TRUE(std::getline(texto, linea));
      std::istringstream cifras(linea);
      int cuantas = 0;
      for (double cifra = 0.0; cifras >> cifra;) ++cuantas;
      EXPECT_EQ(cuantas, 12) << corto << fila;
    }
    ++registros;
  }
  EXPECT_EQ(registros, 19);
}

TEST_F(Sintesis, GdrLlevaLasCifrasDeTodosLosDiasYLaRadiacionEnKilojulios) {
  ASSERT_TRUE(Hacer(Primeras(1)));
  // A mano, de las medias de Almería: 2,8 kWh/m² son 10.080 kJ/m².
  EXPECT_EQ(Meteo("GDR.TXT"), "Almeria COSTA 36.8464 -2.3569 15 10 ALT=21\n"
                              "16.9 17.6 19.6 21.4 24.1 27.9 30.5 31 28.4 24.5 20.5 17.9\n"
                              "8.3 9 10.6 12.5 15.2 18.9 21.7 22.4 20 16.3 12.3 9.6\n"
                              "2.03 2.26 2.48 2.44 3.01 3.33 3.16 3.01 2.85 2.43 2.45 2.05\n"
                              "2.15 2.15 2.17 1.99 2.31 2.18 2.04 2.07 2.33 2.39 2.46 2.29\n"
                              "10080 13392 17532 21816 25416 28044 27108 23940 19008 14328 10764 9144\n"
                              "67 67 65 62 63 61 60 63 65 68 67 67\n");
}

TEST_F(Sintesis, LaPrimeraLineaNombraLoEstimado) {
  ASSERT_TRUE(Hacer(Primeras(2)));
  EXPECT_EQ(
      Meteo("Almeria.met").substr(0, Meteo("Almeria.met").find('\n')),
      "Año sintético de Tesmo (no es un año medido): Almería, Almería; hecho de medias mensuales publicadas");
  EXPECT_TRUE(Meteo("Cadiz.met").find("; medias estimadas: humedad, radiación\n") != std::string::npos);
}

TEST_F(Sintesis, UnAnioDeVerdadSeRespetaYSeAvisa) {
  const std::string ruta = directorio_.Escribir("Meteo/Almeria.met", "Medido en mi azotea\n");
  ASSERT_TRUE(Hacer(Primeras(2)));
  EXPECT_EQ(Meteo("Almeria.met"), "Medido en mi azotea\n");
  ASSERT_EQ(resultado_.avisos.size(), 1U);
  EXPECT_EQ(resultado_.avisos[0], ruta + ": no lo hizo esta síntesis; se deja como está");
  EXPECT_EQ(resultado_.ficheros.size(), 3U);
}

TEST_F(Sintesis, UnaListaConLocalidadesAnadidasSeRespetaYSeAvisa) {
  ASSERT_TRUE(Hacer(Primeras(2)));
  const std::string lista =
      Meteo("LocalidadesCC") + "1\nMojácar,Mojacar,Almería,,Almería,mio.met,37.1,-1.9,15,9,0\n";
  const std::string registros = Meteo("GDR.TXT") + "Mojacar COSTA 37.1 -1.9 15 10\n1 2 3\n";
  const std::string ruta = directorio_.Escribir("Meteo/LocalidadesCC", lista);
  directorio_.Escribir("Meteo/GDR.TXT", registros);
  ASSERT_TRUE(Hacer(Primeras(2)));
  EXPECT_EQ(Meteo("LocalidadesCC"), lista);
  EXPECT_EQ(Meteo("GDR.TXT"), registros);
  ASSERT_EQ(resultado_.avisos.size(), 2U);
  EXPECT_EQ(resultado_.avisos[1], ruta + ": tiene localidades añadidas; se deja como está");
}

TEST_F(Sintesis, UnSinteticoViejoOVacioSeRehace) {
  directorio_.Escribir("Meteo/Almeria.met", "Año sintético de Tesmo, de otra versión\n");
  directorio_.Escribir("Meteo/Cadiz.met", "");
  ASSERT_TRUE(Hacer(Primeras(2)));
  EXPECT_GT(Meteo("Almeria.met").size(), 500000U);
  EXPECT_GT(Meteo("Cadiz.met").size(), 500000U);
}

TEST_F(Sintesis, SinNormalesNoEscribeNada) {
  EXPECT_FALSE(Hacer("/no/hay/normales.csv"));
  EXPECT_EQ(resultado_.fallo, FalloSintesis::Entrada);
  EXPECT_EQ(
      resultado_.errores,
      std::vector<std::string>{"/no/hay/normales.csv: falta, no es un fichero regular o no se puede abrir"});
  const std::string directorio = TextoDeRuta(directorio_.Ruta());
  EXPECT_FALSE(Hacer(directorio));
  EXPECT_EQ(resultado_.fallo, FalloSintesis::Entrada);
  EXPECT_FALSE(fs::exists(directorio_ / "Meteo"));
}

TEST_F(Sintesis, ConNormalesQueNoSeEntiendenNoEscribeNada) {
  EXPECT_FALSE(Hacer(directorio_.Escribir("malo.csv", "a,b\n1,2\n")));
  EXPECT_EQ(resultado_.fallo, FalloSintesis::Contenido);
  EXPECT_FALSE(resultado_.errores.empty());
  EXPECT_FALSE(fs::exists(directorio_ / "Meteo"));
}

TEST_F(Sintesis, UnaRadiacionImposibleParaSuLatitudSeDice) {
  std::string texto = Contenido(RutaDesdeTexto(Primeras(1)));
  const std::size_t donde = texto.find(",67,2.8,3.9,");
  ASSERT_NE(donde, std::string::npos);
  texto.replace(donde, 12, ",67,7.8,3.9,");
  const std::string ruta = directorio_.Escribir("imposible.csv", texto);
  EXPECT_FALSE(Hacer(ruta));
  EXPECT_EQ(resultado_.fallo, FalloSintesis::Contenido);
  EXPECT_EQ(resultado_.errores,
            std::vector<std::string>{ruta + ": Almería, mes 1: ghi_kwh_m2_dia no es posible a esa latitud"});
}

TEST_F(Sintesis, UnDirectorioQueNoSePuedeCrearSeDice) {
  directorio_.Escribir("Meteo", "un fichero donde va el directorio");
  EXPECT_FALSE(Hacer(Primeras(1)));
  EXPECT_EQ(resultado_.fallo, FalloSintesis::Salida);
  ASSERT_EQ(resultado_.errores.size(), 1U);
  EXPECT_TRUE(resultado_.errores[0].ends_with("Meteo: no se puede crear el directorio"))
      << resultado_.errores[0];
}

TEST_F(Sintesis, UnFicheroQueNoSePuedeEscribirSeDice) {
  fs::create_directories(directorio_ / "Meteo/GDR.TXT");
  EXPECT_FALSE(Hacer(Primeras(1)));
  EXPECT_EQ(resultado_.fallo, FalloSintesis::Salida);
  ASSERT_EQ(resultado_.errores.size(), 1U);
  EXPECT_TRUE(resultado_.errores[0].ends_with("GDR.TXT: no se puede escribir")) << resultado_.errores[0];
  EXPECT_FALSE(fs::exists(directorio_ / "Meteo/LocalidadesCC"));
}

TEST_F(Sintesis, MasDe177LocalidadesAvisanDeLosDiasExtremos) {
  const std::string una = Contenido(RutaDesdeTexto(Primeras(1)));
  const std::size_t filas = una.find('\n', una.find("localidad,")) + 1;
  std::string texto = una.substr(0, filas);
  for (int i = 0; i < 178; ++i) {
    std::string bloque = una.substr(filas);
    for (std::size_t d = 0; (d = bloque.find("Almería,Almería,Almería", d)) != std::string::npos; d += 10) {
      bloque.replace(d, std::string("Almería").size(), "L" + std::to_string(i));
    }
    texto += bloque;
    // Los años ya están y son ajenos: así no hay que hacer 178.
    directorio_.Escribir("Meteo/L" + std::to_string(i) + ".met",
                         "ajeno, para no tardar, con más bytes que la marca\n");
  }
  ASSERT_TRUE(Hacer(directorio_.Escribir("muchas.csv", texto)));
  EXPECT_EQ(resultado_.avisos.front(),
            "el cálculo de los días extremos no verá las localidades que siguen a las 177 primeras");
}

TEST_F(Sintesis, LaRegionDelProcesoNoCambiaLoEscrito) {
  ASSERT_TRUE(Hacer(Primeras(1)));
  const std::string antes = Meteo("Almeria.met");
  const prueba::ConSeparador coma(',');
  const std::string anterior = std::setlocale(LC_ALL, nullptr);
  // Sin la localización generada se queda en C y la prueba no distingue nada: se dice.
  const bool hay = std::setlocale(LC_ALL, "es_ES.UTF-8") != nullptr;
  RecordProperty("es_ES", hay ? "sí" : "no");
  ASSERT_TRUE(Hacer(Primeras(1)));
  std::setlocale(LC_ALL, anterior.c_str());
  EXPECT_TRUE(antes == Meteo("Almeria.met"));
}

} // namespace
} // namespace tesmo
