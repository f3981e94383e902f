#include "meteo/Leermet.h"
#include "solar/Posicionsolar.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

constexpr float PRESION = 101325.0F;
constexpr float MARCA = -12345.0F;
constexpr std::size_t MEDIODIA = 11;

/// Un LeerMet con dos días iguales: 20 °C, 7 g/kg, 300 y 100 W/m² con el sol a 60° de altura.
class Derivador {
public:
  Derivador() {
    CargarDias(20);
    met.PonPeriodo(1, 1, 1, 1, 2, 24);
  }
  void CargarDias(int t) {
    std::string texto = "x\n36.84 -2.39 21.0 15.0\n";
    for (int i = 0; i < 48; ++i) {
      texto += "1 1 1 " + std::to_string(t) + " 5 300 100 0.007 48 2 0 0 30 0 0\n";
    }
    EXPECT_TRUE(met.LeerFichero(directorio.Escribir("a.met", texto)));
  }
  void Asegurar(float presion = PRESION) { met.AsegurarDerivadas(presion, horizonte); }
  [[nodiscard]] float &Valor(SerieDerivada serie) {
    // Sólo la prueba escribe en las derivadas: una marca que sigue ahí dice que no se derivó otra vez.
    return const_cast<SeriesDerivadas &>(met.Derivadas())[serie][MEDIODIA];
  }
  void Marcar() { Valor(SerieDerivada::Altura) = Valor(SerieDerivada::Global) = MARCA; }
  [[nodiscard]] bool AireRehecho() { return Valor(SerieDerivada::Altura) != MARCA; }
  [[nodiscard]] bool SolRehecho() { return Valor(SerieDerivada::Global) != MARCA; }

  DirectorioTemporal directorio;
  LeerMet met;
  PosicionSolar horizonte;
};

/// Un derivador al día y marcado, listo para ver qué se rehace.
struct Marcado : Derivador {
  Marcado() {
    Asegurar();
    Marcar();
  }
};

} // namespace

TEST(LeerMetDerivacion, LlenaLasOnceSeriesDelPeriodoYDejaACeroElResto) {
  Derivador d;
  d.met.PonPeriodo(1, 1, 12, 1, 1, 12);
  d.Asegurar();
  EXPECT_TRUE(d.met.DerivadasPresentes());
  for (std::size_t i = 0; i < NUMERO_SERIES_DERIVADAS; ++i) {
    const SerieHoraria &serie = d.met.Derivadas()[static_cast<SerieDerivada>(i)];
    ASSERT_EQ(serie.size(), 8760U);
    EXPECT_NE(serie[MEDIODIA], 0.0F) << i;
    EXPECT_EQ(serie[MEDIODIA + 1], 0.0F) << i;
  }
  EXPECT_EQ(d.Valor(SerieDerivada::Altura), 60.0F);
}

TEST(LeerMetDerivacion, SinHorizonteElFactorDeCieloEsUnMedio) {
  Derivador d;
  EXPECT_EQ(d.met.FactorDeCielo(), 0.0F);
  d.Asegurar();
  EXPECT_FLOAT_EQ(d.met.FactorDeCielo(), 0.5F);
  EXPECT_FLOAT_EQ(d.Valor(SerieDerivada::Difusa), 50.0F);
  EXPECT_FLOAT_EQ(d.Valor(SerieDerivada::Reflejada), 0.5F * 400.0F * 0.2F);
}

TEST(LeerMetDerivacion, SinCambiosNoSeDerivaOtraVez) {
  Marcado d;
  d.Asegurar();
  EXPECT_FALSE(d.AireRehecho());
  EXPECT_FALSE(d.SolRehecho());
}

TEST(LeerMetDerivacion, OtraCargaLoRehaceTodo) {
  Marcado d;
  const float entalpia = d.Valor(SerieDerivada::Entalpia);
  d.CargarDias(25);
  d.Asegurar();
  EXPECT_TRUE(d.AireRehecho());
  EXPECT_TRUE(d.SolRehecho());
  EXPECT_GT(d.Valor(SerieDerivada::Entalpia), entalpia);
}

TEST(LeerMetDerivacion, OtroPeriodoLoRehaceTodo) {
  Marcado d;
  d.met.PonPeriodo(1, 1, 1, 1, 1, 24);
  d.Asegurar();
  EXPECT_TRUE(d.AireRehecho());
  EXPECT_TRUE(d.SolRehecho());
}

TEST(LeerMetDerivacion, OtraPresionLoRehaceTodo) {
  Marcado d;
  const float volumen = d.Valor(SerieDerivada::VolumenEspecifico);
  d.Asegurar(90000.0F);
  EXPECT_TRUE(d.AireRehecho());
  EXPECT_TRUE(d.SolRehecho());
  EXPECT_GT(d.Valor(SerieDerivada::VolumenEspecifico), volumen);
}

