#include "tests/cli/Jsonleido.h"
#include "tests/cli/Proceso.h"
#include "tests/comun/Lugares.h"
#include "tests/intercambio/formatos/Generadorclima.h"

namespace tesmo::prueba {
namespace {

/// tesmo-cli sobre los años sintéticos, que son .met de quince columnas sin ninguna falta.
class OrdenAuditar : public LineaDeOrdenes {
protected:
  void SetUp() override {
    LineaDeOrdenes::SetUp();
    const Ejecucion e =
        Orden({"sintetizar", "--normales", Raiz() + "/datos/normales.csv", "-o", (raiz_ / "hecho").string()});
    ASSERT_EQ(e.estado, 0) << e.error;
    almeria_ = (raiz_ / "hecho/Meteo/Almeria.met").string();
  }
  /// Escribe una copia del fichero con el viento de la línea @p linea (desde 1) a 999.
  [[nodiscard]] std::string ConCodigoEnLaLinea(int linea) const {
    std::string texto = Contenido(almeria_);
    std::size_t inicio = 0;
    for (int i = 1; i < linea; ++i) inicio = texto.find('\n', inicio) + 1;
    std::size_t campo = inicio;
    for (int i = 0; i < 9; ++i) campo = texto.find(' ', campo) + 1;
    texto.replace(campo, texto.find(' ', campo) - campo, "999");
    return raiz_.Escribir("estropeado.met", texto);
  }
  std::string almeria_;
};

TEST_F(OrdenAuditar, UnAnioSinFaltasEsApto) {
  const Ejecucion e = Orden({"auditar", almeria_});
  EXPECT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.error, "");
  EXPECT_NE(e.salida.find("Veredicto       apto (0 faltas graves, 0 avisos, "), std::string::npos)
      << e.salida;
  EXPECT_NE(e.salida.find(".met de quince columnas"), std::string::npos);
}

TEST_F(OrdenAuditar, ElJsonDaElVeredictoYLosTramosDeLineas) {
  const Ejecucion e = Orden({"auditar", ConCodigoEnLaLinea(50), almeria_, "--json"});
  EXPECT_EQ(e.estado, 0) << e.error;
  const JsonLeido lista(e.salida);
  ASSERT_EQ(lista.Tamano(), 2U);
  EXPECT_EQ(lista[0]["veredicto"].Texto(), "no apto");
  EXPECT_EQ(lista[1]["veredicto"].Texto(), "apto");
  EXPECT_NEAR(lista[1]["sitio"]["latitud"].Numero(), 36.8464, 1e-9);
  bool visto = false;
  const JsonLeido comprobaciones = lista[0]["comprobaciones"];
  for (std::size_t i = 0; i < comprobaciones.Tamano(); ++i) {
    const std::string clave = comprobaciones[i]["clave"].Texto();
    if (clave != "codigos" && clave != "huecos") continue;
    visto = visto || comprobaciones[i]["lineas"].Escrito() == "[[50,50]]";
  }
  EXPECT_TRUE(visto) << e.salida;
}

TEST_F(OrdenAuditar, ElJsonSaleEnUtf8AunqueLaCiudadVengaEnLatin1) {
  LineasFichero lineas = LineasEpw();
  CambiarCampo(lineas[0], 1,
               "Almer\xED"
               "a");
  const Ejecucion e = Orden({"auditar", raiz_.Escribir("x.epw", Unir(lineas)), "--json"});
  EXPECT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(JsonLeido(e.salida)[0]["sitio"]["nombre"].Texto(), "Almería");
}

TEST_F(OrdenAuditar, SinNadaQueAuditarElJsonEsUnaListaVacia) {
  const Ejecucion e = Orden({"auditar", (raiz_ / "nohay.epw").string(), "--json"});
  EXPECT_EQ(e.estado, 3);
  EXPECT_EQ(e.salida, "[]\n");
}

TEST_F(OrdenAuditar, LaCopiaDeUnaBaseSeAuditaConSusNormales) {
  // Un programa sin datos a su lado: las únicas normales son las de la base.
  const std::string sinDatos = raiz_.Escribir("sindatos/tesmo-cli", "");
  std::filesystem::copy_file(programa_, sinDatos, std::filesystem::copy_options::overwrite_existing);
  std::filesystem::permissions(sinDatos, std::filesystem::perms::owner_all);
  programa_ = sinDatos;
  const std::string copia = raiz_.Escribir("copia/Meteo/Almeria.met", Contenido(almeria_));
  constexpr const char *COTEJADO = "como las normales de Almería";
  EXPECT_EQ(Orden({"auditar", copia}).salida.find(COTEJADO), std::string::npos);
  raiz_.Escribir("copia/datos/normales.csv", Contenido(Raiz() + "/datos/normales.csv"));
  const Ejecucion e = Orden({"auditar", copia});
  EXPECT_EQ(e.estado, 0) << e.error;
  EXPECT_NE(e.salida.find(COTEJADO), std::string::npos) << e.salida;
}

TEST_F(OrdenAuditar, UnFicheroQueFaltaDaEstado3YLosDemasSeAuditan) {
  const Ejecucion e = Orden({"auditar", (raiz_ / "nohay.epw").string(), almeria_});
  EXPECT_EQ(e.estado, 3);
  EXPECT_TRUE(e.error.starts_with("Error: ")) << e.error;
  EXPECT_NE(e.error.find("nohay.epw"), std::string::npos) << e.error;
  EXPECT_NE(e.salida.find("Veredicto       apto ("), std::string::npos);
  EXPECT_EQ(Orden({"auditar"}).estado, 2);
}

} // namespace
} // namespace tesmo::prueba
