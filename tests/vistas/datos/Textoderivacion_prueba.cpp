#include "tests/comun/Apoyos.h"
#include "vistas/datos/Textoderivacion.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace tesmo;

namespace {

const PeticionDias PETICION{"Jaén",
                            "Jaén",
                            {99.6F, {1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}, 12},
                            {1.0F, {0, 0, 0, 0, 0, 0, 1, 1, 0, 0, 0, 0}, 8}};

extremos::ResultadoDias Resultado() {
  extremos::ResultadoDias resultado;
  resultado.clave = "Jaen";
  resultado.latitud = 37.777F;
  resultado.factorDeCola = 10.0F;
  resultado.altitud = 580.0F;
  resultado.altitudDelRegistro = true;
  resultado.calefaccion.traza.temperaturaTemporada = -0.126L;
  resultado.calefaccion.traza.temperaturaMes = 0.25L;
  resultado.refrigeracion.traza.parteDelMes = 0.98765L;
  resultado.refrigeracion.traza.diaria = 7890.4L;
  resultado.refrigeracion.traza.humedad = 11.25F;
  resultado.refrigeracion.traza.origenHumedad = extremos::OrigenHumedad::Registro;
  return resultado;
}

bool Contiene(const std::string &texto, const std::string &parte) {
  return texto.find(parte) != std::string::npos;
}

} // namespace

TEST(TextoDerivacion, CadaPasoEnSuFilaConSusDosColumnas) {
  const std::string texto = TextoDeDerivacion(PETICION, Resultado());
  EXPECT_TRUE(Contiene(texto, "Jaén (Jaén), registro Jaen\nLatitud 37.78º, altitud 580 m (ALT=)")) << texto;
  EXPECT_TRUE(Contiene(texto, "\nMes de proyecto\tDiciembre\tAgosto\n"));
  EXPECT_TRUE(Contiene(texto, "\nPercentil (%)\t99.6\t1.0\n"));
  EXPECT_TRUE(Contiene(texto, "\nT de la temporada T1, T2 (ºC)\t-0.13\t0.00\n"));
  EXPECT_TRUE(Contiene(texto, "\nT de proyecto T1, T2 en el mes (ºC)\t0.25\t0.00\n"));
  EXPECT_TRUE(Contiene(texto, "\nParte del mes por debajo F1, F2\t0.0000\t0.9877\n"));
  EXPECT_TRUE(Contiene(texto, "\nRadiación del día (Wh/m²)\t0\t7890\n"));
  EXPECT_TRUE(Contiene(texto, "\nHumedad absoluta (g/kg)\t0.00\t11.25\n"));
  EXPECT_TRUE(Contiene(texto, "Temporada de refrigeración: Jul Ago\n"));
}

TEST(TextoDerivacion, DiceDeDondeSaleLaHumedad) {
  extremos::ResultadoDias resultado = Resultado();
  EXPECT_TRUE(Contiene(TextoDeDerivacion(PETICION, resultado), "Origen de la humedad\tsupuesta\tWREF=\n"));
  EXPECT_TRUE(Contiene(TextoDeDerivacion(PETICION, resultado), "mínima media del mes"));
  resultado.calefaccion.traza.origenHumedad = extremos::OrigenHumedad::Registro;
  resultado.altitudDelRegistro = false;
  EXPECT_TRUE(Contiene(TextoDeDerivacion(PETICION, resultado), "Origen de la humedad\tWCAL=\tWREF=\n"));
  EXPECT_FALSE(Contiene(TextoDeDerivacion(PETICION, resultado), "mínima media del mes"));
  EXPECT_TRUE(Contiene(TextoDeDerivacion(PETICION, resultado), "(sin dato)"));
}

TEST(TextoDerivacion, LosNumerosLlevanElSeparadorDeLaRegion) {
  const std::string punto = TextoDeDerivacion(PETICION, Resultado());
  const prueba::ConSeparador coma(',');
  const std::string texto = TextoDeDerivacion(PETICION, Resultado());
  EXPECT_TRUE(Contiene(texto, "\t-0,13\t"));
  EXPECT_NE(texto, punto);
}
