#include "tests/cli/Proceso.h"

namespace tesmo::prueba {
namespace {

using Argumentos = std::vector<std::string>;
class AyudaYErrores : public LineaDeOrdenes {};

const std::vector<Argumentos> ORDENES{{},
                                      {"localidades"},
                                      {"aire"},
                                      {"sol"},
                                      {"serie"},
                                      {"estadisticas"},
                                      {"exportar"},
                                      {"dias-extremos"},
                                      {"importar"},
                                      {"convertir"},
                                      {"sintetizar"},
                                      {"auditar"},
                                      {"corriente"},
                                      {"carta"},
                                      {"sol", "salida"},
                                      {"sol", "vector"},
                                      {"sol", "posicion"},
                                      {"sol", "momento"},
                                      {"sol", "dia"},
                                      {"sol", "meses"},
                                      {"sol", "anual"},
                                      {"horizonte"},
                                      {"horizonte", "leer"},
                                      {"horizonte", "guardar"},
                                      {"horizonte", "convertir"},
                                      {"horizonte", "efecto"}};

void SinIngles(const std::string &texto) {
  for (const char *ingles : {"Usage", "Options", "OPTIONS", "Positionals", "REQUIRED", "TEXT", "SUBCOMMAND",
                             "Subcommand", "subcommand", "Print", "required", "following", "expected",
                             "missing", "argument ", "excludes", "is not"})
    EXPECT_EQ(texto.find(ingles), std::string::npos) << ingles << " en:\n" << texto;
}

TEST_F(AyudaYErrores, CadaOrdenTieneAyudaEnEspanolConEjemplos) {
  for (const Argumentos &argumentos : ORDENES) {
    for (const char *opcion : {"--help", "-h"}) {
      Argumentos completos = argumentos;
      completos.emplace_back(opcion);
      const Ejecucion e = Orden(completos);
      EXPECT_EQ(e.estado, 0) << e.error;
      EXPECT_EQ(e.error, "");
      EXPECT_NE(e.salida.find("Uso: tesmo-cli"), std::string::npos) << e.salida;
      EXPECT_NE(e.salida.find("Ejemplos:\n  tesmo-cli "), std::string::npos) << e.salida;
      SinIngles(e.salida);
    }
  }
}

TEST_F(AyudaYErrores, LosGradosSeEscribenConSuSignoYNoConElOrdinal) {
  for (Argumentos argumentos : ORDENES) {
    argumentos.emplace_back("--help");
    EXPECT_EQ(Orden(argumentos).salida.find("º"), std::string::npos) << ::testing::PrintToString(argumentos);
  }
}

TEST_F(AyudaYErrores, LaAyudaGeneralNombraTodasLasOrdenes) {
  const std::string ayuda = Orden({"--help"}).salida;
  for (const char *orden : {"localidades", "aire", "sol", "serie", "estadisticas", "exportar", "sintetizar",
                            "auditar", "horizonte", "corriente", "carta"})
    EXPECT_NE(ayuda.find(std::string("\n  ") + orden + " "), std::string::npos) << orden;
}

TEST_F(AyudaYErrores, LosEjemplosDeLaAyudaSonOrdenesQueValen) {
  // Se ejecutan los que no dependen de una localidad: los demás los cubren las pruebas de cada orden.
  EXPECT_EQ(Orden({"aire", "pont_w", "-5", "0.002", "93000"}).estado, 0);
  EXPECT_EQ(Orden({"aire", "pont_h", "20", "40000", "--json"}).estado, 0);
  EXPECT_EQ(Orden({"sol", "salida", "36.84", "6", "21"}).estado, 0);
  EXPECT_EQ(Orden({"sol", "posicion", "-33.5", "12", "21", "9.5"}).estado, 0);
}

TEST_F(AyudaYErrores, UsoIncorrectoEstado2YErrorEnEspanol) {
  const std::vector<std::pair<Argumentos, std::string>> casos{
      {{}, "falta la orden"},
      {{"volar"}, "orden desconocida: volar"},
      {{"sol"}, "falta la orden"},
      {{"sol", "poner"}, "orden desconocida: poner"},
      {{"--volar"}, "orden desconocida: --volar"},
      {{"aire"}, "falta ORDEN"},
      {{"aire", "pont_hr", "25"}, "falta B"},
      {{"aire", "pont_hr", "25", "50", "101325", "9"}, "desconocido: 9"},
      {{"aire", "pont_hr", "25", "50", "--volar"}, "desconocido: --volar"},
      {{"aire", "pont_zz", "25", "50"}, "orden de aire desconocida: pont_zz"},
      {{"aire", "pont_hr", "x", "50"}, "A: «x» no es un número"},
      {{"serie", "--localidad"}, "--localidad: falta su valor"},
      {{"serie", "--desde", "1/1/1", "--desde", "1/1/2", "TS"}, "--desde: se ha dado más de una vez"},
      {{"serie", "--localidad", "Rota"}, "falta VARIABLE"},
      {{"exportar", "--localidad", "Rota", "TS"}, "falta --salida"},
      {{"sintetizar"}, "falta --salida"},
  };
  for (const auto &[argumentos, texto] : casos) {
    const Ejecucion e = Orden(argumentos);
    EXPECT_EQ(e.estado, 2) << texto;
    EXPECT_EQ(e.salida, "");
    EXPECT_TRUE(e.error.starts_with("Error: ")) << e.error;
    EXPECT_NE(e.error.find(texto + "\n"), std::string::npos) << e.error;
    EXPECT_NE(e.error.find("\nPruebe: tesmo-cli"), std::string::npos) << e.error;
    SinIngles(e.error);
  }
}

} // namespace
} // namespace tesmo::prueba
