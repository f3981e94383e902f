#include "tests/intercambio/formatos/Generadorclima.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

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
  const ResultadoLectura otro = LeerTextoClima("fecha;T\n1/1/2014;3\n");
  EXPECT_NE(NotaDe(otro.errores, ClaseNota::Fichero).texto.find("mapa"), std::string::npos);
  const ResultadoLectura utf16 = LeerTextoClima("\xFF\xFEL\0O\0");
  EXPECT_NE(NotaDe(utf16.errores, ClaseNota::Fichero).texto.find("UTF-8"), std::string::npos);
}

TEST(Reconocimiento, UnMetDeTreceEstropeadoElPrimerDiaSeReconoce) {
  const LineasFichero buenas = LineasMetTrece();
  LineasFichero corta = buenas;
  corta[CABECERA_MET + 3].resize(corta[CABECERA_MET + 3].rfind(' '));
  LineasFichero rotulos = buenas;
  rotulos.insert(rotulos.begin() + CABECERA_MET, "mes dia hora T Tc dir dif w hr v d ac ce");
  LineasFichero coma = buenas;
  CambiarCampo(coma[CABECERA_MET], 3, "-10,0", ' ');
  LineasFichero tabuladores = buenas;
  for (std::string &linea : tabuladores) std::replace(linea.begin(), linea.end(), ' ', '\t');
  for (const LineasFichero &lineas : {corta, rotulos, coma, tabuladores}) {
    const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
    EXPECT_EQ(resultado.formato, FormatoClima::MetTrece);
    ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
    EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 36), -6.4);
  }
  EXPECT_EQ(NotaDe(LeerTextoClima(Unir(corta)).avisos, ClaseNota::Registro).linea, 6);
}

TEST(Reconocimiento, UnMetConComaDecimalODelSitioConComasLoDice) {
  LineasFichero coma = LineasMetTrece();
  for (std::string &linea : coma) std::replace(linea.begin(), linea.end(), '.', ',');
  EXPECT_NE(Textos(LeerTextoClima(Unir(coma)).errores).find("«decimal = coma»"), std::string::npos);
  LineasFichero sitio = LineasMetTrece();
  sitio[1] = "37.18,-3.78,567,15";
  EXPECT_NE(Textos(LeerTextoClima(Unir(sitio)).errores).find("la línea 2"), std::string::npos);
}

TEST(Reconocimiento, UnMetSinCabeceraNoTomaUnRegistroPorElSitio) {
  for (LineasFichero lineas : {LineasMetTrece(), LineasMetQuince()}) {
    lineas.erase(lineas.begin(), lineas.begin() + CABECERA_MET);
    const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
    EXPECT_FALSE(resultado.anio);
    ASSERT_EQ(resultado.errores.size(), 1U) << Textos(resultado.errores);
    EXPECT_NE(resultado.errores[0].texto.find("sin sus dos primeras líneas"), std::string::npos)
        << resultado.errores[0].texto;
  }
}

TEST(Reconocimiento, UnEpwAlQueSoloLeFaltaLocationLoDice) {
  for (std::size_t quitadas = 1; quitadas < CABECERA_EPW; ++quitadas) {
    LineasFichero lineas = LineasEpw();
    lineas.erase(lineas.begin(), lineas.begin() + static_cast<std::ptrdiff_t>(quitadas));
    const ResultadoLectura resultado = LeerTextoClima(Unir(lineas));
    ASSERT_EQ(resultado.errores.size(), 1U) << lineas[0];
    EXPECT_NE(resultado.errores[0].texto.find("«LOCATION,…»"), std::string::npos)
        << lineas[0] << ": " << resultado.errores[0].texto;
  }
}

TEST(Reconocimiento, LoQueSeDescargaSinQuererSeDiceQueEs) {
  const std::vector<std::array<std::string, 2>> casos{
      {std::string("PK\x03\x04", 4) + "resto", "ZIP"},
      {"\x1F\x8B" + std::string(20, 'x'), "gzip"},
      {"\xD0\xCF\x11\xE0\xA1", "hoja de cálculo"},
      {"{\"inputs\": {\"location\": {}}}", "JSON"},
      {"<!DOCTYPE html><html>", "página web"},
      {"Date (MM/DD/YYYY),Time (HH:MM),GHI (W/m^2)\n01/01/1997,01:00,0\n", "TMY3 sin su primera línea"},
      {LineasEpw().back() + "\n" + LineasEpw().back() + "\n", "LOCATION"},
      {"Source,Location ID,City,State,Country,Latitude\nNSRDB,1,-,-,-,37\nYear,Month,Day,Hour\n", "NSRDB"}};
  for (const auto &[texto, parte] : casos) {
    const ResultadoLectura resultado = LeerTextoClima(texto);
    ASSERT_EQ(resultado.errores.size(), 1U) << texto;
    EXPECT_NE(resultado.errores[0].texto.find(parte), std::string::npos) << resultado.errores[0].texto;
  }
}

TEST(Reconocimiento, UnFicheroQueFaltaEsUnError) {
  const ResultadoLectura resultado = LeerFicheroClima("no/existe.epw");
  EXPECT_FALSE(resultado.SinErrores());
  EXPECT_NE(NotaDe(resultado.errores, ClaseNota::Fichero).texto.find("no/existe.epw"), std::string::npos);
}

} // namespace
} // namespace tesmo
