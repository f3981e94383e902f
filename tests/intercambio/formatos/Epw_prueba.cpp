#include "tests/intercambio/formatos/Generadorclima.h"

#include "core/Codificacion.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tesmo {
namespace {

using namespace prueba;

constexpr int MEDIODIA_2_ENERO = 24 + 12; // hora 13

ResultadoLectura Leer(const LineasFichero &lineas, const std::string &fin = "\n") {
  return LeerTextoClima(Unir(lineas, fin));
}

TEST(Epw, LosValoresElSitioYElRelojDeLaCabecera) {
  const ResultadoLectura resultado = Leer(LineasEpw());
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_TRUE(resultado.avisos.empty()) << Textos(resultado.avisos);
  const AnioCanonico &anio = *resultado.anio;
  EXPECT_EQ(anio.formato, FormatoClima::Epw);
  EXPECT_EQ(anio.sitio.nombre, "Almena");
  EXPECT_EQ(anio.sitio.region, "Granada");
  EXPECT_EQ(anio.sitio.pais, "ESP");
  EXPECT_EQ(anio.sitio.identificador, "084180");
  EXPECT_EQ(anio.sitio.latitud, 37.18);
  EXPECT_EQ(anio.sitio.longitud, -3.78);
  EXPECT_EQ(anio.sitio.altitud, 567.0);
  EXPECT_EQ(anio.reloj.tiempo, TiempoEtiqueta::OficialEstandar);
  EXPECT_EQ(anio.reloj.husoHoras, 1.0);
  EXPECT_EQ(anio.reloj.desfaseMin, -30.0);
  // Posición 36: decimas 36 % 400 − 100 = −64; humedad 30 + 36; presión 94000 + 16·100; altura 6.
  EXPECT_EQ(Valor(anio, Campo::TemperaturaSeca, MEDIODIA_2_ENERO), -6.4);
  EXPECT_EQ(Valor(anio, Campo::TemperaturaRocio, MEDIODIA_2_ENERO), -11.4);
  EXPECT_EQ(Valor(anio, Campo::HumedadRelativa, MEDIODIA_2_ENERO), 66.0);
  EXPECT_EQ(Valor(anio, Campo::Presion, MEDIODIA_2_ENERO), 95600.0);
  EXPECT_EQ(Valor(anio, Campo::InfrarrojaHorizontal, MEDIODIA_2_ENERO), 286.0);
  EXPECT_EQ(Valor(anio, Campo::GlobalHorizontal, MEDIODIA_2_ENERO), 720.0);
  EXPECT_EQ(Valor(anio, Campo::DirectaNormal, MEDIODIA_2_ENERO), 660.0);
  EXPECT_EQ(Valor(anio, Campo::DifusaHorizontal, MEDIODIA_2_ENERO), 240.0);
  EXPECT_EQ(Valor(anio, Campo::DireccionViento, MEDIODIA_2_ENERO), 252.0);
  EXPECT_EQ(Valor(anio, Campo::VelocidadViento, MEDIODIA_2_ENERO), 3.6);
  EXPECT_EQ(Valor(anio, Campo::NubosidadTotal, MEDIODIA_2_ENERO), 7.0);
  EXPECT_EQ(Valor(anio, Campo::NubosidadOpaca, MEDIODIA_2_ENERO), 5.0);
  EXPECT_EQ(anio.lineas[MEDIODIA_2_ENERO], 8 + 37);
}

TEST(Epw, CadaMesDeUnAnioDistinto) {
  const ResultadoLectura resultado = Leer(LineasEpw());
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_EQ(resultado.anio->anios[0], 2006);    // enero: 1999 + 7
  EXPECT_EQ(resultado.anio->anios[8759], 1999); // diciembre: 1999 + 84 % 12
}

TEST(Epw, LosCodigosDeSinDatoSeCuentanPorCampo) {
  LineasFichero lineas = LineasEpw();
  const std::vector<std::pair<std::size_t, std::string>> codigos{
      {7, "99.9"}, {9, "999999"}, {12, "9999"}, {22, "99"}, {23, "99"}};
  for (std::size_t i = CABECERA_EPW; i < lineas.size(); ++i) {
    for (const auto &[campo, codigo] : codigos) CambiarCampo(lineas[i], campo, codigo);
  }
  CambiarCampo(lineas[20], 21, "999");
  CambiarCampo(lineas[22], 20, "999.0");
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  for (const Campo campo : {Campo::TemperaturaRocio, Campo::Presion, Campo::InfrarrojaHorizontal,
                            Campo::NubosidadTotal, Campo::NubosidadOpaca}) {
    EXPECT_EQ(resultado.ausentes[static_cast<std::size_t>(campo)].veces, 8760) << NombreCampo(campo);
    EXPECT_TRUE(std::isnan(Valor(*resultado.anio, campo, 100)));
    EXPECT_EQ((*resultado.anio)[campo].procedencias[100], Procedencia::Ausente);
  }
  const CuentaAusentes &viento = resultado.ausentes[static_cast<std::size_t>(Campo::VelocidadViento)];
  EXPECT_EQ(viento.veces, 1);
  EXPECT_EQ(viento.primeraLinea, 21);
  EXPECT_EQ(viento.ultimaLinea, 21);
}

TEST(Epw, UnaTemperaturaDe99ComaNueveEsUnHuecoDeUnaHora) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[CABECERA_EPW + 100], 6, "99.9");
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  // Entre las décimas −1 (posición 99) y 1 (posición 101).
  EXPECT_DOUBLE_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 100), 0.0);
  EXPECT_EQ((*resultado.anio)[Campo::TemperaturaSeca].procedencias[100], Procedencia::Calculada);
  EXPECT_EQ((*resultado.anio)[Campo::TemperaturaSeca].procedencias[99], Procedencia::Copiada);
}

