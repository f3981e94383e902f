#include "psicro/Corrienteaire.h"
#include "psicro/Saturacion.h"
#include "tests/comun/Apoyos.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace tesmo;
using Textos = std::vector<std::string>;

namespace {

constexpr float P = aire::PRESION_NORMAL;
constexpr float NADA = std::numeric_limits<float>::quiet_NaN();

/// p_s(99 °C) [Pa], redondeada hacia arriba: por debajo ponw_h deja humedades negativas.
constexpr float PRESION_MINIMA_PONW_H = 97800.0F;

double D(const CorrienteAire &c, std::string_view cod) { return static_cast<double>(c.dame(cod)); }

} // namespace

TEST(CorrienteAire, NuevaEsAireA25GradosYCincuentaPorCiento) {
  const CorrienteAire c;
  EXPECT_EQ(c.Nombre(), "CorrienteSinNombre");
  EXPECT_EQ(c.nombreClase(), "CorrienteAire");
  EXPECT_EQ(c.dame("t"), 25.0L);
  EXPECT_EQ(c.dame("p"), 101325.0L);
  EXPECT_EQ(c.dame("m"), 15.0L);
  EXPECT_NEAR(D(c, "hr"), 50.0, 5e-6); // w es un float y 50 no vuelve exacto
  EXPECT_EQ(CorrienteAire("impulsión").Nombre(), "impulsión");
}

TEST(CorrienteAire, SaturadaTieneElRocioEnSuTemperaturaEnGradosEnteros) {
  CorrienteAire c;
  for (const float p : {60000.0F, 80000.0F, P, 105000.0F}) {
    for (int t = -40; t <= 60; ++t) {
      c.pont_hr(static_cast<float>(t), 100.0F, p);
      EXPECT_NEAR(D(c, "tr"), t, 1e-5 * std::abs(t) + 1e-5) << t << ' ' << p;
    }
  }
}

TEST(CorrienteAire, SaturadaTieneElBulboHumedoEnSuTemperaturaALaPresionNormal) {
  CorrienteAire c;
  for (int t = 0; t <= 90; ++t) {
    c.pont_hr(static_cast<float>(t), 100.0F, P);
    EXPECT_NEAR(D(c, "th"), t, 0.001 * t + 1e-5) << t;
  }
}

TEST(CorrienteAire, ElBulboHumedoSeCalculaALaPresionNormalAunqueLaCorrienteTengaOtra) {
  CorrienteAire alta;
  alta.pont_hr(30.0F, 50.0F, 80000.0F);
  CorrienteAire normal;
  normal.pont_w(30.0F, alta.humedadAbsoluta(), P);
  EXPECT_EQ(alta.dame("th"), normal.dame("th"));
}

TEST(CorrienteAire, PontWLlevaLaHumedadALaDeSaturacionYLoDice) {
  prueba::RegistroApuntado registro;
  CorrienteAire c;
  c.pont_w(20.0F, 1.0F, P);
  EXPECT_EQ(c.humedadAbsoluta(), static_cast<float>(humedadSaturacion(20.0F, P)));
  EXPECT_EQ(registro.textos,
            Textos{"**Maximo revasado 1.000000 > 0.014696, se toma 0.014696: CorrienteAire::pont_w"});
}

TEST(CorrienteAire, PontWCompruebaTemperaturaPresionYHumedadPorEseOrden) {
  prueba::RegistroApuntado registro;
  CorrienteAire c;
  c.pont_w(-150.0F, -1.0F, 0.0F);
  ASSERT_EQ(registro.textos.size(), 3U);
  EXPECT_EQ(registro.textos[0],
            "**Minimo revasado -150.000000 < -100.000000, se toma -100.000000: CorrienteAire::pont_w");
  EXPECT_EQ(registro.textos[1],
            "**Minimo revasado 0.000000 < 0.001400, se toma 0.001400: CorrienteAire::pont_w");
  EXPECT_EQ(registro.textos[2],
            "**Minimo revasado -1.000000 < 0.000000, se toma 0.000000: CorrienteAire::pont_w");
  EXPECT_EQ(c.dame("t"), -100.0L);
  EXPECT_EQ(c.presion(), 0.0014F);
}

TEST(CorrienteAire, BajoLaPresionDeSaturacionLaHumedadQuedaNegativa) {
  prueba::RegistroApuntado registro;
  CorrienteAire c;
  c.pont_w(99.0F, 0.01F, 50000.0F);
  EXPECT_EQ(c.humedadAbsoluta(), static_cast<float>(humedadSaturacion(99.0F, 50000.0F)));
  EXPECT_LT(c.humedadAbsoluta(), 0.0F);
  ASSERT_EQ(registro.textos.size(), 1U);
  EXPECT_EQ(registro.textos[0].find("**Maximo revasado 0.010000 > -1.2"), 0U) << registro.textos[0];
}

