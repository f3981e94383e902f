#include "intercambio/formatos/Fechatexto.h"
#include "intercambio/formatos/Mapacolumnas.h"
#include "intercambio/formatos/Unidadesclima.h"
#include "tests/intercambio/formatos/Generadorclima.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

using namespace prueba;

ResultadoLectura Leer(const LineasFichero &lineas, const std::string &mapa) {
  const ResultadoMapa leido = LeerMapa(mapa);
  EXPECT_TRUE(leido.mapa) << Textos(leido.errores);
  return LeerTextoClima(Unir(lineas),
                        {.mapa = std::make_shared<MapaColumnas>(leido.mapa.value_or(MapaColumnas{}))});
}

std::string Cambiar(std::string texto, const std::string &de, const std::string &a) {
  const std::size_t donde = texto.find(de);
  EXPECT_NE(donde, std::string::npos) << de;
  return texto.replace(donde, de.size(), a);
}

TEST(Delimitado, ConPuntoYComaComaDecimalYUnidadesPropias) {
  const ResultadoLectura resultado = Leer(LineasDelimitado(), MapaDePrueba());
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  const AnioCanonico &anio = *resultado.anio;
  EXPECT_EQ(anio.formato, FormatoClima::Delimitado);
  EXPECT_EQ(anio.sitio.nombre, "Almena");
  EXPECT_EQ(anio.sitio.latitud, 37.18);
  EXPECT_EQ(anio.reloj.husoHoras, 1.0);
  EXPECT_EQ(Valor(anio, Campo::TemperaturaSeca, 36), -6.4);
  EXPECT_EQ(Valor(anio, Campo::HumedadRelativa, 36), 66.0);
  EXPECT_DOUBLE_EQ(Valor(anio, Campo::Presion, 36), 95600.0);
  EXPECT_EQ(Valor(anio, Campo::GlobalHorizontal, 36), 720.0);
  EXPECT_EQ(Valor(anio, Campo::DifusaHorizontal, 36), 240.0);
  // El fichero escribe 36 · 3,6 km/h.
  EXPECT_NEAR(Valor(anio, Campo::VelocidadViento, 36), 36.0, 1e-12);
  EXPECT_EQ(Valor(anio, Campo::DireccionViento, 36), 252.0);
  EXPECT_EQ(anio.lineas[0], 2);
  EXPECT_EQ(anio.anios[0], 2014);
  // Escribe de 0 a 23: la 0 es la hora 1.
  EXPECT_EQ(CuantasDe(resultado.avisos, ClaseNota::Etiquetas), 1);
}

TEST(Delimitado, SuCodigoDeSinDatoEsElDelMapa) {
  LineasFichero lineas = LineasDelimitado();
  CambiarCampo(lineas[CABECERA_DELIMITADO + 10], 1, "-9999,0", ';');
  const ResultadoLectura resultado = Leer(lineas, MapaDePrueba());
  ASSERT_TRUE(resultado.SinErrores());
  EXPECT_EQ(resultado.ausentes[static_cast<std::size_t>(Campo::TemperaturaSeca)].veces, 1);
  EXPECT_DOUBLE_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 10), -9.0); // entre −9,1 y −8,9
}

TEST(Delimitado, LoQuePasaDelCodigoDeSinDatoEsUnDato) {
  // Con «sin dato = 0» o «= -1» una desigualdad se llevaría el año entero.
  for (const char *codigo : {"-1", "99"}) {
    LineasFichero lineas = LineasDelimitado();
    CambiarCampo(lineas[CABECERA_DELIMITADO + 10], 1, std::string(codigo) + ",0", ';');
    CambiarCampo(lineas[CABECERA_DELIMITADO + 20], 1, "-8,0", ';');
    const ResultadoLectura resultado =
        Leer(lineas, Cambiar(MapaDePrueba(), "sin dato = -9999", std::string("sin dato = ") + codigo));
    ASSERT_TRUE(resultado.SinErrores()) << codigo << Textos(resultado.errores);
    EXPECT_GE(resultado.ausentes[static_cast<std::size_t>(Campo::TemperaturaSeca)].veces, 1) << codigo;
    EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 20), -8.0) << codigo;
    EXPECT_EQ(Valor(*resultado.anio, Campo::Presion, 36), 95600.0) << codigo;
  }
}

