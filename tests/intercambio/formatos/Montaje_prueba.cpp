#include "intercambio/formatos/Montaje.h"

#include "tests/intercambio/formatos/Generadorclima.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tesmo {
namespace {

using namespace prueba;

ResultadoLectura Leer(const LineasFichero &lineas) { return LeerTextoClima(Unir(lineas)); }

LineasFichero::iterator Registro(LineasFichero &lineas, int i) {
  return lineas.begin() + static_cast<std::ptrdiff_t>(CABECERA_EPW) + i;
}

TEST(Montaje, LaPosicionDeUnaEtiqueta) {
  EXPECT_EQ(PosicionEtiqueta(1, 1, 1), 0);
  EXPECT_EQ(PosicionEtiqueta(3, 1, 1), 1416);
  EXPECT_EQ(PosicionEtiqueta(12, 31, 24), 8759);
  EXPECT_EQ(PosicionEtiqueta(2, 29, 1), -1);
  EXPECT_EQ(PosicionEtiqueta(4, 31, 1), -1);
  EXPECT_EQ(PosicionEtiqueta(13, 1, 1), -1);
  EXPECT_EQ(PosicionEtiqueta(1, 1, 25), -1);
  EXPECT_EQ(PosicionEtiqueta(1, 0, 1), -1);
}

TEST(Montaje, LaEtiquetaDeUnaPosicion) {
  for (const int posicion : {0, 743, 744, 1415, 1416, 8759}) {
    const FechaHora fecha = FechaDeIndice(posicion);
    EXPECT_EQ(PosicionEtiqueta(fecha.mes, fecha.dia, fecha.hora), posicion);
  }
}

TEST(Montaje, El29DeFebreroSeRechazaConSusLineas) {
  LineasFichero lineas = LineasEpw();
  const auto marzo = Registro(lineas, 1416);
  LineasFichero bisiesto(marzo, marzo + 24);
  for (std::string &linea : bisiesto) {
    CambiarCampo(linea, 1, "2");
    CambiarCampo(linea, 2, "29");
  }
  lineas.insert(marzo, bisiesto.begin(), bisiesto.end());
  const ResultadoLectura resultado = Leer(lineas);
  EXPECT_FALSE(resultado.anio);
  ASSERT_EQ(resultado.errores.size(), 1U) << Textos(resultado.errores);
  const NotaLectura &nota = resultado.errores[0];
  EXPECT_EQ(nota.clase, ClaseNota::Bisiesto);
  EXPECT_EQ(nota.linea, 8 + 1417);
  EXPECT_EQ(nota.ultimaLinea, 8 + 1440);
  EXPECT_EQ(nota.veces, 24);
  EXPECT_NE(nota.texto.find("líneas 1425 a 1448"), std::string::npos) << nota.texto;
}

TEST(Montaje, UnaHoraRepetidaNombraLasDosLineas) {
  LineasFichero lineas = LineasEpw();
  *Registro(lineas, 31) = *Registro(lineas, 30);
  const ResultadoLectura resultado = Leer(lineas);
  EXPECT_FALSE(resultado.anio);
  const NotaLectura nota = NotaDe(resultado.errores, ClaseNota::RegistroRepetido);
  EXPECT_EQ(nota.linea, 40);
  EXPECT_NE(nota.texto.find("línea 39"), std::string::npos) << nota.texto;
}

TEST(Montaje, DosRegistrosCambiadosDeSitioSonDesorden) {
  LineasFichero lineas = LineasEpw();
  std::iter_swap(Registro(lineas, 500), Registro(lineas, 501));
  const ResultadoLectura resultado = Leer(lineas);
  EXPECT_FALSE(resultado.anio);
  EXPECT_EQ(NotaDe(resultado.errores, ClaseNota::FueraDeOrden).linea, 8 + 502);
}

TEST(Montaje, UnAnioDeJulioAJunioSePoneDeEneroADiciembre) {
  LineasFichero lineas = LineasEpw();
  std::rotate(Registro(lineas, 0), Registro(lineas, 4344), lineas.end()); // el 1 de julio
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(CuantasDe(resultado.avisos, ClaseNota::Etiquetas), 1);
  EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, 0), -10.0);
  EXPECT_EQ(resultado.anio->lineas[4344], 9);
}

TEST(Montaje, LasHorasDe0A23PasanALaSiguiente) {
  LineasFichero lineas = LineasEpw();
  for (int i = 0; i < HORAS_DEL_ANIO; ++i) CambiarCampo(*Registro(lineas, i), 3, std::to_string(i % 24));
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(NotaDe(resultado.avisos, ClaseNota::Etiquetas).linea, 9);
  for (const int i : {0, 23, 24, 8759})
    EXPECT_EQ(Valor(*resultado.anio, Campo::TemperaturaSeca, i), HoraPrueba(i).temperatura / 10.0);
}

