#include "meteo/Leermet.h"
#include "tests/comun/Apoyos.h"
#include "tests/meteo/Textomet.h"

#include <gtest/gtest.h>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

constexpr int CENTINELAS = 8;

/// Los valores que DameSerie deja en un destino marcado con −7 y algo mayor que el período.
std::vector<float> Serie(const LeerMet &met, std::string_view rotulo, int horas) {
  std::vector<float> destino(static_cast<std::size_t>(horas + CENTINELAS), -7.0F);
  met.DameSerie(rotulo, destino.data());
  return destino;
}

std::string RutaDeMet(const DirectorioTemporal &directorio, int registros = HORAS_DEL_ANIO) {
  return directorio.Escribir("lugar.met", TextoMet(registros));
}

} // namespace

TEST(LeerMet, ValoresDeFabrica) {
  const LeerMet met;
  EXPECT_EQ(met.Nombre(), "LeerMet");
  EXPECT_EQ(met.Separador(), "\t");
  EXPECT_TRUE(met.Cabecera());
  EXPECT_EQ(met.Localidad(), "Almería");
  EXPECT_EQ(met.Provincia(), "");
  EXPECT_EQ(met.Latitud(), 36.84F);
  EXPECT_EQ(met.Longitud(), -2.39F);
  EXPECT_EQ(met.TercerDato(), 21.0F);
  EXPECT_EQ(met.DameTexto("Variable"), "");
  EXPECT_FALSE(met.DerivadasPresentes());
  EXPECT_EQ(met.PrimeraHora(), 0);
  EXPECT_EQ(met.UltimaHora(), 0);
  EXPECT_EQ(met.Superficie(), (SuperficieReceptora{90.0F, 0.0F, 0.2F}));
  EXPECT_EQ(met.EstadoInclinacion(), 0x8000);
  EXPECT_EQ(met.EstadoOrientacion(), 0x8000);
  EXPECT_EQ(met.EstadoAlbedo(), 0x8000);
}

TEST(LeerMet, LeeElFicheroYGuardaElSitio) {
  const DirectorioTemporal directorio;
  LeerMet met;
  ASSERT_TRUE(met.LeerFichero(directorio.Escribir("a.met", TextoMet(8760, "40.5 -3.7 667 15"))));
  EXPECT_EQ(met.Latitud(), 40.5F);
  EXPECT_EQ(met.TercerDato(), 667.0F);
  EXPECT_TRUE(met.Resumen().Completa());
  met.PonPeriodo(12, 31, 24, 12, 31, 24);
  EXPECT_EQ(Serie(met, "Temperatura seca (ºC)", 1)[0], ValorMet(4, 8759));
}

TEST(LeerMet, LoQueFaltaEsFalsoYNoCambiaNada) {
  const DirectorioTemporal directorio;
  LeerMet met;
  ASSERT_TRUE(met.LeerFichero(RutaDeMet(directorio)));
  EXPECT_FALSE(met.LeerFichero(TextoDeRuta(directorio / "falta.met")));
  EXPECT_FALSE(met.LeerFichero(TextoDeRuta(directorio / "no/existe/a.met")));
  EXPECT_FALSE(met.LeerFichero(TextoDeRuta(directorio.Ruta()))) << "un directorio no es un fichero regular";
  EXPECT_FALSE(met.LeerFichero("/dev/zero")) << "un dispositivo tampoco, y no se acaba nunca";
  EXPECT_FALSE(met.LeerFichero(""));
  EXPECT_EQ(met.Latitud(), 36.84F);
  EXPECT_TRUE(met.Resumen().Completa());
}

TEST(LeerMet, ElQueEstaYNoSePuedeAbrirSeDaPorLeidoYLasHorasQuedanComoEstaban) {
  const DirectorioTemporal directorio;
  LeerMet met;
  ASSERT_TRUE(met.LeerFichero(RutaDeMet(directorio)));
  const std::string cerrado = directorio.Escribir("cerrado.met", TextoMet(1, "1 2 3 4"));
  std::filesystem::permissions(cerrado, std::filesystem::perms::none);
  met.PonPeriodo(12, 31, 24, 12, 31, 24);
  EXPECT_TRUE(SinPrivilegios(directorio.Ruta(), [&] {
    return met.LeerFichero("cerrado.met") && met.Resumen().registros == 0 && met.Latitud() == 36.84F &&
           Serie(met, "Temperatura seca (ºC)", 1)[0] == ValorMet(4, 8759);
  }));
}

