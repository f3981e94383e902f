#include "core/Error.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>

using namespace tesmo;
using namespace tesmo::prueba;

TEST(Error, AcotarPorDebajoEscribeElTextoYTomaElMinimo) {
  RegistroApuntado registro;
  float valor = -150.0F;
  Acotar(valor, -100.0F, 99.0F, "CorrienteAire::pont_w");
  EXPECT_EQ(valor, -100.0F);
  ASSERT_EQ(registro.textos.size(), 1U);
  EXPECT_EQ(registro.textos[0],
            "**Minimo revasado -150.000000 < -100.000000, se toma -100.000000: CorrienteAire::pont_w");
}

TEST(Error, AcotarPorEncimaEscribeElTextoYTomaElMaximo) {
  RegistroApuntado registro;
  float valor = 120.5F;
  Acotar(valor, -100.0F, 99.0F, "CorrienteAire::pont_h");
  EXPECT_EQ(valor, 99.0F);
  ASSERT_EQ(registro.textos.size(), 1U);
  EXPECT_EQ(registro.textos[0],
            "**Maximo revasado 120.500000 > 99.000000, se toma 99.000000: CorrienteAire::pont_h");
}

TEST(Error, UnValorIgualAlLimiteNoSeAcotaNiEscribe) {
  RegistroApuntado registro;
  float maximo = 99.0F;
  float minimo = -100.0F;
  Acotar(maximo, -100.0F, 99.0F, "x");
  Acotar(minimo, -100.0F, 99.0F, "x");
  EXPECT_EQ(maximo, 99.0F);
  EXPECT_EQ(minimo, -100.0F);
  EXPECT_TRUE(registro.textos.empty());
}

TEST(Error, LoQueNoEsNumeroTomaElMinimo) {
  RegistroApuntado registro;
  float valor = std::numeric_limits<float>::quiet_NaN();
  Acotar(valor, 2.0F, 3.0F, "x");
  EXPECT_EQ(valor, 2.0F);
  ASSERT_EQ(registro.textos.size(), 1U);
  EXPECT_EQ(registro.textos[0], "**Minimo revasado nan < 2.000000, se toma 2.000000: x");
}

TEST(Error, SinRegistroAbiertoAcotaIgualYNoEscribe) {
  CerrarRegistro();
  float valor = 5.0F;
  Acotar(valor, 0.0F, 1.0F, "x");
  EXPECT_EQ(valor, 1.0F);
  EXPECT_FALSE(RegistroAbierto());
}

TEST(Error, LosDiagnosticosSeguidosVanEnUnaMismaLinea) {
  DirectorioTemporal directorio;
  AbrirRegistro(TextoDeRuta(directorio / "registro.txt"));
  EscribirRegistro("uno");
  EscribirRegistro("dos");
  CerrarRegistro();
  EscribirRegistro("tres");
  EXPECT_EQ(Contenido(directorio / "registro.txt"), "unodos");
}

TEST(Error, AbrirVaciaLoQueHubieraYCierraElAnterior) {
  DirectorioTemporal directorio;
  directorio.Escribir("b.txt", "viejo");
  AbrirRegistro(TextoDeRuta(directorio / "a.txt"));
  EscribirRegistro("a");
  AbrirRegistro(TextoDeRuta(directorio / "b.txt"));
  EscribirRegistro("b");
  CerrarRegistro();
  EXPECT_EQ(Contenido(directorio / "a.txt"), "a");
  EXPECT_EQ(Contenido(directorio / "b.txt"), "b");
}

TEST(Error, UnRegistroQueNoSePuedeAbrirQuedaCerradoYCallado) {
  DirectorioTemporal directorio;
  AbrirRegistro(TextoDeRuta(directorio / "falta/registro.txt"));
  EXPECT_FALSE(RegistroAbierto());
  EscribirRegistro("nada");
}

TEST(Error, UnDestinoPuedeCerrarElRegistroMientrasEscribe) {
  auto escrito = std::make_shared<std::string>();
  AbrirRegistroEn([escrito](std::string_view texto) {
    CerrarRegistro();
    *escrito += texto;
  });
  EscribirRegistro("uno");
  EscribirRegistro("dos");
  EXPECT_EQ(*escrito, "uno");
  EXPECT_FALSE(RegistroAbierto());
}

TEST(Error, ErrorNumericoEscribeElEncabezamientoDeSuCodigo) {
  RegistroApuntado registro;
  ErrorNumerico(ERROR_FICHERO, "f");
  ErrorNumerico(ERROR_MEMORIA, "m");
  ErrorNumerico(ERROR_CONVERGENCIA, "c");
  ErrorNumerico(0, "no");
  ErrorNumerico(4, "no");
  ASSERT_EQ(registro.textos.size(), 3U);
  EXPECT_EQ(registro.textos[0], "**Error 1: No se pudo abrir el fichero: f");
  EXPECT_EQ(registro.textos[1], "**Error 2: Se agoto la memoria dinámica: m");
  EXPECT_EQ(registro.textos[2], "**Error 3: El proceso iterativo no ha convergido: c");
}
