#include "tests/cli/Jsonleido.h"
#include "tests/cli/Proceso.h"

#include <cmath>
#include <numbers>

namespace tesmo::prueba {
namespace {

class OrdenSol : public LineaDeOrdenes {};

TEST_F(OrdenSol, SalidaEnUnaSolaLinea) {
  const Ejecucion e = Orden({"sol", "salida", "36.84", "6", "21"});
  ASSERT_EQ(e.estado, 0);
  EXPECT_EQ(e.error, "");
  ASSERT_EQ(e.Lineas().size(), 1U);
  const std::vector<std::string> campos = Campos(e.Lineas()[0]);
  ASSERT_EQ(campos.size(), 3U);
  // Declinación de Cooper (1969) para el día 172.
  const double declinacion = 23.45 * std::sin(2.0 * std::numbers::pi * 456.0 / 365.0);
  EXPECT_NEAR(std::stod(campos[2]), declinacion, 1e-6);
  EXPECT_LT(std::stod(campos[0]), 5.0);
  EXPECT_NEAR(std::stod(campos[0]) + std::stod(campos[1]), 24.0, 1e-5);
}

TEST_F(OrdenSol, DiaYNochePolares) {
  EXPECT_TRUE(Orden({"sol", "salida", "89", "6", "21"}).salida.starts_with("-1\t25\t"));
  EXPECT_TRUE(Orden({"sol", "salida", "89", "12", "21"}).salida.starts_with("-1\t-1\t"));
}

TEST_F(OrdenSol, VectorUnitarioYNuloDeNoche) {
  const std::vector<std::string> v = Campos(Orden({"sol", "vector", "36.84", "6", "21", "10.5"}).Lineas()[0]);
  ASSERT_EQ(v.size(), 3U);
  const double s = std::stod(v[0]);
  const double w = std::stod(v[1]);
  const double z = std::stod(v[2]);
  EXPECT_NEAR(s * s + w * w + z * z, 1.0, 1e-8);
  EXPECT_LT(w, 0.0);
  EXPECT_EQ(Orden({"sol", "vector", "36.84", "6", "21", "0"}).salida, "0\t0\t0\n");
}

TEST_F(OrdenSol, PosicionDeDiaYDeNoche) {
  const std::vector<std::string> p = Campos(Orden({"sol", "posicion", "36.84", "3", "21", "15"}).Lineas()[0]);
  ASSERT_EQ(p.size(), 4U);
  EXPECT_GT(std::stod(p[0]), 0.0);
  EXPECT_NEAR(std::stod(p[1]) + std::stod(p[2]), 90.0, 1e-5);
  EXPECT_EQ(p[3], "1");
  EXPECT_EQ(Orden({"sol", "posicion", "36.84", "3", "21", "2"}).salida, "0\t0\t90\t0\n");
}

TEST_F(OrdenSol, LatitudNegativa) {
  for (const char *latitud : {"-36.84", "-.5", "-1e-05"})
    EXPECT_EQ(Orden({"sol", "salida", latitud, "1", "1"}).estado, 0) << latitud;
}

TEST_F(OrdenSol, FechaOHoraQueNoValenEstado2) {
  for (const std::vector<std::string> &momento :
       std::vector<std::vector<std::string>>{{"36", "13", "1", "10"},
                                             {"36", "0", "1", "10"},
                                             {"36", "1", "32", "10"},
                                             {"36", "1", "1", "25"},
                                             {"36", "1", "1", "-1"},
                                             {"36", "1", "1", "x"},
                                             {"36", "1.5", "1", "10"},
                                             {"90", "1", "1", "10"},
                                             {"-89.1", "1", "1", "10"},
                                             {"norte", "1", "1", "10"}}) {
    std::vector<std::string> argumentos{"sol", "posicion"};
    argumentos.insert(argumentos.end(), momento.begin(), momento.end());
    const Ejecucion e = Orden(argumentos);
    EXPECT_EQ(e.estado, 2) << e.error;
    EXPECT_EQ(e.salida, "");
  }
}

TEST_F(OrdenSol, UnDiaQueElMesNoTieneCuentaEnElSiguiente) {
  const std::string tresDeMarzo = Orden({"sol", "posicion", "36.84", "3", "3", "10"}).salida;
  const Ejecucion e = Orden({"sol", "posicion", "36.84", "2", "31", "10"});
  EXPECT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.salida, tresDeMarzo);
  EXPECT_EQ(Orden({"sol", "salida", "36.84", "2", "29"}).salida,
            Orden({"sol", "salida", "36.84", "3", "1"}).salida);
}

TEST_F(OrdenSol, Json) {
  const JsonLeido salida(Orden({"sol", "salida", "36.84", "6", "21", "--json"}).salida);
  EXPECT_TRUE(salida.Tiene("salida") && salida.Tiene("puesta") && salida.Tiene("declinacion"));
  const JsonLeido posicion(Orden({"sol", "posicion", "36", "6", "21", "2", "--json"}).salida);
  EXPECT_EQ(posicion["dia"].Numero(), 0);
  EXPECT_EQ(posicion["cenit"].Numero(), 90.0);
}

} // namespace
} // namespace tesmo::prueba
