#include "tests/cli/Proceso.h"

#include <algorithm>

namespace tesmo::prueba {
namespace {

using Lista = std::vector<std::string>;

class OrdenCarta : public LineaDeOrdenes {
protected:
  [[nodiscard]] Lista Trazos(Lista opciones) const {
    opciones.insert(opciones.begin(), {"carta", "--ordenes"});
    const Ejecucion e = Orden(opciones);
    EXPECT_EQ(e.estado, 0) << e.error;
    EXPECT_EQ(e.error, "");
    return e.Lineas();
  }
  static bool Esta(const Lista &lineas, const std::string &linea) {
    return std::find(lineas.begin(), lineas.end(), linea) != lineas.end();
  }
  static bool Seguidas(const Lista &lineas, const Lista &tramo) {
    return std::search(lineas.begin(), lineas.end(), tramo.begin(), tramo.end()) != lineas.end();
  }
};

TEST_F(OrdenCarta, LosTrazosSonColorMoverYLineaConLosColoresPorSuOrden) {
  const Lista lineas = Trazos({});
  Lista colores;
  for (const std::string &linea : lineas) {
    if (linea.starts_with("color ")) {
      colores.push_back(linea.substr(6));
    } else {
      EXPECT_TRUE(linea.starts_with("mover ") || linea.starts_with("linea ")) << linea;
      EXPECT_EQ(std::count(linea.begin(), linea.end(), ' '), 2) << linea;
    }
  }
  EXPECT_EQ(colores, (Lista{"0x0000FF", "0x808000", "0xFF00FF", "0x000000", "0x000080"}));
}

TEST_F(OrdenCarta, PuntosHechosAMano) {
  const Lista lineas = Trazos({});
  EXPECT_TRUE(Esta(lineas, "linea 90 600"));   // 5 ºC: 5·900/50, en la humedad 0
  EXPECT_TRUE(Esta(lineas, "mover 0 600"));    // humedad relativa 0: aire seco a 0 ºC
  EXPECT_TRUE(Esta(lineas, "linea -214 600")); // 0,74 m³/kg: 0,74·101325/287 − 273,15 = −11,895 ºC
}

TEST_F(OrdenCarta, TamanoVistaYRangos) {
  const Lista solo5{"--sin",   "w,h,hr,ve", "--tmin",  "5",   "--tmax", "10",
                    "--tpaso", "5",         "--ancho", "200", "--alto", "100"};
  const Lista lineas = Trazos(solo5);
  EXPECT_EQ(lineas.front(), "color 0xFF00FF");
  EXPECT_TRUE(Esta(lineas, "linea 100 100"));
  EXPECT_TRUE(Esta(lineas, "linea 200 100"));
  EXPECT_EQ(std::count_if(lineas.begin(), lineas.end(), [](auto &l) { return l.starts_with("mover"); }), 2);
  Lista movida = solo5;
  movida.insert(movida.end(), {"--zoom", "2", "--dx", "30", "--dy", "-10", "--v3", "1", "--v4", "2"});
  EXPECT_TRUE(Esta(Trazos(movida), "linea 140 220")); // (100 − 30)·2, (100 + 10)·2
}

TEST_F(OrdenCarta, CadaFamiliaSeQuitaConSuCodigo) {
  const std::vector<std::pair<std::string, std::string>> familias{
      {"w", "0x0000FF"}, {"hr", "0x808000"}, {"t", "0xFF00FF"}, {"h", "0x000000"}, {"ve", "0x000080"}};
  for (const auto &[codigo, color] : familias)
    EXPECT_FALSE(Esta(Trazos({"--sin", codigo}), "color " + color));
  EXPECT_TRUE(Trazos({"--sin", "t,w,h,hr,ve"}).empty());
}

TEST_F(OrdenCarta, CadaRangoCambiaSusTrazos) {
  const Lista entera = Trazos({});
  const std::vector<std::pair<std::string, std::string>> cambios{
      {"tmax", "45"},     {"tmin", "5"},     {"tpaso", "10"},   {"wmax", "0.02"},   {"wmin", "0.002"},
      {"wpaso", "0.002"}, {"hmax", "90000"}, {"hmin", "20000"}, {"hpaso", "20000"}, {"hrmax", "80"},
      {"hrmin", "20"},    {"hrpaso", "20"},  {"vemin", "0.8"},  {"vemax", "0.9"},   {"vepaso", "0.02"}};
  for (const auto &[opcion, valor] : cambios) {
    const Lista otra = Trazos({"--" + opcion, valor});
    EXPECT_FALSE(otra.empty()) << opcion;
    EXPECT_NE(otra, entera) << opcion;
  }
}

TEST_F(OrdenCarta, LaAltitudYLaPresionDicenLoMismo) {
  EXPECT_EQ(Trazos({"--altitud", "0"}), Trazos({}));
  EXPECT_EQ(Trazos({"--presion", "101325"}), Trazos({}));
  EXPECT_NE(Trazos({"--altitud", "1000"}), Trazos({}));
  // A 90000 Pa el extremo seco de 0,74 m³/kg está a 0,74·90000/287 − 273,15 = −41,094 ºC.
  EXPECT_TRUE(Esta(Trazos({"--presion", "90000"}), "linea -739 600"));
}

TEST_F(OrdenCarta, LaAltitudQueNoSeCreeSeAvisaYVale0ConNubeYSinElla) {
  const auto con = [this](const char *altitud, bool nube) {
    Lista opciones{"carta", "--ordenes", "--altitud", altitud};
    if (nube) opciones.insert(opciones.end(), {"--localidad", "Rota", "--hasta", "1/1/24"});
    return nube ? ConBase(opciones) : Orden(opciones);
  };
  for (const bool nube : {false, true}) {
    const std::string aNivelDelMar = con("0", nube).salida;
    for (const char *altitud : {"10000", "-501"}) {
      const Ejecucion e = con(altitud, nube);
      EXPECT_EQ(e.estado, 0);
      EXPECT_NE(e.error.find("Aviso: --altitud"), std::string::npos) << e.error;
      EXPECT_EQ(e.salida, aNivelDelMar) << altitud;
    }
    for (const char *altitud : {"9000", "-500"}) {
      const Ejecucion e = con(altitud, nube);
      EXPECT_EQ(e.error.find("--altitud"), std::string::npos) << e.error;
      EXPECT_NE(e.salida, aNivelDelMar) << altitud;
    }
  }
}

TEST_F(OrdenCarta, LaNubeMarcaLasHorasPedidas) {
  const Ejecucion e = ConBase({"carta", "--ordenes", "--sin", "t,w,h,hr,ve", "--localidad", "Rota", "--hasta",
                               "1/1/24", "--horas", "5-5"});
  ASSERT_EQ(e.estado, 0) << e.error;
  // La quinta hora: 1 ºC y 0,005 kg/kg, en (1·900/50, 600·25/30).
  EXPECT_EQ(e.Lineas(), (Lista{"color 0xFF0000", "grueso 2", "mover 15 500", "linea 21 500", "mover 18 497",
                               "linea 18 503", "grueso 1"}));
}

TEST_F(OrdenCarta, LaPresionDeLaNubeEsLaDeSuAltitudSiNoSeDiceOtra) {
  const auto con = [this](Lista opciones) {
    opciones.insert(opciones.begin(), {"carta", "--ordenes", "--horas", "5-5", "--hasta", "1/1/24"});
    opciones.insert(opciones.end(), {"--localidad", "Rota"});
    return ConBase(opciones).salida;
  };
  const std::string fabrica = con({});
  EXPECT_EQ(fabrica, con({"--altitud", "21"}));
  EXPECT_NE(fabrica, con({"--presion", "90000"}));
}

TEST_F(OrdenCarta, SvgSinPantallaConFondoYRecorte) {
  const std::string destino = (raiz_ / "carta.SVG").string();
  const Ejecucion e = Orden({"carta", "-o", destino, "--ancho", "300", "--alto", "200"});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.salida, "");
  const std::string svg = Contenido(destino);
  EXPECT_NE(svg.find("viewBox=\"0 0 300 200\""), std::string::npos);
  for (const char *color : {"#FF0000", "#008080", "#FF00FF", "#000000", "#800000"})
    EXPECT_NE(svg.find(std::string("stroke=\"") + color), std::string::npos) << color;
}

#ifdef TESMO_CON_IMAGEN
TEST_F(OrdenCarta, PngYPdfSinPantalla) {
  const std::string png = (raiz_ / "carta.png").string();
  const std::string pdf = (raiz_ / "carta.pdf").string();
  ASSERT_EQ(Orden({"carta", "-o", png, "--ancho", "300", "--alto", "200"}).estado, 0);
  const std::string imagen = Contenido(png);
  ASSERT_GT(imagen.size(), 24U);
  // Firma, y ancho y alto de 4 bytes en la cabecera (PNG, ISO/IEC 15948).
  EXPECT_EQ(imagen.substr(0, 8), "\x89PNG\r\n\x1a\n");
  EXPECT_EQ(imagen.substr(16, 8), std::string("\0\0\x01\x2c\0\0\0\xc8", 8));
  ASSERT_EQ(Orden({"carta", "-o", pdf}).estado, 0);
  EXPECT_TRUE(Contenido(pdf).starts_with("%PDF-"));
  EXPECT_NE(Contenido(pdf).find("/MediaBox [0 0 900"), std::string::npos);
}
#else
TEST_F(OrdenCarta, PngYPdfSinVentanasSeNieganConEstado2) {
  for (const char *nombre : {"carta.png", "carta.pdf"}) {
    const Ejecucion e = Orden({"carta", "-o", (raiz_ / nombre).string()});
    EXPECT_EQ(e.estado, 2);
    EXPECT_NE(e.error.find("sólo dibuja en .svg"), std::string::npos) << e.error;
  }
}
#endif

TEST_F(OrdenCarta, SalidaQueNoSePuedeEscribirEstado4) {
  EXPECT_EQ(Orden({"carta", "-o", (raiz_ / "nohay/x.svg").string()}).estado, 4);
  std::filesystem::create_directories(raiz_ / "dir.svg");
  EXPECT_EQ(Orden({"carta", "-o", (raiz_ / "dir.svg").string()}).estado, 4);
}

TEST_F(OrdenCarta, EntradaQueFaltaEstado3YNadaEscrito) {
  const std::string destino = (raiz_ / "x.svg").string();
  EXPECT_EQ(ConBase({"carta", "-o", destino, "--localidad", "Ninguna"}).estado, 3);
  EXPECT_EQ(ConBase({"carta", "-o", destino, "--localidad", "Perdida"}).estado, 3);
  EXPECT_FALSE(std::filesystem::exists(destino));
}

TEST_F(OrdenCarta, UsoIncorrectoEstado2YNadaEscrito) {
  const std::string destino = (raiz_ / "x.svg").string();
  for (const Lista &opciones : std::vector<Lista>{{},
                                                  {"--ordenes", "-o", destino},
                                                  {"-o", (raiz_ / "x.gif").string()},
                                                  {"-o", "carta"},
                                                  {"-o", ""},
                                                  {"-o", destino, "--ancho", "0"},
                                                  {"-o", destino, "--alto", "1e3"},
                                                  {"-o", destino, "--sin", "t,x"},
                                                  {"-o", destino, "--sin", ""},
                                                  {"-o", destino, "--zoom", "128"},
                                                  {"-o", destino, "--tmax", "nan"},
                                                  {"-o", destino, "--presion", "1", "--altitud", "1"},
                                                  {"-o", destino, "--altitud", "alta"},
                                                  {"-o", destino, "--desde", "1/1/1"},
                                                  {"-o", destino, "--horas", "1-2"}}) {
    Lista todas = opciones;
    todas.insert(todas.begin(), "carta");
    const Ejecucion e = Orden(todas);
    EXPECT_EQ(e.estado, 2) << ::testing::PrintToString(opciones);
    EXPECT_EQ(e.salida, "");
  }
  EXPECT_FALSE(std::filesystem::exists(destino));
}

TEST_F(OrdenCarta, NingunParametroLaCuelga) {
  for (const Lista &opciones : std::vector<Lista>{{"--tpaso", "0"},
                                                  {"--wpaso", "-1"},
                                                  {"--hrpaso", "0.5"},
                                                  {"--vepaso", "0", "--presion", "1e-30"},
                                                  {"--tmax", "0"},
                                                  {"--wmax", "0"},
                                                  {"--zoom", "-128", "--dx", "-2147483648"}}) {
    Lista todas = opciones;
    todas.insert(todas.begin(), {"carta", "--ordenes"});
    EXPECT_EQ(Orden(todas).estado, 0) << ::testing::PrintToString(opciones);
  }
}

} // namespace
} // namespace tesmo::prueba
