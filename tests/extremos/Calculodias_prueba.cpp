#include "extremos/Calculodias.h"
#include "tests/extremos/Gdrdeprueba.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tesmo::extremos {
namespace {

using prueba::Invierno;
using prueba::LeerBien;
using prueba::RegistroDeTexto;
using prueba::Verano;

RegistroGdr DePrueba(const std::string &resto = "COSTA 36.84 0 0 10 ALT=21") {
  return LeerBien(RegistroDeTexto("a", resto), "a");
}

double Media(const ValoresHorarios &valores) {
  double suma = 0.0;
  for (const float v : valores) suma += v;
  return suma / static_cast<double>(valores.size());
}

void EsperarFinito(const DiaDeProyecto &dia) {
  for (const ValoresHorarios *serie :
       {&dia.exterior, &dia.cielo, &dia.rocio, &dia.directa, &dia.difusa, &dia.absoluta, &dia.relativa}) {
    for (const float v : *serie) EXPECT_TRUE(std::isfinite(v));
  }
}

TEST(Calculo, LasFraccionesDeFabrica) {
  const ResultadoDias r = CalcularDias(DePrueba(), Invierno(), Verano());
  EXPECT_NEAR(static_cast<double>(r.calefaccion.traza.fraccion), 0.01, 1e-15);
  EXPECT_NEAR(static_cast<double>(r.refrigeracion.traza.fraccion), 0.99, 1e-15);
}

TEST(Calculo, EneroYJulioConservanLaTemperaturaDeLaTemporada) {
  const ResultadoDias r = CalcularDias(DePrueba(), Invierno(), Verano());
  EXPECT_EQ(r.calefaccion.traza.temperaturaMes, r.calefaccion.traza.temperaturaTemporada);
  EXPECT_EQ(r.refrigeracion.traza.temperaturaMes, r.refrigeracion.traza.temperaturaTemporada);
}

TEST(Calculo, OtroMesLlevaLaParteDeEneroODeJulio) {
  const ResultadoDias r = CalcularDias(DePrueba(), Invierno(99.0F, 12), Verano(1.0F, 8));
  const ResultadoDias base = CalcularDias(DePrueba(), Invierno(), Verano());
  EXPECT_EQ(r.calefaccion.traza.temperaturaTemporada, base.calefaccion.traza.temperaturaTemporada);
  EXPECT_GT(r.calefaccion.traza.temperaturaMes,
            base.calefaccion.traza.temperaturaMes); // diciembre es más templado
  EXPECT_EQ(r.calefaccion.traza.parteDeReferencia, base.calefaccion.traza.parteDelMes);
  EXPECT_NE(r.refrigeracion.traza.temperaturaMes, r.refrigeracion.traza.temperaturaTemporada);
}

// Febrero se divide entre 744 horas aunque tenga 672.
TEST(Calculo, FebreroSeDivideComoUnMesDeTreintaYUnDias) {
  const ResultadoDias r = CalcularDias(DePrueba(), Invierno(99.0F, 2), Verano());
  const auto suma = [](const DistribucionGuardada &d) {
    double total = 0.0;
    for (const float v : d.valores) total += v;
    return total;
  };
  EXPECT_NEAR(suma(r.calefaccion.frecuenciaMes), 672.0 / 744.0, 1e-6);
  EXPECT_NEAR(suma(r.refrigeracion.frecuenciaMes), 1.0, 1e-6);
  EXPECT_NEAR(suma(r.calefaccion.frecuenciaTemporada), 1.0, 1e-6);
}

TEST(Calculo, LasAcumuladasDelMesTerminanEnUno) {
  const ResultadoDias r = CalcularDias(DePrueba(), Invierno(99.0F, 2), Verano(1.0F, 9));
  for (const ResultadoEstacion *e : {&r.calefaccion, &r.refrigeracion}) {
    for (const DistribucionGuardada *d : {&e->acumuladaMes, &e->acumuladaReferencia}) {
      EXPECT_EQ(d->valores[static_cast<std::size_t>(d->mayor + 49)], 1.0F);
      EXPECT_TRUE(std::is_sorted(d->valores.begin(), d->valores.begin() + d->mayor + 50));
    }
    EXPECT_NEAR(e->acumuladaTemporada.valores[static_cast<std::size_t>(e->acumuladaTemporada.mayor + 49)],
                1.0, 1e-6);
  }
}

TEST(Calculo, LaZonaEnMinusculasEsDelInterior) {
  EXPECT_EQ(CalcularDias(DePrueba(), Invierno(), Verano()).zona.horaMaximaRef, 13);
  const ResultadoDias r = CalcularDias(DePrueba("costa 36.84 0 0 10"), Invierno(), Verano());
  EXPECT_EQ(r.zona.horaMaximaRef, 15);
  const auto &t = r.refrigeracion.dia.exterior;
  EXPECT_GE(std::max_element(t.begin(), t.end()) - t.begin(), 14);
}

TEST(Calculo, LaTemperaturaDeProyectoEsLaMinimaOLaMaximaDelDia) {
  const RegistroGdr registro = DePrueba();
  const ResultadoDias r = CalcularDias(registro, Invierno(), Verano());
  const auto &frio = r.calefaccion.dia.exterior;
  const auto &calor = r.refrigeracion.dia.exterior;
  EXPECT_NEAR(*std::min_element(frio.begin(), frio.end()),
              static_cast<double>(r.calefaccion.traza.temperaturaMes), 0.15);
  EXPECT_NEAR(*std::max_element(calor.begin(), calor.end()),
              static_cast<double>(r.refrigeracion.traza.temperaturaMes), 0.15);
  EXPECT_NEAR(*std::max_element(frio.begin(), frio.end()) - *std::min_element(frio.begin(), frio.end()),
              registro.maxima[0] - registro.minima[0], 0.2);
}

TEST(Calculo, LasEtiquetasMandanEnLaHumedad) {
  const ResultadoDias sin = CalcularDias(DePrueba("COSTA 36.84 0 0 10"), Invierno(), Verano());
  EXPECT_FALSE(sin.altitudDelRegistro);
  EXPECT_EQ(sin.altitud, 0.0F);
  EXPECT_EQ(sin.calefaccion.traza.origenHumedad, OrigenHumedad::MinimaDelMes);
  const ResultadoDias con =
      CalcularDias(DePrueba("COSTA 36.84 0 0 10 WREF=12 ALT=700 WCAL=4"), Invierno(), Verano());
  EXPECT_EQ(con.altitud, 700.0F);
  EXPECT_EQ(con.calefaccion.traza.origenHumedad, OrigenHumedad::Registro);
  EXPECT_EQ(con.calefaccion.traza.humedad, 4.0F);
  EXPECT_EQ(con.refrigeracion.traza.humedad, 12.0F);
  EXPECT_EQ(con.refrigeracion.dia.absoluta[12], 12.0F);
}

TEST(Calculo, UnaTemporadaSinMesesNoSeSaleDeSitio) {
  AjustesEstacion vacia = Invierno();
  vacia.temporada = {};
  const ResultadoDias r = CalcularDias(DePrueba(), vacia, Verano());
  EXPECT_EQ(r.calefaccion.traza.temperaturaTemporada, 0.0L);
  EXPECT_EQ(r.calefaccion.frecuenciaTemporada.menor, 50);
}

TEST(Calculo, UnClimaFueraDeLaTablaCuentaEnSusExtremos) {
  const std::string texto = "frio x 60 0 0 10\n" + [] {
    std::string filas;
    for (const char *valor : {"-60 ", "-70 ", "3 ", "3 ", "9000 ", "70 "}) {
      for (int mes = 0; mes < 12; ++mes) filas += valor;
      filas += "\n";
    }
    return filas;
  }();
  const ResultadoDias r = CalcularDias(LeerBien(texto, "frio"), Invierno(), Verano());
  EXPECT_EQ(r.calefaccion.acumuladaMes.menor, -49);
  EXPECT_EQ(r.calefaccion.acumuladaMes.mayor, -49);
  EsperarFinito(r.calefaccion.dia);
}

TEST(Calculo, PercentilesCeroYCienSonFinitos) {
  for (const std::string &clave : prueba::ClavesDelPrograma()) {
    const RegistroGdr registro = LeerBien(prueba::GdrDelPrograma(), clave);
    for (const float percentil : {0.0F, 100.0F}) {
      for (const int mes : {1, 4, 7, 12}) {
        const ResultadoDias r = CalcularDias(registro, Invierno(percentil, mes), Verano(percentil, mes));
        EsperarFinito(r.calefaccion.dia);
        EsperarFinito(r.refrigeracion.dia);
      }
    }
  }
}

void EsperarFisica(const DiaDeProyecto &dia) {
  for (std::size_t h = 0; h < 24; ++h) {
    EXPECT_GE(dia.directa[h], 0.0F);
    EXPECT_GE(dia.difusa[h], 0.0F);
    EXPECT_EQ(dia.directa[h], dia.directa[23 - h]);
    EXPECT_EQ(dia.difusa[h], dia.difusa[23 - h]);
    EXPECT_GT(dia.relativa[h], 0.0F);
    EXPECT_LE(dia.relativa[h], 100.0F);
    EXPECT_LE(dia.rocio[h], dia.exterior[h]);
    EXPECT_LT(dia.cielo[h], dia.exterior[h]);
  }
}

TEST(Fisica, EnTodaLocalidadMesYPercentil) {
  for (const std::string &clave : prueba::ClavesDelPrograma()) {
    const RegistroGdr registro = LeerBien(prueba::GdrDelPrograma(), clave);
    for (int mes = 1; mes <= 12; ++mes) {
      for (const float percentil : {90.0F, 99.9F}) {
        const ResultadoDias r =
            CalcularDias(registro, Invierno(percentil, mes), Verano(100.0F - percentil, mes));
        EsperarFinito(r.calefaccion.dia);
        EsperarFisica(r.calefaccion.dia);
        EsperarFisica(r.refrigeracion.dia);
      }
    }
  }
}

/// En los doce meses. No cuenta el percentil tan templado que su temperatura de temporada es la mayor de
/// enero: lo que sale entonces lo fija UnaParteDeUnoDaElValorEnUnGrado.
TEST(Fisica, UnPercentilMasFrioNuncaDaUnDiaMasCalido) {
  for (const std::string &clave : prueba::ClavesDelPrograma()) {
    const RegistroGdr registro = LeerBien(prueba::GdrDelPrograma(), clave);
    for (int mes = 1; mes <= 12; ++mes) {
      double anterior = 1e9;
      int comparados = 0;
      for (const float percentil : {1.0F, 20.0F, 50.0F, 80.0F, 90.0F, 95.0F, 97.5F, 99.0F, 99.6F, 99.9F}) {
        const ResultadoDias r = CalcularDias(registro, Invierno(percentil, mes), Verano());
        if (r.calefaccion.traza.parteDeReferencia == 1.0L) continue;
        const double media = Media(r.calefaccion.dia.exterior);
        EXPECT_LE(media, anterior) << clave << ", mes " << mes << ", " << percentil;
        anterior = media;
        ++comparados;
      }
      EXPECT_GE(comparados, 8) << clave << ", mes " << mes;
    }
  }
}

// Si la temperatura de la temporada es la mayor de enero, su parte es 1, ningún grado de otro mes la pasa y
// lo que se toma por temperatura es la parte de ese mes en 1 °C.
TEST(Calculo, UnaParteDeUnoDaElValorEnUnGrado) {
  const RegistroGdr registro = LeerBien(prueba::GdrDelPrograma(), "Cordoba");
  const ResultadoDias r = CalcularDias(registro, Invierno(1.0F, 2), Verano());
  EXPECT_EQ(r.calefaccion.traza.parteDeReferencia, 1.0L);
  const DistribucionGuardada &febrero = r.calefaccion.acumuladaMes;
  EXPECT_FLOAT_EQ(static_cast<float>(r.calefaccion.traza.temperaturaMes), febrero.valores[1 + 49]);
}

} // namespace
} // namespace tesmo::extremos