TEST(Epw, UnaEdicionDeMenosCamposValeHastaDondeLlega) {
  LineasFichero lineas = LineasEpw();
  for (std::size_t i = CABECERA_EPW; i < lineas.size(); ++i) {
    std::size_t corte = 0;
    for (int comas = 0; comas < 22; ++comas) corte = lineas[i].find(',', corte) + 1;
    lineas[i].resize(corte - 1); // hasta la velocidad del viento
  }
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(Valor(*resultado.anio, Campo::VelocidadViento, 5), 0.5);
  EXPECT_TRUE(std::isnan(Valor(*resultado.anio, Campo::NubosidadTotal, 5)));
  EXPECT_EQ(resultado.ausentes[static_cast<std::size_t>(Campo::NubosidadTotal)].veces, 0);
}

TEST(Epw, NingunaCabeceraSalvoLaPrimeraHaceFallar) {
  const LineasFichero entero = LineasEpw();
  for (std::size_t quitada = 1; quitada < CABECERA_EPW; ++quitada) {
    LineasFichero lineas = entero;
    lineas.erase(lineas.begin() + static_cast<std::ptrdiff_t>(quitada));
    const ResultadoLectura resultado = Leer(lineas);
    EXPECT_TRUE(resultado.SinErrores()) << entero[quitada] << ": " << Textos(resultado.errores);
    EXPECT_EQ(CuantasDe(resultado.avisos, ClaseNota::Cabecera), 1) << entero[quitada];
  }
  LineasFichero sola = entero;
  sola.erase(sola.begin() + 1, sola.begin() + CABECERA_EPW);
  EXPECT_TRUE(Leer(sola).SinErrores());
  LineasFichero raras = entero;
  for (std::size_t i = 1; i < CABECERA_EPW; ++i)
    raras[i] = std::string(3000, '\xFF') + ",\"" + std::string(1, '\0');
  EXPECT_TRUE(Leer(raras).SinErrores());
}

TEST(Epw, SinLatitudNoHayAnio) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[0], 6, "norte");
  const ResultadoLectura resultado = Leer(lineas);
  EXPECT_FALSE(resultado.anio);
  const NotaLectura nota = NotaDe(resultado.errores, ClaseNota::Cabecera);
  EXPECT_EQ(nota.linea, 1);
  EXPECT_NE(nota.texto.find("latitud"), std::string::npos);
}

TEST(Epw, UnaLatitudDe95NoCabe) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[0], 6, "95");
  EXPECT_FALSE(Leer(lineas).SinErrores());
}