TEST(LeerMet, ElQueSeAbreYNoSePuedeLeerSeDaPorLeido) {
  // Su primera página no está: se abre y la lectura falla.
  const std::string memoria = "/proc/self/mem";
  if (!std::filesystem::is_regular_file(memoria)) GTEST_SKIP() << "no es Linux";
  const DirectorioTemporal directorio;
  LeerMet met;
  ASSERT_TRUE(met.LeerFichero(RutaDeMet(directorio)));
  EXPECT_TRUE(met.LeerFichero(memoria));
  EXPECT_EQ(met.Resumen().registros, 0);
  EXPECT_EQ(met.Latitud(), 36.84F);
  met.PonPeriodo(12, 31, 24, 12, 31, 24);
  EXPECT_EQ(Serie(met, "Temperatura seca (ºC)", 1)[0], ValorMet(4, 8759));
}

TEST(LeerMet, UnFicheroVacioOCortoSeDaPorLeido) {
  const DirectorioTemporal directorio;
  LeerMet met;
  ASSERT_TRUE(met.LeerFichero(RutaDeMet(directorio)));
  EXPECT_TRUE(met.LeerFichero(directorio.Escribir("vacio.met", "")));
  EXPECT_EQ(met.Resumen().registros, 0);
  EXPECT_TRUE(met.LeerFichero(directorio.Escribir("corto.met", TextoMet(2))));
  EXPECT_EQ(met.Resumen().registros, 2);
  met.PonPeriodo(1, 1, 3, 1, 1, 3);
  EXPECT_EQ(Serie(met, "Temperatura seca (ºC)", 1)[0], ValorMet(4, 2)) << "queda lo del fichero anterior";
}

TEST(LeerMet, CargarNoTocaLasDerivadas) {
  const DirectorioTemporal directorio;
  LeerMet met;
  met.ReservarDerivadas(HORAS_DEL_ANIO);
  ASSERT_TRUE(met.LeerFichero(RutaDeMet(directorio)));
  EXPECT_TRUE(met.DerivadasPresentes());
}

TEST(LeerMet, ParametrosPorSuNombre) {
  LeerMet met;
  met.PonTexto("Separador", ";");
  met.PonTexto("Localidad", "Motril");
  met.PonTexto("Provincia", "Granada");
  met.PonTexto("Variable", "Altura (º)");
  EXPECT_EQ(met.Separador(), ";");
  EXPECT_EQ(met.Localidad(), "Motril");
  EXPECT_EQ(met.Provincia(), "Granada");
  EXPECT_EQ(met.DameTexto("Variable"), "Altura (º)");
  EXPECT_EQ(met.DameTexto("Localidad"), "") << "sólo contesta la variable";
}

TEST(LeerMet, UnaClaveDesconocidaNoHaceNada) {
  MensajesApuntados mensajes;
  LeerMet met;
  met.PonTexto("Inclinacion", "33");
  met.PonTexto("inclinación", "33");
  met.PonCabecera("Otra", false);
  EXPECT_EQ(met.Superficie(), SuperficieReceptora{});
  EXPECT_TRUE(met.Cabecera());
  EXPECT_TRUE(mensajes.apuntes.empty());
  met.PonCabecera("Cabecera", false);
  EXPECT_FALSE(met.Cabecera());
}

TEST(LeerMet, LaSuperficiePasaPorLaEntradaValidada) {
  const ConSeparador punto('.');
  LeerMet met;
  met.PonTexto("Inclinación", "30,5");
  met.PonTexto("Orientación", "-45");
  met.PonTexto("Albedo", "0.35");
  EXPECT_EQ(met.Superficie(), (SuperficieReceptora{30.5F, -45.0F, 0.35F}));
  EXPECT_EQ(met.EstadoInclinacion(), ENTRADA_TECLEADA);
  EXPECT_EQ(met.EstadoOrientacion(), ENTRADA_TECLEADA);
  EXPECT_EQ(met.EstadoAlbedo(), ENTRADA_TECLEADA);
}

