#include "extremos/Calculodias.h"
#include "extremos/Escritordias.h"
#include "tests/extremos/Gdrdeprueba.h"
#include "tests/extremos/Referencia.h"

#include <gtest/gtest.h>

#include <string>

namespace tesmo::extremos {
namespace {

constexpr double KELVIN = 1e-3;
constexpr double VATIOS = 0.01;
constexpr double PORCENTAJE = 1e-3;

double D(long double valor) { return static_cast<double>(valor); }

void CompararSerie(const ValoresHorarios &serie, const std::array<double, 24> &esperada, double margen,
                   const char *nombre) {
  for (std::size_t h = 0; h < serie.size(); ++h)
    ASSERT_NEAR(serie[h], esperada[h], margen) << nombre << ' ' << h;
}

void CompararDia(const DiaDeProyecto &dia, const referencia::Dia &esperado) {
  CompararSerie(dia.exterior, esperado.text, KELVIN, "exterior");
  CompararSerie(dia.cielo, esperado.tcielo, KELVIN, "cielo");
  CompararSerie(dia.rocio, esperado.trocio, KELVIN, "rocío");
  CompararSerie(dia.directa, esperado.rdir, VATIOS, "directa");
  CompararSerie(dia.difusa, esperado.rdif, VATIOS, "difusa");
  CompararSerie(dia.absoluta, esperado.habs, 1e-4, "absoluta");
  CompararSerie(dia.relativa, esperado.hrel, PORCENTAJE, "relativa");
}

void CompararTraza(const ResultadoDias &r, const referencia::Salida &s) {
  const TrazaEstacion &cal = r.calefaccion.traza;
  const TrazaEstacion &ref = r.refrigeracion.traza;
  EXPECT_NEAR(cal.salida, s.salidaCal, 1e-5);
  EXPECT_NEAR(ref.salida, s.salidaRef, 1e-5);
  EXPECT_NEAR(D(cal.temperaturaTemporada), s.t1, KELVIN);
  EXPECT_NEAR(D(ref.temperaturaTemporada), s.t2, KELVIN);
  EXPECT_NEAR(D(cal.temperaturaMes), s.t1mes, KELVIN);
  EXPECT_NEAR(D(ref.temperaturaMes), s.t2mes, KELVIN);
  EXPECT_NEAR(D(cal.parteDelMes), s.f1, 1e-9);
  EXPECT_NEAR(D(ref.parteDelMes), s.f2, 1e-9);
  EXPECT_NEAR(D(cal.parteDeReferencia), s.fj, 1e-9);
  EXPECT_NEAR(D(ref.parteDeReferencia), s.fl, 1e-9);
  EXPECT_NEAR(D(cal.claridadMensual), s.Kcal, 1e-6);
  EXPECT_NEAR(D(ref.claridadMensual), s.Kref, 1e-6);
  EXPECT_NEAR(D(cal.extraterrestre), s.h0cal, 0.01);
  EXPECT_NEAR(D(ref.extraterrestre), s.h0ref, 0.01);
  EXPECT_NEAR(D(cal.diaria), s.hcal, 0.01);
  EXPECT_NEAR(D(ref.diaria), s.href, 0.01);
  EXPECT_NEAR(D(cal.claridadDiaria), s.kcal, 1e-6);
  EXPECT_NEAR(D(ref.claridadDiaria), s.kref, 1e-6);
  EXPECT_NEAR(cal.humedad, s.wcal, 1e-5);
  EXPECT_NEAR(ref.humedad, s.wref, 1e-5);
  EXPECT_EQ(r.altitud, static_cast<float>(s.alt));
}

void CompararAcumuladas(const ResultadoDias &r, const referencia::Salida &s) {
  const DistribucionGuardada *distribuciones[] = {
      &r.calefaccion.acumuladaTemporada,  &r.refrigeracion.acumuladaTemporada,
      &r.calefaccion.acumuladaReferencia, &r.refrigeracion.acumuladaReferencia,
      &r.calefaccion.acumuladaMes,        &r.refrigeracion.acumuladaMes};
  for (std::size_t i = 0; i < 6; ++i) {
    for (std::size_t k = 0; k < NUMERO_GRADOS; ++k) {
      ASSERT_NEAR(distribuciones[i]->valores[k], s.acumuladas[i][k], 1e-6) << i << ' ' << k;
    }
  }
}

template <std::size_t N>
std::array<int, 13> DesdeUno(const std::array<std::int16_t, N> &meses) {
  std::array<int, 13> resultado{};
  std::copy(meses.begin(), meses.end(), resultado.begin() + 1);
  return resultado;
}

/// Compara un cálculo entero; cierto si ha salido bien.
bool Comparar(const std::string &gdr, const std::string &clave, const AjustesEstacion &cal,
              const AjustesEstacion &ref) {
  const ResultadoDias r = CalcularDias(prueba::LeerBien(gdr, clave), cal, ref);
  const referencia::Salida s =
      referencia::Calcular(gdr, {clave, cal.percentil, ref.percentil, DesdeUno(cal.temporada),
                                 DesdeUno(ref.temporada), cal.mes, ref.mes});
  EXPECT_TRUE(s.hallado);
  CompararTraza(r, s);
  CompararAcumuladas(r, s);
  CompararDia(r.calefaccion.dia, s.cal);
  CompararDia(r.refrigeracion.dia, s.ref);
  return !::testing::Test::HasFailure();
}

constexpr std::array<float, 6> PERCENTILES{90.0F, 95.0F, 97.5F, 99.0F, 99.6F, 99.9F};

TEST(Referencia, TodasLasLocalidadesMesesYPercentiles) {
  int calculos = 0;
  for (const std::string &clave : prueba::ClavesDelPrograma()) {
    for (int mes = 1; mes <= 12; ++mes) {
      for (const float percentil : PERCENTILES) {
        ASSERT_TRUE(Comparar(prueba::GdrDelPrograma(), clave, prueba::Invierno(percentil, mes),
                             prueba::Verano(100.0F - percentil, mes)))
            << clave << " mes " << mes << " percentil " << percentil;
        ++calculos;
      }
    }
  }
  EXPECT_GE(calculos, 19 * 12 * 6);
}

TEST(Referencia, ConEtiquetasOtrasTemporadasYOtroFactor) {
  const std::string gdr = prueba::RegistroDeTexto("otro", "x 40 0 0 10") +
                          prueba::RegistroDeTexto("a", "INTERIOR 37.2 -4 0 25 WCAL=3.5 ALT=680 WREF=9.25");
  AjustesEstacion cal = prueba::Invierno(97.5F, 11);
  cal.temporada = {1, 0, 1, 0, 0, 0, 0, 0, 0, 1, 1, 0};
  AjustesEstacion ref = prueba::Verano(2.5F, 6);
  ref.temporada = {0, 0, 0, 0, 1, 1, 0, 0, 0, 0, 0, 0};
  EXPECT_TRUE(Comparar(gdr, "a", cal, ref));
}

} // namespace
} // namespace tesmo::extremos
