#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/magnitudes/Aniocompleto.h"
#include "intercambio/magnitudes/Cielo.h"
#include "intercambio/magnitudes/Humedad.h"
#include "intercambio/magnitudes/Radiacion.h"
#include "tests/comun/Apoyos.h"
#include "tests/intercambio/reloj/Aniofisico.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tesmo {
namespace {

using prueba::AnioFisico;
using prueba::Quitar;

const RelojFichero RELOJ{TiempoEtiqueta::Utc, 0.0, -50.0};

AnioCompleto Completar(const AnioCanonico &anio) {
  return CompletarMagnitudes(anio, EscalaTiempo(anio.reloj, anio.sitio.longitud));
}

TEST(Cielo, LaInfrarrojaEsLaDeStefanYBoltzmann) {
  // 300 K radian 5,670374419e-8 · 300⁴ = 459,30 W/m².
  EXPECT_NEAR(InfrarrojaDeTemperatura(26.85), 459.30, 0.005);
  EXPECT_NEAR(TemperaturaDeInfrarroja(459.30), 26.85, 0.001);
}

TEST(Cielo, ConInfrarrojaSeCalculaYSinEllaSeInventa) {
  AnioCanonico anio = AnioFisico({.reloj = RELOJ});
  EXPECT_EQ(Completar(anio).cielo.procedencias[10], Procedencia::Calculada);
  Quitar(anio, Campo::InfrarrojaHorizontal);
  for (std::size_t i = 0; i < HORAS; ++i) {
    anio[Campo::TemperaturaRocio].Poner(i, 0.0, Procedencia::Copiada);
    anio[Campo::TemperaturaSeca].Poner(i, 20.0, Procedencia::Copiada);
    anio[Campo::NubosidadOpaca].Poner(i, i < 24 ? 0.0 : 10.0, Procedencia::Copiada);
  }
  const AnioCompleto completo = Completar(anio);
  EXPECT_EQ(completo.cielo.procedencias[10], Procedencia::Inventada);
  // Rocío de 0 °C: emisividad despejada 0,711 (Berdahl y Martin, 1984), y 1,154 veces más cubierto (Walton,
  // 1983). 0,711^¼ · 293,15 − 273,15 y (0,711·1,154)^¼ · 293,15 − 273,15.
  EXPECT_NEAR(completo.cielo.valores[10], -3.96, 0.01);
  EXPECT_NEAR(completo.cielo.valores[30], 5.85, 0.01);
}

TEST(Cielo, SinOpacaValeLaTotalYSinNingunaLaClaridadDelDia) {
  AnioCanonico anio = AnioFisico({.reloj = RELOJ});
  Quitar(anio, Campo::InfrarrojaHorizontal);
  const AnioCompleto claridad = Completar(anio);
  EXPECT_TRUE(std::ranges::none_of(claridad.cielo.valores, [](double t) { return std::isnan(t); }));
  for (std::size_t i = 0; i < HORAS; ++i) anio[Campo::NubosidadTotal].Poner(i, 10.0, Procedencia::Copiada);
  const AnioCompleto cubierto = Completar(anio);
  EXPECT_GE(cubierto.cielo.valores[4000], claridad.cielo.valores[4000]);
}

TEST(Humedad, LaAbsolutaEsLaDelManual) {
  // ASHRAE Fundamentals (2017), cap. 1, tabla 3: a 20 °C satura a 2339,2 Pa; w = 0,621978 · 2339,2 / (101325
  // − 2339,2) = 0,0146985 kg/kg.
  CorrienteAire aire;
  EXPECT_NEAR(HumedadDeRelativa(aire, 20.0, 100.0, 101325.0).absoluta, 0.0146985, 5e-6);
  EXPECT_NEAR(HumedadDeRocio(aire, 30.0, 20.0, 101325.0).absoluta, 0.0146985, 5e-6);
}

TEST(Humedad, Manda_LaPresionDeLaHora) {
  CorrienteAire aire;
  const double abajo = HumedadDeRelativa(aire, 25.0, 50.0, 101325.0).absoluta;
  const double arriba = HumedadDeRelativa(aire, 25.0, 50.0, 80000.0).absoluta;
  // w = ε·pv/(p − pv), con pv = 1584,6 Pa: la mitad de la saturación a 25 °C, 3169,2 Pa (ASHRAE, tabla 3).
  EXPECT_NEAR(arriba / abajo, (101325.0 - 1584.6) / (80000.0 - 1584.6), 1e-3);
}

TEST(Humedad, NoPasaDeLaSaturacionNiBajaDeCero) {
  CorrienteAire aire;
  EXPECT_NEAR(HumedadDeAbsoluta(aire, 20.0, 0.5, 101325.0, true).relativa, 100.0, 1e-3);
  EXPECT_EQ(HumedadDeAbsoluta(aire, 20.0, -1.0, 101325.0, true).absoluta, 0.0);
  EXPECT_EQ(HumedadDeRelativa(aire, 20.0, 140.0, 101325.0).relativa, 100.0);
  EXPECT_LE(HumedadDeAbsoluta(aire, 20.0, 0.5, 101325.0, true).rocio, 20.0);
}

TEST(Humedad, NadaEscribeEnElRegistro) {
  prueba::RegistroApuntado registro;
  CorrienteAire aire;
  for (const double t : {-120.0, -40.0, 0.0, 50.0}) {
    for (const double w : {-1.0, 0.0, 1e-9, 0.02, 3.0}) {
      EXPECT_TRUE(std::isfinite(HumedadDeAbsoluta(aire, t, w, 95000.0, true).rocio));
      EXPECT_TRUE(std::isfinite(HumedadDeRelativa(aire, t, w * 100.0, 95000.0).absoluta));
    }
  }
  EXPECT_TRUE(registro.textos.empty());
}

TEST(Humedad, SinPresionEsLaDeLaAltitudYSeAvisa) {
  AnioCanonico anio = AnioFisico({.reloj = RELOJ, .altitud = 1000.0});
  Quitar(anio, Campo::Presion);
  const AnioCompleto completo = Completar(anio);
  EXPECT_NEAR(completo.presion.valores[0], 89875.0, 5.0);
  EXPECT_EQ(completo.presion.procedencias[0], Procedencia::Inventada);
  ASSERT_EQ(completo.avisos.size(), 1U);
  EXPECT_NE(completo.avisos[0].find("8760 horas"), std::string::npos);
  EXPECT_NE(completo.avisos[0].find("1000 m"), std::string::npos);
}

TEST(Humedad, LaDelFicheroSeCopia) {
  AnioCanonico anio = AnioFisico({.reloj = RELOJ});
  anio[Campo::HumedadAbsoluta].Poner(7, 0.00512, Procedencia::Copiada);
  const AnioCompleto completo = Completar(anio);
  EXPECT_EQ(completo.absoluta.valores[7], 0.00512);
  EXPECT_EQ(completo.absoluta.procedencias[7], Procedencia::Copiada);
  EXPECT_EQ(completo.absoluta.procedencias[8], Procedencia::Calculada);
}

TEST(Radiacion, LaDirectaEsGlobalMenosDifusa) {
  const AnioCanonico anio = AnioFisico({.reloj = RELOJ});
  const AnioCompleto completo = Completar(anio);
  for (std::size_t i = 0; i < HORAS; ++i) {
    ASSERT_DOUBLE_EQ(completo.directa.valores[i],
                     anio[Campo::GlobalHorizontal].valores[i] - anio[Campo::DifusaHorizontal].valores[i]);
  }
  EXPECT_EQ(completo.directa.procedencias[12], Procedencia::Calculada);
  EXPECT_EQ(completo.difusa.procedencias[12], Procedencia::Copiada);
}

TEST(Radiacion, SinGlobalODifusaSeUsaElCosenoDelCenit) {
  const AnioCanonico entero = AnioFisico({.reloj = RELOJ});
  const AnioCompleto referencia = Completar(entero);
  for (const Campo campo : {Campo::GlobalHorizontal, Campo::DifusaHorizontal}) {
    AnioCanonico anio = entero;
    Quitar(anio, campo);
    const AnioCompleto completo = Completar(anio);
    EXPECT_LT(prueba::Separacion(completo.directa.valores, referencia.directa.valores), 2.0);
    EXPECT_LT(prueba::Separacion(completo.difusa.valores, referencia.difusa.valores), 2.0);
  }
}

TEST(Radiacion, LaDifusaQuePasaDeLaGlobalSeQuedaEnElla) {
  AnioCanonico anio = AnioFisico({.reloj = RELOJ});
  anio[Campo::GlobalHorizontal].valores[12] = 90.0;
  anio[Campo::DifusaHorizontal].valores[12] = 100.0;
  const AnioCompleto completo = Completar(anio);
  EXPECT_EQ(completo.directa.valores[12], 0.0);
  EXPECT_EQ(completo.difusa.valores[12], 90.0);
}

TEST(Viento, UnaDireccionQueFaltaEsLaUltimaConocida) {
  AnioCanonico anio = AnioFisico({.reloj = RELOJ});
  anio[Campo::DireccionViento].Poner(0, AUSENTE, Procedencia::Ausente);
  anio[Campo::DireccionViento].Poner(500, AUSENTE, Procedencia::Ausente);
  const AnioCompleto completo = Completar(anio);
  EXPECT_EQ(completo.direccion.valores[500], completo.direccion.valores[499]);
  EXPECT_EQ(completo.direccion.valores[0], completo.direccion.valores[8759]);
  EXPECT_EQ(completo.direccion.procedencias[0], Procedencia::Inventada);
  EXPECT_EQ(completo.avisos.size(), 1U);
}

} // namespace
} // namespace tesmo