TEST(Montaje, MuchosAniosSeguidosNoLlenanLaMemoriaYSeDicen) {
  LineasFichero lineas = LineasEpw();
  const LineasFichero datos(Registro(lineas, 0), lineas.end());
  for (int anio = 0; anio < 4; ++anio) lineas.insert(lineas.end(), datos.begin(), datos.end());
  const ResultadoLectura resultado = Leer(lineas);
  EXPECT_FALSE(resultado.anio);
  EXPECT_EQ(resultado.registros, 5 * 8760);
  ASSERT_EQ(resultado.errores.size(), 1U) << Textos(resultado.errores);
  EXPECT_EQ(resultado.errores[0].clase, ClaseNota::SobranRegistros);
  EXPECT_EQ(resultado.errores[0].veces, 4 * 8760);
  EXPECT_NE(resultado.errores[0].texto.find("varios años"), std::string::npos);
}

TEST(Montaje, LasHorasSinLineaSeAvisanConLaDeAntes) {
  LineasFichero lineas = LineasEpw();
  lineas.erase(Registro(lineas, 100), Registro(lineas, 102));
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  const NotaLectura nota = NotaDe(resultado.avisos, ClaseNota::FaltanRegistros);
  EXPECT_EQ(nota.linea, 108);
  EXPECT_EQ(nota.ultimaLinea, 109);
  EXPECT_EQ(nota.veces, 2);
  EXPECT_EQ(resultado.anio->lineas[100], 0);
}

TEST(Montaje, MedioAnioNoEsUnAnio) {
  LineasFichero lineas = LineasEpw();
  lineas.resize(CABECERA_EPW + 4380);
  const ResultadoLectura resultado = Leer(lineas);
  EXPECT_FALSE(resultado.anio);
  ASSERT_EQ(resultado.errores.size(), 1U) << Textos(resultado.errores);
  EXPECT_EQ(resultado.errores[0].clase, ClaseNota::HuecoLargo);
  EXPECT_EQ(resultado.errores[0].veces, 4380);
  EXPECT_EQ(resultado.errores[0].linea, 8 + 4380);
}

TEST(Montaje, UnaFechaImposibleDejaSuHoraSinRegistro) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(*Registro(lineas, 70), 1, "13");
  CambiarCampo(*Registro(lineas, 80), 3, "25");
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(CuantasDe(resultado.avisos, ClaseNota::Registro), 2);
  EXPECT_EQ(NotaDe(resultado.avisos, ClaseNota::Registro).linea, 79);
  EXPECT_EQ((*resultado.anio)[Campo::TemperaturaSeca].procedencias[70], Procedencia::Calculada);
}

TEST(Montaje, DeUnaSemanaDeMediasHorasSobraLaMitad) {
  const LineasFichero horarias = LineasEpw();
  LineasFichero lineas(horarias.begin(), horarias.begin() + CABECERA_EPW);
  constexpr int HORAS_DE_LA_SEMANA = 168;
  for (int i = 0; i < HORAS_DE_LA_SEMANA; ++i)
    lineas.insert(lineas.end(), 2, horarias[static_cast<std::size_t>(CABECERA_EPW + i)]);
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_EQ(resultado.errores.size(), 1U) << Textos(resultado.errores);
  EXPECT_EQ(resultado.errores[0].clase, ClaseNota::SobranRegistros);
  EXPECT_EQ(resultado.errores[0].veces, HORAS_DE_LA_SEMANA);
}

TEST(Montaje, VariosRegistrosPorHoraSonUnSoloError) {
  for (const int porHora : {2, 4, 6, 12}) {
    const LineasFichero horarias = LineasEpw();
    LineasFichero lineas(horarias.begin(), horarias.begin() + CABECERA_EPW);
    for (std::size_t i = CABECERA_EPW; i < horarias.size(); ++i)
      lineas.insert(lineas.end(), static_cast<std::size_t>(porHora), horarias[i]);
    const ResultadoLectura resultado = Leer(lineas);
    EXPECT_FALSE(resultado.anio);
    ASSERT_EQ(resultado.errores.size(), 1U) << Textos(resultado.errores);
    EXPECT_EQ(resultado.errores[0].clase, ClaseNota::SobranRegistros);
    EXPECT_EQ(resultado.errores[0].veces, (porHora - 1) * HORAS_DEL_ANIO);
    EXPECT_NE(resultado.errores[0].texto.find("hay " + std::to_string(porHora) + " registros por hora"),
              std::string::npos)
        << resultado.errores[0].texto;
    EXPECT_EQ(CuantasDe(resultado.avisos, ClaseNota::FaltanRegistros), 0);
  }
}

TEST(Montaje, UnaHoraNegativaNoEsDeLaVispera) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[CABECERA_EPW + 30], 3, "-1");
  const ResultadoLectura resultado = Leer(lineas);
  ASSERT_TRUE(resultado.SinErrores()) << Textos(resultado.errores);
  EXPECT_EQ(NotaDe(resultado.avisos, ClaseNota::Registro).linea, 39);
}

TEST(Montaje, SinNingunDatoSeDice) {
  LineasFichero lineas = LineasEpw();
  lineas.resize(CABECERA_EPW);
  const ResultadoLectura resultado = LeerTextoClima(Unir(lineas), {.paraAuditar = true});
  EXPECT_FALSE(resultado.anio);
  EXPECT_EQ(CuantasDe(resultado.errores, ClaseNota::FaltanRegistros), 1);
}

} // namespace
} // namespace tesmo
