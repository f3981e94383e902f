#include "intercambio/formatos/Mapacolumnas.h"
#include "intercambio/sintesis/Azar.h"
#include "tests/comun/Mutaciones.h"
#include "tests/intercambio/formatos/Generadorclima.h"

#include "core/Codificacion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace tesmo {
namespace {

using namespace prueba;

/// Los bytes que significan algo para algún lector.
constexpr Estropicio ESTROPICIO{std::string_view("\0\n\r\",;#.-+eE9 \xFF\xC3\xA1/:[=\t", 22), 8, 200, 2000};

/// Lo que ha de cumplir toda lectura, salga lo que salga.
void ComprobarSensatez(const ResultadoLectura &resultado, const std::string &texto, bool tapado = true) {
  const auto lineas =
      1 + std::count_if(texto.begin(), texto.end(), [](char c) { return c == '\n' || c == '\r'; });
  for (const auto *notas : {&resultado.errores, &resultado.avisos}) {
    for (const NotaLectura &nota : *notas) {
      ASSERT_FALSE(nota.texto.empty());
      ASSERT_TRUE(EsUtf8(nota.texto));
      ASSERT_TRUE(std::none_of(nota.texto.begin(), nota.texto.end(), [](char c) {
        return static_cast<unsigned char>(c) < ' ';
      })) << nota.texto;
      ASSERT_GE(nota.linea, 0);
      ASSERT_LE(nota.linea, lineas) << nota.texto;
      ASSERT_LE(nota.ultimaLinea, lineas) << nota.texto;
    }
  }
  ASSERT_TRUE(resultado.anio.has_value() || !resultado.errores.empty());
  if (!resultado.SinErrores() || !tapado) return;
  ASSERT_LE(std::fabs(resultado.anio->sitio.latitud), 90.0);
  ASSERT_LE(std::fabs(resultado.anio->reloj.desfaseMin), 90.0);
  for (const Campo campo : {Campo::TemperaturaSeca, Campo::VelocidadViento, Campo::DireccionViento}) {
    for (const double valor : (*resultado.anio)[campo].valores) ASSERT_TRUE(std::isfinite(valor));
  }
}

/// Estropea @p entero @p vueltas veces y lo lee de las tres maneras.
void Machacar(const std::string &entero, int vueltas, const char *semilla,
              const std::shared_ptr<const MapaColumnas> &mapa = nullptr) {
  Azar azar(semilla);
  for (int i = 0; i < vueltas; ++i) {
    const std::string texto = Mutar(entero, ESTROPICIO, [&] { return azar.Siguiente(); });
    OpcionesLectura opciones{.paraAuditar = i % 3 == 1, .mapa = mapa};
    if (i % 3 == 2) opciones.huecosLargos = HuecosLargos::RellenarVecinos;
    ASSERT_NO_FATAL_FAILURE(ComprobarSensatez(LeerTextoClima(texto, opciones), texto, !opciones.paraAuditar))
        << semilla << " " << i;
  }
}

/// Las primeras líneas: con pocas se dan muchas más vueltas.
std::string Comienzo(LineasFichero lineas, std::size_t registros = 40) {
  lineas.resize(std::min(lineas.size(), 18 + registros));
  return Unir(lineas);
}

std::shared_ptr<const MapaColumnas> Mapa() {
  return std::make_shared<MapaColumnas>(LeerMapa(MapaDePrueba()).mapa.value());
}

constexpr int VUELTAS_CORTAS = 400;
constexpr int VUELTAS_LARGAS = 12;

TEST(Mutaciones, Epw) { Machacar(Comienzo(LineasEpw()), VUELTAS_CORTAS, "epw"); }
TEST(Mutaciones, PvgisEpw) { Machacar(Comienzo(LineasPvgisEpw()), VUELTAS_CORTAS, "pvgis epw"); }
TEST(Mutaciones, PvgisCsv) { Machacar(Comienzo(LineasPvgisCsv()), VUELTAS_CORTAS, "pvgis csv"); }
TEST(Mutaciones, Tmy3) { Machacar(Comienzo(LineasTmy3()), VUELTAS_CORTAS, "tmy3"); }
TEST(Mutaciones, MetTrece) { Machacar(Comienzo(LineasMetTrece()), VUELTAS_CORTAS, "trece"); }
TEST(Mutaciones, MetQuince) { Machacar(Comienzo(LineasMetQuince()), VUELTAS_CORTAS, "quince"); }
TEST(Mutaciones, Delimitado) { Machacar(Comienzo(LineasDelimitado()), VUELTAS_CORTAS, "delimitado", Mapa()); }

TEST(Mutaciones, AniosEnteros) {
  Machacar(Unir(LineasEpw()), VUELTAS_LARGAS, "epw entero");
  Machacar(Unir(LineasPvgisCsv()), VUELTAS_LARGAS, "pvgis entero");
  Machacar(Unir(LineasTmy3()), VUELTAS_LARGAS, "tmy3 entero");
  Machacar(Unir(LineasMetTrece()), VUELTAS_LARGAS, "trece entero");
  Machacar(Unir(LineasMetQuince()), VUELTAS_LARGAS, "quince entero");
  Machacar(Unir(LineasDelimitado()), VUELTAS_LARGAS, "delimitado entero", Mapa());
}

TEST(Mutaciones, Mapa) {
  Azar azar("mapa");
  int validos = 0;
  for (int i = 0; i < 4000; ++i) {
    const ResultadoMapa resultado =
        LeerMapa(Mutar(MapaDePrueba(), ESTROPICIO, [&] { return azar.Siguiente(); }));
    ASSERT_NE(resultado.mapa.has_value(), !resultado.errores.empty());
    if (!resultado.mapa) continue;
    ++validos;
    ASSERT_TRUE(LeerMapa(EscribirMapa(*resultado.mapa)).mapa);
  }
  EXPECT_GT(validos, 0);
}

TEST(Mutaciones, LosFicherosSinEstropearSeLeenEnteros) {
  for (const LineasFichero &lineas :
       {LineasEpw(), LineasPvgisEpw(), LineasPvgisCsv(), LineasTmy3(), LineasMetTrece(), LineasMetQuince()}) {
    const std::string texto = Unir(lineas);
    const ResultadoLectura resultado = LeerTextoClima(texto);
    EXPECT_TRUE(resultado.SinErrores()) << lineas[0];
    ComprobarSensatez(resultado, texto);
  }
}

} // namespace
} // namespace tesmo