TEST(LeerMet, FueraDeLimitesTomaElValorPorDefectoYLoDice) {
  MensajesApuntados mensajes;
  LeerMet met;
  met.PonTexto("Inclinación", "181");
  met.PonTexto("Orientación", "-180.5");
  met.PonTexto("Albedo", "1.01");
  EXPECT_EQ(met.Superficie(), SuperficieReceptora{});
  EXPECT_EQ(met.EstadoInclinacion(), ENTRADA_INVALIDA);
  EXPECT_EQ(met.EstadoAlbedo(), ENTRADA_INVALIDA);
  ASSERT_EQ(mensajes.apuntes.size(), 3U);
  EXPECT_EQ(mensajes.apuntes[0].texto, "181.000000 > 180.000000 (máximo), valor por defecto: 90.000000");
}

TEST(LeerMet, UnTextoIlegibleEsInvalidoSinMensaje) {
  MensajesApuntados mensajes;
  LeerMet met;
  met.PonTexto("Inclinación", "norte");
  EXPECT_EQ(met.Superficie().inclinacion, 90.0F);
  EXPECT_EQ(met.EstadoInclinacion(), ENTRADA_INVALIDA);
  EXPECT_TRUE(mensajes.apuntes.empty());
}

TEST(LeerMet, UnTextoVacioEsElValorPorDefectoEnBlanco) {
  MensajesApuntados mensajes;
  LeerMet met;
  for (const char *clave : {"Inclinación", "Orientación", "Albedo"}) {
    met.PonTexto(clave, "0.5");
    met.PonTexto(clave, "");
  }
  EXPECT_EQ(met.Superficie(), (SuperficieReceptora{90.0F, 0.0F, 0.2F}));
  EXPECT_EQ(met.EstadoInclinacion(), 0x8000);
  EXPECT_EQ(met.EstadoOrientacion(), 0x8000);
  EXPECT_EQ(met.EstadoAlbedo(), 0x8000);
  EXPECT_TRUE(mensajes.apuntes.empty());
}

TEST(LeerMet, DameSerieCopiaElPeriodoYNadaMas) {
  const DirectorioTemporal directorio;
  LeerMet met;
  ASSERT_TRUE(met.LeerFichero(RutaDeMet(directorio)));
  met.PonPeriodo(1, 1, 5, 1, 1, 8);
  EXPECT_EQ(met.HorasDelPeriodo(), 4);
  const std::vector<float> cenit = Serie(met, "Cenith (º)", 4);
  for (int k = 0; k < 4; ++k) EXPECT_EQ(cenit[static_cast<std::size_t>(k)], ValorMet(13, k + 4));
  EXPECT_EQ(cenit[4], -7.0F);
}

TEST(LeerMet, CadaRotuloLeidoDaSuColumna) {
  const DirectorioTemporal directorio;
  LeerMet met;
  ASSERT_TRUE(met.LeerFichero(RutaDeMet(directorio)));
  met.PonPeriodo(1, 2, 1, 1, 2, 1);
  const std::pair<const char *, int> columnas[] = {{"Temperatura seca (ºC)", 4},
                                                   {"Temperatura de cielo (ºC)", 5},
                                                   {"Radiación solar directa (W/m²)", 6},
                                                   {"Radiación solar difusa (W/m²)", 7},
                                                   {"Humedad absoluta (kg/kg)", 8},
                                                   {"Humedad relativa (%)", 9},
                                                   {"Velocidad del viento (m/s)", 10},
                                                   {"Dirección del viento (º N)", 11},
                                                   {"Azimuth (º)", 12},
                                                   {"Cenith (º)", 13}};
  for (const auto &[rotulo, columna] : columnas) {
    EXPECT_EQ(Serie(met, rotulo, 1)[0], ValorMet(columna, 24)) << rotulo;
  }
}

TEST(LeerMet, LaHumedadEnGramosEsMilVecesLaDeKilos) {
  const DirectorioTemporal directorio;
  LeerMet met;
  ASSERT_TRUE(met.LeerFichero(RutaDeMet(directorio)));
  met.PonPeriodo(1, 1, 1, 12, 31, 24);
  const std::vector<float> gramos = Serie(met, "Humedad absoluta (g/kg)", HORAS_DEL_ANIO);
  const std::vector<float> kilos = Serie(met, "Humedad absoluta (kg/kg)", HORAS_DEL_ANIO);
  for (std::size_t i = 0; i < static_cast<std::size_t>(HORAS_DEL_ANIO); ++i) {
    ASSERT_EQ(gramos[i], 1000.0F * kilos[i]) << i;
  }
}

