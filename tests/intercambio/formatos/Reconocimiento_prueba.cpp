#include "tests/intercambio/formatos/Generadorclima.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

using namespace prueba;

TEST(Reconocimiento, CadaFormatoPorLoQueDice) {
  EXPECT_EQ(ReconocerFormato(Unir(LineasEpw())), FormatoClima::Epw);
  EXPECT_EQ(ReconocerFormato(Unir(LineasPvgisEpw())), FormatoClima::PvgisEpw);
  EXPECT_EQ(ReconocerFormato(Unir(LineasPvgisCsv())), FormatoClima::PvgisCsv);
  EXPECT_EQ(ReconocerFormato(Unir(LineasTmy3())), FormatoClima::Tmy3);
  EXPECT_EQ(ReconocerFormato(Unir(LineasMetTrece())), FormatoClima::MetTrece);
  EXPECT_EQ(ReconocerFormato(Unir(LineasMetQuince())), FormatoClima::MetQuince);
  EXPECT_EQ(ReconocerFormato(Unir(LineasDelimitado())), FormatoClima::Desconocido);
}

TEST(Reconocimiento, ValenLaMarcaDeOrdenDeBytesLosCrlfYLasMinusculas) {
  LineasFichero lineas = LineasEpw();
  lineas[0].replace(0, 8, "location");
  EXPECT_EQ(ReconocerFormato("\xEF\xBB\xBF" + Unir(lineas, "\r\n")), FormatoClima::Epw);
  EXPECT_EQ(ReconocerFormato(Unir(LineasMetTrece(), "\r\n")), FormatoClima::MetTrece);
  EXPECT_EQ(ReconocerFormato("\n\n" + Unir(LineasEpw())), FormatoClima::Epw);
}

TEST(Reconocimiento, UnPvgisSinDesfaseSeConocePorSuFuente) {
  LineasFichero lineas = LineasPvgisEpw();
  lineas[6] = "COMMENTS 2";
  EXPECT_EQ(ReconocerFormato(Unir(lineas)), FormatoClima::PvgisEpw);
}

TEST(Reconocimiento, ElNombreDePvgisEnLaCabeceraNoHaceUnEpwDePvgis) {
  LineasFichero lineas = LineasEpw();
  lineas[0] = "LOCATION,PVGIS_TMY_Tabernas,-,-,Tesmo,-,37.18,-3.78,1,567";
  lineas[5] = "COMMENTS 1,Escrito desde un fichero de PVGIS";
  EXPECT_EQ(ReconocerFormato(Unir(lineas)), FormatoClima::Epw);
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(resultado.anio->reloj.tiempo, TiempoEtiqueta::OficialEstandar);
  EXPECT_EQ(resultado.anio->reloj.desfaseMin, -30.0);
}

TEST(Reconocimiento, UnaSolaLineaDeQuinceBastaParaNoSerDeTrece) {
  LineasFichero lineas = LineasMetTrece();
  EXPECT_TRUE(EsMetDeTreceColumnas(Unir(lineas)));
  lineas[5000] += " 0 0";
  EXPECT_FALSE(EsMetDeTreceColumnas(Unir(lineas)));
  EXPECT_FALSE(EsMetDeTreceColumnas(Unir(LineasMetQuince())));
}

TEST(Reconocimiento, UnMetDeTreceCortadoSeReconoceParaDecirDondeSeCorta) {
  std::string texto = Unir(LineasMetTrece());
  texto.resize(texto.size() / 2);
  EXPECT_FALSE(EsMetDeTreceColumnas(texto));
  const ResultadoLectura resultado = LeerTextoClima(texto);
  EXPECT_EQ(resultado.formato, FormatoClima::MetTrece);
  EXPECT_FALSE(resultado.anio);
  EXPECT_EQ(CuantasDe(resultado.errores, ClaseNota::HuecoLargo), 1) << Textos(resultado.errores);
}

TEST(Reconocimiento, UnTextoEntreTreceNumerosNoEsUnMetDeTrece) {
  LineasFichero lineas = LineasMetTrece();
  CambiarCampo(lineas[100], 4, "frío", ' ');
  EXPECT_FALSE(EsMetDeTreceColumnas(Unir(lineas)));
}

TEST(Reconocimiento, SinLineasDeDatosNoHayMetDeTrece) {
  EXPECT_FALSE(EsMetDeTreceColumnas("almena.met\n37.18 -3.78 567 15\n"));
  EXPECT_FALSE(EsMetDeTreceColumnas("almena.met\n37.18 -3.78 567 15\n\n \n"));
  EXPECT_FALSE(EsMetDeTreceColumnas(""));
}

TEST(Reconocimiento, LoQueNoSeConoceLoDiceYQueHacer) {
  EXPECT_EQ(ReconocerFormato(""), FormatoClima::Desconocido);
  const ResultadoLectura vacio = LeerTextoClima("");
  EXPECT_FALSE(vacio.anio);
  EXPECT_EQ(NotaDe(vacio.errores, ClaseNota::Fichero).texto, "el fichero está vacío");
  const ResultadoLectura otro = LeerTextoClima("{\"inputs\": {}}");
  EXPECT_NE(NotaDe(otro.errores, ClaseNota::Fichero).texto.find("mapa"), std::string::npos);
  const ResultadoLectura utf16 = LeerTextoClima("\xFF\xFEL\0O\0");
  EXPECT_NE(NotaDe(utf16.errores, ClaseNota::Fichero).texto.find("UTF-8"), std::string::npos);
}

TEST(Reconocimiento, UnFicheroQueFaltaEsUnError) {
  const ResultadoLectura resultado = LeerFicheroClima("no/existe.epw");
  EXPECT_FALSE(resultado.SinErrores());
  EXPECT_NE(NotaDe(resultado.errores, ClaseNota::Fichero).texto.find("no/existe.epw"), std::string::npos);
}

} // namespace
} // namespace tesmo
