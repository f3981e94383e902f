#include "tests/comun/Apoyos.h"
#include "vistas/grafico/Escalahoras.h"
#include "vistas/grafico/Lectura.h"

#include <gtest/gtest.h>
#include <limits>

using namespace tesmo;
using namespace tesmo::prueba;

TEST(Lectura, ElNombreVaSinUnidadYElValorConElla) {
  const ConSeparador coma(',');
  EXPECT_EQ(LineaDeLectura("Temperatura seca (ºC)", 23.44, "0.0"), "Temperatura seca: 23,4 ºC");
  EXPECT_EQ(LineaDeLectura("Calor específico (J/(kg K))", 2000.4, "0"), "Calor específico: 2000 J/(kg K)");
  EXPECT_EQ(LineaDeLectura("Sin unidad", 1.5, "0.0"), "Sin unidad: 1,5");
}

TEST(Lectura, ElSeparadorEsElRegional) {
  const ConSeparador punto('.');
  EXPECT_EQ(LineaDeLectura("Humedad relativa (%)", 71.25, "0.0"), "Humedad relativa: 71.3 %");
}

TEST(Lectura, LaTablaLlevaFechaYValoresConElSeparadorRegional) {
  const ConSeparador coma(',');
  const EscalaHoras escala({{1, 31, 24}, {2, 1, 1}});
  const std::vector<double> x{1.0, 2.0};
  const std::vector<double> ts{12.5, -0.25};
  const std::vector<double> dn{std::numeric_limits<double>::quiet_NaN(), 800.0};
  const std::vector<ColumnaTexto> columnas{{"Temperatura seca (ºC)", ts}, {"Directa normal (W/m²)", dn}};
  EXPECT_EQ(TablaDeTexto(escala, x, columnas),
            "n\tmes\tdia\thora\tTemperatura seca (ºC)\tDirecta normal (W/m²)\n"
            "1\t1\t31\t24\t12,5\tnan\n"
            "2\t2\t1\t1\t-0,25\t800\n");
}

TEST(Lectura, SinSeriesLaTablaSoloSitua) {
  const EscalaHoras escala({{1, 1, 1}, {1, 1, 1}});
  EXPECT_EQ(TablaDeTexto(escala, std::vector<double>{1.0}, {}), "n\tmes\tdia\thora\n1\t1\t1\t1\n");
}