TEST(LeerMet, UnRotuloDesconocidoNoCopiaNada) {
  LeerMet met;
  met.PonPeriodo(1, 1, 1, 1, 1, 4);
  EXPECT_EQ(Serie(met, "Temperatura Seca (ºC)", 4)[0], -7.0F);
  EXPECT_EQ(Serie(met, "", 4)[0], -7.0F);
}

TEST(LeerMet, UnPeriodoQueAcabaAntesDeEmpezarNoCopiaNada) {
  LeerMet met;
  met.PonPeriodo(1, 2, 1, 1, 1, 24);
  EXPECT_EQ(met.HorasDelPeriodo(), 0);
  EXPECT_EQ(Serie(met, "Temperatura seca (ºC)", 1)[0], -7.0F);
}

TEST(LeerMet, UnaDerivadaSinDerivarNoCopiaNada) {
  LeerMet met;
  met.PonPeriodo(1, 1, 1, 1, 1, 4);
  EXPECT_EQ(Serie(met, "Altura (º)", 4)[0], -7.0F);
  EXPECT_EQ(Serie(met, "Global (W/m²)", 4)[0], -7.0F);
}

TEST(LeerMet, NuncaSeLeeFueraDelAnio) {
  LeerMet met;
  met.PonPeriodo(12, 31, 24, 12, 31, 1000);
  EXPECT_EQ(met.HorasDelPeriodo(), 1);
  EXPECT_EQ(Serie(met, "Temperatura seca (ºC)", 1)[1], -7.0F);
  met.PonPeriodo(1, -100, 1, 1, 1, 1);
  EXPECT_EQ(met.HorasDelPeriodo(), 1);
  met.PonPeriodo(12, 2147483647, 1, 1, -2147483647, 1);
  EXPECT_EQ(met.HorasDelPeriodo(), 0);
  met.ReservarDerivadas(10);
  met.PonPeriodo(1, 1, 1, 1, 2, 24);
  EXPECT_EQ(Serie(met, "Altura (º)", 48)[10], -7.0F) << "sólo hay diez valores reservados";
}

TEST(LeerMet, ReservarYLiberarDerivadas) {
  LeerMet met;
  met.LiberarDerivadas();
  EXPECT_FALSE(met.DerivadasPresentes());
  met.ReservarDerivadas(HORAS_DEL_ANIO);
  EXPECT_TRUE(met.DerivadasPresentes());
  EXPECT_EQ(met.Derivadas()[SerieDerivada::Global].size(), 8760U);
  met.ReservarDerivadas(-1);
  EXPECT_TRUE(met.Derivadas()[SerieDerivada::Altura].empty());
  met.LiberarDerivadas();
  EXPECT_FALSE(met.DerivadasPresentes());
}

TEST(LeerMet, DameTramoCopiaEnLasMismasPosiciones) {
  const DirectorioTemporal directorio;
  LeerMet met;
  ASSERT_TRUE(met.LeerFichero(RutaDeMet(directorio)));
  std::vector<float> destino(static_cast<std::size_t>(HORAS_DEL_ANIO), -7.0F);
  met.DameTramo(SerieAlmacenada::TemperaturaSeca, destino.data(), 10, 12);
  EXPECT_EQ(destino[9], -7.0F);
  EXPECT_EQ(destino[10], ValorMet(4, 10));
  EXPECT_EQ(destino[12], ValorMet(4, 12));
  EXPECT_EQ(destino[13], -7.0F);
  met.DameTramo(SerieAlmacenada::HumedadAbsoluta, destino.data(), 5, 4);
  EXPECT_EQ(destino[5], -7.0F);
  met.DameTramo(SerieAlmacenada::HumedadAbsoluta, destino.data(), -50, 100000);
  EXPECT_EQ(destino[0], ValorMet(8, 0));
  EXPECT_EQ(destino[8759], ValorMet(8, 8759));
}

TEST(LeerMet, LasReglasDeFechaSonLasComunes) {
  EXPECT_EQ(LeerMet::IndiceHora(12, 31, 24), 8759);
  EXPECT_EQ(LeerMet::IndiceHora(2, 29, 1), 1416);
  int mes = 2, dia = 28, hora = 24;
  LeerMet::SiguienteHora(mes, dia, hora);
  EXPECT_EQ((FechaHora{mes, dia, hora}), (FechaHora{3, 1, 1}));
}
