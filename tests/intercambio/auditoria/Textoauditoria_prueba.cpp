#include "intercambio/auditoria/Textoauditoria.h"

#include "tests/comun/Apoyos.h"
#include "tests/intercambio/auditoria/Materiadeprueba.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tesmo::prueba {
namespace {

TEST(TextoDeLineas, LasSeguidasSonUnTramoYLasDeMasSeCuentan) {
  EXPECT_EQ(TextoDeLineas({}, 3), "");
  EXPECT_EQ(TextoDeLineas({9}, 3), "9");
  EXPECT_EQ(TextoDeLineas({9, 10, 11, 20}, 3), "9-11, 20");
  EXPECT_EQ(TextoDeLineas({1, 3, 5, 7, 8}, 2), "1, 3 y 3 más");
}

TEST(TextoDeSitio, SoloDiceLoQueSeSabe) {
  const ConSeparador coma(',');
  EXPECT_EQ(TextoDeSitio({"Tabernas", "", "España", "", 37.095, -2.3586, 499.0}),
            "Tabernas, España; 37,095° N, 2,359° O, 499 m");
  EXPECT_EQ(TextoDeSitio({"", "", "", "", -33.5, 18.25, AUSENTE}), "33,500° S, 18,250° E");
  EXPECT_EQ(TextoDeSitio({}), "desconocido");
}

TEST(TextoAuditoria, UnaPaginaConElVeredictoYLasLineasQueFallan) {
  MateriaAuditoria materia = MateriaLimpia();
  materia.anio[Campo::VelocidadViento].Poner(Posicion(1, 10, 3), 45.0, Procedencia::Copiada);
  const std::string pagina = TextoAuditoria("uno.epw", materia, Auditar(materia));
  EXPECT_NE(pagina.find("Fichero         uno.epw\n"), std::string::npos) << pagina;
  EXPECT_NE(pagina.find("Veredicto       apto con avisos (0 faltas graves, 1 aviso, "), std::string::npos);
  EXPECT_NE(pagina.find("\n* aviso         Saltos: "), std::string::npos);
  EXPECT_NE(pagina.find("Líneas 227-228\n"), std::string::npos);
  std::istringstream lineas(pagina);
  int numero = 0;
  for (std::string linea; std::getline(lineas, linea); ++numero) EXPECT_LE(linea.size(), 120U) << linea;
  EXPECT_LE(numero, 66); // lo que cabe en una hoja
}

} // namespace
} // namespace tesmo::prueba
