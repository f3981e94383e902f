#include "intercambio/formatos/Mapacolumnas.h"

#include "intercambio/formatos/Unidadesclima.h"
#include "tests/comun/Apoyos.h"
#include "tests/comun/Lugares.h"
#include "tests/intercambio/formatos/Generadorclima.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

using namespace prueba;

std::string ErrorDe(const std::string &texto) {
  const ResultadoMapa resultado = LeerMapa(texto);
  EXPECT_FALSE(resultado.mapa);
  return resultado.errores.empty() ? "" : resultado.errores[0].texto;
}

TEST(Mapa, SeLeenColumnasUnidadesYReloj) {
  const ResultadoMapa resultado = LeerMapa(MapaDePrueba());
  ASSERT_TRUE(resultado.mapa) << Textos(resultado.errores);
  const MapaColumnas &mapa = *resultado.mapa;
  EXPECT_EQ(mapa.nombre, "Almena");
  EXPECT_EQ(mapa.latitud, 37.18);
  EXPECT_EQ(mapa.longitud, -3.78);
  EXPECT_EQ(mapa.altitud, 567.0);
  EXPECT_EQ(mapa.separador, ';');
  EXPECT_TRUE(mapa.comaDecimal);
  EXPECT_EQ(mapa.lineasCabecera, 1);
  EXPECT_EQ(mapa.sinDato, -9999.0);
  EXPECT_EQ(mapa.orden, OrdenFecha::DiaMesAnio);
  EXPECT_EQ(mapa.reloj.tiempo, TiempoEtiqueta::OficialEstandar);
  EXPECT_EQ(mapa.reloj.husoHoras, 1.0);
  EXPECT_EQ(mapa.reloj.desfaseMin, -30.0);
  ASSERT_EQ(mapa.columnas.size(), 7U);
  EXPECT_EQ(mapa.columnas[0], (ColumnaMapa{Campo::TemperaturaSeca, "Temp", "°C"}));
  EXPECT_EQ(mapa.columnas[2], (ColumnaMapa{Campo::Presion, "4", "hPa"}));
  EXPECT_EQ(mapa.columnas[4], (ColumnaMapa{Campo::DifusaHorizontal, "6", ""}));
}

TEST(Mapa, SuAltitudPuedeSerLaDeCualquierSitioCreible) {
  const auto con = [](const std::string &altitud) {
    std::string texto = MapaDePrueba();
    return texto.replace(texto.find("altitud = 567"), 13, "altitud = " + altitud);
  };
  EXPECT_TRUE(LeerMapa(con("-480")).mapa);
  EXPECT_FALSE(LeerMapa(con("-501")).mapa);
}

TEST(Mapa, ElDeLaDocumentacionVale) {
  const std::string texto = Contenido(RutaDesdeTexto(Raiz()) / "docs" / "formatos.md");
  const std::size_t inicio = texto.find("```\n");
  ASSERT_NE(inicio, std::string::npos);
  const ResultadoMapa resultado =
      LeerMapa(texto.substr(inicio + 4, texto.find("```", inicio + 4) - inicio - 4));
  ASSERT_TRUE(resultado.mapa) << Textos(resultado.errores);
  EXPECT_EQ(resultado.mapa->columnas.size(), 7U);
}

TEST(Mapa, LoEscritoSeVuelveALeerIgual) {
  const ResultadoMapa leido = LeerMapa(MapaDePrueba());
  ASSERT_TRUE(leido.mapa);
  const std::string escrito = EscribirMapa(*leido.mapa);
  const ResultadoMapa otra = LeerMapa(escrito);
  ASSERT_TRUE(otra.mapa) << Textos(otra.errores);
  EXPECT_EQ(EscribirMapa(*otra.mapa), escrito);
  EXPECT_EQ(otra.mapa->columnas, leido.mapa->columnas);
  EXPECT_EQ(otra.mapa->separador, ';');
  EXPECT_EQ(otra.mapa->sinDato, -9999.0);
}

TEST(Mapa, TodosLosCamposYSusUnidadesSeEscribenYSeLeen) {
  MapaColumnas mapa;
  for (std::size_t c = 0; c < NUMERO_CAMPOS; ++c) {
    const auto campo = static_cast<Campo>(c);
    for (const UnidadClima &unidad : UnidadesDe(campo))
      mapa.columnas.push_back({campo, std::to_string(c + 4), std::string(unidad.nombre)});
  }
  for (const char separador : {',', ';', '\t', ' '}) {
    mapa.separador = separador;
    const ResultadoMapa resultado = LeerMapa(EscribirMapa(mapa));
    ASSERT_TRUE(resultado.mapa) << Textos(resultado.errores);
    EXPECT_EQ(resultado.mapa->columnas, mapa.columnas);
    EXPECT_EQ(resultado.mapa->separador, separador);
    EXPECT_TRUE(std::isnan(resultado.mapa->sinDato));
  }
}

