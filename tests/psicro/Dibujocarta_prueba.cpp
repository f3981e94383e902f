#include "psicro/Psicrometrico.h"
#include "tests/comun/Apoyos.h"
#include "tests/psicro/Cartallana.h"
#include "tests/psicro/Lienzodeprueba.h"

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>

using namespace tesmo;
using Textos = std::vector<std::string>;

namespace {

constexpr Familia TODAS[] = {Familia::T, Familia::W, Familia::H, Familia::HR, Familia::VE};

/// Las llamadas de una sola familia, o de todas si no se dice cuál.
Textos Dibujar(Psicro &carta, int ancho, int alto) {
  LienzoDePrueba lienzo;
  carta.dibujar(lienzo, ancho, alto);
  return lienzo.llamadas;
}

Psicro SoloCon(Familia familia) {
  Psicro carta;
  carta.ponVista(0, 0, 0, 0, 1);
  for (const Familia f : TODAS) carta.ponVisible(f, f == familia);
  return carta;
}

Psicro CartaDe(const ParametrosCartaLlana &c) {
  Psicro carta;
  carta.ponVista(c.dx, c.dy, c.v3, 0, static_cast<std::int8_t>(c.zoom));
  carta.ponPresion(c.presion);
  carta.ponRango(Familia::T, {c.tMin, c.tMax, c.tPaso});
  carta.ponRango(Familia::W, {c.wMin, c.wMax, c.wPaso});
  carta.ponRango(Familia::H, {c.hMin, c.hMax, c.hPaso});
  carta.ponRango(Familia::HR, {c.hrMin, c.hrMax, c.hrPaso});
  carta.ponRango(Familia::VE, {c.veMin, c.veMax, c.vePaso});
  return carta;
}

bool Contiene(const Textos &textos, const std::string &texto) {
  return std::find(textos.begin(), textos.end(), texto) != textos.end();
}

long Cuenta(const Textos &textos, std::string_view comienzo) {
  return std::count_if(textos.begin(), textos.end(),
                       [&](const std::string &t) { return t.starts_with(comienzo); });
}

/// FNV-1a de 64 bits (Fowler, Noll y Vo) de las llamadas, una por línea.
std::uint64_t Resumen(const Textos &llamadas) {
  std::uint64_t h = 14695981039346656037ULL;
  for (const std::string &l : llamadas) {
    for (const char c : l + '\n') h = (h ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
  }
  return h;
}

ParametrosCartaLlana Otra(int ancho, int alto, float presion, int zoom, int dx, int dy, int v3) {
  ParametrosCartaLlana c;
  c.ancho = static_cast<float>(ancho);
  c.alto = static_cast<float>(alto);
  c.presion = presion;
  c.zoom = zoom;
  c.dx = dx;
  c.dy = dy;
  c.v3 = v3;
  return c;
}

} // namespace

TEST(DibujoCarta, SinFamiliasALaVistaNoDibujaNada) {
  Psicro carta;
  for (const Familia f : TODAS) carta.ponVisible(f, false);
  EXPECT_TRUE(Dibujar(carta, 900, 600).empty());
  EXPECT_EQ(carta.dameAncho(), 900.0F);
  EXPECT_EQ(carta.dameAlto(), 600.0F);
}

TEST(DibujoCarta, LasFamiliasSalenEnSuOrdenTrasPonerSuColor) {
  Psicro carta;
  carta.ponVista(0, 0, 0, 0, 1);
  carta.ponColor(Familia::HR, 0x00ABCD);
  const Textos llamadas = Dibujar(carta, 900, 600);
  Textos colores;
  for (const std::string &l : llamadas) {
    if (l.starts_with("color")) colores.push_back(l);
  }
  EXPECT_EQ(colores, (Textos{"color 0x0000FF", "color 0x00ABCD", "color 0xFF00FF", "color 0x000000",
                             "color 0x000080"}));
  EXPECT_EQ(llamadas.front(), "color 0x0000FF");
  EXPECT_EQ(Cuenta(llamadas, "grueso"), 0);
}

TEST(DibujoCarta, CoincideLlamadaALlamadaConLaEscrituraLlana) {
  std::vector<ParametrosCartaLlana> casos{
      Otra(900, 600, 101325, 1, 0, 0, 0),     Otra(640, 480, 101325, 1, 0, 0, 0),
      Otra(1, 1, 101325, 1, 0, 0, 0),         Otra(1920, 1080, 80000, 1, 0, 0, 0),
      Otra(900, 600, 105000, 2, 100, 50, 30), Otra(600, 400, 60000, 3, -40, 25, -7),
      Otra(900, 600, 101325, 1, 33, 44, 55),  Otra(900, 600, 101325, -2, 33, 44, 55),
      Otra(900, 600, 101325, 0, 33, 44, 55),  Otra(777, 555, 95000, 127, 300, 200, 1),
  };
  ParametrosCartaLlana fina;
  fina.tPaso = 2.5F;
  fina.wPaso = 0.0007F;
  fina.hPaso = 3333.3F;
  fina.hrPaso = 2.5F;
  fina.vePaso = 0.003F;
  casos.push_back(fina);
  ParametrosCartaLlana corta;
  corta.tMax = 30;
  corta.tMin = 7.9F;
  corta.hMin = 12345.6F;
  corta.hMax = 90000;
  corta.wMax = 0.02F;
  corta.hrMin = 33.3F;
  casos.push_back(corta);
  ParametrosCartaLlana caliente;
  caliente.tMax = 120;
  caliente.wMax = 0.1F;
  caliente.hMax = 300000;
  casos.push_back(caliente);
  ParametrosCartaLlana fria;
  fria.tMin = -20;
  fria.hMin = -15000;
  casos.push_back(fria);
  for (std::size_t i = 0; i < casos.size(); ++i) {
    Psicro carta = CartaDe(casos[i]);
    const Textos esperado = CartaLlana(casos[i]);
    const Textos obtenido = Dibujar(carta, static_cast<int>(casos[i].ancho), static_cast<int>(casos[i].alto));
    ASSERT_GT(esperado.size(), 500U) << i;
    for (std::size_t j = 0; j < std::min(esperado.size(), obtenido.size()); ++j)
      ASSERT_EQ(obtenido[j], esperado[j]) << i << ' ' << j;
    ASSERT_EQ(obtenido.size(), esperado.size()) << i;
  }
}

TEST(DibujoCarta, ElResumenDeLasLlamadasNoCambia) {
  struct Caso {
    ParametrosCartaLlana parametros;
    std::uint64_t resumen; // el que dieron a la vez el motor y la escritura llana
  };
  const Caso casos[] = {{Otra(900, 600, 101325, 1, 0, 0, 0), 0x3bf0c83720c5e02aULL},
                        {Otra(1200, 700, 90000, 1, 0, 0, 0), 0x6de51b2e4e94a341ULL},
                        {Otra(600, 400, 101325, 2, 100, 50, 30), 0xb2049edb58e51830ULL}};
  for (const Caso &c : casos) {
    Psicro carta = CartaDe(c.parametros);
    const Textos llamadas =
        Dibujar(carta, static_cast<int>(c.parametros.ancho), static_cast<int>(c.parametros.alto));
    EXPECT_EQ(Resumen(llamadas), c.resumen) << std::hex << Resumen(llamadas);
  }
}

TEST(DibujoCarta, PuntosHechosAManoDeLaHumedadAbsoluta) {
  Psicro carta = SoloCon(Familia::W);
  const Textos llamadas = Dibujar(carta, 900, 600);
  // Treinta humedades de 0.001 en 0.001, pero la suma en float pasa de 0.03 y falta la de arriba.
  EXPECT_EQ(Cuenta(llamadas, "mover"), 29);
  // 0.001: y = 600·(1 − 0.001/0.03) = 580; 0.015 a medio alto, 300.
  EXPECT_EQ(llamadas[1].substr(llamadas[1].rfind(' ')), " 580");
  EXPECT_EQ(Cuenta(llamadas, "linea"), static_cast<long>(llamadas.size()) - 30);
}

TEST(DibujoCarta, PuntosHechosAManoDeLaHumedadRelativa) {
  Psicro carta = SoloCon(Familia::HR);
  const Textos llamadas = Dibujar(carta, 900, 600);
  EXPECT_EQ(Cuenta(llamadas, "mover 0 "), 11);
  EXPECT_EQ(llamadas[1], "mover 0 600");                   // aire seco
  EXPECT_EQ(llamadas[2], "linea 18 600");                  // 1 °C, 18 píxeles por grado
  EXPECT_EQ(llamadas.back().substr(0, 11), "linea 1080 "); // 60 °C
  // 50 % a 0 °C: p_v = 305.6 Pa, w = 0.0018816, y = 562.37.
  EXPECT_TRUE(Contiene(llamadas, "mover 0 562"));
  // 100 % a 25 °C: p_s = 3169.2 Pa, w = 0.020083, y = 198.3.
  EXPECT_TRUE(Contiene(llamadas, "linea 450 198"));
}

TEST(DibujoCarta, PuntosHechosAManoDeLaTemperaturaSeca) {
  Psicro carta = SoloCon(Familia::T);
  const Textos llamadas = Dibujar(carta, 900, 600);
  EXPECT_EQ(Cuenta(llamadas, "mover"), 11);
  EXPECT_TRUE(Contiene(llamadas, "mover 450 198"));
  EXPECT_TRUE(Contiene(llamadas, "linea 450 600")); // w = 0
  // Desde abajo de 0.001 en 0.001 hasta no pasar de 0.020083: 21 trazos.
  EXPECT_EQ(Cuenta(llamadas, "linea 450 "), 21);
}

TEST(DibujoCarta, PuntosHechosAManoDeLaEntalpia) {
  Psicro carta = SoloCon(Familia::H);
  const Textos llamadas = Dibujar(carta, 900, 600);
  // 0 J/kg corta la saturación por debajo de 0 °C y no se dibuja: quedan las doce siguientes.
  EXPECT_EQ(Cuenta(llamadas, "mover"), 12);
  EXPECT_EQ(llamadas[1], "mover 178 600"); // 10000/1006 = 9.940 °C
  // Desde 60000 salen del borde derecho: w = (60000 − 50300)/(1805·50 + 2501000) = 0.0037434, y = 525.13.
  EXPECT_EQ(llamadas[11], "mover 900 525");
}

TEST(DibujoCarta, PuntosHechosAManoDelVolumenEspecifico) {
  Psicro carta = SoloCon(Familia::VE);
  const Textos llamadas = Dibujar(carta, 900, 600);
  // 0.74·101325/287 − 273.15 = −11.894 °C, −214.1 píxeles.
  EXPECT_EQ(llamadas[2], "linea -214 600");
  // De 0.74 a 0.93 + 0.1 de 0.01 en 0.01: la suma en float se queda corta, la trigésima es 1.0299997, y la
  // de 1.03 no falta.
  EXPECT_EQ(Cuenta(llamadas, "linea"), 30);
  EXPECT_EQ(Cuenta(llamadas, "mover"), 30);
}

TEST(DibujoCarta, UnPasoDeHumedadRelativaNoEnteroSeTruncaEnCadaSuma) {
  Psicro carta = SoloCon(Familia::HR);
  carta.ponRango(Familia::HR, {0.0F, 10.0F, 2.5F}); // 0, 2, 4, 6, 8, 10
  const Textos pares = Dibujar(carta, 900, 600);
  carta.ponRango(Familia::HR, {0.9F, 10.0F, 2.0F});
  EXPECT_EQ(Dibujar(carta, 900, 600), pares);
  EXPECT_EQ(Cuenta(pares, "mover"), 6);
}

TEST(DibujoCarta, ConAumentoDistintoDeUnoElPrimerPuntoDeCadaCurvaUsaElAuxiliar) {
  Psicro carta = SoloCon(Familia::HR);
  carta.ponVista(10, 5, 30, 99, 2);
  const Textos llamadas = Dibujar(carta, 900, 600);
  EXPECT_EQ(llamadas[1], "mover -1740 1180"); // (30 − 900)·2, (600 − 10)·2
  EXPECT_EQ(llamadas[2], "linea 16 1190");    // (18 − 10)·2, (600 − 5)·2
}

TEST(DibujoCarta, ConAumentoUnoElPrimerPuntoPrescindeDeLosDesplazamientosHorizontales) {
  Psicro carta = SoloCon(Familia::T);
  carta.ponVista(10, 5, 0, 0, 1);
  const Textos llamadas = Dibujar(carta, 900, 600);
  EXPECT_TRUE(Contiene(llamadas, "mover 450 193")); // 198.3 − 5
  EXPECT_TRUE(Contiene(llamadas, "linea 440 595"));
  carta = SoloCon(Familia::HR);
  carta.ponVista(10, 5, 0, 0, 1);
  EXPECT_EQ(Dibujar(carta, 900, 600)[1], "mover 0 600");
}

TEST(DibujoCarta, SinPonerVistaElAumentoEsCeroYTodoCaeEnElOrigen) {
  Psicro carta = SoloCon(Familia::W);
  carta.ponVista(0, 0, 0, 0, Psicro().dameVista().zoom);
  for (const std::string &l : Dibujar(carta, 900, 600))
    EXPECT_TRUE(l == "mover 0 0" || l == "linea 0 0" || l.starts_with("color")) << l;
}

TEST(DibujoCarta, LasInterseccionesQueNoConvergenLoDicenYSeSigueDibujando) {
  prueba::RegistroApuntado registro;
  Psicro carta = SoloCon(Familia::H);
  carta.ponRango(Familia::H, {1e9F, 1e9F, 1.0F});
  (void)Dibujar(carta, 900, 600);
  EXPECT_TRUE(Contiene(registro.textos, "**Error 3: El proceso iterativo no ha convergido: "
                                        "No converge intersección H con W=0"));
  EXPECT_TRUE(Contiene(registro.textos, "**Error 3: El proceso iterativo no ha convergido: "
                                        "No converge intersección H con HR=100%"));
  registro.textos.clear();
  carta = SoloCon(Familia::VE);
  carta.ponRango(Familia::VE, {-1e9F, 0.8F, 1e9F});
  const Textos llamadas = Dibujar(carta, 900, 600);
  EXPECT_TRUE(Contiene(registro.textos, "**Error 3: El proceso iterativo no ha convergido: "
                                        "No converge intersección VE con HR=100%"));
}

TEST(DibujoCarta, UnaEntalpiaCuyoCorteNoEsNumeroDejaSinTrazoTambienLasSiguientes) {
  // Contra el aire seco la entalpía es casi una recta y el buscador puede acabar en lo que no es número; la
  // estimación pasa de línea en línea y ya no se recupera. Se conserva.
  prueba::RegistroApuntado registro;
  Psicro carta = SoloCon(Familia::H);
  carta.ponRango(Familia::H, {0.0F, 120000.0F, 3333.3F});
  LienzoDePrueba lienzo;
  carta.dibujar(lienzo, 900, 600);
  const long lineas = Cuenta(lienzo.llamadas, "linea");
  const long fallos = Cuenta(registro.textos, "**Error 3");
  EXPECT_GT(fallos, 0);
  EXPECT_EQ(lineas + fallos, 34); // 37 entalpías menos las tres que cortan la saturación bajo cero
  EXPECT_EQ(Cuenta(lienzo.llamadas, "mover"), lineas);
}

TEST(DibujoCarta, PorEncimaDe99GradosLaCorrienteSeAcotaYLoDice) {
  prueba::RegistroApuntado registro;
  Psicro carta = SoloCon(Familia::W);
  carta.ponRango(Familia::T, {0.0F, 120.0F, 5.0F});
  (void)Dibujar(carta, 900, 600);
  EXPECT_TRUE(Contiene(registro.textos, "**Maximo revasado 120.000000 > 99.000000, se toma 99.000000: "
                                        "CorrienteAire::pont_w"));
}
