#include "vistas/grafico/Escalahoras.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace tesmo;

namespace {

const Periodo ANIO{{1, 1, 1}, {12, 31, 24}};
const Periodo JULIO{{7, 1, 1}, {7, 31, 24}};
using Unidad = PasoHoras::Unidad;

std::vector<std::string> Textos(const std::vector<MarcaEje> &marcas) {
  std::vector<std::string> textos;
  for (const MarcaEje &marca : marcas) textos.push_back(marca.texto);
  return textos;
}

} // namespace

TEST(EscalaHoras, CuentaLasHorasDesdeUnoEnElComienzoDelPeriodo) {
  const EscalaHoras escala(JULIO);
  EXPECT_EQ(escala.Numero(), 31 * 24);
  EXPECT_EQ(escala.Primero(), 1.0);
  EXPECT_EQ(escala.Ultimo(), 744.0);
  EXPECT_EQ(escala.Fecha(1), (FechaHora{7, 1, 1}));
  EXPECT_EQ(escala.Fecha(24), (FechaHora{7, 1, 24}));
  EXPECT_EQ(escala.Fecha(25), (FechaHora{7, 2, 1}));
  EXPECT_EQ(escala.Fecha(744), (FechaHora{7, 31, 24}));
}

TEST(EscalaHoras, ElAnioEnteroLlevaUnaMarcaPorMes) {
  const EscalaHoras escala(ANIO);
  EXPECT_EQ(escala.Numero(), 8760);
  const auto marcas = escala.Marcas(0.5, 8760.5, 1000.0);
  ASSERT_EQ(marcas.size(), 12U);
  EXPECT_EQ(marcas[0].texto, "1\n1 ene");
  EXPECT_EQ(marcas[1].texto, "745\n1 feb");
  EXPECT_EQ(marcas[6].posicion, 4345.0); // 181 días antes de julio
  EXPECT_EQ(marcas[11].texto, "8017\n1 dic");
}

TEST(EscalaHoras, UnDiaLlevaLaHoraJuntoALaFecha) {
  const EscalaHoras escala({{1, 1, 1}, {1, 1, 24}});
  EXPECT_EQ(Textos(escala.Marcas(0.5, 24.5, 400.0)),
            (std::vector<std::string>{"1\n1 ene 1 h", "7\n1 ene 7 h", "13\n1 ene 13 h", "19\n1 ene 19 h"}));
}

TEST(EscalaHoras, LasMarcasDeVariosDiasNoSePeganAlMesSiguiente) {
  const EscalaHoras escala({{1, 1, 1}, {3, 31, 24}});
  for (const double ancho : {300.0, 500.0, 900.0, 1500.0, 3000.0}) {
    const auto marcas = escala.Marcas(0.5, 2160.5, ancho);
    ASSERT_GE(marcas.size(), 2U) << ancho;
    for (std::size_t i = 1; i < marcas.size(); ++i) {
      EXPECT_GE((marcas[i].posicion - marcas[i - 1].posicion) * ancho / 2160.0, 50.0)
          << ancho << ": " << marcas[i].texto;
    }
  }
}

TEST(EscalaHoras, ElComienzoLlevaMarcaSiNoEstorbaALaSiguiente) {
  // Del 28 de enero al 1 de febrero hay 87 horas, unos 10 píxeles: la marca del comienzo no cabe.
  const EscalaHoras estorba({{1, 28, 10}, {12, 31, 24}});
  EXPECT_EQ(estorba.Marcas(0.5, 8103.5, 1000.0).front().texto, "88\n1 feb");
  const EscalaHoras cabe({{1, 1, 10}, {12, 31, 24}});
  EXPECT_EQ(cabe.Marcas(0.5, 8751.5, 1200.0).front().texto, "1\n1 ene 10 h");
}

TEST(EscalaHoras, SinMarcasRedondasQuedaLaDelComienzo) {
  const EscalaHoras escala({{3, 15, 10}, {3, 15, 11}});
  const auto marcas = escala.Marcas(0.5, 2.5, 60.0);
  ASSERT_FALSE(marcas.empty());
  EXPECT_EQ(marcas.front().texto, "1\n15 mar 10 h");
}

TEST(EscalaHoras, ElPasoCreceCuandoLasHorasSeEstrechan) {
  EXPECT_EQ(EscalaHoras::PasoPara(100.0), (PasoHoras{Unidad::Hora, 1}));
  EXPECT_EQ(EscalaHoras::PasoPara(15.0), (PasoHoras{Unidad::Hora, 6}));
  EXPECT_EQ(EscalaHoras::PasoPara(3.0), (PasoHoras{Unidad::Dia, 1}));
  EXPECT_EQ(EscalaHoras::PasoPara(0.11), (PasoHoras{Unidad::Mes, 1}));
  EXPECT_EQ(EscalaHoras::PasoPara(1.0e-9), (PasoHoras{Unidad::Mes, 6}));
}

TEST(EscalaHoras, LasSubmarcasSonMasFinasQueLasMarcas) {
  const EscalaHoras escala(ANIO);
  const auto marcas = escala.Marcas(0.5, 8760.5, 1000.0);
  const auto submarcas = escala.Submarcas(0.5, 8760.5, 1000.0);
  EXPECT_GT(submarcas.size(), marcas.size());
  for (std::size_t i = 1; i < submarcas.size(); ++i) EXPECT_GE((submarcas[i] - submarcas[i - 1]) / 8.76, 4.0);
}

TEST(EscalaHoras, UnTramoFueraDelPeriodoNoDaMarcas) {
  const EscalaHoras escala(JULIO);
  EXPECT_TRUE(escala.Marcas(800.0, 900.0, 1000.0).empty());
  EXPECT_TRUE(escala.Submarcas(-90.0, -10.0, 1000.0).empty());
  EXPECT_TRUE(escala.Marcas(10.0, 10.0, 0.0).size() <= 1U);
}

TEST(EscalaHoras, ElCursorSeAjustaALaHoraMasCercanaDelPeriodo) {
  const EscalaHoras escala(JULIO);
  EXPECT_EQ(escala.Ajustar(12.4), 12.0);
  EXPECT_EQ(escala.Ajustar(12.6), 13.0);
  EXPECT_EQ(escala.Ajustar(-5.0), 1.0);
  EXPECT_EQ(escala.Ajustar(9999.0), 744.0);
  EXPECT_EQ(escala.Ajustar(std::numeric_limits<double>::quiet_NaN()), 1.0);
}

TEST(EscalaHoras, NombraFechaHoraYPosicion) {
  const EscalaHoras escala(JULIO);
  EXPECT_EQ(escala.Nombrar(38.2), "2 de julio, hora 14 (hora 38 del período)");
  EXPECT_EQ(escala.Campos(38.0), (std::vector<std::string>{"38", "7", "2", "14"}));
  EXPECT_EQ(escala.Encabezamientos().size(), escala.Campos(1.0).size());
}

TEST(EscalaHoras, UnFinAnteriorAlInicioCuentaComoUnaHora) {
  const EscalaHoras escala({{7, 2, 1}, {7, 1, 1}});
  EXPECT_EQ(escala.Numero(), 1);
  EXPECT_EQ(escala.Fecha(1), (FechaHora{7, 2, 1}));
}