TEST(Delimitado, SinHusoEnElMapaSeTomaElDeLaLongitud) {
  std::string mapa = Cambiar(MapaDePrueba(), "huso = 1\n", "");
  mapa = Cambiar(mapa, "longitud = -3.78", "longitud = -63.78");
  const ResultadoLectura resultado = Leer(LineasDelimitado(), mapa);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(resultado.anio->reloj.husoHoras, -4.0);
  EXPECT_NE(Textos(resultado.avisos).find("huso"), std::string::npos);
  // Un huso 0 escrito es tan huso como otro.
  const ResultadoLectura cero = Leer(LineasDelimitado(), Cambiar(MapaDePrueba(), "huso = 1", "huso = 0"));
  ASSERT_TRUE(cero.SinErrores());
  EXPECT_EQ(cero.anio->reloj.husoHoras, 0.0);
}

TEST(Delimitado, LasNotasYLasLineasDeSeparadoresDelFinalNoSonRegistros) {
  LineasFichero lineas = LineasDelimitado();
  lineas.insert(lineas.end(), {";;;;;;;", "Nota;del;observador;;;;;", ";;;;;;;", "Total;365;;;;;;"});
  const ResultadoLectura resultado = Leer(lineas, MapaDePrueba());
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(resultado.registros, HORAS_DEL_ANIO);
  EXPECT_EQ(CuantasDe(resultado.avisos, ClaseNota::Registro), 4) << Textos(resultado.avisos);
}

TEST(Delimitado, SinFechasTampocoSobraUnaNotaAlPie) {
  const std::string mapa = Cambiar(MapaDePrueba(), "fecha = 1\norden de la fecha = dia mes año\n", "");
  LineasFichero lineas = LineasDelimitado();
  lineas.insert(lineas.end(), {"", "Fin de los datos"});
  EXPECT_TRUE(Leer(lineas, mapa).SinErrores());
  lineas.push_back(lineas[1]);
  EXPECT_EQ(CuantasDe(Leer(lineas, mapa).errores, ClaseNota::SobranRegistros), 1);
}

TEST(Delimitado, LosRotulosPuedenAcabarEnCorchetes) {
  LineasFichero lineas = LineasDelimitado();
  lineas[0] = "fecha;T [°C];HR [pct];P;G;D;viento [km/h];rumbo [grados]";
  std::string mapa = Cambiar(MapaDePrueba(), "= Temp [°C]", "= T [°C]");
  mapa = Cambiar(mapa, "= HR [%]", "= HR [pct] [%]");
  mapa = Cambiar(mapa, "= viento [km/h]", "= viento [km/h]");
  mapa = Cambiar(mapa, "= rumbo", "= rumbo [grados]");
  mapa = Cambiar(mapa, "= G [W/m2]", "= 5 [W/m2]");
  const ResultadoLectura resultado = Leer(lineas, mapa);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 36), -6.4);
  EXPECT_EQ(Valor(*resultado.anio, Campo::HumedadRelativa, 36), 66.0);
  EXPECT_NEAR(Valor(*resultado.anio, Campo::VelocidadViento, 36), 36.0, 1e-12);
  EXPECT_EQ(Valor(*resultado.anio, Campo::DireccionViento, 36), 252.0);
}

TEST(Delimitado, UnaCabeceraMalContadaDiceDondeEstanLosRotulos) {
  LineasFichero lineas = LineasDelimitado();
  lineas.insert(lineas.begin(), "Estación de Almena");
  const ResultadoLectura resultado = Leer(lineas, MapaDePrueba());
  EXPECT_FALSE(resultado.anio);
  EXPECT_NE(resultado.errores.at(0).texto.find("«líneas de cabecera = 2»"), std::string::npos)
      << resultado.errores[0].texto;
}

TEST(Delimitado, UnRotuloQueNoEstaEsUnError) {
  const ResultadoLectura resultado =
      Leer(LineasDelimitado(), Cambiar(MapaDePrueba(), "= Temp", "= Temperatura"));
  EXPECT_FALSE(resultado.anio);
  EXPECT_NE(resultado.errores[0].texto.find("«Temperatura»"), std::string::npos)
      << resultado.errores[0].texto;
}

