#include "solar/Formatoshorizonte.h"

#include "solar/Giroshorizonte.h"
#include "tests/comun/Apoyos.h"
#include "tests/solar/Perfilprueba.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace tesmo {
namespace {

using prueba::Numeros;
using prueba::Perfil;

HorizonteLeido Leer(std::string_view texto) {
  FalloLectura fallo;
  auto leido = LeerHorizonteDeTexto(texto, fallo);
  EXPECT_TRUE(leido.has_value()) << DescribirFallo("texto", fallo);
  return leido.value_or(HorizonteLeido{});
}

std::string Fallo(std::string_view texto) {
  FalloLectura fallo;
  EXPECT_FALSE(LeerHorizonteDeTexto(texto, fallo).has_value()) << texto;
  return DescribirFallo("h.csv", fallo);
}

void Espera(std::string_view texto, FormatoHorizonte formato, const Numeros &x, const Numeros &y) {
  const HorizonteLeido leido = Leer(texto);
  EXPECT_EQ(DatosDe(leido.formato).nombre, DatosDe(formato).nombre) << texto;
  EXPECT_EQ(leido.perfil.X(), x) << texto;
  EXPECT_EQ(leido.perfil.Y(), y) << texto;
}

constexpr auto NATIVO = FormatoHorizonte::Nativo;
constexpr auto COMPLETO = FormatoHorizonte::Completo;
constexpr auto PVGIS = FormatoHorizonte::Pvgis;
constexpr auto TABLA = FormatoHorizonte::Tabla;
constexpr auto ALTURAS = FormatoHorizonte::Alturas;

TEST(FormatosHorizonte, ReconoceElNativoYConservaSuOrden) {
  Espera("3\n60, 1\n-60, 2\n0, 3\n", NATIVO, {60, -60, 0}, {1, 2, 3});
  Espera("5\r\n-10.000000, 4.000000\r\n20.000000, 8.000000\r\n", NATIVO, {-10, 20, 0, 0, 0}, {4, 8, 0, 0, 0});
  Espera("3\n50,5\n-50,7\n0,9\n", NATIVO, {50, -50, 0}, {5, 7, 9}); // sin blanco no es coma decimal
  Espera("2\r\n50,5\r\n-50,7\r\n", NATIVO, {50, -50}, {5, 7});
  Espera("0\n", NATIVO, {}, {});
  Espera("\n  2\n1, 2\n", NATIVO, {1, 0}, {2, 0});
  Espera("2 -10, 5 20, 8\n", NATIVO, {-10, 20}, {5, 8}); // los fines de línea no cuentan
  Espera("2 -10, 5\n20, 8\n", NATIVO, {-10, 20}, {5, 8});
  Espera("2 -10,5 20,8\n", NATIVO, {-10, 20}, {5, 8});
  Espera("2 -10,5\n20,8\n", NATIVO, {-10, 20}, {5, 8});
  Espera("0 20,5\n45 30,2\n", TABLA, {0, 45}, {20.5F, 30.2F}); // no son cero parejas
  Espera("2\n7, x\n", NATIVO, {7, 0}, {0, 0});                 // lo que no es número detiene las parejas
}

TEST(FormatosHorizonte, UnNumeroDePuntosImposibleSeDice) {
  EXPECT_EQ(Fallo("-1\n1, 2\n"), "h.csv, línea 1: el número de puntos ha de estar entre 0 y 100000");
  EXPECT_EQ(Fallo("\n\n100001\n1, 2\n"), "h.csv, línea 3: el número de puntos ha de estar entre 0 y 100000");
  EXPECT_EQ(Fallo("99999999999999\n1, 2\n"),
            "h.csv, línea 1: el número de puntos ha de estar entre 0 y 100000");
}

TEST(FormatosHorizonte, ElCompletoVuelveIgual) {
  constexpr float INFINITO = std::numeric_limits<float>::infinity();
  const PerfilHorizonte perfil = Perfil({60, -60.1F, 1e-30F, 180, -0.0F, INFINITO, 3.4e38F},
                                        {1.0F / 3, 90, 100, -5, 0.1F, -INFINITO, 1e-45F});
  const HorizonteLeido leido = Leer(TextoDeHorizonte(perfil, COMPLETO));
  EXPECT_EQ(leido.formato, COMPLETO);
  EXPECT_EQ(leido.perfil, perfil);
  EXPECT_EQ(Leer(TextoDeHorizonte({}, COMPLETO)).perfil.Tamano(), 0);
  const HorizonteLeido sinNumero = Leer(TextoDeHorizonte(Perfil({std::nanf("")}, {2}), COMPLETO));
  ASSERT_EQ(sinNumero.perfil.Tamano(), 1);
  EXPECT_TRUE(std::isnan(sinNumero.perfil.X()[0]));
}

TEST(FormatosHorizonte, ElCompletoTieneSusTitulosYUnaLineaPorPunto) {
  EXPECT_EQ(TextoDeHorizonte(Perfil({-60, 0.1F}, {10, 7.5F}), COMPLETO),
            "Perfil de horizonte: acimut (0 al sur, oeste positivo) en grados;altura en grados\n"
            "-60;10\n0.1;7.5\n");
}

TEST(FormatosHorizonte, ElCompletoRetocadoPorUnaHojaDeCalculo) {
  const std::string titulos = "Perfil de horizonte: acimut (0 al sur, oeste positivo) en grados";
  Espera("\xEF\xBB\xBF" + titulos + ";altura en grados\r\n-60,5;10\r\n0;7,25\r\n\r\n", COMPLETO, {-60.5F, 0},
         {10, 7.25F});
  Espera("\"" + titulos + "\",altura en grados\n-60.5,10\n0,7.25\n", COMPLETO, {-60.5F, 0}, {10, 7.25F});
  Espera(titulos + ";altura en grados\n\"-60,5\";\" +10 \"\n", COMPLETO, {-60.5F}, {10});
  Espera("\"" + titulos + "\"\t\"altura en grados\"\n-60,5\t10\n", COMPLETO, {-60.5F}, {10});
}

TEST(FormatosHorizonte, ElCompletoEstropeadoDiceDonde) {
  const std::string titulos = TextoDeHorizonte({}, COMPLETO);
  for (const char *mala : {"0;x\n", "0\n", "1;2;3\n", "x;2\n", "0;\n"}) {
    EXPECT_EQ(Fallo(titulos + "-60;10\n\n" + mala),
              "h.csv, línea 4: se esperaban el acimut y la altura de un punto, separados por punto y coma");
  }
}

TEST(FormatosHorizonte, ListadoDePvgisConTitulosYLeyenda) {
  Espera("Latitude (deg.): 36.840\r\nLongitude (deg.): -2.390\r\n\r\n"
         "A\t\tH_hor\t\tA_sun(w)\t\tH_sun(w)\t\tA_sun(s)\t\tH_sun(s)\r\n"
         "-180.0\t\t3.1\t\t-180.0\t\t0.0\t\t-180.0\t\t0.0\r\n"
         "0.0\t\t8.4\t\t0.0\t\t29.7\t\t0.0\t\t76.6\r\n"
         "90.0\t\t2.7\t\t61.0\t\t0.0\t\t118.0\t\t0.0\r\n\r\n"
         "A: Azimuth (0 = S, 90 = W, -90 = E) (degree)\r\nH_hor: Horizon height (degree)\r\n"
         "A_sun(w): Sun azimuth in the winter solstice (Dec 21) (0 = S, 90 = W, -90 = E) (degree)\r\n"
         "H_sun(w): Sun height in the winter solstice (Dec 21) (degree)\r\n\r\n"
         "PVGIS (c) European Union, 2001-2026\r\n",
         PVGIS, {-180, 0, 90}, {3.1F, 8.4F, 2.7F});
}

TEST(FormatosHorizonte, ListadoDePvgisSinTitulos) {
  Espera("-180.0\t3.1\t-180.0\t0.0\t-180.0\t0.0\n0.0\t8.4\t0.0\t29.7\t0.0\t76.6\n", PVGIS, {-180, 0},
         {3.1F, 8.4F});
  EXPECT_TRUE(Leer("-180 3 0 0 0 0\n0 8 0 0 0 0\n").origenSupuesto); // nadie ha dicho que sea de PVGIS
}

TEST(FormatosHorizonte, ListadoDePvgisConElNorteEnLaCabecera) {
  Espera("Azimuth: 0 = N, clockwise\nA,H_hor,A_sun(w),H_sun(w)\n0,1,0,0\n90,2,0,0\n270,4,0,0\n", PVGIS,
         {-180, -90, 90}, {1, 2, 4});
}

// Los títulos que pone un lector conocido de PVGIS, que cuenta desde el norte.
TEST(FormatosHorizonte, ListadoDePvgisDesdeElNorte) {
  Espera("horizon_azimuth,horizon_elevation\n0,9.9\n7.5,13\n172.5,5.7\n180,4.6\n352.5,2\n", TABLA,
         {-180, -172.5F, -7.5F, 0, 172.5F}, {9.9F, 13, 5.7F, 4.6F, 2});
}

TEST(FormatosHorizonte, TablasConCadaSeparador) {
  const Numeros x{-90, 0, 90};
  const Numeros y{10, 20.5F, 5};
  for (const char *texto :
       {"-90;10\n0;20.5\n90;5\n", "-90;10\n0;20,5\n90;5\n", "-90\t10\n0\t20,5\n90\t5\n",
        "-90,10\n0,20.5\n90,5\n", "-90, 10\r\n0, 20.5\r\n90, 5", "-90 10\n0  20.5\n90 5\n",
        "-90,0 10\n0,0 20,5\n90,0 5,0\n", "  -90 ;10 ;\n\n0;2.05e1;\n+90;+5;\n",
        "# nota 1\n-90 10\n# nota 2\n0 20.5\n90 5\n", "90;5\n0;20.5\n-90;10\n", "-90;10\r0;20.5\r90;5\r"}) {
    Espera(texto, TABLA, x, y);
  }
}

struct CasoOrigen {
  const char *titulos;
  bool norte;
};

TEST(FormatosHorizonte, LosTitulosDicenDesdeDondeSeCuenta) {
  for (const CasoOrigen &caso :
       {CasoOrigen{"azimut_desde_norte_grados;altura_grados", true},
        CasoOrigen{"Acimut desde el norte;altura", true},
        CasoOrigen{"Azimuth (0° = N, clockwise);Height", true},
        CasoOrigen{"azimuth, south = 180;height", true},
        CasoOrigen{"azimuth from north;surface height", true}, CasoOrigen{"Acimut norte;Altura", true},
        CasoOrigen{"acimut_desde_sur_grados;altura_grados", false},
        CasoOrigen{"Acimut (0 al sur, oeste positivo);Altura", false},
        CasoOrigen{"Acimut: sur = 0;Altura", false}, CasoOrigen{"Azimuth (0=S, 180=N);Height", false},
        CasoOrigen{"Acimut sur;Altura", false}}) {
    const HorizonteLeido leido = Leer(std::string(caso.titulos) + "\n0;5\n90;7\n");
    EXPECT_EQ(leido.perfil.X(), caso.norte ? (Numeros{-180, -90}) : (Numeros{0, 90})) << caso.titulos;
    EXPECT_FALSE(leido.origenSupuesto) << caso.titulos;
  }
}

TEST(FormatosHorizonte, SinTitulosLoDicenLosValoresYSeAvisaDeLaDuda) {
  Espera("-90;5\n90;7\n", TABLA, {-90, 90}, {5, 7});
  Espera("-90;5\n200;7\n", TABLA, {-160, -90}, {7, 5});
  Espera("0;5\n270;7\n", TABLA, {-180, 90}, {5, 7});
  Espera("0;5\n180;7\n", TABLA, {0, 180}, {5, 7});
  Espera("Norte y sur;azimut\n0;5\n270;7\n", TABLA, {-180, 90}, {5, 7}); // dicen las dos cosas
  EXPECT_TRUE(Leer("0;5\n270;7\n").origenSupuesto);
  EXPECT_FALSE(Leer("3\n1, 2\n").origenSupuesto);
}

TEST(FormatosHorizonte, LaVueltaEnteraDesdeElNorteTieneLosDosExtremos) {
  Espera("azimut desde norte;altura\n0;5\n180;7\n360;5\n", TABLA, {-180, 0, 180}, {5, 7, 5});
}

TEST(FormatosHorizonte, AlturasEquidistantesDesdeElNorte) {
  const Numeros x{-180, -90, 0, 90};
  for (const char *texto : {"1\n2\n3\n4\n", "1,2,3,4\n", "1;2;3;4", "1 2 3 4\n", "1\t2\t3\t4\n",
                            "1,0\n2\n3,0\n4\n", "alturas\n1\n2\n3\n4\n"}) {
    Espera(texto, ALTURAS, x, {1, 2, 3, 4});
  }
  const HorizonteLeido ocho = Leer("0,10,20,30,40,15,25,5\n");
  EXPECT_EQ(ocho.perfil.X(), (Numeros{-180, -135, -90, -45, 0, 45, 90, 135}));
  EXPECT_EQ(ocho.perfil.Y(), (Numeros{0, 10, 20, 30, 40, 15, 25, 5}));
  EXPECT_TRUE(ocho.origenSupuesto);
}

TEST(FormatosHorizonte, LosFallosDicenLaLineaYElPorque) {
  EXPECT_EQ(Fallo(""), "h.csv: no hay ninguna línea de números");
  EXPECT_EQ(Fallo(" \n\t\n"), "h.csv: no hay ninguna línea de números");
  EXPECT_EQ(Fallo("hola\nadiós\n"), "h.csv: no hay ninguna línea de números");
  EXPECT_EQ(Fallo("0;10\n45;alta\n"), "h.csv, línea 2: «alta» no es un número");
  EXPECT_EQ(Fallo("0;10\ncuarenta;12\n90;5\n"), "h.csv, línea 2: «cuarenta» no es un número");
  EXPECT_EQ(Fallo("0;10\n90;5\ncuarenta;12\n"), "h.csv, línea 3: «cuarenta» no es un número");
  EXPECT_EQ(Fallo("0;10\nfin de la primera parte\n90;5\n"),
            "h.csv, línea 2: hay texto entre dos líneas de números");
  EXPECT_EQ(Fallo("0;10\n45\n"), "h.csv, línea 2: hay 1 números y en las líneas anteriores 2");
  EXPECT_EQ(Fallo("0;10\n400;5\n"), "h.csv, línea 2: el acimut 400 no está entre -360 y 360");
  EXPECT_EQ(Fallo("0;10\n40;100.5\n"), "h.csv, línea 2: la altura 100.5 no está entre -100 y 100");
  EXPECT_EQ(Fallo("1 2 3\n4 5 6\n"), "h.csv, línea 1: se esperaban dos columnas, acimut y altura, y hay 3");
  EXPECT_EQ(Fallo("0;inf\n"), "h.csv, línea 1: «inf» no es un número");
  EXPECT_EQ(Fallo("0 10\n45 alta\n"),
            "h.csv, línea 2: «alta» no es un número"); // no es un nativo de 0 puntos
  EXPECT_EQ(Fallo("9;" + std::string(100, 'x')),
            "h.csv, línea 1: «" + std::string(40, 'x') + "…» no es un número");
  EXPECT_EQ(Fallo(std::string("9;\x01z\n")), "h.csv, línea 1: «?z» no es un número");
}

TEST(FormatosHorizonte, DemasiadosPuntos) {
  std::string tabla;
  for (int i = 0; i <= PerfilHorizonte::PUNTOS_MAXIMOS; ++i) tabla += "0;1\n";
  EXPECT_EQ(Fallo(tabla), "h.csv: hay más de 100000 puntos");
  EXPECT_EQ(Fallo(TextoDeHorizonte({}, COMPLETO) + tabla), "h.csv: hay más de 100000 puntos");
  tabla.resize(tabla.size() - 4);
  EXPECT_EQ(Leer(tabla).perfil.Tamano(), PerfilHorizonte::PUNTOS_MAXIMOS);
}

TEST(FormatosHorizonte, EnWindows1252TambienSeLeen) {
  Espera("Acimut (\xBA) desde el norte;altura (\xBA)\n0;5\n90;7\n", TABLA, {-180, -90}, {5, 7});
}

TEST(FormatosHorizonte, UnFicheroQueNoSePuedeAbrirNoTieneLinea) {
  const prueba::DirectorioTemporal directorio;
  FalloLectura fallo;
  EXPECT_FALSE(LeerHorizonteDeFichero((directorio / "no.csv").string(), fallo));
  EXPECT_EQ(DescribirFallo("no.csv", fallo), "no.csv: no se puede abrir");
  EXPECT_FALSE(LeerHorizonteDeFichero(directorio.Ruta().string(), fallo));
  const auto leido = LeerHorizonteDeFichero(directorio.Escribir("sí.csv", "0;5\n90;7\n"), fallo);
  ASSERT_TRUE(leido);
  EXPECT_EQ(leido->perfil.Tamano(), 2);
}

TEST(FormatosHorizonte, LoQueSeEscribeSeLeeIgual) {
  const PerfilHorizonte perfil = Perfil({-180, -90.5F, 0.1F, 33.25F, 180}, {5, 12.5F, 0, 89.75F, 5});
  for (const FormatoHorizonte formato : {NATIVO, COMPLETO, PVGIS, TABLA}) {
    const HorizonteLeido leido = Leer(TextoDeHorizonte(perfil, formato));
    EXPECT_EQ(DatosDe(leido.formato).nombre, DatosDe(formato).nombre);
    EXPECT_EQ(leido.perfil, perfil) << DatosDe(formato).nombre;
    EXPECT_FALSE(leido.origenSupuesto);
  }
}

TEST(FormatosHorizonte, LasAlturasDeMasDeNoventaVanYVuelven) {
  const PerfilHorizonte perfil = Perfil({-180, -90, 0, 90, 180}, {90.25F, 95, 100, 92.5F, 90.25F});
  for (const FormatoHorizonte formato : {NATIVO, COMPLETO, PVGIS, TABLA}) {
    std::string fallo;
    EXPECT_TRUE(CabeEnFormato(perfil, formato, fallo)) << fallo;
    EXPECT_EQ(Leer(TextoDeHorizonte(perfil, formato)).perfil, perfil) << DatosDe(formato).nombre;
  }
  EXPECT_EQ(Leer(TextoDeHorizonte(perfil, ALTURAS)).perfil.Y()[18], 100.0F);
}

TEST(FormatosHorizonte, LoQueUnFormatoNoAdmiteSeDiceYSoloCabeEnLosPropios) {
  constexpr float NADA = std::numeric_limits<float>::quiet_NaN();
  for (const PerfilHorizonte &perfil : {Perfil({0, 200}, {3, 5}), Perfil({0, -180.5F}, {3, 5}),
                                        Perfil({0, 10}, {3, 100.5F}), Perfil({NADA}, {0})}) {
    for (const FormatoHorizonte formato : {PVGIS, TABLA, ALTURAS}) {
      std::string fallo;
      EXPECT_FALSE(CabeEnFormato(perfil, formato, fallo));
      EXPECT_NE(fallo.find("el punto de acimut"), std::string::npos) << fallo;
    }
    for (const FormatoHorizonte formato : {NATIVO, COMPLETO}) {
      std::string fallo;
      EXPECT_TRUE(CabeEnFormato(perfil, formato, fallo));
    }
  }
  for (const FormatoHorizonte formato : {NATIVO, COMPLETO, PVGIS, TABLA, ALTURAS}) {
    std::string fallo;
    const bool cabe = CabeEnFormato({}, formato, fallo);
    EXPECT_EQ(cabe, formato != PVGIS && formato != TABLA) << DatosDe(formato).nombre;
    if (!cabe) continue;
    EXPECT_EQ(Leer(TextoDeHorizonte({}, formato)).perfil.Tamano(), formato == ALTURAS ? 36 : 0);
  }
}

TEST(FormatosHorizonte, LasAlturasSeMuestreanCadaDiezGrados) {
  const HorizonteLeido leido = Leer(TextoDeHorizonte(Perfil({-180, 0, 180}, {0, 36, 0}), ALTURAS));
  EXPECT_EQ(leido.formato, ALTURAS);
  ASSERT_EQ(leido.perfil.Tamano(), 36);
  for (std::size_t i = 0; i < 36; ++i) {
    const float acimut = -180.0F + 10.0F * static_cast<float>(i);
    EXPECT_EQ(leido.perfil.X()[i], acimut);
    EXPECT_NEAR(leido.perfil.Y()[i], 36.0F - std::fabs(acimut) / 5.0F, 1e-4);
  }
}

TEST(FormatosHorizonte, NombresYExtensiones) {
  EXPECT_EQ(FormatosDeHorizonte().size(), 5U);
  for (const DatosFormato &datos : FormatosDeHorizonte()) {
    EXPECT_EQ(FormatoPorNombre(datos.nombre), datos.formato);
    EXPECT_EQ(FormatoPorExtension("carpeta.csv/perfil" + std::string(datos.extension)), datos.formato);
  }
  EXPECT_EQ(FormatoPorNombre("PVGIS"), PVGIS);
  EXPECT_FALSE(FormatoPorNombre("otro"));
  EXPECT_FALSE(FormatoPorNombre(""));
  EXPECT_EQ(FormatoPorExtension("Perfil.CSV"), COMPLETO);
  EXPECT_EQ(FormatoPorExtension("perfil.txt"), NATIVO);
  EXPECT_EQ(DatosDe(COMPLETO).descripcion, "Perfil completo (*.csv)");
}

TEST(FormatosHorizonte, LoDeOtroProgramaSeUsaConLaVueltaCerrada) {
  const HorizonteLeido ajeno = Leer("0,10,20,30,40,15,25,5\n");
  const PerfilHorizonte usado = PerfilParaUsar(ajeno);
  EXPECT_EQ(usado.X().back(), 180.0F);
  EXPECT_EQ(usado.Y().back(), 0.0F); // el norte es el primer punto
  const HorizonteLeido propio = Leer("2\n-90, 5\n90, 5\n");
  EXPECT_EQ(PerfilParaUsar(propio), propio.perfil);
}

} // namespace
} // namespace tesmo