TEST(Epw, SinHusoSeTomaElDeLaLongitud) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[0], 7, "-75.2");
  CambiarCampo(lineas[0], 8, "");
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_EQ(resultado.anio->reloj.husoHoras, -5.0);
  EXPECT_EQ(CuantasDe(resultado.avisos, ClaseNota::Cabecera), 1);
}

TEST(Epw, SinAltitudSeAvisaYQuedaAusente) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[0], 9, "");
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_TRUE(std::isnan(resultado.anio->sitio.altitud));
}

TEST(Epw, SeCreenLasAltitudesQueSePuedenTeclear) {
  LineasFichero lineas = LineasEpw();
  for (const auto &[texto, creible] : {std::pair{"-480", true}, {"9000", true}, {"-501", false}}) {
    CambiarCampo(lineas[0], 9, texto);
    const ResultadoLectura resultado = Leer(lineas);
    ASSERT_TRUE(resultado.SinErrores());
    EXPECT_EQ(std::isfinite(resultado.anio->sitio.altitud), creible) << texto;
  }
}

TEST(Epw, UnaCiudadConComasNoCorreLosNumeros) {
  LineasFichero lineas = LineasEpw();
  lineas[0] = "LOCATION,Almena, la Alta, del Monte,Granada,ESP,Mano,084180,37.18,-3.78,1.0,567.0";
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(resultado.anio->sitio.latitud, 37.18);
  EXPECT_EQ(resultado.anio->reloj.husoHoras, 1.0);
  EXPECT_EQ(resultado.anio->sitio.altitud, 567.0);
}

TEST(Epw, UnLocationConCamposDeMenosNoCorreLosNumeros) {
  struct Caso {
    const char *location;
    double huso, altitud;
  };
  const std::vector<Caso> casos{
      {"LOCATION,Almena,Granada,ESP,Fuente,40.45,-3.55,1.0,582", 1.0, 582.0}, // sin estación
      {"LOCATION,Almena,Granada,ESP,Fuente,40.45,-3.55,1.0,5", 1.0, 5.0},
      {"LOCATION,Almena,Granada,ESP,40.45,-3.55,1.0,582", 1.0, 582.0}, // ni fuente
      {"LOCATION,Almena,Granada,ESP,Fuente,12,40.45,-3.55,1.0,", 1.0, AUSENTE},
      {"LOCATION,Almena,Granada,ESP,Fuente,12,40.45,-3.55,1.0,-9999", 1.0, AUSENTE},
      {"LOCATION,Almena,Granada,ESP,Fuente,12,40.45,-3.55", 0.0, AUSENTE},
      {"LOCATION,Almena,Granada,ESP,Fuente,12,40.45,-3.55,UTC+1,582", 0.0, 582.0}};
  for (const Caso &caso : casos) {
    LineasFichero lineas = LineasEpw();
    lineas[0] = caso.location;
    const ResultadoLectura resultado = Leer(lineas);
    ASSERT_TRUE(resultado.SinErrores()) << caso.location << Textos(resultado.errores);
    const AnioCanonico &anio = *resultado.anio;
    EXPECT_EQ(anio.sitio.latitud, 40.45) << caso.location;
    EXPECT_EQ(anio.sitio.longitud, -3.55) << caso.location;
    EXPECT_EQ(anio.reloj.husoHoras, caso.huso) << caso.location;
    EXPECT_EQ(std::isnan(anio.sitio.altitud), std::isnan(caso.altitud)) << caso.location;
    if (!std::isnan(caso.altitud)) {
      EXPECT_EQ(anio.sitio.altitud, caso.altitud) << caso.location;
    }
    EXPECT_EQ(anio.sitio.identificador.find('.'), std::string::npos) << anio.sitio.identificador;
  }
}

TEST(Epw, SeparadoPorPuntoYComaSeDiceQuienLoGuardo) {
  for (const char separador : {';', '\t'}) {
    LineasFichero lineas = LineasEpw();
    for (std::string &linea : lineas) std::replace(linea.begin(), linea.end(), ',', separador);
    std::replace(lineas[0].begin(), lineas[0].end(), '.', ',');
    const ResultadoLectura resultado = Leer(lineas);
    EXPECT_FALSE(resultado.anio);
    ASSERT_EQ(resultado.errores.size(), 1U) << Textos(resultado.errores);
    EXPECT_NE(resultado.errores[0].texto.find("hoja de cálculo"), std::string::npos);
  }
}