TEST(CorrienteAire, PontThAcotaLaTemperaturaHumedaALaSeca) {
  prueba::RegistroApuntado registro;
  CorrienteAire c;
  c.pont_th(20.0F, 25.0F, P);
  EXPECT_EQ(registro.textos,
            Textos{"**Maximo revasado 25.000000 > 20.000000, se toma 20.000000: CorrienteAire::pont_th"});
  EXPECT_EQ(c.humedadAbsoluta(), static_cast<float>(humedadDeBulboHumedo(20.0F, 20.0F, P)));
  c.pont_th(120.0F, 10.0F, 2e6F);
  ASSERT_EQ(registro.textos.size(), 3U);
  EXPECT_EQ(registro.textos[1],
            "**Maximo revasado 120.000000 > 99.000000, se toma 99.000000: CorrienteAire::pont_th");
  EXPECT_EQ(
      registro.textos[2],
      "**Maximo revasado 2000000.000000 > 1555070.000000, se toma 1555070.000000: CorrienteAire::pont_th");
}

TEST(CorrienteAire, PontThUsaLaPresionDeLaCorriente) {
  CorrienteAire c;
  c.pont_th(30.0F, 20.0F, 80000.0F);
  EXPECT_EQ(c.humedadAbsoluta(), static_cast<float>(humedadDeBulboHumedo(30.0F, 20.0F, 80000.0F)));
  EXPECT_NE(c.humedadAbsoluta(), static_cast<float>(humedadDeBulboHumedo(30.0F, 20.0F, P)));
}

TEST(CorrienteAire, PontTrAcotaElRocioALaTemperaturaSeca) {
  prueba::RegistroApuntado registro;
  CorrienteAire c;
  c.pont_tr(20.0F, 21.0F, P);
  EXPECT_EQ(registro.textos,
            Textos{"**Maximo revasado 21.000000 > 20.000000, se toma 20.000000: CorrienteAire::pont_tr"});
  EXPECT_NEAR(D(c, "hr"), 100.0, 1e-4);
  c.pont_tr(20.0F, NADA, P);
  EXPECT_EQ(registro.textos.back().substr(0, 21), "**Minimo revasado nan");
  EXPECT_NEAR(c.humedadAbsoluta(), 0.0, 1e-7);
}

TEST(CorrienteAire, PontHrCompruebaLaPresionAntesQueLaTemperatura) {
  prueba::RegistroApuntado registro;
  CorrienteAire c;
  registro.textos.clear();
  c.pont_hr(-101.0F, 101.0F, 0.0F);
  EXPECT_EQ(
      registro.textos,
      (Textos{"**Minimo revasado 0.000000 < 0.001400, se toma 0.001400: CorrienteAire::pont_hr",
              "**Minimo revasado -101.000000 < -100.000000, se toma -100.000000: CorrienteAire::pont_hr",
              "**Maximo revasado 101.000000 > 100.000000, se toma 100.000000: CorrienteAire::pont_hr"}));
}

TEST(CorrienteAire, PontHAcotaLaEntalpiaEntreAireSecoYSaturado) {
  prueba::RegistroApuntado registro;
  CorrienteAire c;
  c.pont_h(20.0F, 0.0F, P);
  EXPECT_EQ(registro.textos,
            Textos{"**Minimo revasado 0.000000 < 20120.000000, se toma 20120.000000: CorrienteAire::pont_h"});
  EXPECT_EQ(c.humedadAbsoluta(), 0.0F);
  c.pont_h(20.0F, 1e6F, P);
  EXPECT_NEAR(c.humedadAbsoluta(), humedadSaturacion(20.0F, P), 1e-9);
  ASSERT_EQ(registro.textos.size(), 2U);
  EXPECT_EQ(registro.textos[1].find("**Maximo revasado 1000000.000000 > 57"), 0U) << registro.textos[1];
  c.pont_h(150.0F, 1e5F, 0.0F);
  EXPECT_EQ(registro.textos[2],
            "**Maximo revasado 150.000000 > 99.000000, se toma 99.000000: CorrienteAire::pont_h");
  EXPECT_EQ(registro.textos[3],
            "**Minimo revasado 0.000000 < 0.001400, se toma 0.001400: CorrienteAire::pont_h");
}

