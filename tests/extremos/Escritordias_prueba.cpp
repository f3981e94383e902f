#include "extremos/Escritordias.h"
#include "tests/comun/Apoyos.h"
#include "tests/extremos/Gdrdeprueba.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tesmo::extremos {
namespace {

std::vector<std::string> Lineas(const std::string &texto) {
  std::vector<std::string> lineas;
  std::istringstream entrada(texto);
  for (std::string linea; std::getline(entrada, linea);) lineas.push_back(linea);
  return lineas;
}

DiaDeProyecto DiaDeMuestra() {
  DiaDeProyecto dia;
  dia.exterior.fill(4.25F);
  dia.rocio.fill(-1.06F);
  dia.cielo.fill(-12.34F);
  dia.directa.fill(123.5F);
  dia.difusa.fill(0.49F);
  dia.absoluta.fill(3.44F);
  dia.relativa.fill(66.66F);
  return dia;
}

TEST(TextoDeDia, EncabezamientoYVeinticuatroFilas) {
  const auto lineas = Lineas(TextoDeDia(DiaDeMuestra(), 1, "Almería", "Almería"));
  ASSERT_EQ(lineas.size(), 26U);
  EXPECT_EQ(lineas[0], "Almería Almería");
  EXPECT_EQ(lineas[1], "mes\tdia\thora\ttext\ttrocio\ttcielo\trdir\trdif\thabs\threl");
  EXPECT_EQ(lineas[2], "1\t15\t0\t4.3\t-1.1\t-12.3\t124\t0\t3.4\t66.7");
  EXPECT_EQ(lineas[25].substr(0, 8), "1\t15\t23\t");
  EXPECT_EQ(TextoDeDia(DiaDeMuestra(), 1, "x", "y").back(), '\n');
}

TEST(TextoDeDia, ConComaDecimal) {
  const prueba::ConSeparador coma(',');
  EXPECT_EQ(Lineas(TextoDeDia(DiaDeMuestra(), 7, "", ""))[2],
            "7\t15\t0\t4,3\t-1,1\t-12,3\t124\t0\t3,4\t66,7");
}

TEST(TextoDeDia, UnNombreQueFaltaQuedaVacio) {
  EXPECT_EQ(Lineas(TextoDeDia(DiaDeMuestra(), 1, "", ""))[0], " ");
}

class Salida : public ::testing::Test {
protected:
  const ResultadoDias resultado_ =
      CalcularDias(prueba::LeerBien(prueba::RegistroDeTexto("almeria"), "almeria"),
                   prueba::Invierno(99.0F, 2), prueba::Verano(1.0F, 8));
  const std::vector<std::string> lineas_ = Lineas(TextoDeSalida(resultado_));
};

TEST_F(Salida, UnBloqueDeCientoSeisLineas) {
  ASSERT_EQ(lineas_.size(), 106U);
  EXPECT_EQ(lineas_[0], "almeria");
  EXPECT_EQ(lineas_[1], "0.010000 0.990000");
}

TEST_F(Salida, LasTemperaturasDeLaTemporadaYLasDelMes) {
  std::istringstream temporada(lineas_[3]);
  std::istringstream mes(lineas_[4]);
  double t1 = 0, t2 = 0, t1mes = 0, t2mes = 0;
  temporada >> t1 >> t2;
  mes >> t1mes >> t2mes;
  EXPECT_NEAR(t1, static_cast<double>(resultado_.calefaccion.traza.temperaturaTemporada), 1e-6);
  EXPECT_NEAR(t2, static_cast<double>(resultado_.refrigeracion.traza.temperaturaTemporada), 1e-6);
  EXPECT_NEAR(t1mes, static_cast<double>(resultado_.calefaccion.traza.temperaturaMes), 1e-6);
  EXPECT_NEAR(t2mes, static_cast<double>(resultado_.refrigeracion.traza.temperaturaMes), 1e-6);
}

// La tercera línea es la de enero y julio, no la de los meses de proyecto.
TEST_F(Salida, LasPartesSonLasDeEneroYJulio) {
  double fj = 0, fl = 0;
  std::istringstream(lineas_[2]) >> fj >> fl;
  EXPECT_NEAR(fj, static_cast<double>(resultado_.calefaccion.traza.parteDeReferencia), 1e-6);
  EXPECT_NEAR(fl, static_cast<double>(resultado_.refrigeracion.traza.parteDeReferencia), 1e-6);
  EXPECT_GT(std::abs(fj - static_cast<double>(resultado_.calefaccion.traza.parteDelMes)), 1e-4);
}

// Cada fila lleva un grado más que el suyo: la del elemento 0, que es −49 °C, dice −48.
TEST_F(Salida, LosGradosVanUnoPorEncima) {
  EXPECT_EQ(lineas_[5].substr(0, 11), "-48.000000 ");
  EXPECT_EQ(lineas_[104].substr(0, 10), "51.000000 ");
  std::istringstream fila(lineas_[5 + 10 + 49]); // 10 °C
  double grado = 0, calefaccion = 0;
  fila >> grado >> calefaccion;
  EXPECT_EQ(grado, 11.0);
  EXPECT_NEAR(calefaccion, resultado_.calefaccion.acumuladaTemporada.valores[59], 1e-6);
}

TEST_F(Salida, TerminaConLaRadiacionDeLosDosDias) {
  double cal = 0, ref = 0;
  std::istringstream(lineas_[105]) >> cal >> ref;
  EXPECT_NEAR(cal, static_cast<double>(resultado_.calefaccion.traza.diaria), 1e-5);
  EXPECT_GT(ref, cal);
}

TEST_F(Salida, LaTrazaVaEnSuOrden) {
  const auto traza = LineasDeTraza(resultado_);
  const std::vector<std::string> nombres{
      "latitude", "tail",   "sunrise_cal", "sunrise_ref", "T1",    "T2",    "T1_mes", "T2_mes",
      "F1",       "F2",     "FJ",          "FL",          "K_cal", "K_ref", "k_cal",  "k_ref",
      "H0_cal",   "H0_ref", "Hdia_cal",    "Hdia_ref",    "alt",   "wcal",  "wref"};
  ASSERT_EQ(traza.size(), nombres.size() + 6);
  for (std::size_t i = 0; i < nombres.size(); ++i) {
    EXPECT_EQ(traza[i].first, nombres[i]);
    EXPECT_EQ(traza[i].second.size(), 1U);
  }
  for (std::size_t i = nombres.size(); i < traza.size(); ++i)
    EXPECT_EQ(traza[i].second.size(), NUMERO_GRADOS);
  EXPECT_FLOAT_EQ(static_cast<float>(traza[0].second[0]), 36.84F);
  EXPECT_EQ(traza[20].second[0], 21.0);
}

} // namespace
} // namespace tesmo::extremos