TEST(Epw, LaAltitudQueFaltaSeDiceDondeEscribirla) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[0], 9, "-9999");
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_NE(NotaDe(resultado.avisos, ClaseNota::Cabecera).texto.find("en la línea 1 o con --altitud"),
            std::string::npos)
      << Textos(resultado.avisos);
}

TEST(Epw, UnLocationEntrecomilladoSeReconoce) {
  LineasFichero lineas = LineasEpw();
  lineas[0] = "\"LOCATION\",\"Almena, la Alta\",\"Granada\",\"ESP\",\"x\",\"084180\",37.18,-3.78,1.0,567.0";
  const ResultadoLectura resultado = Leer(lineas);
  EXPECT_EQ(resultado.formato, FormatoClima::Epw);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(resultado.anio->sitio.nombre, "Almena, la Alta");
}

TEST(Epw, LosMinutosNoDicenNada) {
  for (const std::string minuto : {"0", "30", "60", ""}) {
    LineasFichero lineas = LineasEpw();
    for (std::size_t i = CABECERA_EPW; i < lineas.size(); ++i) CambiarCampo(lineas[i], 4, minuto);
    const ResultadoLectura resultado = Leer(lineas);
    ASSERT_TRUE(resultado.SinErrores()) << minuto;
    EXPECT_EQ(resultado.anio->reloj.desfaseMin, -30.0) << minuto;
    EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 0), -10.0) << minuto;
  }
}

TEST(Epw, LatinUnoYUtf8DanElMismoNombre) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[0], 1, "Peñarroya");
  const std::string utf8 = Unir(lineas);
  for (const std::string &texto : {utf8, "\xEF\xBB\xBF" + utf8, AWindows1252(utf8)}) {
    const ResultadoLectura resultado = LeerTextoClima(texto);
    ASSERT_TRUE(resultado.SinErrores());
    EXPECT_EQ(resultado.anio->sitio.nombre, "Peñarroya");
  }
}

TEST(Epw, TodosLosFinesDeLineaDanElMismoAnio) {
  for (const std::string fin : {"\n", "\r\n", "\r", "\r\r\n"}) {
    const ResultadoLectura resultado = Leer(LineasEpw(), fin);
    ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
    EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 8759), HoraPrueba(8759).temperatura / 10.0);
  }
}

TEST(Epw, LasLineasVaciasDelFinalNoCuentan) {
  const ResultadoLectura resultado =
      LeerTextoClima(Unir(LineasEpw()) + "\n\r\n   \n" + std::string(5, '\0') + "\n\x1A");
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_EQ(resultado.registros, 8760);
  EXPECT_TRUE(resultado.avisos.empty()) << Textos(resultado.avisos);
}

TEST(Epw, SinFinEnLaUltimaLineaSeLeeIgual) {
  std::string texto = Unir(LineasEpw());
  texto.pop_back();
  EXPECT_TRUE(LeerTextoClima(texto).SinErrores());
}

TEST(Epw, UnCeroNegativoEsCero) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[CABECERA_EPW], 14, "-0.00");
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_FALSE(std::signbit(Valor(*resultado.anio, Campo::DirectaNormal, 0)));
}

TEST(Epw, UnVientoNegativoEsUnHuecoConSuAviso) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[CABECERA_EPW + 10], 21, "-0.5");
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_EQ(NotaDe(resultado.avisos, ClaseNota::ValorImposible).linea, 19);
  EXPECT_DOUBLE_EQ(Valor(*resultado.anio, Campo::VelocidadViento, 10), 1.0); // entre 0,9 y 1,1
}

TEST(Epw, UnTextoDondeVaUnNumeroSeDiceConSuLinea) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[CABECERA_EPW + 4], 8, "húmedo");
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores());
  const NotaLectura nota = NotaDe(resultado.avisos, ClaseNota::Campo);
  EXPECT_EQ(nota.linea, 13);
  EXPECT_EQ(nota.campo, Campo::HumedadRelativa);
  EXPECT_NE(nota.texto.find("«húmedo»"), std::string::npos) << nota.texto;
}