TEST(CorrienteAire, PonwHNombraOtraClaseEnSusDosUltimasEtiquetas) {
  prueba::RegistroApuntado registro;
  CorrienteAire c;
  c.ponw_h(0.01F, 300000.0F, 2e6F);
  EXPECT_EQ(
      registro.textos,
      (Textos{
          "**Maximo revasado 2000000.000000 > 1555070.000000, se toma 1555070.000000: CorrienteAire::ponw_h",
          "**Maximo revasado 300000.000000 > 211514.000000, se toma 211514.000000: Psicrometria::ponw_h"}));
  registro.textos.clear();
  c.ponw_h(-1.0F, 50000.0F, P);
  ASSERT_FALSE(registro.textos.empty());
  EXPECT_EQ(registro.textos[0],
            "**Minimo revasado -1.000000 < 0.000000, se toma 0.000000: Psicrometria::ponw_h");
  EXPECT_EQ(registro.textos[1],
            "**Error 3: El proceso iterativo no ha convergido: CorrienteAire::tSatVap(float p_)");
}

TEST(CorrienteAire, PonwHBajoLaPresionDeSaturacionA99GradosDejaLaHumedadNegativa) {
  // W_s(99, p) es entonces negativa y hace de máximo: a 80 kPa no sirve para ningún aire. Se conserva.
  prueba::RegistroApuntado registro;
  CorrienteAire c;
  c.ponw_h(0.01F, 50000.0F, 80000.0F);
  EXPECT_EQ(c.humedadAbsoluta(), static_cast<float>(humedadSaturacion(99.0F, 80000.0F)));
  EXPECT_LT(c.humedadAbsoluta(), 0.0F);
  ASSERT_FALSE(registro.textos.empty());
  EXPECT_EQ(registro.textos[0].find("**Maximo revasado 0.010000 > -"), 0U) << registro.textos[0];
}

TEST(CorrienteAire, PonwHNoBajaDeLaEntalpiaDelPuntoDeRocio) {
  CorrienteAire c;
  c.ponw_h(0.01F, -1e5F, P);
  EXPECT_NEAR(D(c, "t"), D(c, "tr"), 1e-3);
  EXPECT_NEAR(D(c, "hr"), 100.0, 0.01);
}

TEST(CorrienteAire, CadaFormaDeDarElEstadoVuelveAlMismoAire) {
  CorrienteAire origen;
  CorrienteAire c;
  for (const float p : {80000.0F, P}) {
    for (float t = 5.0F; t <= 45.0F; t += 5.0F) {
      for (float hr = 10.0F; hr <= 100.0F; hr += 15.0F) {
        origen.pont_hr(t, hr, p);
        const double w = origen.humedadAbsoluta();
        const double margen = 1e-6 * w + 1e-9;
        c.pont_w(t, origen.humedadAbsoluta(), p);
        EXPECT_NEAR(D(c, "hr"), static_cast<double>(hr), 1e-4);
        c.pont_h(t, static_cast<float>(origen.dame("h")), p);
        EXPECT_NEAR(c.humedadAbsoluta(), w, 1e-7 * D(origen, "h") / 2.5e6 + margen);
        if (p >= PRESION_MINIMA_PONW_H) {
          c.ponw_h(origen.humedadAbsoluta(), static_cast<float>(origen.dame("h")), p);
          EXPECT_NEAR(D(c, "t"), static_cast<double>(t), 1e-4);
        }
        c.pont_tr(t, origen.temperaturaRocio(), p);
        EXPECT_NEAR(c.humedadAbsoluta(), w, 1e-4 * w);
      }
    }
  }
}

TEST(CorrienteAire, PonmConvierteCadaUnidad) {
  CorrienteAire c;
  const double ro = D(c, "ro");
  c.ponm(7.0F, "kg/s");
  EXPECT_EQ(c.caudal(), 7.0F);
  c.ponm(3600.0F, "kg/h");
  EXPECT_EQ(c.caudal(), 1.0F);
  c.ponm(2.0F, "m3/s");
  EXPECT_FLOAT_EQ(c.caudal(), static_cast<float>(2.0 * ro));
  c.ponm(7200.0F, "m3/h");
  EXPECT_FLOAT_EQ(c.caudal(), static_cast<float>(2.0 * ro));
}

TEST(CorrienteAire, PonmConUnaUnidadDesconocidaLoDiceYNoCambiaNada) {
  prueba::RegistroApuntado registro;
  CorrienteAire c;
  for (const char *cod : {"KG/S", "kg/S", "kg/s ", ""}) {
    registro.textos.clear();
    c.ponm(3.0F, cod);
    EXPECT_EQ(registro.textos, Textos{"** cod no valido: Void CorrienteAire::ponm(char* cod, float m_)"})
        << cod;
    EXPECT_EQ(c.caudal(), 15.0F);
  }
}