TEST(Mapa, UnRotuloEntreCorchetesVaYVuelve) {
  MapaColumnas mapa;
  mapa.columnas = {{Campo::TemperaturaSeca, "T [°C]", ""},
                   {Campo::HumedadRelativa, "HR [pct]", "%"},
                   {Campo::Presion, "P [mb]", ""},
                   {Campo::VelocidadViento, "V", "km/h"}};
  const ResultadoMapa resultado = LeerMapa(EscribirMapa(mapa));
  ASSERT_TRUE(resultado.mapa) << Textos(resultado.errores);
  EXPECT_EQ(resultado.mapa->columnas, mapa.columnas);
}

TEST(Mapa, LosErroresDicenLaLineaYLoQueVale) {
  EXPECT_EQ(ErrorDe("temperatura seca = 1\nlatitud = norte\n"),
            "mapa, línea 2: latitud: «norte» no es un número entre -90 y 90");
  EXPECT_EQ(ErrorDe("separador = barra\n"),
            "mapa, línea 1: separador: «barra» no es ninguno de coma, punto y coma, tabulador, blancos");
  EXPECT_EQ(ErrorDe("# nada\n\nsabor = 3\n"), "mapa, línea 3: no se conoce la clave «sabor»");
  EXPECT_EQ(ErrorDe("temperatura seca = 3 [R]\n"),
            "mapa, línea 1: no se conoce la unidad «R»; use una de °C, K, °F");
  EXPECT_EQ(ErrorDe("temperatura seca\n"), "mapa, línea 1: se esperaba «clave = valor»");
  EXPECT_EQ(ErrorDe("temperatura seca = [K]\n"),
            "mapa, línea 1: temperatura seca: falta el número o el rótulo de la columna");
  EXPECT_EQ(ErrorDe(""), "mapa: el mapa no nombra ninguna columna de datos");
}

TEST(Unidades, LasConversionesDeLosManuales) {
  const auto pasar = [](Campo campo, std::string_view unidad, double valor) {
    const UnidadClima *u = BuscarUnidad(campo, unidad);
    return u == nullptr ? AUSENTE : valor * u->factor + u->sumando;
  };
  EXPECT_DOUBLE_EQ(pasar(Campo::TemperaturaSeca, "°F", 212.0), 100.0);
  EXPECT_DOUBLE_EQ(pasar(Campo::TemperaturaSeca, "ºF", 32.0), 0.0);
  EXPECT_DOUBLE_EQ(pasar(Campo::TemperaturaCielo, "K", 273.15), 0.0);
  EXPECT_DOUBLE_EQ(pasar(Campo::HumedadRelativa, "tanto por uno", 0.5), 50.0);
  EXPECT_DOUBLE_EQ(pasar(Campo::HumedadAbsoluta, "g/kg", 7.5), 0.0075);
  EXPECT_DOUBLE_EQ(pasar(Campo::Presion, "mbar", 1013.25), 101325.0);
  EXPECT_NEAR(pasar(Campo::Presion, "mmHg", 760.0), 101325.0, 0.5);
  EXPECT_DOUBLE_EQ(pasar(Campo::GlobalHorizontal, "kJ/m2", 3600.0), 1000.0);
  EXPECT_DOUBLE_EQ(pasar(Campo::GlobalHorizontal, "MJ/m²", 3.6), 1000.0);
  EXPECT_DOUBLE_EQ(pasar(Campo::NubosidadTotal, "octavos", 8.0), 10.0);
  EXPECT_DOUBLE_EQ(pasar(Campo::NubosidadOpaca, "%", 50.0), 5.0);
  EXPECT_DOUBLE_EQ(pasar(Campo::VelocidadViento, "km/h", 36.0), 10.0);
  EXPECT_NEAR(pasar(Campo::VelocidadViento, "nudos", 10.0), 5.144, 0.001);
  EXPECT_DOUBLE_EQ(pasar(Campo::AcimutSolar, "º desde el norte", 180.0), 0.0);
  EXPECT_TRUE(std::isnan(pasar(Campo::Presion, "°C", 1.0)));
}

} // namespace
} // namespace tesmo