TEST(LeerMetDerivacion, OtraSuperficieSoloRehaceElSol) {
  for (const char *clave : {"Inclinación", "Orientación", "Albedo"}) {
    Marcado d;
    d.met.PonTexto(clave, "0.7");
    d.Asegurar();
    EXPECT_FALSE(d.AireRehecho()) << clave;
    EXPECT_TRUE(d.SolRehecho()) << clave;
  }
}

TEST(LeerMetDerivacion, OtroHorizonteSoloRehaceElSol) {
  Marcado d;
  d.horizonte.PonTamanoHorizonte(2);
  d.horizonte.PonPuntoHorizonte(0, -180.0F, 80.0F);
  d.horizonte.PonPuntoHorizonte(1, 180.0F, 80.0F);
  d.Asegurar();
  EXPECT_FALSE(d.AireRehecho());
  EXPECT_TRUE(d.SolRehecho());
  EXPECT_EQ(d.Valor(SerieDerivada::Directa), 0.0F) << "el horizonte a 80° tapa el sol a 60°";
}

TEST(LeerMetDerivacion, LiberarOReservarObligaADerivarOtraVez) {
  Marcado d;
  d.met.LiberarDerivadas();
  d.Asegurar();
  EXPECT_EQ(d.Valor(SerieDerivada::Altura), 60.0F);
  d.met.ReservarDerivadas(HORAS_DEL_ANIO);
  EXPECT_EQ(d.Valor(SerieDerivada::Altura), 0.0F);
  d.Asegurar();
  EXPECT_EQ(d.Valor(SerieDerivada::Altura), 60.0F);
  EXPECT_GT(d.Valor(SerieDerivada::Global), 0.0F);
}

TEST(LeerMetDerivacion, DerivarSoloElSolDeOtroPeriodoNoEnganaALaSiguiente) {
  Derivador d;
  d.met.PonPeriodo(1, 1, 1, 1, 1, 24);
  d.met.DerivarPsicrometricas(PRESION);
  d.met.PonPeriodo(1, 2, 1, 1, 2, 24);
  d.met.DerivarSolares(d.horizonte);
  d.met.PonPeriodo(1, 1, 1, 1, 1, 24);
  d.Asegurar();
  EXPECT_GT(d.Valor(SerieDerivada::Global), 0.0F);
}

TEST(LeerMetDerivacion, LasDerivadasSePidenPorSuRotulo) {
  Derivador d;
  d.met.PonPeriodo(1, 1, 12, 1, 1, 12);
  d.Asegurar();
  for (std::size_t i = 0; i < NUMERO_MAGNITUDES; ++i) {
    const FichaMagnitud &ficha = MAGNITUDES[i];
    if (!ficha.fuente.derivada) continue;
    float valor = MARCA;
    d.met.DameSerie(ficha.rotulo, &valor);
    EXPECT_EQ(valor, d.Valor(static_cast<SerieDerivada>(ficha.fuente.indice))) << ficha.rotulo;
  }
}

TEST(LeerMetDerivacion, EstadisticasDeUnRotulo) {
  Derivador d;
  d.met.PonHorasDelDia(1, 24);
  float maximo = 0, minimo = 0, media = 0, calefaccion = 0, refrigeracion = 0, tercera = 9;
  std::string unidad;
  d.met.Estadisticas("Temperatura seca (ºC)", 21.0F, 15.0F, maximo, minimo, media, calefaccion, refrigeracion,
                     tercera, unidad);
  EXPECT_EQ(maximo, 20.0F);
  EXPECT_EQ(minimo, 20.0F);
  EXPECT_EQ(media, 20.0F);
  EXPECT_FLOAT_EQ(calefaccion, 2.0F) << "un grado durante dos días";
  EXPECT_FLOAT_EQ(refrigeracion, 10.0F);
  EXPECT_EQ(tercera, 0.0F);
  EXPECT_EQ(unidad, "ºC");
}

TEST(LeerMetDerivacion, UnRotuloDesconocidoDejaLosValoresDePartida) {
  const LeerMet met;
  float maximo = 0, minimo = 0, media = 1, calefaccion = 1, refrigeracion = 1, tercera = 1;
  std::string unidad = "algo";
  met.Estadisticas("nada", 15.0F, 25.0F, maximo, minimo, media, calefaccion, refrigeracion, tercera, unidad);
  EXPECT_EQ(maximo, -100.0F);
  EXPECT_EQ(minimo, 500000.0F);
  EXPECT_EQ(media, 0.0F);
  EXPECT_EQ(calefaccion + refrigeracion + tercera, 0.0F);
  EXPECT_EQ(unidad, "");
}