TEST(CorrienteAire, PonmAcotaElCaudalAntesDeMirarLaUnidad) {
  prueba::RegistroApuntado registro;
  CorrienteAire c;
  c.ponm(-1.0F, "kg/s");
  EXPECT_EQ(c.caudal(), 0.0F);
  c.ponm(2e10F, "nada");
  EXPECT_EQ(registro.textos,
            (Textos{"**Minimo revasado -1.000000 < 0.000000, se toma 0.000000: CorrienteAire::ponm",
                    "**Maximo revasado 20000000000.000000 > 10000000000.000000, se toma 10000000000.000000: "
                    "CorrienteAire::ponm",
                    "** cod no valido: Void CorrienteAire::ponm(char* cod, float m_)"}));
}

TEST(CorrienteAire, DameConUnCodigoDesconocidoDaCeroSinDecirlo) {
  prueba::RegistroApuntado registro;
  const CorrienteAire c;
  for (const char *cod : {"xx", "", "H", "hr ", "dame"}) EXPECT_EQ(c.dame(cod), 0.0L) << cod;
  EXPECT_TRUE(registro.textos.empty());
}

TEST(CorrienteAire, DamePorCodigoYPorMagnitudCoinciden) {
  CorrienteAire c;
  c.pont_hr(31.5F, 42.0F, 95000.0F);
  const std::pair<const char *, Magnitudaire> pares[] = {{"m", Magnitudaire::Caudal},
                                                         {"p", Magnitudaire::Presion},
                                                         {"t", Magnitudaire::Temperatura},
                                                         {"w", Magnitudaire::HumedadAbsoluta},
                                                         {"th", Magnitudaire::TemperaturaHumeda},
                                                         {"tr", Magnitudaire::TemperaturaRocio},
                                                         {"hr", Magnitudaire::HumedadRelativa},
                                                         {"h", Magnitudaire::Entalpia},
                                                         {"ro", Magnitudaire::Densidad},
                                                         {"ve", Magnitudaire::VolumenEspecifico}};
  for (const auto &[cod, magnitud] : pares) {
    EXPECT_EQ(c.dame(cod), c.dame(magnitud)) << cod;
    EXPECT_NE(c.dame(cod), 0.0L) << cod;
  }
}

TEST(CorrienteAire, DensidadYVolumenEspecificoSonInversos) {
  CorrienteAire c;
  c.pont_hr(31.5F, 42.0F, 95000.0F);
  EXPECT_NEAR(D(c, "ro") * D(c, "ve"), 1.0, 1e-15);
}

TEST(CorrienteAire, LaEntalpiaDelAireSecoACeroGradosEsCero) {
  CorrienteAire c;
  c.pont_w(0.0F, 0.0F, P);
  EXPECT_EQ(c.dame("h"), 0.0L);
  c.pont_w(10.0F, 0.005F, P); // (1805·10 + 2501000)·0.005 + 1006·10, con el 0.005 más próximo en float
  EXPECT_NEAR(D(c, "h"), 22655.25, 1e-3);
}

// ASHRAE Handbook of Fundamentals (2017), capítulo 1, tabla 2: aire saturado a 101325 Pa, entalpía [J/kg]. El
// gas ideal queda hasta un 0.7 % por debajo entre -50 y 50 °C (Kuehn y otros, 1998); cerca de 0 J/kg se
// admite lo que pesa ese 0.7 % del calor latente.
TEST(CorrienteAire, LaEntalpiaDelAireSaturadoCoincideConLaTablaDelManual) {
  const std::pair<float, double> filas[] = {{-50, -50222}, {-20, -18542}, {-5, 1164},
                                            {5, 18639},    {25, 76504},   {50, 275353}};
  CorrienteAire c;
  for (const auto &[t, h] : filas) {
    c.pont_hr(t, 100.0F, P);
    const double latente = static_cast<double>(c.humedadAbsoluta()) * 2.5e6;
    EXPECT_NEAR(D(c, "h"), h, 0.007 * latente + 0.002 * std::fabs(1006.0 * static_cast<double>(t))) << t;
  }
}

// ASHRAE Handbook of Fundamentals (2001), capítulo 6, ejemplo 1, leído en la carta a 101325 Pa: 40 °C secos y
// 20 °C húmedos. Media unidad de la última cifra de cada lectura; en la humedad y la entalpía, además, lo que
// el gas ideal pierde al no aumentar un 0.4 % la saturación a 20 °C: 0.06 g/kg.
TEST(CorrienteAire, CoincideConElEjemploDeLaCartaDelManual) {
  CorrienteAire c;
  c.pont_th(40.0F, 20.0F, P);
  EXPECT_NEAR(D(c, "w"), 0.0065, 1.1e-4);
  EXPECT_NEAR(D(c, "h"), 56700.0, 200.0);
  EXPECT_NEAR(D(c, "tr"), 7.0, 0.5);
  EXPECT_NEAR(D(c, "hr"), 14.0, 0.5);
  EXPECT_NEAR(D(c, "ve"), 0.896, 0.5e-3);
}