TEST(Delimitado, SinFechasLasLineasVanPorOrden) {
  std::string mapa = Cambiar(MapaDePrueba(), "fecha = 1\norden de la fecha = dia mes año\n", "");
  const ResultadoLectura resultado = Leer(LineasDelimitado(), mapa);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 8759), HoraPrueba(8759).temperatura / 10.0);
}

TEST(Delimitado, MesDiaYHoraEnColumnasSeparadasPorBlancos) {
  std::string mapa =
      "latitud = 37.18\nlongitud = -3.78\naltitud = 567\nseparador = blancos\n"
      "líneas de cabecera = 2\nmes = 1\ndía = 2\nhora = 3\nreloj = solar\nhuso = 1\n"
      "temperatura seca = 4\nradiación directa horizontal = 6\nradiación difusa horizontal = 7\n"
      "humedad absoluta = 8\nvelocidad del viento = 10\ndirección del viento = 11\n";
  const ResultadoLectura resultado = Leer(LineasMetTrece(), mapa);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(resultado.anio->reloj.tiempo, TiempoEtiqueta::SolarVerdadero);
  const ResultadoLectura directo = LeerTextoClima(Unir(LineasMetTrece()));
  for (const Campo campo : {Campo::TemperaturaSeca, Campo::DirectaHorizontal, Campo::HumedadAbsoluta})
    EXPECT_EQ((*resultado.anio)[campo].valores, (*directo.anio)[campo].valores);
}

TEST(Delimitado, SinPosicionNoHayAnio) {
  const ResultadoLectura resultado =
      Leer(LineasDelimitado(), Cambiar(MapaDePrueba(), "latitud = 37.18\n", ""));
  EXPECT_FALSE(resultado.anio);
  ASSERT_EQ(CuantasDe(resultado.errores, ClaseNota::Cabecera), 1);
  EXPECT_EQ(
      NotaDe(resultado.errores, ClaseNota::Cabecera).texto,
      "mapa: la latitud falta o no es un número; escríbala en grados con punto decimal («latitud = 37.5»)");
}

TEST(Delimitado, SinRadiacionNoHayAnioYSeDiceCual) {
  const ResultadoLectura resultado =
      Leer(LineasDelimitado(), Cambiar(MapaDePrueba(), "radiación difusa horizontal = 6\n", ""));
  EXPECT_FALSE(resultado.anio);
  EXPECT_NE(NotaDe(resultado.errores, ClaseNota::CampoAusente).texto.find("radiaciones"), std::string::npos);
}

TEST(Delimitado, UnaFechaAMediasEsUnErrorDelMapa) {
  for (const char *fecha : {"mes = 1\ndía = 1\n", "hora = 1\n", "día = 1\nhora = 1\n"}) {
    const ResultadoLectura resultado = Leer(
        LineasDelimitado(), Cambiar(MapaDePrueba(), "fecha = 1\norden de la fecha = dia mes año\n", fecha));
    EXPECT_FALSE(resultado.anio);
    EXPECT_NE(Textos(resultado.errores).find("mes, del día y de la hora"), std::string::npos)
        << Textos(resultado.errores);
  }
}

TEST(Delimitado, UnaFechaSinHoraPideSuColumna) {
  LineasFichero lineas = LineasDelimitado();
  for (std::size_t i = CABECERA_DELIMITADO; i < lineas.size(); ++i)
    lineas[i].erase(10, lineas[i].find(';') - 10);
  const ResultadoLectura resultado = Leer(lineas, MapaDePrueba());
  ASSERT_EQ(resultado.errores.size(), 1U) << Textos(resultado.errores);
  EXPECT_NE(resultado.errores[0].texto.find("«hora = 2»"), std::string::npos) << resultado.errores[0].texto;
}

TEST(Delimitado, UnaMedianocheSinHoraEsLaHoraCero) {
  LineasFichero lineas = LineasDelimitado();
  for (std::size_t i = CABECERA_DELIMITADO; i < lineas.size(); i += 24)
    lineas[i].erase(10, lineas[i].find(';') - 10);
  const ResultadoLectura resultado = Leer(lineas, MapaDePrueba());
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 24), HoraPrueba(24).temperatura / 10.0);
}