TEST(Epw, LoQueNoPuedeSerEsSinDatoYSeAvisa) {
  struct Caso {
    std::size_t columna;
    Campo campo;
    std::vector<const char *> imposibles;
    std::vector<const char *> posibles;
  };
  const std::vector<Caso> casos{
      {6, Campo::TemperaturaSeca, {"-99", "-999", "-9999", "-90.1", "71"}, {"-89.2", "56.7"}},
      {7, Campo::TemperaturaRocio, {"-99", "-999"}, {"-80"}},
      {8, Campo::HumedadRelativa, {"-99", "-1", "998", "151"}, {"0", "101"}},
      {9, Campo::Presion, {"-9999", "0", "1013", "200000"}, {"33700", "108000"}},
      {12, Campo::InfrarrojaHorizontal, {"-99", "-1", "1001"}, {"1", "500"}},
      {13, Campo::GlobalHorizontal, {"-99", "-999", "-9999", "2001"}, {"-3", "1400"}},
      {20, Campo::DireccionViento, {"-99"}, {"0", "360"}},
      {21, Campo::VelocidadViento, {"-99", "121", "998"}, {"0", "113"}},
      {22, Campo::NubosidadTotal, {"-1", "88"}, {"0", "10"}}};
  const LineasFichero buenas = LineasEpw();
  for (const Caso &caso : casos) {
    LineasFichero lineas = buenas;
    std::size_t i = CABECERA_EPW + 100;
    for (const char *texto : caso.imposibles) CambiarCampo(lineas[i += 10], caso.columna, texto);
    for (const char *texto : caso.posibles) CambiarCampo(lineas[i += 10], caso.columna, texto);
    const ResultadoLectura resultado = Leer(lineas);
    ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
    EXPECT_EQ(CuantasDe(resultado.avisos, ClaseNota::ValorImposible),
              static_cast<int>(caso.imposibles.size()))
        << NombreCampo(caso.campo);
    EXPECT_EQ(resultado.ausentes[static_cast<std::size_t>(caso.campo)].veces,
              static_cast<int>(caso.imposibles.size()));
  }
}

TEST(Epw, UnaInfrarrojaDeCeroEsQueNoSeMidio) {
  LineasFichero lineas = LineasEpw();
  for (std::size_t i = CABECERA_EPW; i < lineas.size(); ++i) CambiarCampo(lineas[i], 12, "0");
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(resultado.ausentes[static_cast<std::size_t>(Campo::InfrarrojaHorizontal)].veces, 8760);
  EXPECT_EQ(CuantasDe(resultado.avisos, ClaseNota::ValorImposible), 0);
  EXPECT_EQ(NotaDe(resultado.avisos, ClaseNota::CodigoAusente).campo, Campo::InfrarrojaHorizontal);
  EXPECT_TRUE(std::isnan(Valor(*resultado.anio, Campo::InfrarrojaHorizontal, 100)));
}

TEST(Epw, UnaLineaInmensaNoImpideLeerLasDemas) {
  LineasFichero lineas = LineasEpw();
  lineas[CABECERA_EPW + 50] = std::string(3'000'000, ',');
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(NotaDe(resultado.avisos, ClaseNota::Registro).linea, 59);
  EXPECT_EQ(NotaDe(resultado.avisos, ClaseNota::FaltanRegistros).veces, 1);
}

TEST(PvgisEpw, SusEtiquetasSonUtcDigaLoQueDigaElHuso) {
  const ResultadoLectura resultado = Leer(LineasPvgisEpw());
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_EQ(resultado.anio->formato, FormatoClima::PvgisEpw);
  EXPECT_EQ(resultado.anio->reloj.tiempo, TiempoEtiqueta::Utc);
  EXPECT_DOUBLE_EQ(resultado.anio->reloj.desfaseMin, -48.0);
}

TEST(PvgisEpw, SinDesfaseEscritoSePropone50MinutosAntes) {
  LineasFichero lineas = LineasPvgisEpw();
  lineas[6] = "COMMENTS 2";
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_EQ(resultado.anio->reloj.tiempo, TiempoEtiqueta::Utc);
  EXPECT_EQ(resultado.anio->reloj.desfaseMin, -50.0);
}

} // namespace
} // namespace tesmo