TEST(Delimitado, SinColumnaDeDireccionSeSigueSiSeAceptaInventar) {
  const ResultadoMapa mapa = LeerMapa(Cambiar(MapaDePrueba(), "direccion del viento = rumbo\n", ""));
  ASSERT_TRUE(mapa.mapa);
  const auto compartido = std::make_shared<MapaColumnas>(*mapa.mapa);
  const std::string texto = Unir(LineasDelimitado());
  EXPECT_EQ(LeerTextoClima(texto, {.mapa = compartido}).errores.size(), 1U);
  const ResultadoLectura resultado =
      LeerTextoClima(texto, {.huecosLargos = HuecosLargos::RellenarVecinos, .mapa = compartido});
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(Valor(*resultado.anio, Campo::DireccionViento, 36), 0.0);
}

TEST(Delimitado, UnTextoEnUtf16LoDiceAunqueHayaMapa) {
  const ResultadoLectura resultado = Leer({std::string("\xFF\xFE") + "f\0e\0"}, MapaDePrueba());
  ASSERT_EQ(resultado.errores.size(), 1U) << Textos(resultado.errores);
  EXPECT_NE(resultado.errores[0].texto.find("UTF-16"), std::string::npos);
}

TEST(Delimitado, LaRadiacionPorHoraEnSusUnidades) {
  struct Caso {
    const char *unidad;
    double escrito;
  };
  for (const Caso &caso : {Caso{"kWh/m2", 0.72}, {"J/cm2", 259.2}, {"kJ/m²", 2592.0}, {"MJ/m²", 2.592}}) {
    const UnidadClima *unidad = BuscarUnidad(Campo::GlobalHorizontal, caso.unidad);
    ASSERT_NE(unidad, nullptr) << caso.unidad;
    EXPECT_NEAR(caso.escrito * unidad->factor + unidad->sumando, 720.0, 1e-9) << caso.unidad;
  }
}

struct CasoFecha {
  const char *texto;
  OrdenFecha orden;
  int anio, mes, dia, hora;
};

TEST(FechaTexto, EnLosTresOrdenesYSeguida) {
  using enum OrdenFecha;
  const std::vector<CasoFecha> casos{
      {"2014-03-05 07:00", AnioMesDia, 2014, 3, 5, 7}, {"05/03/2014 07:00", DiaMesAnio, 2014, 3, 5, 7},
      {"3/5/2014 7", MesDiaAnio, 2014, 3, 5, 7},       {"20140305:0710", AnioMesDia, 2014, 3, 5, 7},
      {"05032014 2300", DiaMesAnio, 2014, 3, 5, 23},   {"05/03/2014 930", DiaMesAnio, 2014, 3, 5, 9},
      {"2014-03-05 100", AnioMesDia, 2014, 3, 5, 1},   {"2014-03-05T24:00:00Z", AnioMesDia, 2014, 3, 5, 24},
      {"2014030507", AnioMesDia, 2014, 3, 5, 7},       {"201403052310", AnioMesDia, 2014, 3, 5, 23},
      {"0503201407", DiaMesAnio, 2014, 3, 5, 7},       {"20140305000000", AnioMesDia, 2014, 3, 5, 0}};
  for (const CasoFecha &caso : casos) {
    FilaClima fila;
    ASSERT_TRUE(LeerFechaTexto(caso.texto, caso.orden, fila)) << caso.texto;
    EXPECT_EQ(fila.anio, caso.anio) << caso.texto;
    EXPECT_EQ(fila.mes, caso.mes) << caso.texto;
    EXPECT_EQ(fila.dia, caso.dia) << caso.texto;
    EXPECT_EQ(fila.hora, caso.hora) << caso.texto;
  }
}

TEST(FechaTexto, LoQueNoEsUnaFechaNoSeLee) {
  FilaClima fila;
  for (const char *texto : {"", "hoy", "2014-03", "12345678901-1-1"})
    EXPECT_FALSE(LeerFechaTexto(texto, OrdenFecha::AnioMesDia, fila)) << texto;
}

} // namespace
} // namespace tesmo
